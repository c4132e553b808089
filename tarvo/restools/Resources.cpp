#include "tarvo/restools/Resources.h"

#include "platform/file.h"
#include "tarvo/restools/ScriptBytes.h"
#include "tarvo/restools/ScriptReader.h"
#include "tarvo/text/Units.h"

namespace
{
template <class T>
std::size_t NestedBytes(const CResBaseclass<T>& list)
{
    std::size_t bytes = list.GetMemory();
    for (const T& one : list)
        bytes += one.m_items.GetMemory();
    return bytes;
}
} // namespace

CResources::CResources() = default;
CResources::~CResources() = default;
CResources::CResources(CResources&&) noexcept = default;
CResources& CResources::operator=(CResources&&) noexcept = default;

bool CResources::Read(const wchar_t* pszFileName, CString& strLog, const wchar_t* pszLanguage,
                      CStringArray& arrLanguages)
{
    *this = CResources();
    if (pszFileName == nullptr || *pszFileName == L'\0')
        return false;
    // Nothing is said of a file before it is known whether it can be read to its end.
    CString log;
    CStringArray languages;
    bool isWhole = false, isRead = false;
    if (auto file = platform::file::input::open(pszFileName, MaxFileSize))
    {
        CScriptBytes bytes(*file);
        isRead = ReadBytes(bytes, log, pszLanguage, languages);
        isWhole = !bytes.HasFailed();
    }
    if (!isWhole)
    {
        *this = CResources();
        strLog += CString(L"Couldn't open ") + pszFileName + L"\r\n";
        return false;
    }
    strLog += CString(L"Reading ") + pszFileName + L"\r\n" + log;
    arrLanguages.Append(languages);
    return isRead;
}

bool CResources::ReadMemory(std::string_view bytes, CString& strLog, const wchar_t* pszLanguage,
                            CStringArray& arrLanguages)
{
    *this = CResources();
    if (bytes.size() > MaxFileSize)
        return false;
    CScriptBytes pieces(bytes);
    return ReadBytes(pieces, strLog, pszLanguage, arrLanguages);
}

bool CResources::ReadBytes(CScriptBytes& bytes, CString& strLog, const wchar_t* pszLanguage,
                           CStringArray& arrLanguages)
{
    if (!m_text.Open(bytes))
        return false;
    const CString filter(pszLanguage);
    const auto isWanted = [&](std::u16string_view word) {
        const CString language = units::to_string(word);
        arrLanguages.Add(language);
        return filter.IsEmpty() || language.CompareNoCase(filter) == 0;
    };
    std::u16string log;
    CScriptReader(*this, log, filter.IsEmpty(), isWanted).Read();
    m_text.Close();
    log += u"Reading done\r\n";
    strLog += units::to_string(log);
    return true;
}

std::size_t CResources::MemoryBytes() const
{
    return m_text.GetRoom() * sizeof(char16_t) + m_keep->GetMemory() + NestedBytes(m_menus) +
           NestedBytes(m_toolbars) + m_dialogs.GetMemory() + m_strings.GetMemory() + m_bitmaps.GetMemory() +
           m_pngs.GetMemory() + m_icons.GetMemory() + m_cursors.GetMemory();
}
