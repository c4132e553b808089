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

CMessageStore& CMessageStore::operator=(const CMessageStore& source)
{
    if (this == &source)
        return *this;
    CMessageStore copy;
    copy.m_arrSlot.resize(source.m_arrSlot.size());
    for (std::size_t i = 0; i < source.m_arrSlot.size(); ++i)
        if (const Slot slot = source.m_arrSlot[i])
        {
            const Record& record = source.At(slot);
            copy.Place(i, static_cast<std::uint32_t>(slot >> 32), record.Key(), record.Value());
        }
    Swap(copy);
    return *this;
}

void CMessageStore::Swap(CMessageStore& other) noexcept
{
    std::swap(m_arrSlot, other.m_arrSlot);
    std::swap(m_arrBlock, other.m_arrBlock);
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

std::size_t CMessageStore::SlotOf(units::view key, std::uint32_t hash) const
{
    const std::size_t mask = m_arrSlot.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask)
    {
        const Slot slot = m_arrSlot[i];
        if (slot == 0)
            return i;
        if (slot >> 32 != hash)
            continue;
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
        __builtin_prefetch(&m_arrSlot[hash & (m_arrSlot.size() - 1)], 1);
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
    if (value.size() <= old.valueLength)
    {
        // Written over: a text that changes often takes no more memory.
        m_nDead += (old.valueLength - value.size()) * sizeof(char16_t);
        std::copy(value.begin(), value.end(), old.Units() + old.keyLength);
        old.valueLength = static_cast<std::uint32_t>(value.size());
        return;
    }
    m_nDead += BytesOf(old.keyLength + old.valueLength);
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
    for (const Slot slot : m_arrSlot)
        if (slot != 0)
            messages.push_back({At(slot).Key(), At(slot).Value()});
    std::sort(messages.begin(), messages.end(),
              [](const Message& a, const Message& b) { return units::compare(a.key, b.key) < 0; });
    return messages;
}

void CMessageStore::Place(std::size_t slot, std::uint32_t hash, units::view key, units::view value)
{
    m_arrSlot[slot] = Slot{hash} << 32 | (Append(key, value) + 1);
    ++m_nCount;
}

CMessageStore::Ref CMessageStore::Append(units::view key, units::view value)
{
    const std::size_t bytes = BytesOf(key.size() + value.size());
    Ref ref = 0;
    auto* const record = new (Take(bytes, ref))
        Record{static_cast<std::uint32_t>(key.size()), static_cast<std::uint32_t>(value.size())};
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
    if (m_nCount + 1 > m_arrSlot.size() / 4 * 3)
        Index(std::max(kFewSlots, 2 * m_arrSlot.size()));
}

void CMessageStore::Index(std::size_t slots)
{
    std::vector<Slot> old(slots);
    old.swap(m_arrSlot);
    const std::size_t mask = slots - 1;
    for (const Slot slot : old)
    {
        if (slot == 0)
            continue;
        std::size_t i = (slot >> 32) & mask;
        while (m_arrSlot[i] != 0)
            i = (i + 1) & mask;
        m_arrSlot[i] = slot;
    }
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
    if (const std::size_t slots = std::max(kFewSlots, std::bit_ceil(m_nCount * 4 / 3 + 1));
        slots < m_arrSlot.size() && m_nCount + 1 <= slots / 4 * 3)
        Index(slots);
}

void CMessageStore::Tidy()
{
    if (m_nDead > kTidyLeast && m_nDead > m_nUsed / 2)
        CMessageStore(*this).Swap(*this);
}
