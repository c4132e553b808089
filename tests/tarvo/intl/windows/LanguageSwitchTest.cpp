#include "tarvo/intl/LanguageSwitch.h"

#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/InternationalFormView.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/msg/MSGInfo.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <functional>

namespace
{
/// A dialog that is translated by its module's table and sets one text itself.
class CTableDlg : public CInternationalDlg
{
public:
    explicit CTableDlg(UINT id = IDD_SETUP) : CInternationalDlg(id) {}
    int TranslateStringToINI() override
    {
        if (ownTranslation)
            return ownTranslation();
        return TranslateByTable(GetDlgResID());
    }
    void SetText() override
    {
        if (const auto text = onText)
            text();
    }
    int FollowsLanguage() override { return follows; }
    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }
    std::function<int()> ownTranslation;
    std::function<void()> onText;
    int follows = 1;
};

class CTestForm : public CInternationalFormView
{
public:
    CTestForm() : CInternationalFormView(IDD_VIEW_FORM) {}
};

class LanguageSwitch : public IntlWindows
{
protected:
    /// What a dialog shows that is opened now.
    static std::wstring Fresh(const std::function<void(CTableDlg&)>& setUp = {})
    {
        CTableDlg dlg;
        if (setUp)
            setUp(dlg);
        EXPECT_TRUE(dlg.Create(IDD_SETUP));
        std::wstring texts = TextsOf(dlg.m_hWnd);
        dlg.DestroyWindow();
        return texts;
    }
};

/// Every window of a dialog that is opened now: class, identifier, text, place and font.
std::wstring FreshDump()
{
    CTableDlg dlg;
    EXPECT_TRUE(dlg.Create(IDD_SETUP));
    std::wstring dump = DumpOf(dlg.m_hWnd);
    dlg.DestroyWindow();
    return dump;
}

int g_texts;
WNDPROC g_former;
LRESULT CALLBACK CountTexts(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    g_texts += message == WM_SETTEXT;
    return ::CallWindowProcW(g_former, window, message, wParam, lParam);
}
} // namespace

