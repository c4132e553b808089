#include "tarvo/lang/XMultiLang.h"

#include "tarvo/lang/INIResourceManager.h"
#include "tests/tarvo/lang/Dump.h"
#include "tests/tarvo/lang/LangResources.h"

#include "qlx/qlx_lib.h"

#include <afxwin.h>

#include <gtest/gtest.h>

#include <cstring>
#include <map>
#include <vector>

namespace
{
CString text_of(HWND window)
{
    CString text;
    const int length = ::GetWindowTextLengthW(window);
    ::GetWindowTextW(window, text.GetBuffer(length + 1), length + 1);
    text.ReleaseBuffer();
    return text;
}

/// Texts by key; counts how often each project asked.
class Catalogue : public qlx::lib::IMSGTextProvider
{
public:
    Catalogue() { qlx::lib::MMSGFunction::RegisterProvider(this); }
    ~Catalogue() override { qlx::lib::MMSGFunction::UnregisterProvider(this); }
    bool GetText(const wchar_t* key, int project, CString& text) override
    {
        ++projects[project];
        const auto found = texts.find(key);
        if (found != texts.end())
            text = found->second.c_str();
        return found != texts.end();
    }
    std::map<std::wstring, std::wstring> texts;
    std::map<int, int> projects;
};

/// A top-level window with children, as a dialog is.
class Dialogs : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog = make(nullptr, L"Setup", 0, WS_POPUP | WS_CAPTION);
        wchar_t header[] =
            L"#define IDD_SETUP 120\n#define IDC_NAME 1001\n#define IDC_NAME2 1001\n#define IDC_SIZE 1002\n"
            L"#define IDC_GROUP 1003\n#define IDC_INNER 1004\n#define IDC_EMPTY 1005\n";
        table.LoadResourceHeader(reinterpret_cast<unsigned char*>(header),
                                 static_cast<int>(std::size(header)) - 1);
    }
    void TearDown() override
    {
        if (::IsWindow(dialog))
            ::DestroyWindow(dialog);
        XMultiLang::m_bIniFindMode = 0;
    }
    static HWND make(HWND parent, const wchar_t* text, int id, DWORD style = WS_CHILD,
                     const wchar_t* windowClass = L"STATIC")
    {
        const HWND window = ::CreateWindowExW(0, windowClass, text, style, 0, 0, 100, 20, parent,
                                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                              ::GetModuleHandleW(nullptr), nullptr);
        EXPECT_TRUE(window);
        return window;
    }
    HWND child(const wchar_t* text, int id) { return make(dialog, text, id); }
    void open(const std::wstring& ini)
    {
        std::vector<unsigned char> bytes(2 + 2 * ini.size());
        bytes[0] = 0xFF;
        bytes[1] = 0xFE;
        std::memcpy(bytes.data() + 2, ini.data(), 2 * ini.size());
        table.Create(bytes.data(), static_cast<int>(bytes.size()));
    }
    /// "caption|child|child", in the order of the children.
    CString texts() const
    {
        CString all = text_of(dialog);
        for (HWND window = ::GetWindow(dialog, GW_CHILD); window; window = ::GetWindow(window, GW_HWNDNEXT))
            all += L"|" + text_of(window);
        return all;
    }
    XMultiLang table;
    HWND dialog = nullptr;
};

WNDPROC g_original = nullptr;

/// Destroys its parent when it gets a text.
LRESULT CALLBACK DestroyParentProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WNDPROC original = g_original;
    if (message == WM_SETTEXT)
    {
        ::DestroyWindow(::GetParent(window));
        return TRUE;
    }
    return ::CallWindowProcW(original, window, message, wParam, lParam);
}

BOOL g_wasVisible = TRUE;

/// Notes whether the window can be painted when it gets a text.
LRESULT CALLBACK NoteVisibilityProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETTEXT)
        g_wasVisible = ::IsWindowVisible(window);
    return ::CallWindowProcW(g_original, window, message, wParam, lParam);
}

void make_destructive(HWND window)
{
    g_original = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DestroyParentProc)));
}
} // namespace

