#include "tarvo/intl/LanguageSwitch.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"
#include "tests/tarvo/intl/windows/TestSheet.h"

#include <afxcmn.h>

#include <functional>

namespace
{
class CTestPage : public CInternationalPropertyPage
{
public:
    explicit CTestPage(UINT id, UINT caption = 0) : CInternationalPropertyPage(id, caption) {}
    BOOL OnInitDialog() override
    {
        CInternationalPropertyPage::OnInitDialog();
        log += L"init ";
        return TRUE;
    }
    void SetText() override { log += L"text "; }
    int TranslateStringToINI() override
    {
        log += L"translate ";
        return CInternationalPropertyPage::TranslateStringToINI();
    }
    BOOL OnCmdMsg(UINT id, int code, void* extra, AFX_CMDHANDLERINFO* info) override
    {
        if (code == CN_COMMAND && id > IDCANCEL)
        {
            log += L"command " + std::to_wstring(id) + L" ";
            if (takesCommands)
                return TRUE;
        }
        return CInternationalPropertyPage::OnCmdMsg(id, code, extra, info);
    }
    std::wstring log;
    bool takesCommands = false;
};

/// A sheet that tells what stands in it.
class CReadSheet : public CTestSheet
{
public:
    using CTestSheet::CTestSheet;
    std::wstring Tabs() const
    {
        std::wstring all;
        for (int i = 0; i < GetTabControl()->GetItemCount(); ++i)
        {
            wchar_t text[64] = {};
            TCITEMW item = {};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = 64;
            GetTabControl()->GetItem(i, &item);
            all += text + std::wstring(L"|");
        }
        return all;
    }
    HWND Button(int id) const { return ::GetDlgItem(m_hWnd, id); }
    CRect PlaceOf(HWND window) const
    {
        CRect place;
        ::GetWindowRect(window, place);
        ScreenToClient(place);
        return place;
    }
};

class InternationalSheets : public IntlWindows
{
protected:
    CTestPage one{IDD_PAGE_ONE};
    CTestPage two{IDD_PAGE_TWO};
    CHostWnd host;
};

/// A sheet of both pages, open and modeless.
class OpenSheet : public InternationalSheets
{
protected:
    void Open(CReadSheet& sheet)
    {
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        ASSERT_TRUE(sheet.Create(&host));
    }
};
} // namespace

TEST_F(OpenSheet, PagesAreMadeInTheDialogFontAndTranslatedInTheTextFont)
{
    SpeakGerman();
    Set(L"DlgFontName_Std", L"Arial");
    Set(L"DlgFontSize_Std", L"12");
    SetTextFont("Lucida Console");
    CReadSheet sheet(L"Sheet");
    Open(sheet);
    EXPECT_EQ(FontOf(one.m_hWnd), L"Arial -16");
    EXPECT_EQ(FontOf(one.GetDlgItem(IDC_LABEL)->m_hWnd), L"Lucida Console -12");
    EXPECT_EQ(TextsOf(one.m_hWnd), L"Eins|Bezeichnung|");
    EXPECT_EQ(one.log, L"init translate text ");
    EXPECT_EQ(two.m_hWnd, nullptr);
    sheet.SetActivePage(1);
    EXPECT_EQ(FontOf(two.m_hWnd), L"Arial -16");
    EXPECT_EQ(TextsOf(two.m_hWnd), L"Zwei|Benutzen");
    EXPECT_EQ(sheet.Tabs(), L"Eins|Zwei|");
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"Sheet");
    EXPECT_EQ(FontOf(sheet.GetTabControl()->m_hWnd), L"Lucida Console -12");
    sheet.DestroyWindow();
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(InternationalSheets, PagesOfOtherClassesGetTheDialogFontToo)
{
    Set(L"DlgFontName_Std", L"Arial");
    Set(L"DlgFontSize_Std", L"12");
    CPropertyPage plain(IDD_PAGE_ONE);
    CReadSheet sheet(L"Sheet");
    sheet.AddPage(&plain);
    ASSERT_TRUE(sheet.Create(&host));
    EXPECT_EQ(FontOf(plain.m_hWnd), L"Arial -16");
    EXPECT_EQ(sheet.Tabs(), L"One|");
    sheet.DestroyWindow();
}

TEST_F(OpenSheet, CaptionIsTheCataloguesTextForTheFirstPagesSheet)
{
    catalogue.texts = {{L"IDS_IDD_PAGE_ONE_SHEET", L"Einstellungen"}};
    CReadSheet sheet(IDS_SHEET_CAPTION);
    Open(sheet);
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"Einstellungen");
    catalogue.texts = {};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"Settings");
    catalogue.texts = {{L"IDS_IDD_PAGE_ONE_SHEET", L"R\x00E9glages"}};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"R\x00E9glages");
    sheet.SetTitle(L"The program's");
    catalogue.texts = {};
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(TextOf(sheet.m_hWnd), L"The program's");
    sheet.DestroyWindow();
}

