#include "tests/standin/afx/windows/HandleCount.h"
#include "tests/standin/toolkit/Colours.h"

#include <afxcmn.h>

namespace
{
class CTestPage : public CBCGPPropertyPage
{
public:
    using CBCGPPropertyPage::CBCGPPropertyPage;
    CRect Place()
    {
        CRect place;
        GetWindowRect(place);
        GetParent()->ScreenToClient(place);
        return place;
    }
};

class CTestSheet : public CBCGPPropertySheet
{
public:
    CTestSheet() : CBCGPPropertySheet(IDS_SHEET)
    {
        AddPage(&m_first);
        AddPage(&m_second);
    }
    CTestPage m_first{IDD_PAGE1};
    CTestPage m_second{IDD_PAGE2};
    std::vector<CPropertyPage*> m_activated;
    std::vector<int> m_drawn;
    CRect m_header;

    void OnActivatePage(CPropertyPage* pPage) override
    {
        CBCGPPropertySheet::OnActivatePage(pPage);
        m_activated.push_back(pPage);
    }
    void OnDrawPageHeader(CDC* pDC, int nPage, CRect rectHeader) override
    {
        CBCGPPropertySheet::OnDrawPageHeader(pDC, nPage, rectHeader);
        m_drawn.push_back(nPage);
        m_header = rectHeader;
    }
};

class BcgpSheet : public ThemeTest
{
};

TEST_F(BcgpSheet, PagesTakeTheSheetsStyleWhetherMadeBeforeOrAfter)
{
    CTestSheet sheet;
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(sheet.m_first.IsVisualManagerStyle());
    sheet.EnableVisualManagerStyle(TRUE, TRUE);
    EXPECT_TRUE(sheet.IsVisualManagerNCArea());
    EXPECT_TRUE(sheet.m_first.IsVisualManagerStyle());
    EXPECT_FALSE(sheet.m_second.IsVisualManagerStyle()); // not made yet
    sheet.SetActivePage(1);
    EXPECT_TRUE(sheet.m_second.IsVisualManagerStyle());
    CBCGPVisualManager::SetDefaultManager(RUNTIME_CLASS(CNightManager));
    EXPECT_EQ(ErasedPixel(sheet), CNightManager::BACKGROUND);
    EXPECT_EQ(ErasedPixel(sheet.m_second), CNightManager::BACKGROUND);
    EXPECT_EQ(Colours::Of(sheet.m_second, WM_CTLCOLORBTN, sheet.m_second.GetDlgItem(IDC_BUTTON)->m_hWnd).text,
              CNightManager::TEXT);
    sheet.DestroyWindow();
}

TEST_F(BcgpSheet, WithoutTheStyleTheColoursAreTheSystems)
{
    CTestSheet sheet;
    ASSERT_TRUE(sheet.Create());
    EXPECT_FALSE(sheet.IsVisualManagerStyle());
    EXPECT_EQ(ErasedPixel(sheet), ::GetSysColor(COLOR_3DFACE));
    sheet.m_first.SetBackgroundColor(RGB(4, 5, 6));
    EXPECT_EQ(ErasedPixel(sheet.m_first), RGB(4, 5, 6));
    sheet.DestroyWindow();
}

TEST_F(BcgpSheet, PagesStandBelowTheHeaderAndTheSheetIsTallerByIt)
{
    CTestSheet plain;
    ASSERT_TRUE(plain.Create());
    const CRect without = plain.m_first.Place();
    CRect small;
    plain.GetWindowRect(small);
    plain.DestroyWindow();

    CTestSheet sheet;
    sheet.EnablePageHeader(-5);
    EXPECT_EQ(sheet.GetHeaderHeight(), 0);
    sheet.EnablePageHeader(40);
    ASSERT_TRUE(sheet.Create());
    sheet.EnablePageHeader(99); // too late
    EXPECT_EQ(sheet.GetHeaderHeight(), 40);
    EXPECT_EQ(sheet.m_first.Place(), without + CPoint(0, 40));
    CRect tall;
    sheet.GetWindowRect(tall);
    EXPECT_EQ(tall.Height(), small.Height() + 40);
    for (int nPage : {1, 0, 1}) // coming back it does not wander
    {
        sheet.SetActivePage(nPage);
        EXPECT_EQ((nPage ? sheet.m_second : sheet.m_first).Place().top, without.top + 40);
    }
    EXPECT_EQ(sheet.m_activated, (std::vector<CPropertyPage*>{&sheet.m_first, &sheet.m_second, &sheet.m_first,
                                                              &sheet.m_second}));
    sheet.m_second.ShowWindow(SW_HIDE);
    sheet.m_second.ShowWindow(SW_SHOW); // nor when nobody put it back before
    EXPECT_EQ(sheet.m_second.Place().top, without.top + 40);
    sheet.DestroyWindow();
}

TEST_F(BcgpSheet, HeaderIsDrawnForTheActivePage)
{
    CTestSheet sheet;
    sheet.EnablePageHeader(30);
    ASSERT_TRUE(sheet.Create());
    PumpAll();
    sheet.m_drawn.clear();
    sheet.SetActivePage(1);
    sheet.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    ASSERT_FALSE(sheet.m_drawn.empty());
    EXPECT_EQ(sheet.m_drawn.back(), 1);
    EXPECT_EQ(sheet.m_header.Height(), 30);
    EXPECT_GT(sheet.m_header.Width(), 100);
    sheet.DestroyWindow();
}

TEST_F(BcgpSheet, WizardHasAHeaderToo)
{
    CTestSheet sheet;
    sheet.SetWizardMode();
    sheet.EnablePageHeader(30);
    ASSERT_TRUE(sheet.Create());
    const CRect place = sheet.m_first.Place();
    EXPECT_GE(place.top, 30);
    CRect next;
    sheet.GetDlgItem(ID_WIZNEXT)->GetWindowRect(next);
    sheet.ScreenToClient(next);
    EXPECT_GE(next.top, place.bottom); // the buttons made room
    sheet.DestroyWindow();
}

TEST_F(BcgpSheet, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    const auto round = [] {
        CTestSheet sheet;
        sheet.EnablePageHeader(20);
        sheet.EnableVisualManagerStyle();
        EXPECT_TRUE(sheet.Create());
        sheet.SetActivePage(1);
        PumpAll();
        sheet.DestroyWindow();
        PumpAll();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(20, round);
}
} // namespace
