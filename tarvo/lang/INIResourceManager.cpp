#include "tarvo/lang/INIResourceManager.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "platform/module.h"
#include "tarvo/lang/DialogTemplate.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>

std::map<CString, XMultiLang*> INIResourceManager::m_gResourceListMap;
CStringArray INIResourceManager::m_arrProjectName;
CStringArray INIResourceManager::m_arrINIPath;

namespace
{
constexpr wchar_t kNotLoaded[] = L"Can't load language file";
constexpr wchar_t kNotFound[] = L"CaNNot Find szLangKey To Ini File";
constexpr wchar_t kToTranslate[] = L"#Need to Copy..#";

/// Tables that were replaced under their name.
std::set<XMultiLang*>& Retired()
{
    static std::set<XMultiLang*> tables;
    return tables;
}

/// Every text that GetValue has answered.
std::set<CString>& Answered()
{
    static std::set<CString> texts;
    return texts;
}

CString Joined(CString folder, const wchar_t* name)
{
    folder.AppendChar(platform::file::separator);
    return folder + name;
}
} // namespace

int INIResourceManager::AppendMap(CString project, XMultiLang* table)
{
    XMultiLang*& registered = m_gResourceListMap[project];
    if (registered != table)
        Retired().insert(registered);
    registered = table;
    m_arrProjectName.Add(project);
    if (table)
        table->SetProjectName(project);
    return 1;
}

CString INIResourceManager::GetProgramRootPath(HINSTANCE module)
{
    constexpr std::size_t kBuffer = 1040;
    const CString path = platform::module::path(module, kBuffer).c_str();
    return path.Left(path.ReverseFind(platform::file::separator));
}

CString INIResourceManager::GetLanguageFilePath(const CString& project, const CString& folder,
                                                const CString& suffix)
{
    const CString languages = Joined(GetProgramRootPath(nullptr), L"Language");
    return Joined(Joined(languages, folder), L"ctrl_" + project + suffix + L".ini");
}

int INIResourceManager::InitINIResourceMgr()
{
    for (INT_PTR i = 0; i < m_arrProjectName.GetSize(); ++i)
    {
        const CString path = GetLanguageFilePath(m_arrProjectName[i], L"Korean", L"_kr");
        if (LoadINIDataToFile(m_arrProjectName[i], path))
            m_arrINIPath.Add(path);
    }
    return 1;
}

int INIResourceManager::ReloadINIResource(const std::function<CLanguageFiles(const CString&)>& files)
{
    int count = 0;
    m_arrINIPath.RemoveAll();
    for (const auto& [project, table] : m_gResourceListMap)
    {
        if (!table)
            continue;
        const CLanguageFiles named = files(project);
        if (!table->Load(named.strPrimary, named.strSecondary, named.nCodePage))
            continue;
        m_arrINIPath.Add(named.strPrimary);
        ++count;
    }
    return count;
}

int INIResourceManager::LoadINIDataToFile(CString project, CString path)
{
    XMultiLang* const table = GetXMultiLang(project);
    return table ? table->Create(path, path) : 0;
}

XMultiLang* INIResourceManager::GetXMultiLang(CString project)
{
    const auto found = m_gResourceListMap.find(project);
    return found == m_gResourceListMap.end() ? nullptr : found->second;
}

const wchar_t* INIResourceManager::GetValue(const wchar_t* key)
{
    CString text;
    XMultiLang* last = nullptr;
    for (const auto& [project, table] : m_gResourceListMap)
    {
        if (!table)
            continue;
        last = table;
        table->LookUp(key, nullptr, text);
        if (text.Compare(kNotFound) > 0 && text.Compare(kNotLoaded) > 0)
            return *Answered().insert(text).first;
    }
    const auto has = [&](const auto& entry) { return entry.second && entry.second->HasKey(nullptr, key); };
    if (XMultiLang::m_bIniFindMode && last &&
        std::none_of(m_gResourceListMap.begin(), m_gResourceListMap.end(), has))
        last->AddMissingKey(nullptr, key);
    return *Answered().insert(text).first;
}

int INIResourceManager::GetMapCount() { return static_cast<int>(m_gResourceListMap.size()); }

std::map<CString, XMultiLang*> INIResourceManager::GetMultiLangMap() { return m_gResourceListMap; }

int INIResourceManager::DeleteINIResource()
{
    // A set: one table may stand under several names.
    std::set<XMultiLang*> tables = std::exchange(Retired(), {});
    for (const auto& [project, table] : m_gResourceListMap)
        tables.insert(table);
    m_gResourceListMap.clear();
    for (XMultiLang* const table : tables)
        delete table;
    Answered().clear();
    return 1;
}

namespace
{
int AddIfMissing(XMultiLang& table, const CString& dialog, const CString& names, XIni& missing)
{
    int start = 0;
    const CString key = names.Tokenize(L",", start);
    if (key.IsEmpty() || table.HasControlKey(dialog, names))
        return 0;
    return missing.SetStr(dialog, key, kToTranslate);
}
} // namespace

int INIResourceManager::AddMissingControls(XMultiLang& table, const CString& dialog, const DialogTexts& texts,
                                           XIni& missing)
{
    int count = texts.caption.IsEmpty() ? 0 : AddIfMissing(table, dialog, dialog, missing);
    for (const DialogTexts::Control& control : texts.controls)
    {
        const std::wstring value = std::to_wstring(control.id);
        const CString names = table.GetResourceHeader().FindFirst(CResourceHeader::All, value.c_str());
        if (!control.text.IsEmpty())
            count += AddIfMissing(table, dialog, names, missing);
    }
    return count;
}

int INIResourceManager::FindCtrl_DialogINIResource(XMultiLang& table, XIni& missing)
{
    constexpr std::uintptr_t kDialogType = 5; // RT_DIALOG
    if (!table.GetHeaderModule())
        return 0;
    int count = 0;
    for (const auto& [value, names] : table.GetResourceHeader().GetTable(CResourceHeader::Dialog))
    {
        const int id = static_cast<int>(initext::ToUnsigned(value, 10));
        const auto bytes = platform::module::resource(*table.GetHeaderModule(), id,
                                                      reinterpret_cast<const wchar_t*>(kDialogType));
        if (bytes)
            count += AddMissingControls(table, names.front(), ReadDialogTemplate(*bytes), missing);
    }
    return count;
}

CString INIResourceManager::GetMissingText()
{
    constexpr wchar_t kRule[] = L"=================== ";
    CString text;
    for (const auto& [project, table] : m_gResourceListMap)
    {
        text += kRule + project + kRule + L"\r\n";
        if (!table)
            continue;
        XIni missing(table->GetMissingKeys());
        FindCtrl_DialogINIResource(*table, missing);
        FindCtrl_MenuINIResource(*table, missing);
        for (int s = 0; s < missing.GetSectionCount(); ++s)
        {
            const CKeyTable& section = missing.GetSectionAt(s);
            text += L"[" + section.GetName() + L"]\r\n";
            CString key, value;
            for (int i = 0; i < section.GetCount(); ++i)
            {
                section.GetAt(i, key, value);
                text += key + L"\t=\t" + value + L"\r\n";
            }
        }
    }
    return text;
}

int INIResourceManager::WriteMissingCtrlINIFile()
{
    const CString text = L"\xFEFF" + GetMissingText();
    const std::string bytes =
        platform::codepage::to_utf16le({text.GetString(), static_cast<std::size_t>(text.GetLength())});
    const CString path = Joined(GetProgramRootPath(nullptr), L"MissingINIFile.ini");
    return platform::file::write_whole(path, bytes) == platform::file::Written::ok;
}
