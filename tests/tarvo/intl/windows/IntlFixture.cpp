#include "tests/tarvo/intl/windows/IntlFixture.h"

#include "platform/codepage.h"
#include "platform/file.h"
#include "tarvo/intl/GlobalFontMgr.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/intl/WindowText_windows.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/msg/MSGFunction.h"
#include "tarvo/settings/Registry.h"

bool CTestCatalogue::GetText(const wchar_t* key, int, CString& text)
{
    const auto found = texts.find(key);
    if (found != texts.end())
        text = found->second.c_str();
    return found != texts.end();
}

void IntlWindows::SetUp()
{
    WindowTest::SetUp();
    qlx::lib::MRegistry::SetRegistryKey((L"Software\\" + registry.name()).c_str());
    Set(L"DlgFontName_Std", L"Tahoma");
    Set(L"DlgFontSize_Std", L"9");
    SetTextFont("Tahoma");
    table = MakeTable();
    INIResourceManager::AppendMap(L"IntlTest", table);
}

XMultiLang* IntlWindows::MakeTable()
{
    auto* const made = new XMultiLang;
    const std::wstring header =
        L"#define IDD_SETUP 350\n#define IDD_OLD_FORM 351\n#define IDD_VIEW_FORM 352\n"
        L"#define IDD_PAGE_ONE 353\n#define IDD_PAGE_TWO 354\n#define IDS_SHEET_CAPTION 370\n"
        L"#define IDC_LABEL 3001\n#define IDC_NOTE 3002\n#define IDC_NAME_EDIT 3003\n#define IDC_RESULT "
        L"3004\n"
        L"#define IDC_UNIT 3005\n#define IDC_TYPED 3006\n#define IDC_KIND 3007\n#define IDC_SEARCH 3009\n"
        L"#define IDC_FRAME 3010\n#define IDC_USE 3011\n#define ID_INTL_OPEN 33001\n#define ID_INTL_EXIT "
        L"33002\n";
    std::string bytes = platform::codepage::to_utf16le(header);
    made->LoadResourceHeader(reinterpret_cast<unsigned char*>(bytes.data()), static_cast<int>(header.size()));
    return made;
}

void IntlWindows::TearDown()
{
    INIResourceManager::DeleteINIResource();
    INIResourceManager::m_arrProjectName.RemoveAll();
    CLanguageSwitch::SetFileRule(nullptr);
    CGlobalFontMgr::ReleaseAll();
    CMSGFunction::Reset();
    qlx::lib::MRegistry::SetRegistryKey(nullptr);
    WindowTest::TearDown();
}

void IntlWindows::Set(const wchar_t* name, const wchar_t* value)
{
    const std::wstring key = registry.key() + L"\\ENV_GENERAL";
    ASSERT_EQ(CRegistry::WriteProfileStringW(key.c_str(), name, value), 1);
}

void IntlWindows::SetTextFont(const std::string& face)
{
    const std::wstring path = folder / L"Font.ini";
    ASSERT_EQ(platform::file::write_whole(path.c_str(), "FONT=" + face + "\r\n"),
              platform::file::Written::ok);
    CMSGFunction::SetFontPath(path.c_str(), path.c_str());
    CMSGFunction::LoadFile();
}

void IntlWindows::SpeakGerman()
{
    catalogue.texts = {
        {L"IDS_IDD_SETUP_IDD_SETUP", L"Einstellungen"},
        {L"IDS_IDD_SETUP_IDC_LABEL", L"Bezeichnung"},
        {L"IDS_IDD_SETUP_IDC_NOTE", L"Erste\nZweite"},
        {L"IDS_IDD_SETUP_IDC_NAME_EDIT", L"nie zu sehen"},
        {L"IDS_IDD_SETUP_IDC_SEARCH", L"Suchen"},
        {L"IDS_IDD_SETUP_IDC_FRAME", L"Rahmen"},
        {L"IDS_IDD_SETUP_IDC_USE", L"Benutzen"},
        {L"IDS_IDD_SETUP_IDCANCEL", L"Abbrechen"},
        {L"IDS_IDD_VIEW_FORM_IDC_LABEL", L"Bezeichnung"},
        {L"IDS_IDD_VIEW_FORM_IDC_USE", L"Benutzen"},
        {L"IDS_IDD_PAGE_ONE_IDD_PAGE_ONE", L"Eins"},
        {L"IDS_IDD_PAGE_ONE_IDC_LABEL", L"Bezeichnung"},
        {L"IDS_IDD_PAGE_TWO_IDD_PAGE_TWO", L"Zwei"},
        {L"IDS_IDD_PAGE_TWO_IDC_USE", L"Benutzen"},
        {L"TITLE", L"Deutsch"},
    };
}

void IntlWindows::SpeakFrench()
{
    catalogue.texts = {
        {L"IDS_IDD_SETUP_IDC_LABEL", L"Nom"},        {L"IDS_IDD_SETUP_IDC_USE", L"Utiliser"},
        {L"IDS_IDD_SETUP_IDC_NAME_EDIT", L"jamais"}, {L"IDS_IDD_VIEW_FORM_IDC_LABEL", L"Nom"},
        {L"IDS_IDD_PAGE_ONE_IDC_LABEL", L"Nom"},     {L"IDS_IDD_PAGE_ONE_IDD_PAGE_ONE", L"Un"},
        {L"TITLE", L"Fran\x00E7\x0061is"},
    };
}

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

std::wstring TextsOf(HWND window)
{
    std::wstring all = TextOf(window);
    for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        all += L"|" + TextOf(child);
    return all;
}

std::wstring FontOf(HWND window)
{
    LOGFONTW font = {};
    const auto handle = reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
    if (!::GetObjectW(handle, sizeof font, &font))
        return L"none";
    return font.lfFaceName + (L" " + std::to_wstring(font.lfHeight));
}

namespace
{
std::wstring LineOf(HWND window)
{
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    CRect place;
    ::GetWindowRect(window, place);
    CWnd::FromHandle(::GetParent(window))->ScreenToClient(place);
    CString line;
    line.Format(L"%s %d %s [%d,%d %dx%d] ", name, ::GetDlgCtrlID(window), TextOf(window).c_str(), place.left,
                place.top, place.Width(), place.Height());
    return line.GetString() + FontOf(window) + L"\n";
}
} // namespace

std::wstring DumpOf(HWND window, const std::function<bool(HWND)>& wanted)
{
    std::wstring dump;
    for (const HWND child : DescendantsOf(window))
        dump += !wanted || wanted(child) ? LineOf(child) : L"";
    return dump;
}

int HeightOf(HWND window)
{
    CRect place;
    ::GetWindowRect(window, place);
    return place.Height();
}
