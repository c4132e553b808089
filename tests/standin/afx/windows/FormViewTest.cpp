#include "HandleCount.h"
#include "TestApp.h"

#include <afxext.h>

namespace
{
using Log = std::vector<std::string>;
Log s_log;
UINT s_nTemplate = IDD_VIEW;

class CTestForm : public CFormView
{
    DECLARE_DYNCREATE(CTestForm)

public:
    CTestForm() : CFormView(s_nTemplate) {}
    ~CTestForm() override { s_log.push_back("form gone"); }
    CString m_strText = L"first";
    int m_nNumber = 42;
    CComboBox m_combo;
    using CFormView::OnScroll;
    using CFormView::OnScrollBy;
    void OnInitialUpdate() override
    {
        s_log.push_back("initial update");
        CFormView::OnInitialUpdate();
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CFormView::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_COMBO, m_combo);
        DDX_Text(pDX, IDC_TEXT, m_strText);
        DDX_Text(pDX, IDC_INT, m_nNumber);
    }
    afx_msg void OnPress()
    {
        s_log.push_back("press");
        GetParentFrame() ? GetParentFrame()->DestroyWindow() : DestroyWindow();
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CTestForm, CFormView)

BEGIN_MESSAGE_MAP(CTestForm, CFormView)
ON_BN_CLICKED(IDC_BUTTON, &CTestForm::OnPress)
END_MESSAGE_MAP()

class CFormDoc : public CDocument
{
};

class CFormFrame : public CFrameWnd
{
public:
    CDocument* m_pDoc = nullptr;
    BOOL Make()
    {
        CCreateContext context;
        context.m_pNewViewClass = RUNTIME_CLASS(CTestForm);
        context.m_pCurrentDoc = m_pDoc;
        const BOOL bDone = Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 700, 600), nullptr,
                                  nullptr, 0, &context);
        if (bDone)
            LoadAccelTable(MAKEINTRESOURCEW(IDR_FRAME));
        return bDone;
    }
    CTestForm* Form() { return static_cast<CTestForm*>(GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)); }

protected:
    afx_msg void OnSave() { s_log.push_back("save"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFormFrame, CFrameWnd)
ON_COMMAND(ID_FILE_SAVE, &CFormFrame::OnSave)
END_MESSAGE_MAP()

class FormViews : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        s_log.clear();
        s_nTemplate = IDD_VIEW;
    }
    static CTestForm* MakeChild(CWnd& host, const CRect& rect)
    {
        auto* pForm = new CTestForm;
        if (!pForm->Create(nullptr, L"form", WS_CHILD | WS_VISIBLE, rect, &host, 77, nullptr))
            return nullptr;
        pForm->OnInitialUpdate();
        return pForm;
    }
};

CString TextOf(const CWnd& wnd, int nID)
{
    CString strText;
    wnd.GetDlgItemText(nID, strText);
    return strText;
}

TEST_F(FormViews, FormInAFrameHasItsControlsItsDataAndItsDocument)
{
    auto* pFrame = new CFormFrame;
    auto* pDoc = new CFormDoc;
    pFrame->m_pDoc = pDoc;
    ASSERT_TRUE(pFrame->Make());
    CTestForm* pForm = pFrame->Form();
    ASSERT_NE(pForm, nullptr);
    EXPECT_EQ(pForm->GetDocument(), pDoc);
    EXPECT_EQ(TextOf(*pForm, IDC_TEXT), L"");
    pFrame->InitialUpdateFrame(pDoc, TRUE);
    EXPECT_EQ(s_log, Log{"initial update"});
    EXPECT_EQ(TextOf(*pForm, IDC_TEXT), L"first");
    EXPECT_EQ(TextOf(*pForm, IDC_INT), L"42");
    EXPECT_EQ(pForm->m_combo.GetCount(), 1); // the template's initial line
    EXPECT_TRUE(pForm->IsWindowVisible());
    CRect client;
    pFrame->GetClientRect(client);
    CRect place;
    pForm->GetWindowRect(place);
    pFrame->ScreenToClient(place);
    EXPECT_EQ(place, client);
    pForm->SetDlgItemText(IDC_TEXT, L"second");
    EXPECT_TRUE(pForm->UpdateData());
    EXPECT_EQ(pForm->m_strText, L"second");
    pFrame->DestroyWindow();
    EXPECT_EQ(s_log.back(), "form gone");
}