TEST_F(LanguageSwitch, OpenDialogShowsWhatAFreshOneWould)
{
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    EXPECT_EQ(TextsOf(dlg.m_hWnd),
              L"Einstellungen|Bezeichnung|Erste\nZweite||||||...|Suchen|Rahmen|Benutzen||"
              L"No symbol|OK|Abbrechen");
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(TextsOf(dlg.m_hWnd), Fresh());
    EXPECT_EQ(TextOf(dlg.Item(IDC_SEARCH)), L"Search") << "no entry: what the template said";
    SetTextFont("Lucida Console");
    SpeakGerman();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextsOf(dlg.m_hWnd), Fresh());
    EXPECT_EQ(DumpOf(dlg.m_hWnd), FreshDump());
    catalogue.texts.clear();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextsOf(dlg.m_hWnd), Fresh());
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, WithoutATableAnyMoreTheTemplatesTextsAreShown)
{
    INIResourceManager::DeleteINIResource();
    const std::wstring original = Fresh();
    INIResourceManager::AppendMap(L"IntlTest", MakeTable());
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    EXPECT_NE(TextsOf(dlg.m_hWnd), original);
    INIResourceManager::DeleteINIResource();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(TextsOf(dlg.m_hWnd), original);
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, EachTextIsSetOnceAndOnlyWhenItChanges)
{
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    g_former = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(dlg.Item(IDC_LABEL), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountTexts)));
    g_texts = 0;
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(g_texts, 0);
    SpeakFrench();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(g_texts, 1);
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, EntriesSelectionsAndFocusStay)
{
    SpeakGerman();
    CHostWnd host;
    CTableDlg dlg;
    // Fills its lists with the words of the language, as derived dialogs do, and overwrites an entry.
    dlg.onText = [&] {
        for (const auto& [id, empty, add] : {std::tuple(IDC_UNIT, CB_RESETCONTENT, CB_ADDSTRING),
                                             std::tuple(IDC_TYPED, CB_RESETCONTENT, CB_ADDSTRING),
                                             std::tuple(IDC_KIND, LB_RESETCONTENT, LB_ADDSTRING)})
        {
            dlg.SendDlgItemMessage(id, empty);
            for (const wchar_t* line : {L"one", L"two", L"three"})
                dlg.SendDlgItemMessage(id, add, 0, reinterpret_cast<LPARAM>(line));
        }
        dlg.SetDlgItemText(IDC_NAME_EDIT, L"set by SetText");
        dlg.SetDlgItemText(IDC_RESULT, L"result");
    };
    ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
    dlg.ShowWindow(SW_SHOW);
    dlg.SetForegroundWindow();
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"typed by the user");
    dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_SETSEL, 3, 7);
    dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_SETMODIFY, TRUE);
    dlg.SetDlgItemText(IDC_RESULT, L"42");
    dlg.SendDlgItemMessage(IDC_UNIT, CB_SETCURSEL, 2);
    dlg.SetDlgItemText(IDC_TYPED, L"12.5");
    dlg.SendDlgItemMessage(IDC_KIND, LB_SETCURSEL, 1);
    ::SetFocus(dlg.Item(IDC_NAME_EDIT));
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Nom");
    EXPECT_EQ(TextOf(dlg.Item(IDC_NAME_EDIT)), L"typed by the user");
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_GETSEL), MAKELRESULT(3, 7));
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_GETMODIFY), TRUE);
    EXPECT_EQ(TextOf(dlg.Item(IDC_RESULT)), L"result") << "the program's, which may set it";
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_UNIT, CB_GETCURSEL), 2);
    EXPECT_EQ(TextOf(dlg.Item(IDC_TYPED)), L"12.5");
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_KIND, LB_GETCURSEL), 1);
    EXPECT_EQ(::GetFocus(), dlg.Item(IDC_NAME_EDIT));
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"and more");
    EXPECT_EQ(TextOf(dlg.Item(IDC_NAME_EDIT)), L"and more") << "the guard is gone";
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, LabelThatTheProgramHasChangedKeepsItsText)
{
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.SetDlgItemText(IDC_LABEL, L"53 %");
    dlg.SetDlgItemText(IDC_USE, L"");
    SpeakFrench();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"53 %");
    EXPECT_EQ(TextOf(dlg.Item(IDC_USE)), L"");
    EXPECT_EQ(TextOf(dlg.Item(IDC_SEARCH)), L"Search");
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, TextsOfSetTextFollow)
{
    SpeakGerman();
    CTableDlg dlg;
    dlg.onText = [&] {
        dlg.SetWindowText(qlx::lib::MMSGFunction::GetValue(L"TITLE"));
        dlg.SetDlgItemText(IDC_LABEL, qlx::lib::MMSGFunction::GetValue(L"TITLE"));
    };
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Deutsch");
    for (int i = 0; i < 2; ++i)
    {
        SpeakFrench();
        CLanguageSwitch::Retranslate();
        EXPECT_EQ(TextOf(dlg.m_hWnd), L"Fran\x00E7\x0061is");
        EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Fran\x00E7\x0061is");
        SpeakGerman();
        CLanguageSwitch::Retranslate();
        EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Deutsch");
    }
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, TranslationOfTheDerivedClassStartsFromTheTemplatesTexts)
{
    // The usual one-liner over the table, which knows nothing of entries and of former languages.
    SpeakGerman();
    CTableDlg dlg;
    const auto own = [this](CTableDlg& dialog) {
        dialog.ownTranslation = [this, &dialog] {
            table->SetDlgTexts(dialog.m_hWnd, IDD_SETUP, L"IntlTest");
            return 1;
        };
    };
    own(dlg);
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"typed");
    dlg.SetDlgItemText(IDC_LABEL, L"53 %");
    SpeakFrench();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextOf(dlg.Item(IDC_NAME_EDIT)), L"typed");
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"53 %");
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"");
    dlg.SetDlgItemText(IDC_LABEL, L"Nom");
    EXPECT_EQ(TextsOf(dlg.m_hWnd), Fresh(own));
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, TextFontFollowsButControlsWithAFontOfTheirOwnKeepIt)
{
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    CFont bold;
    bold.CreatePointFont(140, L"Arial");
    dlg.SendDlgItemMessage(IDC_USE, WM_SETFONT, reinterpret_cast<WPARAM>(bold.m_hObject));
    const HFONT former = dlg.GetTextFont();
    SetTextFont("Lucida Console");
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(FontOf(dlg.Item(IDC_LABEL)), L"Lucida Console -12");
    EXPECT_EQ(FontOf(dlg.Item(IDC_NAME_EDIT)), L"Lucida Console -12");
    EXPECT_EQ(FontOf(dlg.Item(IDC_USE)), FontOf(dlg.Item(IDC_USE)));
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(dlg.SendDlgItemMessage(IDC_USE, WM_GETFONT)), bold.m_hObject);
    EXPECT_NE(dlg.GetTextFont(), former);
    EXPECT_EQ(::GetObjectType(former), 0u) << "the former font is freed";
    const HFONT now = dlg.GetTextFont();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.GetTextFont(), now) << "the same font is not made anew";
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, LabelsAreRaisedToTheirNewTexts)
{
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    ::SetWindowPos(dlg.Item(IDC_LABEL), nullptr, 0, 0, 60, 20, SWP_NOMOVE | SWP_NOZORDER);
    catalogue.texts = {{L"IDS_IDD_SETUP_IDC_LABEL", L"two\nlines"}};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(HeightOf(dlg.Item(IDC_LABEL)), 26);
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, WindowThatRefusesIsLeftAlone)
{
    SpeakGerman();
    CTableDlg refusing, following;
    ASSERT_TRUE(refusing.Create(IDD_SETUP) && following.Create(IDD_SETUP));
    refusing.follows = 0;
    const std::wstring before = DumpOf(refusing.m_hWnd);
    SetTextFont("Lucida Console");
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(DumpOf(refusing.m_hWnd), before);
    EXPECT_EQ(TextOf(following.Item(IDC_LABEL)), L"Nom");
    refusing.DestroyWindow();
    following.DestroyWindow();
}

