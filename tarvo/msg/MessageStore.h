#pragma once

#include "tarvo/export.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

/// Message texts by key, compared exactly. A record holds key and text side by side in a few large blocks
/// and is found through one table of hashes, so that a look-up touches two places in memory, filling takes
/// no allocation for each message, and emptying gives everything back.
class TARVO_API CMessageStore
{
public:
    struct Message
    {
        units::view key;
        units::view value;
    };

    CMessageStore() = default;
    CMessageStore(const CMessageStore& source) { *this = source; }
    CMessageStore& operator=(const CMessageStore& source);
    ~CMessageStore() = default;
    void Swap(CMessageStore& other) noexcept;

    std::size_t GetCount() const { return m_nCount; }
    /// Bytes taken from the system.
    std::size_t GetMemory() const;

    /// Adds a message; false, and nothing changes, when there is one with this key.
    bool Insert(units::view key, units::view value) { return Insert(key, value, Announce(key)); }
    /// The same in two steps, for callers with something to do between them: meanwhile the place that the
    /// key belongs to is fetched from memory. Announce gives the hash of the key.
    std::uint32_t Announce(units::view key) const;
    bool Insert(units::view key, units::view value, std::uint32_t hash);
    /// Adds a message or gives it a new text.
    void Set(units::view key, units::view value);
    /// The text of a key; valid until the next change.
    std::optional<units::view> Find(units::view key) const;
    /// All messages in the ordinal order of their keys; valid until the next change.
    std::vector<Message> Sorted() const;
    /// Drops all messages and keeps the memory for the next ones; Trim gives back what is not in use.
    void Clear();
    void Trim();

private:
    /// Stands before the units of key and value. The records of a block can be walked over.
    struct Record
    {
        std::uint32_t hash; ///< of the key
        std::uint32_t keyLength;
        std::uint32_t valueLength;

        char16_t* Units() const { return reinterpret_cast<char16_t*>(const_cast<Record*>(this) + 1); }
        units::view Key() const { return {Units(), keyLength}; }
        units::view Value() const { return {Units() + keyLength, valueLength}; }
    };
    /// Where a record is: the block in the upper 16 bits, its place there in grains in the lower.
    using Ref = std::uint32_t;
    /// A record's Ref plus one in the lower m_nRefBits, above them as many bits of its key's hash as there is
    /// room for; 0 for an empty slot. The table is small, so that it stays in the processor's cache.
    using Slot = std::uint32_t;

    static constexpr std::size_t kGrain = alignof(Record);           ///< bytes
    static constexpr std::size_t kMostBlock = kGrain << 16;          ///< bytes of a block with many records
    static constexpr std::size_t kFirstBlock = std::size_t{4} << 10; ///< bytes; the next ones grow
    static constexpr std::uint32_t kReplaced = 1u << 31; ///< in a keyLength: another record has the key now

    struct Free
    {
        void operator()(char* p) const { std::free(p); }
    };
    struct Block
    {
        std::unique_ptr<char, Free> bytes;
        std::size_t size;
        std::size_t used;
    };

    static std::size_t BytesOf(std::size_t units);
    static std::size_t BytesOf(const Record& record);
    static std::size_t SlotsFor(std::size_t count) { return count * 5 / 4 + 1; }
    Record& At(Slot slot) const
    {
        const Ref ref = (slot & ~TagMask()) - 1;
        return *reinterpret_cast<Record*>(m_arrBlock[ref >> 16].bytes.get() + (ref & 0xFFFF) * kGrain);
    }
    std::uint32_t TagMask() const { return static_cast<std::uint32_t>(~std::uint64_t{0} << m_nRefBits); }
    std::uint32_t TagOf(std::uint32_t hash) const
    {
        return static_cast<std::uint32_t>(std::uint64_t{hash} << m_nRefBits);
    }
    std::size_t HomeOf(std::uint32_t hash) const { return std::uint64_t{hash} * m_arrSlot.size() >> 32; }
    std::size_t Next(std::size_t slot) const { return slot + 1 == m_arrSlot.size() ? 0 : slot + 1; }
    /// The slot of \p key, or the empty one where it belongs.
    std::size_t SlotOf(units::view key, std::uint32_t hash) const;
    void Place(std::size_t slot, std::uint32_t hash, units::view key, units::view value);
    Ref Append(std::uint32_t hash, units::view key, units::view value);
    char* Take(std::size_t bytes, Ref& ref);
    void AddBlock(std::size_t least);
    void MakeRoom();
    void Index(std::size_t slots);
    void Tidy();
    /// Calls visit(record, ref) for every message.
    template <class Visit>
    void ForEach(Visit visit) const;

    std::vector<Slot> m_arrSlot;
    std::vector<Block> m_arrBlock;
    unsigned m_nRefBits = 16;
    std::size_t m_nBlock = 0; ///< the block that is being filled; those behind it are empty
    std::size_t m_nCount = 0;
    std::size_t m_nUsed = 0; ///< bytes of all records
    std::size_t m_nDead = 0; ///< of these, bytes of records that were replaced
};
