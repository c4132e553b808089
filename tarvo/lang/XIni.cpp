#include "tarvo/lang/XIni.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/lang/IniStore.h"

#include <algorithm>
#include <cwchar>
#include <new>
#include <utility>

XIni::XIni() { Init(); }

XIni::XIni(const wchar_t* path) : XIni() { Open(path); }

XIni::~XIni() = default;

XIni::XIni(const XIni& source)
    : m_pStore(std::make_unique<CIniStore>(*source.m_pStore)), m_pLastFound(Twin(source.m_pLastFound)),
      m_pDefault(Twin(source.m_pDefault)), m_nCodePage(source.m_nCodePage), m_bOpened(source.m_bOpened)
{
}

/// This document's section of the same name.
CKeyTable* XIni::Twin(const CKeyTable* section) const
{
    return section ? &m_pStore->Make(section->Name()) : nullptr;
}

XIni& XIni::operator=(const XIni& source)
{
    XIni copy(source);
    Swap(copy);
    return *this;
}

void XIni::Swap(XIni& other)
{
    std::swap(m_pStore, other.m_pStore);
    std::swap(m_pLastFound, other.m_pLastFound);
    std::swap(m_pDefault, other.m_pDefault);
    std::swap(m_nCodePage, other.m_nCodePage);
    std::swap(m_bOpened, other.m_bOpened);
}

void XIni::Init()
{
    m_pStore = std::make_unique<CIniStore>();
    m_pLastFound = nullptr;
    m_pDefault = nullptr;
    m_bOpened = 0;
}

void XIni::Clear() { Init(); }

int XIni::Open(const wchar_t* path)
try
{
    Clear();
    const auto bytes = platform::file::read_whole(path ? path : L"", kMostBytes);
    if (!bytes)
        return 0;
    ParseBytes(*bytes);
    return 1;
}
catch (const std::bad_alloc&)
{
    Clear();
    return 0;
}

int XIni::OpenMemory(const unsigned char* bytes, int size)
try
{
    if (!bytes || size < 0)
        return 0;
    return ParseBytes({reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)});
}
catch (const std::bad_alloc&)
{
    return 0;
}

namespace
{
/// How much of a source is decoded before its lines are read: so little that it is still in the cache.
constexpr std::size_t kPiece = 16 * 1024;

/// The length of the next piece of 8-bit text: up to a line's end. A line feed behind a byte of 128 or more
/// could be that byte's second half in a broken text, so it ends no piece.
std::size_t PieceOf(std::string_view bytes)
{
    for (std::size_t at = kPiece; at < bytes.size(); ++at)
    {
        at = bytes.find('\n', at);
        if (at == std::string_view::npos)
            break;
        if (static_cast<unsigned char>(bytes[at - 1]) < 0x80)
            return at + 1;
    }
    return bytes.size();
}
} // namespace

/// Parses one text, handed over piece by piece, each of which ends at a line's end.
class XIni::CParser
{
public:
    /// For a text of \p size, in whatever unit.
    CParser(XIni& ini, std::size_t size) : m_ini(ini), m_nLeft(size) {}

    /// Parses a piece, which is \p size of the text; false when a NUL in it ends the text.
    bool Take(units::view piece, std::size_t size);
    /// Parses a whole text.
    void TakeAll(units::view text);
    void TakeAll(const wchar_t* text, std::size_t count);
    void Finish()
    {
        m_ini.m_pStore->Tidy();
        m_ini.m_bOpened = 1;
    }

private:
    void TakeLine(const units::view& line, const initext::LineMarks& marks);
    void Foresee(std::size_t entries, std::size_t size);

    XIni& m_ini;
    std::size_t m_nLeft;
    CKeyTable* m_pSection = nullptr;
    bool m_bForeseen = false;
};

bool XIni::CParser::Take(units::view piece, std::size_t size)
{
    const std::size_t before = m_ini.m_pStore->GetEntryCount();
    initext::CLineReader reader(piece);
    initext::LineMarks marks;
    for (units::view line; reader.ReadALine(line, marks);)
        TakeLine(line, marks);
    m_nLeft -= size;
    if (!m_bForeseen)
        Foresee(m_ini.m_pStore->GetEntryCount() - before, size);
    return reader.IsAtEnd();
}

