#include "tarvo/msg/MessageStore.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace
{
constexpr std::size_t kTidyLeast = std::size_t{64} << 10; ///< bytes; less is not worth moving for
} // namespace

template <class Visit>
void CMessageStore::ForEach(Visit visit) const
{
    m_records.ForEachBlock([&visit](const char* first, const char* last, Ref ref) {
        for (const char* at = first; at != last;)
        {
            const Record& record = *reinterpret_cast<const Record*>(at);
            if (!record.isReplaced)
                visit(record, ref);
            const std::size_t size = record.GetSize();
            at += size;
            ref += static_cast<Ref>(size / CRecordArena::kGrain);
        }
    });
}

CMessageStore& CMessageStore::operator=(const CMessageStore& source)
{
    CMessageStore copy;
    source.ForEach([&copy](const Record& record, Ref) { copy.Append(record); });
    copy.m_nCount = source.m_nCount;
    if (copy.m_nCount != 0)
        copy.Index(copy.m_nCount);
    Swap(copy);
    return *this;
}

void CMessageStore::Swap(CMessageStore& other) noexcept
{
    std::swap(m_records, other.m_records);
    std::swap(m_table, other.m_table);
    std::swap(m_nCount, other.m_nCount);
    std::swap(m_nUsed, other.m_nUsed);
    std::swap(m_nDead, other.m_nDead);
}

std::size_t CMessageStore::GetMemory() const { return m_records.GetMemory() + m_table.GetMemory(); }

std::size_t CMessageStore::Record::GetSize() const
{
    return CRecordArena::RoundUp(sizeof(Record) + GetKeySize() + std::size_t{valueLength} * sizeof(char16_t));
}

std::u16string CMessageStore::Record::Key() const
{
    return isNarrow ? std::u16string(Bytes(), Bytes() + keyLength) : std::u16string(Units(), keyLength);
}

template <class Char>
bool CMessageStore::Record::HasKey(const std::basic_string_view<Char>& key) const
{
    // The rest of a record comes from memory together with its front.
    __builtin_prefetch(Units() + 32);
    __builtin_prefetch(Units() + 64);
    return keyLength == key.size() && (isNarrow ? units::same(Bytes(), key.data(), keyLength)
                                                : units::same(Units(), key.data(), keyLength));
}

void CMessageStore::Record::Write(units::view key, units::view value)
{
    if (isNarrow)
        units::to_bytes(key.data(), key.size(), reinterpret_cast<std::uint8_t*>(Room()));
    else
        units::copy(key, Room());
    SetValue(value);
}

void CMessageStore::Record::SetValue(units::view value) { units::copy(value, Room() + GetKeySize() / 2); }

std::size_t CMessageStore::SlotOf(units::view key, std::uint32_t hash) const
{
    return m_table.Find(hash, [&](Ref ref) { return At(ref).HasKey(key); });
}

std::uint32_t CMessageStore::Announce(units::view key) const
{
    const std::uint32_t hash = units::hash(key);
    m_table.Prefetch(hash);
    return hash;
}

bool CMessageStore::Insert(units::view key, units::view value, std::uint32_t hash)
{
    MakeRoom();
    const std::size_t slot = SlotOf(key, hash);
    if (!m_table.IsFree(slot))
        return false;
    Add(slot, hash, key, value);
    return true;
}

void CMessageStore::Set(units::view key, units::view value)
{
    MakeRoom();
    const std::uint32_t hash = units::hash(key);
    const std::size_t slot = SlotOf(key, hash);
    if (m_table.IsFree(slot))
        return Add(slot, hash, key, value);
    Record& old = At(m_table.At(slot));
    if (value.size() == old.valueLength)
        return old.SetValue(value);
    const Ref ref = Append(hash, key, value);
    m_nDead += old.GetSize();
    old.isReplaced = 1;
    Place(slot, hash, ref);
    Tidy();
}

template <class Char>
std::optional<units::view> CMessageStore::FindKey(const std::basic_string_view<Char>& key) const
{
    if (m_nCount == 0)
        return std::nullopt;
    const Record* found = nullptr;
    m_table.Find(units::hash(key), [&](Ref ref) {
        const Record& record = At(ref);
        if (record.HasKey(key))
            found = &record;
        return found != nullptr;
    });
    return found ? std::optional(found->Value()) : std::nullopt;
}

std::optional<units::view> CMessageStore::Find(units::view key) const { return FindKey(key); }
std::optional<units::view> CMessageStore::Find(units::asked key) const { return FindKey(key); }

std::vector<CMessageStore::Message> CMessageStore::Sorted() const
{
    std::vector<Message> messages;
    messages.reserve(m_nCount);
    ForEach([&messages](const Record& record, Ref) { messages.push_back({record.Key(), record.Value()}); });
    std::sort(messages.begin(), messages.end(),
              [](const Message& a, const Message& b) { return units::compare(a.key, b.key) < 0; });
    return messages;
}

void CMessageStore::Add(std::size_t slot, std::uint32_t hash, units::view key, units::view value)
{
    const Ref ref = Append(hash, key, value);
    ++m_nCount;
    Place(slot, hash, ref);
}

void CMessageStore::Place(std::size_t slot, std::uint32_t hash, Ref ref)
{
    if (!m_table.HasRoomFor(ref))
        return Index(m_nCount);
    m_table.Put(slot, hash, ref);
}

CMessageStore::Ref CMessageStore::Append(std::uint32_t hash, units::view key, units::view value)
{
    const Record front = {.hash = hash,
                          .keyLength = static_cast<std::uint32_t>(key.size()),
                          .isNarrow = units::are_bytes(key),
                          .isReplaced = 0,
                          .valueLength = static_cast<std::uint32_t>(value.size())};
    Ref ref = 0;
    const std::size_t size = front.GetSize();
    (new (m_records.Take(size, ref)) Record(front))->Write(key, value);
    m_nUsed += size;
    return ref;
}

void CMessageStore::Append(const Record& record)
{
    Ref ref = 0;
    const std::size_t size = record.GetSize();
    std::memcpy(m_records.Take(size, ref), &record, size);
    m_nUsed += size;
}

void CMessageStore::MakeRoom()
{
    if (!m_table.HasRoom(m_nCount + 1))
        Index(2 * m_nCount);
}

/// Fills the table anew, for \p count messages.
void CMessageStore::Index(std::size_t count)
{
    m_table.Reset(count, m_records.GetMost());
    ForEach([this](const Record& record, Ref ref) { m_table.Add(record.hash, ref); });
}

void CMessageStore::Clear()
{
    m_table.Clear();
    m_records.Clear();
    m_nCount = m_nUsed = m_nDead = 0;
}

void CMessageStore::Trim()
{
    if (m_nCount == 0)
        return CMessageStore().Swap(*this);
    m_records.Trim();
    if (m_table.HasRoom(m_nCount + 16))
        Index(m_nCount + 1);
}

void CMessageStore::Tidy()
{
    if (m_nDead > kTidyLeast && m_nDead > m_nUsed / 2)
        CMessageStore(*this).Swap(*this);
}