TEST_F(Dialogs, TranslateOneControl)
{
    open(L"[IDD_SETUP]\nIDC_NAME=Nom\\nde\nIDC_SIZE=\n[DIALOG]\nIDC_GROUP=Groupe\n");
    table.SetCurrentDlgManually(L"IDD_SETUP");
    CWnd window;
    EXPECT_EQ(table.__TranslateCtrlID(nullptr, 1001), L"");
    EXPECT_EQ(table.__TranslateCtrlID(&window, 1001), L"");
    window.Attach(child(L"Name", 1));
    EXPECT_EQ(table.__TranslateCtrlID(&window, 1001), L"Nom\nde");
    EXPECT_EQ(text_of(window.m_hWnd), L"Nom\nde");
    EXPECT_EQ(table.__TranslateCtrlID(&window, 1002), L"") << "an empty text is none";
    EXPECT_EQ(table.__TranslateCtrlID(&window, 4711), L"");
    EXPECT_EQ(text_of(window.m_hWnd), L"Nom\nde");
    EXPECT_EQ(table.__TranslateCtrlID(&window, 1003), L"Groupe");
    table.SetCurrentDlgManually(L"");
    EXPECT_EQ(table.__TranslateCtrlID(&window, 1003), L"") << "shared texts need a dialog";
    EXPECT_EQ(text_of(window.m_hWnd), L"Groupe");
    window.Detach();
}

TEST_F(Dialogs, TakeTheirTextsFromTheCatalogue)
{
    Catalogue catalogue;
    qlx::lib::TranslateUtil::RegisterProject(L"Draw", 42);
    catalogue.texts = {{L"IDS_IDD_SETUP_IDD_SETUP", L"Einstellungen"},
                       {L"IDS_IDD_SETUP_IDC_NAME2", L"zweiter Name"},
                       {L"IDS_IDD_SETUP_IDOK", L"Gut"},
                       {L"IDS_IDD_SETUP_IDC_EMPTY", L"no"},
                       {L"IDS_IDD_SETUP_IDC_INNER", L"no"},
                       {L"IDS_IDD_SETUP_IDC_GROUP", L"Gruppe"}};
    child(L"Name", 1001);
    child(L"Size", 1002);
    const HWND group = make(dialog, L"Group", 1003, WS_CHILD | BS_GROUPBOX, L"BUTTON");
    const HWND inner = make(group, L"Inner", 1004);
    child(L"", 1005);
    child(L"OK", 1);
    child(L"No name", 4711);
    table.SetDlgTexts(dialog, 120, L"Draw");
    EXPECT_EQ(texts(), L"Einstellungen|zweiter Name|Size|Gruppe||Gut|No name");
    EXPECT_EQ(text_of(inner), L"Inner") << "only direct children are translated";
    EXPECT_EQ(table.GetCurrentDlg(), L"IDD_SETUP");
    EXPECT_GT(catalogue.projects[42], 0);
    qlx::lib::TranslateUtil::UnregisterProject(L"Draw");
}

TEST_F(Dialogs, KeepTheirTextsWithoutACatalogue)
{
    const HWND window = child(L"Name", 1001);
    table.SetDlgTexts(dialog, 120, L"Draw");
    EXPECT_EQ(text_of(dialog), L"Setup");
    EXPECT_EQ(text_of(window), L"Name");
}

TEST_F(Dialogs, WithAnUnknownIdentifierStayAsTheyAre)
{
    Catalogue catalogue;
    catalogue.texts = {
        {L"IDS_IDD_SETUP_IDD_SETUP", L"no"}, {L"IDS_IDD_SETUP_IDC_NAME", L"no"}, {L"IDS__IDC_NAME", L"no"}};
    open(L"[DIALOG]\nIDC_NAME=shared\n[IDD_SETUP]\nIDC_NAME=own\n");
    table.SetCurrentDlgManually(L"IDD_SETUP");
    child(L"Name", 1001);
    for (const unsigned id : {121u, 1001u, 0u})
        table.SetDlgTexts(dialog, id, L"Draw");
    EXPECT_EQ(texts(), L"Setup|Name");
    EXPECT_EQ(table.GetCurrentDlg(), L"");
    CString text;
    EXPECT_EQ(table.FindDialogControlText(1001, text), 0);
    EXPECT_EQ(table.TranslateDialog(dialog, 121).nMissing, 0);
    EXPECT_EQ(texts(), L"Setup|Name");
}