/// The first piece tells how many entries the others bring.
void XIni::CParser::Foresee(std::size_t entries, std::size_t size)
{
    if (size != 0)
        m_ini.m_pStore->Reserve(m_ini.m_pStore->GetEntryCount() +
                                entries * (m_nLeft / size + (m_nLeft != 0)) * 9 / 8);
    m_bForeseen = true;
}

void XIni::CParser::TakeAll(units::view text)
{
    const std::size_t feed = text.find(u'\n', kPiece);
    const units::view first = text.substr(0, feed == units::view::npos ? feed : feed + 1);
    text.remove_prefix(first.size());
    if (Take(first, first.size()))
        Take(text, text.size());
}

void XIni::CParser::TakeAll(const wchar_t* text, std::size_t count)
{
    std::vector<char16_t> piece;
    std::size_t held = 0;
    for (std::size_t at = 0; at < count;)
    {
        const std::size_t more = std::min(kPiece, count - at);
        piece.resize(std::max(piece.size(), held + more));
        units::narrow(text + at, more, piece.data() + held);
        at += more;
        const units::view fresh(piece.data() + held, more);
        const std::size_t feed = fresh.rfind(u'\n');
        const std::size_t whole = at == count ? held + more : feed == units::view::npos ? 0 : held + feed + 1;
        held += more;
        if (!Take({piece.data(), whole}, more))
            return;
        std::copy(piece.data() + whole, piece.data() + held, piece.data());
        held -= whole;
    }
}

void XIni::CParser::TakeLine(const units::view& line, const initext::LineMarks& marks)
{
    units::view key, value;
    switch (initext::GetLineType(line, marks))
    {
    case initext::LINE_SECTION:
        m_pSection = m_ini.StartSection(initext::ParseSection(line));
        break;
    case initext::LINE_DATA:
        if (m_pSection && initext::ParseData(line, marks, key, value))
            m_ini.m_pStore->Set(*m_pSection, key, value);
        break;
    case initext::LINE_OTHER:
        if (m_pSection)
            m_ini.m_pStore->Set(*m_pSection, line, {});
        break;
    case initext::LINE_COMMENT:
    case initext::LINE_BLANK:
        break;
    }
}

int XIni::OpenMemory(const wchar_t* text, int length)
try
{
    const std::size_t count = text && length > 0 ? ::wcsnlen(text, static_cast<std::size_t>(length)) : 0;
    CParser parser(*this, count);
    parser.TakeAll(text, count);
    parser.Finish();
    return 1;
}
catch (const std::bad_alloc&)
{
    return 0;
}

int XIni::ParseBytes(std::string_view bytes)
{
    if (bytes.size() < 2)
        return 0;
    if (!initext::IsUnicodeFileHeader(bytes))
        return Ascii2Unicode(bytes);
    const CAlignedUnits text(bytes.data() + 2, (bytes.size() - 2) / 2);
    CParser parser(*this, units::view(text).size());
    parser.TakeAll(text);
    parser.Finish();
    return 1;
}

int XIni::Ascii2Unicode(std::string_view bytes)
{
    if (!platform::codepage::known(m_nCodePage))
        return 0;
    bytes = bytes.substr(0, bytes.find('\0'));
    CParser parser(*this, bytes.size());
    std::vector<char16_t> decoded;
    while (!bytes.empty())
    {
        const std::string_view piece = bytes.substr(0, PieceOf(bytes));
        bytes.remove_prefix(piece.size());
        decoded.resize(std::max(decoded.size(), piece.size()));
        const std::size_t count = platform::codepage::decode(m_nCodePage, piece, decoded.data()).value_or(0);
        if (!parser.Take({decoded.data(), count}, piece.size()))
            break;
    }
    parser.Finish();
    return 1;
}

