#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/HeaderWords.h"

#include <afxcoll.h>
#include <afxstr.h>

#include <cstdint>
#include <string>
#include <vector>

/// The symbols of a module's resource header: from the number that a running window knows to the names
/// that a developer gave it. Numbers are the texts that the header writes: `0x3E9` is no `1001`.
///
/// Several names may share one value; they keep the order in which they were met, and the first counts
/// for translation. Loads add up: names are appended, never replaced. Nothing in a text fails a load.
class TARVO_API CResourceHeader
{
public:
    /// The tables. A name belongs to the first kind whose mark it holds anywhere, in this order, and to
    /// All; a name without a mark belongs to none.
    enum Kind
    {
        All,
        Control,  ///< IDC_
        Dialog,   ///< IDD_
        Resource, ///< IDR_
        Menu      ///< ID_, and IDM_ in the memory form
    };

    /// The memory form: \p nChars characters of UTF-16LE at \p pData, which need not be aligned. First the
    /// standard buttons are recorded in All: 1 IDOK, 2 IDCANCEL, 8 IDCLOSE; so they win over any other name
    /// of these values.
    ///
    /// Reads three words, then goes on at the next `#` behind them, so that comments and blank lines are
    /// stepped over; a NUL ends the words before it. Three words are a definition when the first begins with
    /// `#define` (`#defineX` too) and the second not with an underscore. Words end at white space only, not
    /// at line ends: a definition without a value takes the next line's first word for it. Of a word longer
    /// than MaxWord characters the first MaxWord count. Returns 1, or 0 for a null \p pData.
    int LoadMemory(const unsigned char* pData, int nChars);

    /// The file form: lines of 8-bit text, each byte one character, as the C library reads text (CR LF
    /// ends a line, Ctrl-Z the file). A line is taken as in the memory form, but no definition goes
    /// beyond its line (a piece of MaxWord characters of a longer one), IDM_ is no mark and the standard
    /// buttons are not recorded. Returns 1, or 0 when the path is empty or the file cannot be read.
    int LoadFile(const wchar_t* pszPath);

    /// The first word of a UTF-16LE text, at most MaxWord characters; empty when there is none.
    static CString FirstWord(const unsigned char* pData, int nChars);

    /// The name that was recorded first for the value; empty when there is none.
    CString FindFirst(Kind kind, const wchar_t* pszValue) const;
    /// Appends every name recorded for the value, in order.
    void FindNames(Kind kind, const wchar_t* pszValue, CStringArray& arrNames) const;
    bool Has(Kind kind, const wchar_t* pszValue) const;

    struct Entry
    {
        CString strValue;
        std::vector<CString> arrNames;
    };
    /// A whole table, ordered by the value's text (ordinal order).
    std::vector<Entry> GetTable(Kind kind) const;

    /// The longest word, in characters.
    static constexpr int MaxWord = static_cast<int>(headertext::kMostWord);

private:
    struct Definition
    {
        std::uint32_t nName; ///< where the name begins in m_text
        std::uint32_t nNameLength;
        std::uint32_t nNext; ///< the next definition of the same value, or none
        Kind kind;
    };
    struct Value
    {
        std::uint32_t nText; ///< where the value begins in m_text
        std::uint32_t nTextLength;
        std::uint32_t nHash;
        std::uint32_t nFirst;
        std::uint32_t nLast;
    };

    void TakeDefinition(const headertext::Words& words, bool fromFile);
    void Record(Kind kind, units::view name, units::view value);
    std::size_t SlotOf(units::view value, std::uint32_t hash) const;
    void MakeSlots(std::size_t count);
    std::uint32_t Keep(units::view text);
    units::view TextOf(const Value& value) const;
    CString NameOf(const Definition& definition) const;
    std::uint32_t NextOfKind(std::uint32_t definition, Kind kind) const;
    std::uint32_t FirstOfKind(const wchar_t* pszValue, Kind kind) const;

    std::u16string m_text; ///< names and values, end to end
    std::vector<Definition> m_definitions;
    std::vector<Value> m_values;
    std::vector<std::uint32_t> m_slots; ///< open addressing: indexes of m_values
};