TEST_F(OpenSheet, SwitchingTranslatesPagesInFrontAndBehindAndTheirTabs)
{
    SpeakGerman();
    CReadSheet sheet(L"Sheet");
    Open(sheet);
    sheet.SetActivePage(1);
    one.SetDlgItemText(IDC_NAME_EDIT, L"typed");
    SpeakFrench();
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 3);
    EXPECT_EQ(sheet.Tabs(), L"Un|Two|");
    EXPECT_EQ(TextsOf(one.m_hWnd), L"Un|Nom|typed");
    EXPECT_EQ(TextsOf(two.m_hWnd), L"Two|Use");
    EXPECT_EQ(sheet.GetActiveIndex(), 1);
    SpeakGerman();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(sheet.Tabs(), L"Eins|Zwei|");
    sheet.DestroyWindow();
}

TEST_F(OpenSheet, TabThatTheProgramHasChangedKeepsItsText)
{
    SpeakGerman();
    CReadSheet sheet(L"Sheet");
    Open(sheet);
    wchar_t text[] = L"3 errors";
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    sheet.GetTabControl()->SetItem(0, &item);
    SpeakFrench();
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(sheet.Tabs(), L"3 errors|Two|");
    sheet.DestroyWindow();
}

TEST_F(InternationalSheets, ButtonsAreTranslatedByTheirNamesAndFollow)
{
    const std::wstring ini = L"[DIALOG]\nIDOK=In Ordnung\nID_APPLY_NOW=&Anwenden\n";
    table->GetXIni().OpenMemory(ini.c_str(), static_cast<int>(ini.size()));
    CReadSheet sheet(L"Sheet", &host);
    sheet.AddPage(&one);
    std::wstring first, second, third;
    const auto buttons = [&] {
        return TextOf(sheet.Button(IDOK)) + L"|" + TextOf(sheet.Button(ID_APPLY_NOW));
    };
    sheet.onText = [&] {
        first = buttons();
        catalogue.texts = {{L"IDS_DIALOG_IDOK", L"Gut"}};
        CLanguageSwitch::Retranslate();
        second = buttons();
        catalogue.texts.clear();
        table->GetXIni().Clear();
        CLanguageSwitch::Retranslate();
        third = buttons();
        sheet.EndDialog(IDCANCEL);
    };
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(first, L"In Ordnung|&Anwenden");
    EXPECT_EQ(second, L"Gut|&Anwenden");
    EXPECT_EQ(third.find(L"Anwenden"), std::wstring::npos) << "the system's words again";
    EXPECT_EQ(third.find(L"Gut"), std::wstring::npos);
}

TEST_F(InternationalSheets, WizardsTitleIsThatOfThePageInFrontInTheLanguageInForce)
{
    SpeakGerman();
    CReadSheet sheet(L"Sheet", &host);
    sheet.AddPage(&one);
    sheet.AddPage(&two);
    sheet.SetWizardMode();
    std::wstring titles;
    const auto note = [&] { titles += TextOf(sheet.m_hWnd) + L"|"; };
    sheet.onText = [&] {
        note();
        SpeakFrench();
        CLanguageSwitch::Retranslate();
        note();
        sheet.SetActivePage(1);
        note();
        sheet.SetActivePage(0);
        note();
        sheet.EndDialog(IDCANCEL);
    };
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(titles, L"Eins|Un|Two|Un|");
}

TEST_F(OpenSheet, PagesTabsAndButtonsFollowTheSheetsSize)
{
    CReadSheet sheet(L"Sheet");
    sheet.SetResizable(TRUE);
    Open(sheet);
    EXPECT_TRUE(sheet.GetStyle() & WS_THICKFRAME);
    const HWND tab = sheet.GetTabControl()->m_hWnd;
    const CRect tabThen = sheet.PlaceOf(tab), pageThen = sheet.PlaceOf(one.m_hWnd),
                buttonThen = sheet.PlaceOf(sheet.Button(IDOK));
    const auto resize = [&](int dx, int dy) {
        CRect place;
        sheet.GetWindowRect(place);
        sheet.SetWindowPos(nullptr, 0, 0, place.Width() + dx, place.Height() + dy, SWP_NOMOVE | SWP_NOZORDER);
    };
    resize(40, 30);
    EXPECT_EQ(sheet.PlaceOf(tab), CRect(tabThen.TopLeft(), tabThen.BottomRight() + CSize(40, 30)));
    EXPECT_EQ(sheet.PlaceOf(one.m_hWnd), CRect(pageThen.TopLeft(), pageThen.BottomRight() + CSize(40, 30)));
    EXPECT_EQ(sheet.PlaceOf(sheet.Button(IDOK)), buttonThen + CPoint(40, 30));
    sheet.SetActivePage(1);
    EXPECT_EQ(sheet.PlaceOf(two.m_hWnd), sheet.PlaceOf(one.m_hWnd)) << "made after the change";
    resize(-40, -30);
    EXPECT_EQ(sheet.PlaceOf(two.m_hWnd), pageThen);
    sheet.SetActivePage(0);
    EXPECT_EQ(sheet.PlaceOf(one.m_hWnd), pageThen) << "was behind when the size changed";
    EXPECT_EQ(sheet.PlaceOf(tab), tabThen);
    sheet.DestroyWindow();
}

