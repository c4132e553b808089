#include "tarvo/msg/MessageStore.h"

#include <algorithm>
#include <bit>
#include <new>
#include <utility>

namespace
{
constexpr std::size_t kFewSlots = 16;
constexpr std::size_t kTidyLeast = std::size_t{64} << 10; ///< bytes; less is not worth moving for
} // namespace

template <class Visit>
void CMessageStore::ForEach(Visit visit) const
{
    for (std::size_t block = 0; block < m_arrBlock.size(); ++block)
        for (std::size_t at = 0; at < m_arrBlock[block].used;)
        {
            const Record& record = *reinterpret_cast<const Record*>(m_arrBlock[block].bytes.get() + at);
            if (!(record.keyLength & kReplaced))
                visit(record, static_cast<Ref>(block << 16 | at / kGrain));
            at += BytesOf(record);
        }
}

CMessageStore& CMessageStore::operator=(const CMessageStore& source)
{
    CMessageStore copy;
    source.ForEach(
        [&copy](const Record& record, Ref) { copy.Append(record.hash, record.Key(), record.Value()); });
    copy.m_nCount = source.m_nCount;
    if (copy.m_nCount != 0)
        copy.Index(SlotsFor(copy.m_nCount + 1));
    Swap(copy);
    return *this;
}

void CMessageStore::Swap(CMessageStore& other) noexcept
{
    std::swap(m_arrSlot, other.m_arrSlot);
    std::swap(m_arrBlock, other.m_arrBlock);
    std::swap(m_nRefBits, other.m_nRefBits);
    std::swap(m_nBlock, other.m_nBlock);
    std::swap(m_nCount, other.m_nCount);
    std::swap(m_nUsed, other.m_nUsed);
    std::swap(m_nDead, other.m_nDead);
}

std::size_t CMessageStore::GetMemory() const
{
    std::size_t bytes = m_arrSlot.capacity() * sizeof(Slot) + m_arrBlock.capacity() * sizeof(Block);
    for (const Block& block : m_arrBlock)
        bytes += block.size;
    return bytes;
}

std::size_t CMessageStore::BytesOf(std::size_t units)
{
    return (sizeof(Record) + units * sizeof(char16_t) + kGrain - 1) / kGrain * kGrain;
}

std::size_t CMessageStore::BytesOf(const Record& record)
{
    return BytesOf(std::size_t{record.keyLength & ~kReplaced} + record.valueLength);
}

std::size_t CMessageStore::SlotOf(units::view key, std::uint32_t hash) const
{
    const std::uint32_t mask = TagMask(), tag = TagOf(hash);
    for (std::size_t i = HomeOf(hash);; i = Next(i))
    {
        const Slot slot = m_arrSlot[i];
        if (slot == 0)
            return i;
        if ((slot & mask) != tag)
            continue;
        // The rest of a record comes from memory together with its front.
        const Record& record = At(slot);
        __builtin_prefetch(record.Units() + 32);
        __builtin_prefetch(record.Units() + 64);
        if (units::equal(record.Key(), key))
            return i;
    }
}

std::uint32_t CMessageStore::Announce(units::view key) const
{
    const std::uint32_t hash = units::hash(key);
    if (!m_arrSlot.empty())
        __builtin_prefetch(&m_arrSlot[HomeOf(hash)], 1);
    return hash;
}

bool CMessageStore::Insert(units::view key, units::view value, std::uint32_t hash)
{
    MakeRoom();
    const std::size_t slot = SlotOf(key, hash);
    if (m_arrSlot[slot] != 0)
        return false;
    Place(slot, hash, key, value);
    return true;
}

void CMessageStore::Set(units::view key, units::view value)
{
    MakeRoom();
    const std::uint32_t hash = units::hash(key);
    const std::size_t slot = SlotOf(key, hash);
    if (m_arrSlot[slot] == 0)
        return Place(slot, hash, key, value);
    Record& old = At(m_arrSlot[slot]);
    if (value.size() == old.valueLength)
    {
        std::copy(value.begin(), value.end(), old.Units() + old.keyLength);
        return;
    }
    m_nDead += BytesOf(old);
    old.keyLength |= kReplaced;
    m_arrSlot[slot] = 0;
    --m_nCount;
    Place(slot, hash, key, value);
    Tidy();
}