/// The table that receives the lines after a section line; null after an empty name, so that they are
/// dropped.
CKeyTable* XIni::StartSection(units::view name)
{
    if (name.empty())
        return nullptr;
    CKeyTable* const table = FindOrMakeSection(name);
    if (!m_pDefault && units::equal_no_case(name, u"TEXT"))
        m_pDefault = table;
    return table;
}

template <class Name>
CKeyTable* XIni::CachedSection(const Name& name) const
{
    return m_pLastFound && units::equal_no_case(m_pLastFound->Name(), name) ? m_pLastFound : nullptr;
}

CKeyTable* XIni::Remember(CKeyTable* found)
{
    if (found)
        m_pLastFound = found;
    return found;
}

CKeyTable* XIni::FindSection(const wchar_t* section)
{
    if (!section)
        return m_pDefault;
    const units::asked name(section);
    CKeyTable* const cached = CachedSection(name);
    return cached ? cached : Remember(m_pStore->Find(name));
}

CKeyTable* XIni::FindOrMakeSection(units::view section)
{
    CKeyTable* const cached = CachedSection(section);
    return cached ? cached : &m_pStore->Make(section);
}

CKeyTable* XIni::GetOrMakeSection(const wchar_t* section)
{
    return section ? FindOrMakeSection(CUnits(section)) : m_pDefault;
}

const IniEntry* XIni::FindEntry(const wchar_t* section, const wchar_t* key)
{
    const units::asked keyName = units::ask(key);
    if (!section)
        return m_pDefault ? m_pDefault->Find(keyName) : nullptr;
    const units::asked name(section);
    if (const CKeyTable* const cached = CachedSection(name))
        return cached->Find(keyName);
    CKeyTable* table;
    const IniEntry* const entry = m_pStore->Find(name, keyName, table);
    Remember(table);
    return entry;
}

CString XIni::GetStr(const wchar_t* section, const wchar_t* key, const wchar_t* defaultValue)
{
    const IniEntry* const entry = FindEntry(section, key);
    return entry ? units::to_string(entry->Value()) : CString(defaultValue);
}

int XIni::GetStr2(const wchar_t* section, const wchar_t* key, CString& value, const wchar_t* defaultValue)
{
    const IniEntry* const entry = FindEntry(section, key);
    value = entry ? units::to_string(entry->Value()) : CString(defaultValue);
    return entry ? 1 : 0;
}

int XIni::GetInt(const wchar_t* section, const wchar_t* key, int defaultValue, int radix)
{
    int value;
    GetInt2(section, key, value, defaultValue, radix);
    return value;
}

int XIni::GetInt2(const wchar_t* section, const wchar_t* key, int& value, int defaultValue, int radix)
{
    value = defaultValue;
    CString text;
    if (!GetStr2(section, key, text, nullptr))
        return 0;
    value = static_cast<int>(initext::ToUnsigned(text, radix));
    return 1;
}

int XIni::SetStr(const wchar_t* section, const wchar_t* key, const wchar_t* value)
{
    CKeyTable* const table = GetOrMakeSection(section);
    if (!table)
        return 0;
    table->SetAt(key, value);
    m_pStore->Tidy();
    return 1;
}

int XIni::SetInt(const wchar_t* section, const wchar_t* key, int value)
{
    return SetStr(section, key, std::to_wstring(value).c_str());
}

void XIni::GetSectionList(CStringArray& names) const
{
    for (int i = 0; i < GetSectionCount(); ++i)
        names.Add(GetSectionAt(i).GetName());
}

int XIni::GetSectionCount() const { return static_cast<int>(m_pStore->GetCount()); }

CKeyTable& XIni::GetSectionAt(int index) const { return m_pStore->Sorted(static_cast<std::size_t>(index)); }

int XIni::SaveAs(const wchar_t* path) const
{
    const auto written = platform::file::write_whole(path ? path : L"", Serialize());
    return written == platform::file::Written::not_opened ? 0 : 1;
}

std::string XIni::Serialize() const { return m_pStore->Serialize(); }

int XIni::GetDlgTextArray(HWND, unsigned int, CArray<CString, CString>&, CArray<CString, CString>&)
{
    return 1;
}