TEST_F(LanguageSwitch, FormViewsFollow)
{
    SpeakGerman();
    CHostWnd host;
    auto* const form = new CTestForm;
    ASSERT_TRUE(form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 7));
    form->OnInitialUpdate();
    form->SetDlgItemText(IDC_NAME_EDIT, L"typed");
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(TextsOf(form->m_hWnd), L"|Nom|typed|Use|No symbol");
    form->DestroyWindow();
}

TEST_F(LanguageSwitch, WindowsThatCloseThemselvesOrOthersOnTheWayAreNoTrouble)
{
    SpeakGerman();
    CTableDlg first, second, third;
    ASSERT_TRUE(first.Create(IDD_SETUP) && second.Create(IDD_SETUP) && third.Create(IDD_SETUP));
    first.onText = [&] { second.DestroyWindow(); };
    third.onText = [&] { third.DestroyWindow(); };
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 2);
    EXPECT_EQ(TextOf(first.Item(IDC_LABEL)), L"Nom");
    EXPECT_EQ(CLanguageWindow::GetOpenWindows().size(), 1u);
    first.ownTranslation = [&] {
        first.DestroyWindow();
        return 0;
    };
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(LanguageSwitch, ControlThatGoesWhileTextsAreSetIsPassedOver)
{
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    ::DestroyWindow(dlg.Item(IDC_SEARCH));
    ::DestroyWindow(dlg.Item(IDC_NAME_EDIT));
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Nom");
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, ControlThatIsSubclassedWhileItIsGuardedGoesOnWorking)
{
    CEdit edit;
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"typed");
    dlg.onText = [&] {
        if (!edit.m_hWnd)
            edit.SubclassDlgItem(IDC_NAME_EDIT, &dlg);
        edit.SetWindowText(L"overwritten");
    };
    for (int i = 0; i < 2; ++i)
    {
        CLanguageSwitch::Retranslate();
        EXPECT_EQ(TextOf(edit.m_hWnd), L"typed");
    }
    edit.SetWindowText(L"more");
    EXPECT_EQ(TextOf(edit.m_hWnd), L"more");
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, ModalDialogFollowsWhileItRuns)
{
    SpeakGerman();
    class CSwitching : public CTableDlg
    {
    public:
        std::wstring texts;
        void OnOK() override
        {
            CLanguageSwitch::Retranslate();
            texts = TextsOf(m_hWnd);
            CTableDlg::OnOK();
        }
    } switching;
    switching.onText = [&] {
        switching.PostMessage(WM_COMMAND, Clicked(IDOK));
        SpeakFrench();
    };
    EXPECT_EQ(switching.DoModal(), IDOK);
    EXPECT_EQ(switching.texts, Fresh());
}

// Menus.

namespace
{
std::wstring MenuTextsOf(HMENU menu)
{
    std::wstring all;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i)
    {
        wchar_t text[64] = {};
        ::GetMenuStringW(menu, static_cast<UINT>(i), text, 64, MF_BYPOSITION);
        all += text + std::wstring(L"|");
        if (const HMENU popup = ::GetSubMenu(menu, i))
            all += L"(" + MenuTextsOf(popup) + L")";
    }
    return all;
}

constexpr wchar_t kResourceMenu[] = L"&File|(&Open\tCtrl+O||&Recent|(E&xit|))&Help|(No symbol|)";

class MenuSwitch : public LanguageSwitch
{
protected:
    void SetUp() override
    {
        LanguageSwitch::SetUp();
        menu.LoadMenu(IDR_INTL_MENU);
        host.SetMenu(&menu);
    }
    void TearDown() override
    {
        host.SetMenu(nullptr);
        LanguageSwitch::TearDown();
    }
    void Load(const std::wstring& ini)
    {
        table->GetXIni().Clear();
        table->GetXIni().OpenMemory(ini.c_str(), static_cast<int>(ini.size()));
    }
    CHostWnd host;
    CMenu menu;
};
} // namespace

