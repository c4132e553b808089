#include "HandleCount.h"
#include "TestSheet.h"

namespace
{
class Sheets : public WindowTest
{
protected:
    Log m_log;
    CHostWnd m_host;
    CStepSheet m_sheet{m_log, &m_host};
    CLogPage m_first{IDD_PAGE1, "1", m_log};
    CLogPage m_second{IDD_PAGE2, "2", m_log};
    CLogPage m_third{IDD_PAGE3, "3", m_log, IDS_TAB};

    void AddAll()
    {
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
        m_sheet.AddPage(&m_third);
    }
    /// What was written down since the last call.
    Log Take() { return std::exchange(m_log, {}); }
    std::function<void()> Press(int nButton)
    {
        return [this, nButton] { m_sheet.PressButton(nButton); };
    }
};

CString TabText(CTabCtrl* pTab, int nItem)
{
    WCHAR szText[64] = {};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = szText;
    item.cchTextMax = static_cast<int>(std::size(szText));
    pTab->GetItem(nItem, &item);
    return szText;
}

TEST_F(Sheets, PagesAreMadeWhenTheyAreFirstShown)
{
    AddAll();
    Log atStart;
    Log atChange;
    Log atReturn;
    m_sheet.m_steps = {[&] {
                           atStart = Take();
                           m_sheet.SetActivePage(1);
                       },
                       [&] {
                           atChange = Take();
                           m_sheet.SetActivePage(&m_first);
                       },
                       [&] { atReturn = Take(); }, Press(PSBTN_CANCEL)};
    EXPECT_EQ(m_sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(atStart, (Log{"1 init", "1 set active", "sheet init"}));
    EXPECT_EQ(atChange, (Log{"1 kill active", "2 init", "2 set active"}));
    EXPECT_EQ(atReturn, (Log{"2 kill active", "1 set active"}));
    EXPECT_EQ(m_log, (Log{"1 query cancel", "1 reset", "1 cancel", "2 reset", "2 cancel", "1 gone", "2 gone",
                          "sheet gone"}));
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_first.m_hWnd, nullptr);
}

TEST_F(Sheets, OkAsksTheActivePageAndThenAppliesEveryPageThatWasShown)
{
    AddAll();
    m_sheet.m_steps = {[&] {
                           m_sheet.SetActivePage(1);
                           Take();
                       },
                       Press(PSBTN_OK)};
    EXPECT_EQ(m_sheet.DoModal(), IDOK);
    EXPECT_EQ(m_log,
              (Log{"2 kill active", "1 apply", "1 ok", "2 apply", "2 ok", "1 gone", "2 gone", "sheet gone"}));
}

TEST_F(Sheets, PageThatRefusesKeepsTheSheetOpen)
{
    AddAll();
    Log refusedLeaving;
    Log refusedApplying;
    int nActive = -1;
    m_sheet.m_steps = {[&] {
                           Take();
                           m_first.m_bMayLeave = FALSE;
                           EXPECT_FALSE(m_sheet.SetActivePage(1));
                           m_sheet.PressButton(PSBTN_OK);
                           refusedLeaving = Take();
                       },
                       [&] {
                           m_first.m_bMayLeave = TRUE;
                           m_first.m_bApplies = FALSE;
                           m_sheet.PressButton(PSBTN_OK);
                           refusedApplying = Take();
                           nActive = m_sheet.GetActiveIndex();
                       },
                       [&] {
                           m_first.m_bMayCancel = FALSE;
                           m_sheet.PressButton(PSBTN_CANCEL);
                           EXPECT_EQ(Take(), Log{"1 query cancel"});
                           m_first.m_bMayCancel = TRUE;
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    EXPECT_EQ(m_sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(refusedLeaving, (Log{"1 kill active", "1 kill active"}));
    EXPECT_EQ(refusedApplying, (Log{"1 kill active", "1 apply"}));
    EXPECT_EQ(nActive, 0);
}

TEST_F(Sheets, PageThatRefusesToComeIsPassedOver)
{
    AddAll();
    m_second.m_bMayCome = FALSE;
    int nActive = -1;
    m_sheet.m_steps = {[&] {
                           m_sheet.SetActivePage(1);
                           nActive = m_sheet.GetActiveIndex();
                       },
                       Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    EXPECT_EQ(nActive, 2);
}

TEST_F(Sheets, DataGoesInWithThePageAndOutWhenItLeaves)
{
    AddAll();
    CString strShown;
    int nTaken = 0;
    m_sheet.m_steps = {[&] {
                           m_first.GetDlgItemText(IDC_INT, strShown);
                           m_first.SetDlgItemText(IDC_INT, L"31");
                           m_sheet.SetActivePage(1);
                           nTaken = m_first.m_nNumber;
                           m_first.m_nNumber = 32;
                           m_sheet.SetActivePage(0);
                       },
                       [&] {
                           CString strLater;
                           m_first.GetDlgItemText(IDC_INT, strLater);
                           EXPECT_EQ(strLater, L"32");
                           m_first.SetDlgItemText(IDC_INT, L"none");
                           EXPECT_FALSE(m_sheet.SetActivePage(1)); // no number: the page stays
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    m_sheet.DoModal();
    EXPECT_EQ(strShown, L"7");
    EXPECT_EQ(nTaken, 31);
    EXPECT_EQ(theApp.m_boxes.size(), 1u);
}

TEST_F(Sheets, InitialLinesOfTheTemplateFillThePagesLists)
{
    m_sheet.AddPage(&m_first);
    LRESULT lCount = 0;
    m_sheet.m_steps = {[&] { lCount = m_first.SendDlgItemMessage(IDC_COMBO, CB_GETCOUNT); },
                       Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    EXPECT_EQ(lCount, 1);
}

TEST_F(Sheets, ApplyIsOnlyThereWhenAPageWasModified)
{
    AddAll();
    m_sheet.m_steps = {[&] {
                           EXPECT_FALSE(m_first.IsButtonEnabled(PSBTN_APPLYNOW));
                           m_first.SetModified();
                           EXPECT_TRUE(m_first.IsButtonEnabled(PSBTN_APPLYNOW));
                           Take();
                           m_sheet.PressButton(PSBTN_APPLYNOW);
                           EXPECT_EQ(Take(), (Log{"1 kill active", "1 apply", "1 ok", "1 set active"}));
                           EXPECT_FALSE(m_first.IsButtonEnabled(PSBTN_APPLYNOW));
                           m_first.SetModified();
                           m_first.SetModified(FALSE);
                           EXPECT_FALSE(m_first.IsButtonEnabled(PSBTN_APPLYNOW));
                           EXPECT_FALSE(m_first.IsButtonEnabled(77));
                       },
                       [&] {
                           m_first.CancelToClose();
                           EXPECT_FALSE(m_first.IsButtonEnabled(PSBTN_CANCEL));
                       },
                       Press(PSBTN_OK)};
    EXPECT_EQ(m_sheet.DoModal(), IDOK);
}

TEST_F(Sheets, SiblingsAreAskedUntilOneAnswers)
{
    AddAll();
    m_second.m_nNumber = 5;
    LRESULT lNobody = -1;
    LRESULT lAnswer = -1;
    m_sheet.m_steps = {[&] {
                           m_sheet.SetActivePage(1);
                           Take();
                           lNobody = m_first.QuerySiblings(1, 2);
                           lAnswer = m_first.QuerySiblings(7, 3);
                       },
                       [&] {
                           EXPECT_EQ(Take(), (Log{"1 asked 1 2", "2 asked 1 2", "1 asked 7 3"}));
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    m_sheet.DoModal();
    EXPECT_EQ(lNobody, 0);
    EXPECT_EQ(lAnswer, 99);
    EXPECT_EQ(m_first.QuerySiblings(1, 2), 0); // no window any more
}

TEST_F(Sheets, CaptionsComeFromStringsAndTemplates)
{
    AddAll();
    CString strTitle;
    m_sheet.m_steps = {[&] {
                           m_sheet.GetWindowText(strTitle);
                           CTabCtrl* pTab = m_sheet.GetTabControl();
                           ASSERT_EQ(pTab->GetItemCount(), 3);
                           EXPECT_EQ(TabText(pTab, 0), L"First");
                           EXPECT_EQ(TabText(pTab, 1), L"Second");
                           EXPECT_EQ(TabText(pTab, 2), L"Tab from a string");
                           m_sheet.SetTitle(L"Other");
                           CString strOther;
                           m_sheet.GetWindowText(strOther);
                           EXPECT_EQ(strOther, L"Other");
                       },
                       Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    EXPECT_EQ(strTitle, L"Settings");
}

TEST_F(Sheets, SheetBeginsWithTheGivenPageAndKnowsItsPages)
{
    AddAll();
    CLogPage stranger(IDD_PAGE1, "x", m_log);
    EXPECT_EQ(m_sheet.GetPageCount(), 3);
    EXPECT_EQ(m_sheet.GetPage(2), &m_third);
    EXPECT_EQ(m_sheet.GetPage(3), nullptr);
    EXPECT_EQ(m_sheet.GetPageIndex(&m_second), 1);
    EXPECT_EQ(m_sheet.GetPageIndex(&stranger), -1);
    EXPECT_TRUE(m_sheet.SetActivePage(&m_second));
    EXPECT_FALSE(m_sheet.SetActivePage(&stranger));
    EXPECT_EQ(m_sheet.GetActiveIndex(), 1);
    EXPECT_EQ(m_sheet.GetActivePage(), &m_second);
    m_sheet.m_steps = {[&] {
                           EXPECT_EQ(m_sheet.GetActivePage(), &m_second);
                           EXPECT_EQ(m_second.GetParentSheet(), &m_sheet);
                       },
                       Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    EXPECT_EQ(m_log.front(), "2 init");
    EXPECT_EQ(m_second.GetParentSheet(), nullptr);
}

TEST_F(Sheets, PagesComeAndGoWhileTheSheetIsShown)
{
    m_sheet.AddPage(&m_first);
    CLogPage missing(999, "x", m_log);
    m_sheet.m_steps = {[&] {
                           m_sheet.AddPage(&missing);
                           EXPECT_EQ(m_sheet.GetPageCount(), 1);
                           m_sheet.AddPage(&m_third);
                           EXPECT_EQ(m_sheet.GetTabControl()->GetItemCount(), 2);
                           EXPECT_EQ(TabText(m_sheet.GetTabControl(), 1), L"Tab from a string");
                           EXPECT_TRUE(m_sheet.SetActivePage(&m_third));
                       },
                       [&] {
                           EXPECT_EQ(m_sheet.GetActivePage(), &m_third);
                           m_sheet.RemovePage(&m_third);
                           EXPECT_EQ(m_sheet.GetPageCount(), 1);
                           EXPECT_EQ(m_sheet.GetTabControl()->GetItemCount(), 1);
                           EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
                           m_sheet.RemovePage(5);
                       },
                       Press(PSBTN_OK)};
    EXPECT_EQ(m_sheet.DoModal(), IDOK);
    m_sheet.RemovePage(0);
    EXPECT_EQ(m_sheet.GetPageCount(), 0);
}

TEST_F(Sheets, WithoutPagesOrWithoutATemplateThereIsNoSheet)
{
    EXPECT_EQ(m_sheet.DoModal(), -1);
    EXPECT_FALSE(m_sheet.Create(&m_host));
    m_sheet.AddPage(&m_first);
    CLogPage missing(999, "x", m_log);
    m_sheet.AddPage(&missing);
    EXPECT_EQ(m_sheet.DoModal(), -1);
    EXPECT_FALSE(m_sheet.Create(&m_host));
    EXPECT_TRUE(m_host.IsWindowEnabled());
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    // Without that page it is as good as new.
    m_sheet.RemovePage(&missing);
    m_sheet.m_steps = {Press(PSBTN_CANCEL)};
    EXPECT_EQ(m_sheet.DoModal(), IDCANCEL);
}

TEST_F(Sheets, OwnerIsDisabledWhileTheSheetRuns)
{
    AddAll();
    BOOL bEnabled = TRUE;
    HWND hOwner = nullptr;
    m_sheet.m_steps = {[&] {
                           bEnabled = m_host.IsWindowEnabled();
                           hOwner = ::GetWindow(m_sheet.m_hWnd, GW_OWNER);
                       },
                       Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    EXPECT_FALSE(bEnabled);
    EXPECT_EQ(hOwner, m_host.m_hWnd);
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(Sheets, SameSheetCanBeShownAgain)
{
    AddAll();
    for (int nRound = 0; nRound < 3; ++nRound)
    {
        m_log.clear();
        m_sheet.m_steps = {Press(PSBTN_OK)};
        EXPECT_EQ(m_sheet.DoModal(), IDOK);
        EXPECT_EQ(m_log.front(), "1 init");
    }
}

TEST_F(Sheets, EndDialogEndsTheSheetWithItsNumberAlsoFromWithinAPagesInitialisation)
{
    AddAll();
    m_sheet.m_steps = {[&] { m_first.EndDialog(77); }};
    EXPECT_EQ(m_sheet.DoModal(), 77);
    m_first.m_onInit = [&] { m_sheet.EndDialog(78); };
    EXPECT_EQ(m_sheet.DoModal(), 78);
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_log.back(), "sheet gone");
}

TEST_F(Sheets, SheetDestroyedByAPagesHandlerEndsItsLoop)
{
    AddAll();
    m_second.m_onButton = [&] { m_sheet.DestroyWindow(); };
    m_sheet.m_steps = {[&] { m_sheet.SetActivePage(1); },
                       [&] { m_second.GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK); }};
    EXPECT_EQ(m_sheet.DoModal(), -1);
    EXPECT_EQ(m_log.back(), "sheet gone");
    EXPECT_TRUE(m_host.IsWindowEnabled());
}

TEST_F(Sheets, SheetDestroyedDuringAPagesInitialisationIsNotShown)
{
    AddAll();
    m_first.m_onInit = [&] { m_sheet.DestroyWindow(); };
    EXPECT_EQ(m_sheet.DoModal(), -1);
    EXPECT_FALSE(m_sheet.Create(&m_host));
    EXPECT_EQ(m_sheet.m_hWnd, nullptr);
    EXPECT_EQ(m_first.m_hWnd, nullptr);
}

TEST_F(Sheets, KeysOfTheSheetWorkThroughTheLoop)
{
    AddAll();
    for (int nKey : {VK_ESCAPE, VK_RETURN})
    {
        m_sheet.m_steps = {[&] {
            ::PostMessageW(::GetDlgItem(m_first.m_hWnd, IDC_TEXT), WM_KEYDOWN, static_cast<WPARAM>(nKey), 1);
        }};
        EXPECT_EQ(m_sheet.DoModal(), nKey == VK_ESCAPE ? IDCANCEL : IDOK);
    }
}

TEST_F(Sheets, CommandsOfAPageGoOnToTheSheetItsOwnerAndTheApplication)
{
    AddAll();
    theApp.m_pLog = &m_log;
    m_sheet.m_steps = {[&] {
                           Take();
                           m_first.SendMessage(WM_COMMAND, ID_FILE_SEND);
                           m_first.SendMessage(WM_COMMAND, ID_VIEW_GRID);
                       },
                       [&] {
                           EXPECT_EQ(m_log.front(), "1 send");
                           EXPECT_EQ(m_log.at(1), "app OnCmdMsg");
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    m_sheet.DoModal();
    theApp.m_pLog = nullptr;
}

TEST_F(Sheets, HelpIsTheActivePagesCommand)
{
    m_first.m_psp.dwFlags |= PSP_HASHELP;
    m_sheet.m_psh.dwFlags |= PSH_HASHELP;
    AddAll();
    m_sheet.m_steps = {[&] {
                           Take();
                           m_sheet.PressButton(PSBTN_HELP);
                       },
                       [&] {
                           EXPECT_EQ(Take(), Log{"1 help"});
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    m_sheet.DoModal();
}

TEST_F(Sheets, CallbackOfTheHeaderSeesTheTemplateAndTheWindow)
{
    static std::vector<UINT> s_messages;
    s_messages.clear();
    AddAll();
    m_sheet.m_psh.dwFlags |= PSH_USECALLBACK;
    m_sheet.m_psh.pfnCallback = [](HWND, UINT message, LPARAM) {
        s_messages.push_back(message);
        return 0;
    };
    m_sheet.m_steps = {Press(PSBTN_CANCEL)};
    m_sheet.DoModal();
    ASSERT_GE(s_messages.size(), 2u);
    EXPECT_EQ(s_messages[0], static_cast<UINT>(PSCB_PRECREATE));
    EXPECT_EQ(s_messages[1], static_cast<UINT>(PSCB_INITIALIZED));
}

TEST_F(Sheets, TemplatesMayBeReplacedWhenThePagesAreBuilt)
{
    class CFontSheet : public CStepSheet
    {
    public:
        using CStepSheet::CStepSheet;
        std::vector<BYTE> m_template; // the second page's, in place of the first's
        void BuildPropPageArray() override
        {
            CStepSheet::BuildPropPageArray();
            EXPECT_EQ(m_psh.nPages, 2u);
            auto* pFirst = reinterpret_cast<PROPSHEETPAGE*>(const_cast<PROPSHEETPAGEW*>(m_psh.ppsp));
            const auto* pSecond = reinterpret_cast<const PROPSHEETPAGE*>(
                reinterpret_cast<const BYTE*>(pFirst) + pFirst->dwSize);
            const auto* p = reinterpret_cast<const BYTE*>(pSecond->pResource);
            m_template.assign(p, p + ::GlobalSize(const_cast<BYTE*>(p)));
            pFirst->pResource = reinterpret_cast<PROPSHEETPAGE_RESOURCE>(m_template.data());
        }
    };
    CFontSheet sheet(m_log, &m_host);
    sheet.AddPage(&m_first);
    sheet.AddPage(&m_second);
    bool bHasButton = false;
    sheet.m_steps = {[&] { bHasButton = ::GetDlgItem(m_first.m_hWnd, IDC_BUTTON) != nullptr; },
                     [&] { sheet.PressButton(PSBTN_CANCEL); }};
    EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    EXPECT_TRUE(bHasButton);
}

TEST_F(Sheets, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    AddAll();
    const auto round = [&] {
        m_sheet.m_steps = {[&] { m_sheet.SetActivePage(1); }, Press(PSBTN_OK)};
        EXPECT_EQ(m_sheet.DoModal(), IDOK);
        CStepSheet modeless(m_log);
        CLogPage page(IDD_PAGE2, "m", m_log);
        modeless.AddPage(&page);
        EXPECT_TRUE(modeless.Create(&m_host));
        modeless.DestroyWindow();
        m_log.clear();
        PumpAll();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(20, round);
}
} // namespace