TEST_F(InternationalSheets, SheetsAreOfAFixedSizeUnlessTheyAreToldOtherwise)
{
    CReadSheet sheet(L"Sheet");
    sheet.AddPage(&one);
    ASSERT_TRUE(sheet.Create(&host));
    EXPECT_FALSE(sheet.GetStyle() & WS_THICKFRAME);
    sheet.DestroyWindow();
}

TEST_F(OpenSheet, ApplyHelpAndWizardButtonsAreThePagesFirst)
{
    CReadSheet sheet(L"Sheet");
    Open(sheet);
    one.takesCommands = true;
    one.log.clear();
    for (const int id : {ID_APPLY_NOW, static_cast<UINT>(IDHELP), ID_WIZBACK, ID_WIZNEXT, ID_WIZFINISH})
        sheet.SendMessage(WM_COMMAND, Clicked(id));
    EXPECT_EQ(one.log, L"command 12321 command 9 command 12323 command 12324 command 12325 ");
    one.log.clear();
    sheet.SendMessage(WM_COMMAND, MAKEWPARAM(IDHELP, BN_SETFOCUS));
    sheet.SendMessage(WM_COMMAND, Clicked(4711));
    EXPECT_EQ(one.log.find(L"command 9"), std::wstring::npos);
    sheet.DestroyWindow();
}

TEST_F(InternationalSheets, WithoutPagesOrWithAPageThatCannotBeLoadedAreNotShown)
{
    CReadSheet empty(L"Empty", &host);
    EXPECT_EQ(empty.DoModal(), -1);
    EXPECT_FALSE(empty.Create(&host));
    CTestPage missing(999);
    CReadSheet sheet(L"Sheet", &host);
    sheet.AddPage(&missing);
    EXPECT_EQ(sheet.DoModal(), -1);
    EXPECT_FALSE(sheet.Create(&host));
    EXPECT_TRUE(host.IsWindowEnabled());
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(InternationalSheets, ClosedFromTheirOwnInitialisationEndAtOnce)
{
    CReadSheet sheet(L"Sheet", &host);
    sheet.AddPage(&one);
    sheet.onInit = [&] { sheet.EndDialog(78); };
    EXPECT_EQ(sheet.DoModal(), 78);
    EXPECT_EQ(sheet.m_hWnd, nullptr);
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(InternationalSheets, SameSheetAndPagesCanBeShownAgain)
{
    CReadSheet sheet(IDS_SHEET_CAPTION, &host);
    sheet.AddPage(&one);
    for (const wchar_t* caption : {L"Deutsch", L"Fran\x00E7\x0061is"})
    {
        catalogue.texts = {{L"IDS_IDD_PAGE_ONE_SHEET", caption}};
        std::wstring shown;
        sheet.onText = [&] {
            shown = TextOf(sheet.m_hWnd);
            sheet.EndDialog(IDOK);
        };
        EXPECT_EQ(sheet.DoModal(), IDOK);
        EXPECT_EQ(shown, caption);
    }
}

TEST_F(InternationalSheets, AreDynamicallyCreatable)
{
    for (CRuntimeClass* const kind :
         {RUNTIME_CLASS(CInternationalPropertySheet), RUNTIME_CLASS(CInternationalPropertyPage)})
    {
        CObject* const made = kind->CreateObject();
        ASSERT_NE(made, nullptr);
        EXPECT_TRUE(made->IsKindOf(kind));
        delete made;
    }
    CInternationalPropertySheet sheet;
    EXPECT_EQ(sheet.TranslateStringToINI(), 0);
}

TEST_F(OpenSheet, AltF12OpensTheChangerOnThePage)
{
    class CNotingOpener : public IRcStringOpener
    {
    public:
        CNotingOpener() { Register(this); }
        void Open(const CRcStringExtract& preset) override { presets.push_back(preset); }
        std::vector<CRcStringExtract> presets;
    } opener;
    CReadSheet sheet(L"Sheet");
    Open(sheet);
    one.SetWorkingFolder(L"C:\\Work");
    one.GetDlgItem(IDC_NAME_EDIT)->PostMessage(WM_SYSKEYDOWN, VK_F12, 0x20580001);
    PumpAll();
    ASSERT_EQ(opener.presets.size(), 1u);
    EXPECT_EQ(opener.presets[0].pDialog, &one);
    EXPECT_EQ(opener.presets[0].nDlgResID, static_cast<UINT>(IDD_PAGE_ONE));
    one.SetDlgResID_o(IDD_PAGE_TWO, L"IDD_OTHER");
    EXPECT_EQ(one.GetDlgResSymbol(), L"IDD_OTHER");
    sheet.DestroyWindow();
}