TEST_F(Dialogs, AnEmptyCaptionStaysEmpty)
{
    Catalogue catalogue;
    catalogue.texts = {{L"IDS_IDD_SETUP_IDD_SETUP", L"no"}};
    ::SetWindowTextW(dialog, L"");
    table.SetDlgTexts(dialog, 120, L"Draw");
    EXPECT_EQ(text_of(dialog), L"");
}

TEST_F(Dialogs, ReadAtMost260CharactersOfATextThatHasNoTranslation)
{
    const HWND window = child(std::wstring(300, L'x').c_str(), 1001);
    table.SetDlgTexts(dialog, 120, L"Draw");
    EXPECT_EQ(text_of(window).GetLength(), 260);
}

TEST_F(Dialogs, CountWhereTheirTextsCameFrom)
{
    open(L"[IDD_SETUP]\nIDD_SETUP=Einrichten\nIDC_NAME=Name\\r\\nlang\n[DIALOG]\nIDC_GROUP=Gruppe\nIDOK="
         L"Gut\n");
    parse(table.GetSecondaryXIni(), L"[IDD_SETUP]\nIDC_SIZE=Size (English)\n");
    child(L"Name", 1001);
    child(L"Size", 1002);
    const HWND group = make(dialog, L"Group", 1003, WS_CHILD | BS_GROUPBOX, L"BUTTON");
    make(group, L"Inner", 1004);
    child(L"", 1005);
    child(L"OK", 1);
    child(L"Cancel", 2);
    child(L"No name", 4711);
    XMultiLang::m_bIniFindMode = 1;
    const CTranslateCount count = table.TranslateDialog(dialog, 120);
    EXPECT_EQ(texts(), L"Einrichten|Name\r\nlang|Size (English)|Gruppe||Gut|Cancel|No name");
    EXPECT_EQ(count.nTranslated, 2);
    EXPECT_EQ(count.nFallback, 3);
    EXPECT_EQ(count.nMissing, 1);
    EXPECT_EQ(dump(table.GetMissingKeys()), L"[IDD_SETUP] IDCANCEL=#Need to Copy..#;");
}

TEST_F(Dialogs, ThatAreShownPaintOnceWhenAllTheirTextsAreThere)
{
    const HWND name = make(dialog, L"Name", 1001, WS_CHILD | WS_VISIBLE);
    const HWND size = make(dialog, L"Size", 1002, WS_CHILD | WS_VISIBLE);
    ::SetWindowPos(dialog, nullptr, 0, 0, 400, 300, SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    ::RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    g_original = reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(size, GWLP_WNDPROC));
    ::SetWindowLongPtrW(size, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&NoteVisibilityProc));
    open(L"[IDD_SETUP]\nIDC_NAME=Nimi\nIDC_SIZE=Koko\n");
    table.TranslateDialog(dialog, 120);
    EXPECT_EQ(g_wasVisible, FALSE) << "painting waits while the texts are set";
    EXPECT_EQ(texts(), L"Setup|Nimi|Koko");
    EXPECT_TRUE(::IsWindowVisible(name)) << "and the dialog is as visible as before";
    EXPECT_TRUE(::GetUpdateRect(name, nullptr, FALSE)) << "what is to be painted is marked";
}

TEST_F(Dialogs, ThatAreHiddenStayHidden)
{
    child(L"Name", 1001);
    open(L"[IDD_SETUP]\nIDC_NAME=Nimi\n");
    table.TranslateDialog(dialog, 120);
    table.SetDlgTexts(dialog, 120, L"Project");
    EXPECT_FALSE(::IsWindowVisible(dialog));
}

