#pragma once

#include "tarvo/export.h"
#include "tarvo/text/RecordArena.h"
#include "tarvo/text/RefTable.h"
#include "tarvo/text/Units.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Message texts by key, compared exactly. A record holds key and text side by side in a few large blocks
/// and is found through one table of hashes, so that a look-up touches two places in memory, filling takes
/// no allocation for each message, and emptying gives everything back. Keys are names, which hardly ever have
/// a unit above 255: they are kept as bytes where they can be.
class TARVO_API CMessageStore
{
public:
    struct Message
    {
        std::u16string key;
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
    std::optional<units::view> Find(units::asked key) const;
    /// All messages in the ordinal order of their keys; valid until the next change.
    std::vector<Message> Sorted() const;
    /// Drops all messages and keeps the memory for the next ones; Trim gives back what is not in use.
    void Clear();
    void Trim();

private:
    /// Stands before key and value. The records of a block can be walked over.
    struct Record
    {
        std::uint32_t hash; ///< of the key
        std::uint32_t keyLength : 30;
        std::uint32_t isNarrow : 1;   ///< the key is bytes
        std::uint32_t isReplaced : 1; ///< another record has the key now
        std::uint32_t valueLength;

        /// Bytes of the whole record.
        std::size_t GetSize() const;
        /// Bytes of the key; the units of the value begin behind them.
        std::size_t GetKeySize() const
        {
            return (isNarrow ? (keyLength + 1) / 2 : std::size_t{keyLength}) * sizeof(char16_t);
        }
        const std::uint8_t* Bytes() const { return reinterpret_cast<const std::uint8_t*>(this + 1); }
        const char16_t* Units() const { return reinterpret_cast<const char16_t*>(this + 1); }
        units::view Value() const { return {Units() + GetKeySize() / 2, valueLength}; }
        std::u16string Key() const;
        template <class Char>
        bool HasKey(const std::basic_string_view<Char>& key) const;
        void Write(units::view key, units::view value);
        void SetValue(units::view value);

    private:
        char16_t* Room() { return reinterpret_cast<char16_t*>(this + 1); }
    };
    using Ref = CRecordArena::Ref;

    Record& At(Ref ref) const { return *reinterpret_cast<Record*>(m_records.At(ref)); }
    /// The slot of \p key, or the free one where it belongs.
    std::size_t SlotOf(units::view key, std::uint32_t hash) const;
    template <class Char>
    std::optional<units::view> FindKey(const std::basic_string_view<Char>& key) const;
    void Add(std::size_t slot, std::uint32_t hash, units::view key, units::view value);
    void Place(std::size_t slot, std::uint32_t hash, Ref ref);
    Ref Append(std::uint32_t hash, units::view key, units::view value);
    void Append(const Record& record);
    void MakeRoom();
    void Index(std::size_t count);
    void Tidy();
    /// Calls visit(record, ref) for every message.
    template <class Visit>
    void ForEach(Visit visit) const;

    CRecordArena m_records;
    CRefTable m_table;
    std::size_t m_nCount = 0;
    std::size_t m_nUsed = 0; ///< bytes of all records
    std::size_t m_nDead = 0; ///< of these, bytes of records that were replaced
};