TEST_F(FormViews, FormLivesInAnyWindowWithoutADocument)
{
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(5, 6, 505, 406));
    ASSERT_NE(pForm, nullptr);
    EXPECT_EQ(pForm->GetDocument(), nullptr);
    EXPECT_EQ(pForm->GetParent(), &host);
    EXPECT_EQ(pForm->GetDlgCtrlID(), 77);
    EXPECT_EQ(TextOf(*pForm, IDC_TEXT), L"first");
    CRect place;
    pForm->GetWindowRect(place);
    host.ScreenToClient(place);
    EXPECT_EQ(place, CRect(5, 6, 505, 406));
    host.DestroyWindow();
    EXPECT_EQ(s_log, (Log{"initial update", "form gone"}));
}

TEST_F(FormViews, EmptyPlaceLeavesTheTemplatesSize)
{
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(9, 9, 9, 9));
    CRect place;
    pForm->GetWindowRect(place);
    EXPECT_EQ(place.Size(), pForm->GetTotalSize());
    BOOL bHorz = TRUE;
    BOOL bVert = TRUE;
    pForm->CheckScrollBars(bHorz, bVert);
    EXPECT_FALSE(bHorz || bVert);
}

TEST_F(FormViews, TemplateThatIsMissingOrNoChildMakesNoFormAndTheObjectGoes)
{
    CHostWnd host;
    for (UINT nTemplate : {999, IDD_FORM})
    {
        s_nTemplate = nTemplate;
        s_log.clear();
        EXPECT_EQ(MakeChild(host, CRect(0, 0, 100, 100)), nullptr);
        EXPECT_EQ(s_log, Log{"form gone"});
        s_log.clear();
        EXPECT_FALSE((new CFormFrame)->Make());
        EXPECT_EQ(s_log, Log{"form gone"});
    }
}

TEST_F(FormViews, HandlerMayDestroyTheFormOrItsFrame)
{
    auto* pFrame = new CFormFrame;
    ASSERT_TRUE(pFrame->Make());
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    s_log.clear();
    pFrame->Form()->GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(s_log, (Log{"press", "form gone"}));
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(0, 0, 300, 300));
    s_log.clear();
    pForm->GetDlgItem(IDC_BUTTON)->SendMessage(BM_CLICK);
    EXPECT_EQ(s_log, (Log{"press", "form gone"}));
}

TEST_F(FormViews, TabMovesBetweenControlsAndShortcutsOfTheFrameStillWork)
{
    auto* pFrame = new CFormFrame;
    ASSERT_TRUE(pFrame->Make());
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    CTestForm* pForm = pFrame->Form();
    ASSERT_TRUE(PumpUntil([&] { return ::GetFocus() == pForm->GetDlgItem(IDC_TEXT)->m_hWnd; }));
    pForm->GetDlgItem(IDC_TEXT)->PostMessage(WM_KEYDOWN, VK_TAB, 1);
    EXPECT_TRUE(PumpUntil([&] { return ::GetFocus() == pForm->GetDlgItem(IDC_INT)->m_hWnd; }));
    s_log.clear();
    pForm->GetDlgItem(IDC_INT)->PostMessage(WM_KEYDOWN, VK_F5, 1);
    EXPECT_TRUE(PumpUntil([] { return !s_log.empty(); }));
    EXPECT_EQ(s_log, Log{"save"});
    // The focus comes back to the control that had it.
    pForm->SetFocus();
    EXPECT_EQ(::GetFocus(), pForm->GetDlgItem(IDC_INT)->m_hWnd);
    pFrame->DestroyWindow();
}

TEST_F(FormViews, FormThatDoesNotFitIsScrolled)
{
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(0, 0, 120, 100));
    ASSERT_NE(pForm, nullptr);
    BOOL bHorz = FALSE;
    BOOL bVert = FALSE;
    pForm->CheckScrollBars(bHorz, bVert);
    EXPECT_TRUE(bHorz && bVert);
    CRect before;
    pForm->GetDlgItem(IDC_TEXT)->GetWindowRect(before);
    EXPECT_TRUE(pForm->OnScrollBy(CSize(11, 13)));
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(11, 13));
    CRect after;
    pForm->GetDlgItem(IDC_TEXT)->GetWindowRect(after);
    EXPECT_EQ(before - after.TopLeft(), CRect(11, 13, 11 + before.Width(), 13 + before.Height()));
    // To the end and no further.
    pForm->ScrollToPosition(CPoint(10000, 10000));
    CRect client;
    pForm->GetClientRect(client);
    const CSize total = pForm->GetTotalSize();
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(total.cx - client.Width(), total.cy - client.Height()));
    EXPECT_FALSE(pForm->OnScrollBy(CSize(1, 1)));
    // Room for everything: no bars, and everything is back in its place.
    pForm->MoveWindow(0, 0, 550, 450);
    pForm->CheckScrollBars(bHorz, bVert);
    EXPECT_FALSE(bHorz || bVert);
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(0, 0));
    pForm->GetDlgItem(IDC_TEXT)->GetWindowRect(after);
    EXPECT_EQ(after, before);
}