TEST_F(Dialogs, MayBeDestroyedWhileTheyAreTranslated)
{
    open(L"[IDD_SETUP]\nIDC_NAME=destroys\nIDC_SIZE=too late\n");
    make_destructive(child(L"Name", 1001));
    child(L"Size", 1002);
    const CTranslateCount count = table.TranslateDialog(dialog, 120);
    EXPECT_FALSE(::IsWindow(dialog));
    EXPECT_EQ(count.nTranslated, 1);
    EXPECT_EQ(table.TranslateDialog(dialog, 120).nTranslated, 0) << "a window that is gone";

    Catalogue catalogue;
    catalogue.texts = {{L"IDS_IDD_SETUP_IDC_NAME", L"destroys"}, {L"IDS_IDD_SETUP_IDC_SIZE", L"too late"}};
    dialog = make(nullptr, L"Setup", 0, WS_POPUP);
    make_destructive(child(L"Name", 1001));
    child(L"Size", 1002);
    table.SetDlgTexts(dialog, 120, L"Draw");
    EXPECT_FALSE(::IsWindow(dialog));
    table.SetDlgTexts(dialog, 120, L"Draw");
}

namespace
{
/// "File{Open<tab>Ctrl+O,-,...}" of a menu.
CString dump_menu(HMENU menu)
{
    CString all;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
    {
        wchar_t text[100] = {};
        ::GetMenuStringW(menu, static_cast<UINT>(i), text, 100, MF_BYPOSITION);
        const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
        const HMENU popup = ::GetSubMenu(menu, i);
        all += (i ? L"," : L"") + CString(!popup && (state & MF_SEPARATOR) ? L"-" : text);
        if (popup)
            all += L"{" + dump_menu(popup) + L"}";
    }
    return all;
}

class Menus : public Dialogs
{
protected:
    void SetUp() override
    {
        Dialogs::SetUp();
        table.LoadResourceHeaderByDLL(TEXT_HEADER, L"RESHEADER", nullptr);
        menu = ::LoadMenuW(::GetModuleHandleW(nullptr), MAKEINTRESOURCEW(MENU_MAIN));
        ASSERT_TRUE(menu);
    }
    void TearDown() override
    {
        ::DestroyMenu(menu);
        Dialogs::TearDown();
    }
    HMENU menu = nullptr;
};

constexpr wchar_t kMenuTexts[] =
    L"[MENUSTR]\nFile=&Datei\nID_FILE_OPEN=&Oeffnen\nIDM_EXIT=&Ende\tStrg+Q\nID_DEEP=&Tief\n";
} // namespace

TEST_F(Menus, AreTranslatedWithTheirPopups)
{
    open(kMenuTexts);
    EXPECT_EQ(table.TranslateMenuStringSub(menu), 4);
    EXPECT_EQ(dump_menu(menu), L"&Datei{&Oeffnen\tCtrl+O,-,&More{&Tief,No name},&Ende\tStrg+Q}");
    EXPECT_EQ(::GetMenuItemID(::GetSubMenu(menu, 0), 0), static_cast<UINT>(COMMAND_OPEN));
}

TEST_F(Menus, KeepOwnerDrawnItems)
{
    open(kMenuTexts);
    const HMENU popup = ::GetSubMenu(menu, 0);
    ::ModifyMenuW(popup, 0, MF_BYPOSITION | MF_OWNERDRAW, COMMAND_OPEN, L"data");
    EXPECT_EQ(table.TranslateMenuStringSub(menu), 3);
    EXPECT_TRUE(::GetMenuState(popup, 0, MF_BYPOSITION) & MF_OWNERDRAW);
}

TEST_F(Menus, ThatAreGoneAreLeftAlone)
{
    open(kMenuTexts);
    const HMENU gone = ::CreateMenu();
    ::DestroyMenu(gone);
    EXPECT_EQ(table.TranslateMenuStringSub(gone), 0);
    EXPECT_EQ(table.TranslateMenuStringSub(nullptr), 0);
    EXPECT_EQ(table.TranslateMenuStringSub(reinterpret_cast<HMENU>(dialog)), 0);
}

TEST_F(Menus, AreTranslatedByTheTableOfAProject)
{
    auto* const registered = new XMultiLang;
    registered->LoadResourceHeaderByDLL(TEXT_HEADER, L"RESHEADER", nullptr);
    parse(registered->GetXIni(), kMenuTexts);
    INIResourceManager::AppendMap(L"Draw", registered);
    EXPECT_EQ(INIResourceManager::LoadMenuToINITranslate(L"Other", menu), 0);
    XMultiLang::m_bIniFindMode = 1;
    EXPECT_EQ(INIResourceManager::LoadMenuToINITranslate(L"Draw", menu), 4);
    EXPECT_EQ(dump(registered->GetMissingKeys()), L"[MENUSTR] More=#Need to Copy..#;");
    INIResourceManager::DeleteINIResource();
}