TEST_F(MenuSwitch, FollowedMenuIsTranslatedFromItsResourcesTextsEachTime)
{
    Load(L"[MENUSTR]\nFile=&Datei\nID_INTL_OPEN=&Laden\nRecent=&Zuletzt\nID_INTL_EXIT=&Ende\n");
    EXPECT_EQ(CLanguageSwitch::FollowMenu(host.m_hWnd, L"IntlTest"), 4);
    EXPECT_EQ(MenuTextsOf(menu), L"&Datei|(&Laden\tCtrl+O||&Zuletzt|(&Ende|))&Help|(No symbol|)");
    Load(L"[MENUSTR]\nFile=&Fichier\nID_INTL_OPEN=&Ouvrir\tStrg+O\nHelp=&Aide\n");
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(MenuTextsOf(menu), L"&Fichier|(&Ouvrir\tStrg+O||&Recent|(E&xit|))&Aide|(No symbol|)");
    Load(L"");
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(MenuTextsOf(menu), kResourceMenu);
}

TEST_F(MenuSwitch, ItemThatTheProgramHasChangedKeepsItsText)
{
    Load(L"[MENUSTR]\nID_INTL_OPEN=&Laden\n");
    CLanguageSwitch::FollowMenu(host.m_hWnd, L"IntlTest");
    ::ModifyMenuW(menu, ID_INTL_OPEN, MF_BYCOMMAND, ID_INTL_OPEN, L"Undo typing");
    ::AppendMenuW(menu.GetSubMenu(0)->m_hMenu, MF_STRING, 33098, L"Added");
    Load(L"[MENUSTR]\nID_INTL_OPEN=&Ouvrir\nID_INTL_EXIT=&Fin\n");
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(MenuTextsOf(menu), L"&File|(Undo typing||&Recent|(&Fin|)Added|)&Help|(No symbol|)");
}

TEST_F(MenuSwitch, MenuOfAWindowThatIsGoneIsForgotten)
{
    EXPECT_EQ(CLanguageSwitch::FollowMenu(nullptr, L"IntlTest"), 0);
    {
        CHostWnd gone;
        CLanguageSwitch::FollowMenu(gone.m_hWnd, L"IntlTest");
    }
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 0);
}

// Loading.

namespace
{
/// Stands for the host's object.
class CNotingInfo : public IMSGInfo
{
public:
    CNotingInfo() : m_former(std::exchange(m_pInstance, this)) {}
    ~CNotingInfo() override { m_pInstance = m_former; }
    void LoadMessage(int language) override { languages.push_back(language); }
    CString GetProgramPath() override { return {}; }
    int GetCurrentLang() override { return 0; }
    int GetInstallLang() override { return 0; }
    int IsInstalledForForeignLang() override { return 0; }
    CString GetLanguageINIFilePath(int, CString, CString*) override { return {}; }
    std::vector<int> languages;

private:
    IMSGInfo* m_former;
};
} // namespace

TEST_F(LanguageSwitch, OneCallLoadsMessagesAndFilesAndTranslates)
{
    CNotingInfo info;
    SpeakGerman();
    CTableDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    SpeakFrench();
    std::wstring asked;
    CLanguageSwitch::SetFileRule([&](const CString& project, int language) {
        asked += project.GetString() + std::to_wstring(language) + L" ";
        return CLanguageFiles{L"none.ini", L"", 0};
    });
    EXPECT_EQ(CLanguageSwitch::SwitchTo(4), 1);
    EXPECT_EQ(info.languages, std::vector<int>{4});
    EXPECT_EQ(asked, L"IntlTest4 ");
    EXPECT_EQ(TextOf(dlg.Item(IDC_LABEL)), L"Nom");
    EXPECT_EQ(CLanguageSwitch::SwitchTo(4), 1);
    EXPECT_EQ(asked, L"IntlTest4 IntlTest4 ");
    dlg.DestroyWindow();
}

TEST_F(LanguageSwitch, DefaultFilesAreBesideTheProgramWithTheKoreanOnesBehind)
{
    struct Row
    {
        int language;
        const wchar_t* folder;
        const wchar_t* suffix;
        int codePage;
    };
    for (const Row& row :
         {Row{0, L"English", L"_us", 0}, Row{1, L"Korean", L"_kr", 949}, Row{2, L"Japanese", L"_jp", 932},
          Row{3, L"Chinese", L"_ch", 936}, Row{4, L"Russia", L"_rus", 0}, Row{5, L"Global", L"_gb", 0},
          Row{9, L"English", L"_us", 0}})
    {
        const CLanguageFiles files = CLanguageSwitch::GetDefaultFiles(L"Draw", row.language);
        EXPECT_EQ(files.strPrimary, INIResourceManager::GetLanguageFilePath(L"Draw", row.folder, row.suffix));
        EXPECT_EQ(files.strSecondary, INIResourceManager::GetLanguageFilePath(L"Draw", L"Korean", L"_kr"));
        EXPECT_EQ(files.nCodePage, row.codePage) << row.language;
    }
}