TEST_F(FormViews, ScrollCodesMoveByLinesAndPagesWithinTheWhole)
{
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(0, 0, 120, 100));
    int nMode = 0;
    SIZE total;
    SIZE page;
    SIZE line;
    pForm->SetScrollSizes(MM_TEXT, CSize(1000, 2000), CSize(100, 200), CSize(10, 20));
    pForm->GetDeviceScrollSizes(nMode, total, page, line);
    EXPECT_EQ(nMode, MM_TEXT);
    EXPECT_EQ(CSize(total), CSize(1000, 2000));
    EXPECT_EQ(CSize(page), CSize(100, 200));
    EXPECT_EQ(CSize(line), CSize(10, 20));
    const std::pair<UINT, int> vertical[] = {{SB_LINEDOWN, 20}, {SB_PAGEDOWN, 220}, {SB_LINEUP, 200},
                                             {SB_PAGEUP, 0},    {SB_LINEUP, 0},     {SB_ENDSCROLL, 0}};
    for (const auto& [nCode, nPlace] : vertical)
    {
        pForm->SendMessage(WM_VSCROLL, nCode);
        EXPECT_EQ(pForm->GetScrollPosition(), CPoint(0, nPlace)) << nCode;
    }
    pForm->SendMessage(WM_HSCROLL, SB_LINEDOWN);
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(10, 0));
    CRect client;
    pForm->GetClientRect(client);
    pForm->SendMessage(WM_VSCROLL, SB_BOTTOM);
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(10, 2000 - client.Height()));
    pForm->SendMessage(WM_VSCROLL, SB_TOP);
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(10, 0));
    pForm->SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-WHEEL_DELTA)));
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(10, 60));               // three lines
    EXPECT_TRUE(pForm->OnScroll(MAKEWORD(0xFF, SB_LINEDOWN), 0, FALSE)); // only asked
    EXPECT_EQ(pForm->GetScrollPosition(), CPoint(10, 60));
    pForm->SetScrollSizes(MM_TEXT, CSize(1000, 2000));
    pForm->GetDeviceScrollSizes(nMode, total, page, line);
    EXPECT_EQ(CSize(page), CSize(100, 200));
    EXPECT_EQ(CSize(line), CSize(10, 20));
}

TEST_F(FormViews, SizesInMetricUnitsAreTurnedIntoPixels)
{
    CHostWnd host;
    CTestForm* pForm = MakeChild(host, CRect(0, 0, 120, 100));
    pForm->SetScrollSizes(MM_LOMETRIC, CSize(2540, 5080)); // tenths of a millimetre: 10 by 20 inches
    int nMode = 0;
    SIZE total;
    SIZE page;
    SIZE line;
    pForm->GetDeviceScrollSizes(nMode, total, page, line);
    CClientDC screen(nullptr);
    CPoint corner(2540, 5080);
    screen.SetMapMode(MM_LOMETRIC);
    screen.LPtoDP(&corner);
    EXPECT_EQ(CSize(total), CSize(corner.x, -corner.y));
    EXPECT_GT(total.cx, 500);
    pForm->ScrollToPosition(CPoint(254, -508));
    const CPoint place = pForm->GetScrollPosition();
    EXPECT_NEAR(place.x, 254, 3);
    EXPECT_NEAR(place.y, -508, 3);
}

TEST_F(FormViews, FrameShrinksToTheForm)
{
    auto* pFrame = new CFormFrame;
    ASSERT_TRUE(pFrame->Make());
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    CTestForm* pForm = pFrame->Form();
    pForm->ResizeParentToFit();
    CRect client;
    pForm->GetClientRect(client);
    EXPECT_EQ(client.Size(), pForm->GetTotalSize());
    pFrame->MoveWindow(0, 0, 200, 150);
    pForm->ResizeParentToFit(); // never larger
    CRect frame;
    pFrame->GetWindowRect(frame);
    EXPECT_EQ(frame.Size(), CSize(200, 150));
    pForm->ResizeParentToFit(FALSE);
    pForm->GetClientRect(client);
    EXPECT_EQ(client.Size(), pForm->GetTotalSize());
    pFrame->DestroyWindow();
}

TEST_F(FormViews, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    const auto round = [] {
        auto* pFrame = new CFormFrame;
        EXPECT_TRUE(pFrame->Make());
        pFrame->InitialUpdateFrame(nullptr, TRUE);
        pFrame->DestroyWindow();
        {
            CHostWnd host;
            EXPECT_NE(MakeChild(host, CRect(0, 0, 120, 100)), nullptr);
        }
        PumpAll();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(30, round);
}
} // namespace