TEST_F(Menus, AndDialogsOfAModuleAreSearchedForWhatTheFilesLack)
{
    open(L"[IDD_SETUP]\nIDC_NAME=Name\n[DIALOG]\nIDOK=OK\n[MENUSTR]\nIDM_EXIT=\nFile=Datei\n");
    XIni missing;
    EXPECT_EQ(INIResourceManager::FindCtrl_DialogINIResource(table, missing), 3);
    EXPECT_EQ(
        dump(missing),
        L"[IDD_SETUP] IDCANCEL=#Need to Copy..#; IDC_SIZE=#Need to Copy..#; IDD_SETUP=#Need to Copy..#;");
    missing.Clear();
    EXPECT_EQ(INIResourceManager::FindCtrl_MenuINIResource(table, missing), 3);
    EXPECT_EQ(dump(missing),
              L"[MENUSTR] ID_DEEP=#Need to Copy..#; ID_FILE_OPEN=#Need to Copy..#; More=#Need to Copy..#;");
}

TEST(ResourceTexts, AreReadFromAModule)
{
    XMultiLang table;
    EXPECT_EQ(table.LoadResourceHeader(TEXT_HEADER, L"RESHEADER"), 1)
        << "the framework's module is the program";
    EXPECT_TRUE(table.GetHeaderModule());
    EXPECT_EQ(table.GetResourceHeader().FindFirst(CResourceHeader::Dialog, L"120"), L"IDD_SETUP");
    EXPECT_EQ(table.GetResourceHeader().FindFirst(CResourceHeader::Menu, L"32773"), L"ID_DEEP")
        << "the last word";
    EXPECT_EQ(table.GetResourceHeader().FindFirst(CResourceHeader::All, L"1"), L"IDOK");
    EXPECT_EQ(table.LoadResourceHeaderByDLL(TEXT_ODD, L"RESHEADER", ::GetModuleHandleW(nullptr)), 1);
    EXPECT_EQ(table.GetResourceHeader().FindFirst(CResourceHeader::Control, L"7"), L"IDC_ODD");
    EXPECT_EQ(table.LoadResourceHeader(4711, L"RESHEADER"), 0);
    EXPECT_EQ(table.LoadResourceHeaderByDLL(TEXT_HEADER, L"RESHEADER", ::GetModuleHandleW(L"kernel32.dll")),
              0);
    EXPECT_EQ(XMultiLang::GetProjectName(TEXT_PROJECT, L"PROJECTNAME", nullptr), L"Draw");
    EXPECT_EQ(XMultiLang::GetProjectName(TEXT_PROJECT, L"RESHEADER", nullptr), L"Non Find String");
}

namespace
{
CString g_seen;

/// Waits for the dialog, notes its texts and presses OK.
void CALLBACK PressOk(HWND, UINT, UINT_PTR timer, DWORD)
{
    const HWND dialog = ::FindWindowW(L"#32770", L"Einrichten");
    if (!dialog)
        return;
    ::KillTimer(nullptr, timer);
    g_seen = text_of(::GetDlgItem(dialog, CONTROL_NAME)) + L"|" + text_of(::GetDlgItem(dialog, CONTROL_SIZE));
    ::PostMessageW(dialog, WM_COMMAND, IDOK, 0);
}
} // namespace

TEST_F(Menus, HaveADialogBesideThemThatIsShownTranslated)
{
    open(L"[IDD_SETUP]\nIDD_SETUP=Einrichten\nIDC_NAME=Name (de)\n");
    ::SetTimer(nullptr, 0, 20, PressOk);
    EXPECT_EQ(table.OnMyModalDialogIndirect(nullptr, DIALOG_SETUP, nullptr), IDOK);
    EXPECT_EQ(g_seen, L"Name (de)|Size");
    EXPECT_EQ(table.OnMyModalDialogIndirect(nullptr, 4711, nullptr), -1);
}
