#pragma once

#include "platform/handles.h"
#include "tarvo/export.h"
#include "tarvo/lang/IniText.h"
#include "tarvo/lang/KeyTable.h"

#include <afxcoll.h>
#include <afxtempl.h>

#include <memory>
#include <string>
#include <string_view>

class CIniStore;

/// One INI document in memory: sections of keys and values, all wide text. It reads UTF-16LE with a
/// byte-order mark or 8-bit text in a code page, and writes UTF-16LE.
///
/// Operations that succeed return 1, others 0; a missing section or key gives the default. Section and key
/// names are compared exactly, with letter case, but for one rule: a section that was found is
/// remembered, and as long as it is the last one found it also answers to its name in other letter case.
/// A null section name stands for the default section, the first one named "TEXT" in any letter case. A
/// null key, value or default is an empty text.
///
/// Sections and keys are listed and written in ordinal order; comments and the order of the source are not
/// kept. A document belongs to one thread at a time: looking up writes to it, too.
class TARVO_API XIni
{
public:
    using LINE_TYPE = initext::LINE_TYPE;

    /// A file of more bytes is refused.
    static constexpr int kMostBytes = 5 * 1024 * 1024;

    XIni();
    /// Opens \p path at once.
    explicit XIni(const wchar_t* path);
    ~XIni();
    /// Copies are deep: nothing is shared.
    XIni(const XIni& source);
    XIni& operator=(const XIni& source);

    /// Clears the document and reads a file. 1 when the file was read, whatever it holds (IsOpened tells
    /// whether there was anything to parse); 0, with the document empty, when it is missing, unreadable,
    /// a folder or larger than kMostBytes, or memory ran out.
    int Open(const wchar_t* path);
    /// Merges a block into the document: sections of one name are joined, a key met again takes the newer
    /// value. UTF-16LE when it begins with FF FE, otherwise 8-bit text up to the first NUL; no other mark is
    /// known, a UTF-8 mark is read as text. 0, and nothing changes, for less than 2 bytes and for a code page
    /// that is not known.
    int OpenMemory(const unsigned char* bytes, int size);
    /// Merges wide text that ends at a NUL or after \p length characters. Returns 1.
    int OpenMemory(const wchar_t* text, int length);
    /// The result of the last parse; 0 before the first and after Clear.
    int IsOpened() const { return m_bOpened; }

    /// The code page of 8-bit text, from the next Open or OpenMemory on; 0 is the system's ANSI page. It
    /// stays over Clear and Open.
    void SetCodePage(int codePage) { m_nCodePage = codePage; }
    /// Drops all sections. Pointers that GetSection gave end here.
    void Clear();

    CString GetStr(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue);
    /// 1 and \p value, or 0 and the default in \p value.
    int GetStr2(const wchar_t* section, const wchar_t* key, CString& value, const wchar_t* defaultValue);
    /// The value as wcstoul reads it: 0 when it is not a number, "-1" gives -1; radix 0 knows 0x and 0.
    int GetInt(const wchar_t* section, const wchar_t* key, int defaultValue, int radix);
    int GetInt2(const wchar_t* section, const wchar_t* key, int& value, int defaultValue, int radix);

    /// Inserts or overwrites a key, making the section when it is missing. Returns 1; 0 only for a null
    /// section without a default section. A value with a line break is held, but a saved file loses it.
    int SetStr(const wchar_t* section, const wchar_t* key, const wchar_t* value);
    int SetInt(const wchar_t* section, const wchar_t* key, int value);

    /// Appends every section name to \p names.
    void GetSectionList(CStringArray& names) const;
    int GetSectionCount() const;
    /// Section number \p index, 0 to GetSectionCount() - 1, in the ordinal order of the names. Unlike a
    /// look-up by name it neither uses nor changes the section that is remembered.
    CKeyTable& GetSectionAt(int index) const;
    /// Always "DEFAULT_SECTION", whatever the document's default section is called.
    CString GetDefaultSection() const { return L"DEFAULT_SECTION"; }
    /// The keys of a section, null when it is missing; a null name gives the default section. The table
    /// stays valid until Clear, Open or the document's end.
    CKeyTable* GetSection(const wchar_t* section) { return FindSection(section); }
    /// The same, made when missing; null only for a null name without a default section.
    CKeyTable* GetOrMakeSection(const wchar_t* section);

    /// Writes the document: "[section]", then «key = "value"» for each key, then a blank line, with CR LF,
    /// UTF-16LE with its mark. 0 when the file cannot be opened; errors after that are not reported. Use
    /// Serialize with a writer of your own where they matter.
    int SaveAs(const wchar_t* path) const;
    /// The bytes that SaveAs writes.
    std::string Serialize() const;

    /// Does nothing and returns 1; kept so that callers link.
    int GetDlgTextArray(HWND dialog, unsigned int id, CArray<CString, CString>& names,
                        CArray<CString, CString>& texts);

private:
    void Init();
    void Swap(XIni& other);
    class CParser;
    int ParseBytes(std::string_view bytes);
    int Ascii2Unicode(std::string_view bytes);
    CKeyTable* StartSection(units::view name);
    CKeyTable* Twin(const CKeyTable* section) const;
    template <class Name>
    CKeyTable* CachedSection(const Name& name) const;
    CKeyTable* Remember(CKeyTable* found);
    CKeyTable* FindSection(const wchar_t* section);
    CKeyTable* FindOrMakeSection(units::view section);
    const IniEntry* FindEntry(const wchar_t* section, const wchar_t* key);

    std::unique_ptr<CIniStore> m_pStore;
    CKeyTable* m_pLastFound = nullptr; ///< until a section has been found, the cache answers nothing
    CKeyTable* m_pDefault = nullptr;
    int m_nCodePage = 0;
    int m_bOpened = 0;
};