std::optional<units::view> CMessageStore::Find(units::view key) const
{
    if (m_arrSlot.empty())
        return std::nullopt;
    const Slot slot = m_arrSlot[SlotOf(key, units::hash(key))];
    if (slot == 0)
        return std::nullopt;
    return At(slot).Value();
}

std::vector<CMessageStore::Message> CMessageStore::Sorted() const
{
    std::vector<Message> messages;
    messages.reserve(m_nCount);
    ForEach([&messages](const Record& record, Ref) { messages.push_back({record.Key(), record.Value()}); });
    std::sort(messages.begin(), messages.end(),
              [](const Message& a, const Message& b) { return units::compare(a.key, b.key) < 0; });
    return messages;
}

void CMessageStore::Place(std::size_t slot, std::uint32_t hash, units::view key, units::view value)
{
    const std::uint64_t ref = Append(hash, key, value) + std::uint64_t{1};
    ++m_nCount;
    if (ref >> m_nRefBits)
        return Index(m_arrSlot.size());
    m_arrSlot[slot] = TagOf(hash) | static_cast<Slot>(ref);
}

CMessageStore::Ref CMessageStore::Append(std::uint32_t hash, units::view key, units::view value)
{
    const std::size_t bytes = BytesOf(key.size() + value.size());
    Ref ref = 0;
    auto* const record = new (Take(bytes, ref))
        Record{hash, static_cast<std::uint32_t>(key.size()), static_cast<std::uint32_t>(value.size())};
    std::copy(value.begin(), value.end(), std::copy(key.begin(), key.end(), record->Units()));
    m_nUsed += bytes;
    return ref;
}

char* CMessageStore::Take(std::size_t bytes, Ref& ref)
{
    while (m_nBlock < m_arrBlock.size() && m_arrBlock[m_nBlock].size - m_arrBlock[m_nBlock].used < bytes)
        ++m_nBlock;
    if (m_nBlock == m_arrBlock.size())
        AddBlock(bytes);
    Block& block = m_arrBlock[m_nBlock];
    ref = static_cast<Ref>(m_nBlock << 16 | block.used / kGrain);
    block.used += bytes;
    return block.bytes.get() + block.used - bytes;
}

void CMessageStore::AddBlock(std::size_t least)
{
    // A record that no block of the usual size holds has one of its own and begins at its front.
    const std::size_t usual =
        m_arrBlock.empty() ? kFirstBlock : std::min(2 * m_arrBlock.back().size, kMostBlock);
    const std::size_t size = std::max(usual, least);
    if (m_arrBlock.size() > 0xFFFF)
        throw std::bad_alloc();
    std::unique_ptr<char, Free> bytes(static_cast<char*>(std::malloc(size)));
    if (!bytes)
        throw std::bad_alloc();
    m_arrBlock.push_back({std::move(bytes), size, 0});
}

void CMessageStore::MakeRoom()
{
    if (SlotsFor(m_nCount + 1) > m_arrSlot.size())
        Index(std::max(kFewSlots, 2 * m_arrSlot.size()));
}

void CMessageStore::Index(std::size_t slots)
{
    std::vector<Slot>(slots).swap(m_arrSlot);
    m_nRefBits = std::min(32u, 16u + static_cast<unsigned>(std::bit_width(2 * m_arrBlock.size())));
    ForEach([this](const Record& record, Ref ref) {
        std::size_t i = HomeOf(record.hash);
        while (m_arrSlot[i] != 0)
            i = Next(i);
        m_arrSlot[i] = TagOf(record.hash) | (ref + 1);
    });
}

void CMessageStore::Clear()
{
    std::fill(m_arrSlot.begin(), m_arrSlot.end(), 0);
    for (Block& block : m_arrBlock)
        block.used = 0;
    m_nBlock = m_nCount = m_nUsed = m_nDead = 0;
}

void CMessageStore::Trim()
{
    if (m_nCount == 0)
        return CMessageStore().Swap(*this);
    m_arrBlock.resize(m_nBlock + 1);
    if (const std::size_t slots = std::max(kFewSlots, SlotsFor(m_nCount + 1)); slots < m_arrSlot.size())
        Index(slots);
}

void CMessageStore::Tidy()
{
    if (m_nDead > kTidyLeast && m_nDead > m_nUsed / 2)
        CMessageStore(*this).Swap(*this);
}
