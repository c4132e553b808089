#include "tarvo/msg/msg_reader.h"

#include "platform/file.h"
#include "tarvo/msg/Languages.h"
#include "tarvo/msg/MSGInfo.h"
#include "tarvo/msg/MsgOut.h"
#include "tarvo/settings/HostApp.h"

#include <optional>

namespace
{
/// The page of the language's 8-bit files, when the host's profile asks for it.
int ChooseCodePage()
{
    if (CHostApp::ReadInt(L"LANGUAGE", L"LANGUAGECHECK", -1) < 1)
        return 0;
    IMSGInfo* const pInfo = IMSGInfo::Instance();
    return pInfo ? languages::of(pInfo->GetCurrentLang()).codePage : 0;
}

/// Nothing when it cannot be read, which only the debug output is told. Others may write the file meanwhile.
std::optional<std::string> ReadFile(const CString& path)
{
    auto bytes = platform::file::read_whole(path, msg_most_bytes);
    if (!bytes)
        nsMsgOutFormatD(L"file open error : %s", path.GetString());
    return bytes;
}
} // namespace

void msg_reader::add_path(const wchar_t* path) { m_arrPath.emplace_back(path); }

void msg_reader::clear()
{
    m_store.Clear();
    m_arrPath.clear();
}

void msg_reader::set_fontpath(const wchar_t* path) { m_strFontPath = path; }

bool msg_reader::load()
{
    m_nCodePage = ChooseCodePage();
    load_font();
    for (const CString& path : m_arrPath)
        read_messages(path);
    m_store.Trim();
    return true;
}

bool msg_reader::load_font()
{
    const auto bytes = ReadFile(m_strFontPath);
    if (bytes)
        read_font(*bytes);
    return bytes.has_value();
}

bool msg_reader::read_messages(const CString& path)
{
    const auto bytes = ReadFile(path);
    if (bytes)
        add_entries(*bytes);
    return bytes.has_value();
}

CString msg_reader::get_value(const wchar_t* key) const
{
    const auto found = m_store.Find(units::ask(key));
    return found ? units::to_string(*found) : CString(key) + L" :";
}

bool msg_reader::find_value(const wchar_t* key, CString& value) const
{
    const auto found = m_store.Find(units::ask(key));
    if (found)
        value = units::to_string(*found);
    return found.has_value();
}
