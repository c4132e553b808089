#include "HandleCount.h"
#include "TestApp.h"

#include <afxext.h>

#include <functional>

namespace
{
using Log = std::vector<std::string>;
Log s_log; // views and documents are made by their run-time class, so nobody hands them a log

class CTestDoc : public CDocument
{
public:
    CTestDoc() = default;
    ~CTestDoc() override { s_log.push_back("doc gone"); }
    BOOL m_bMaySave = TRUE;
    BOOL m_bTakesSend = TRUE;
    BOOL SaveModified() override
    {
        s_log.push_back("doc save?");
        return m_bMaySave;
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == CN_COMMAND)
            s_log.push_back("doc asked");
        return CDocument::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    afx_msg BOOL OnSend(UINT)
    {
        s_log.push_back("doc send");
        return m_bTakesSend;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestDoc, CDocument)
ON_COMMAND_EX(ID_FILE_SEND, &CTestDoc::OnSend)
END_MESSAGE_MAP()

class CTestView : public CView
{
    DECLARE_DYNCREATE(CTestView)

public:
    ~CTestView() override { s_log.push_back("view gone"); }
    std::function<void()> m_onSave;
    using CView::OnActivateView;
    void OnInitialUpdate() override
    {
        s_log.push_back(IsWindowVisible() && GetParent()->IsWindowVisible() ? "initial update visible"
                                                                            : "initial update");
        CView::OnInitialUpdate();
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        if (nCode == CN_COMMAND)
            s_log.push_back("view asked");
        return CView::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    void OnUpdate(CView* pSender, LPARAM lHint, CObject*) override
    {
        s_log.push_back("update " + std::string(pSender ? "other" : "null") + " " + std::to_string(lHint));
    }
    void OnPrepareDC(CDC*, CPrintInfo*) override { s_log.push_back("prepare"); }
    void OnDraw(CDC* pDC) override { s_log.push_back(pDC->m_hDC ? "draw" : "no context"); }
    void OnActivateView(BOOL bActivate, CView* pNew, CView* pOld) override
    {
        s_log.push_back(std::string(bActivate ? "activate" : "deactivate") + (pNew == this ? " new" : "") +
                        (pOld == this ? " old" : ""));
        CView::OnActivateView(bActivate, pNew, pOld);
    }
    afx_msg void OnSave()
    {
        s_log.push_back("view save");
        if (m_onSave)
            m_onSave();
    }
    DECLARE_MESSAGE_MAP()
};

IMPLEMENT_DYNCREATE(CTestView, CView)

BEGIN_MESSAGE_MAP(CTestView, CView)
ON_COMMAND(ID_FILE_SAVE, &CTestView::OnSave)
END_MESSAGE_MAP()

class CTestFrame : public CFrameWnd
{
public:
    ~CTestFrame() override { s_log.push_back("frame gone"); }
    using CFrameWnd::OnClose;
    BOOL MakeWith(CRuntimeClass* pViewClass, CDocument* pDoc)
    {
        CCreateContext context;
        context.m_pNewViewClass = pViewClass;
        context.m_pCurrentDoc = pDoc;
        return Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr, nullptr, 0,
                      &context);
    }
    CTestView* View() { return static_cast<CTestView*>(GetDescendantWindow(AFX_IDW_PANE_FIRST, TRUE)); }

protected:
    afx_msg void OnGrid() { s_log.push_back("frame grid"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CTestFrame, CFrameWnd)
ON_COMMAND(ID_VIEW_GRID, &CTestFrame::OnGrid)
END_MESSAGE_MAP()

class Views : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        s_log.clear();
    }
    void TearDown() override
    {
        theApp.m_pLog = nullptr;
        WindowTest::TearDown();
    }
};

TEST_F(Views, FrameMakesTheViewOfItsContextAndFillsItselfWithIt)
{
    auto* pDoc = new CTestDoc;
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    CTestView* pView = pFrame->View();
    ASSERT_NE(pView, nullptr);
    EXPECT_EQ(pView->GetDocument(), pDoc);
    EXPECT_EQ(pFrame->GetActiveView(), nullptr);
    pFrame->InitialUpdateFrame(pDoc, TRUE);
    EXPECT_EQ(s_log, (Log{"initial update", "update null 0", "activate new old"}));
    EXPECT_EQ(pFrame->GetActiveView(), pView);
    EXPECT_EQ(pFrame->GetActiveDocument(), pDoc);
    pFrame->MoveWindow(10, 10, 500, 350);
    CRect client;
    pFrame->GetClientRect(client);
    CRect place;
    pView->GetWindowRect(place);
    pFrame->ScreenToClient(place);
    EXPECT_EQ(place, client);
    s_log.clear();
    pFrame->DestroyWindow();
    EXPECT_EQ(s_log, (Log{"deactivate old", "view gone", "doc gone", "frame gone"}));
}

TEST_F(Views, CommandsGoFromTheViewToItsDocumentTheFrameAndTheApplication)
{
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), new CTestDoc));
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    theApp.m_pLog = &s_log;
    const std::pair<UINT, Log> routes[] = {
        {ID_FILE_SAVE, {"view asked", "view save"}},
        {ID_FILE_SEND, {"view asked", "doc asked", "doc send"}},
        {ID_VIEW_GRID, {"view asked", "doc asked", "frame grid"}},
        {ID_VIEW_MODE1, {"view asked", "doc asked", "app OnCmdMsg"}},
    };
    for (const auto& [nID, route] : routes)
    {
        s_log.clear();
        pFrame->SendMessage(WM_COMMAND, nID);
        EXPECT_EQ(s_log, route) << nID;
    }
    s_log.clear();
    static_cast<CTestDoc*>(pFrame->GetActiveDocument())->m_bTakesSend = FALSE;
    pFrame->SendMessage(WM_COMMAND, ID_FILE_SEND);
    EXPECT_EQ(s_log, (Log{"view asked", "doc asked", "doc send", "app OnCmdMsg"}));
    theApp.m_pLog = nullptr;
    pFrame->DestroyWindow();
}

TEST_F(Views, HandlerOfTheViewMayCloseTheFrame)
{
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), new CTestDoc));
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    pFrame->View()->m_onSave = [pFrame] { pFrame->DestroyWindow(); };
    s_log.clear();
    pFrame->SendMessage(WM_COMMAND, ID_FILE_SAVE);
    EXPECT_EQ(s_log,
              (Log{"view asked", "view save", "deactivate old", "view gone", "doc gone", "frame gone"}));
}

TEST_F(Views, DocumentGoesWithItsLastView)
{
    auto* pDoc = new CTestDoc;
    CTestFrame* frames[2];
    for (CTestFrame*& pFrame : frames)
    {
        pFrame = new CTestFrame;
        ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    }
    frames[0]->DestroyWindow();
    EXPECT_EQ(s_log, (Log{"view gone", "frame gone"}));
    POSITION pos = pDoc->GetFirstViewPosition();
    EXPECT_EQ(pDoc->GetNextView(pos), frames[1]->View());
    EXPECT_EQ(pos, nullptr);
    s_log.clear();
    frames[1]->DestroyWindow();
    EXPECT_EQ(s_log, (Log{"view gone", "doc gone", "frame gone"}));
}

TEST_F(Views, DocumentThatIsToldToStayOutlivesItsViews)
{
    CTestDoc doc;
    doc.m_bAutoDelete = FALSE;
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), &doc));
    pFrame->DestroyWindow();
    EXPECT_EQ(s_log, (Log{"view gone", "frame gone"}));
    EXPECT_EQ(doc.GetFirstViewPosition(), nullptr);
}

TEST_F(Views, ClosingADocumentTakesItsFramesAlong)
{
    auto* pDoc = new CTestDoc;
    ASSERT_TRUE((new CTestFrame)->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    ASSERT_TRUE((new CTestFrame)->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    pDoc->OnCloseDocument();
    EXPECT_EQ(s_log, (Log{"view gone", "frame gone", "view gone", "frame gone", "doc gone"}));
}

TEST_F(Views, DocumentTellsEveryViewButTheSender)
{
    auto* pDoc = new CTestDoc;
    CTestFrame* frames[3];
    for (CTestFrame*& pFrame : frames)
    {
        pFrame = new CTestFrame;
        ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    }
    pDoc->UpdateAllViews(frames[1]->View(), 7);
    EXPECT_EQ(s_log, (Log{"update other 7", "update other 7"}));
    s_log.clear();
    pDoc->SendInitialUpdate();
    EXPECT_EQ(s_log.size(), 6u);
    for (CTestFrame* pFrame : frames)
        pFrame->DestroyWindow();
}

TEST_F(Views, FrameStaysOpenWhenTheDocumentRefuses)
{
    auto* pDoc = new CTestDoc;
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    pFrame->InitialUpdateFrame(pDoc, TRUE);
    pDoc->m_bMaySave = FALSE;
    s_log.clear();
    pFrame->SendMessage(WM_CLOSE);
    EXPECT_EQ(s_log, Log{"doc save?"});
    // With another frame the document stays, and nobody is asked.
    auto* pOther = new CTestFrame;
    ASSERT_TRUE(pOther->MakeWith(RUNTIME_CLASS(CTestView), pDoc));
    s_log.clear();
    pFrame->SendMessage(WM_CLOSE);
    EXPECT_EQ(s_log, (Log{"deactivate old", "view gone", "frame gone"}));
    pOther->DestroyWindow();
}

TEST_F(Views, PaintingPreparesTheContextAndDraws)
{
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), nullptr));
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    pFrame->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    s_log.clear();
    pFrame->View()->RedrawWindow();
    EXPECT_EQ(s_log, (Log{"prepare", "draw"}));
    pFrame->DestroyWindow();
}

TEST_F(Views, ActiveViewChangesHands)
{
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), nullptr));
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(CTestView);
    auto* pSecond = static_cast<CTestView*>(pFrame->CreateView(&context, AFX_IDW_PANE_FIRST + 1));
    ASSERT_NE(pSecond, nullptr);
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    s_log.clear();
    EXPECT_NE(pSecond->SendMessage(WM_MOUSEACTIVATE, reinterpret_cast<WPARAM>(pFrame->m_hWnd),
                                   MAKELPARAM(HTCLIENT, WM_LBUTTONDOWN)),
              MA_NOACTIVATE);
    EXPECT_EQ(s_log, (Log{"deactivate old", "activate new"}));
    EXPECT_EQ(pFrame->GetActiveView(), pSecond);
    EXPECT_EQ(::GetFocus(), pSecond->m_hWnd);
    s_log.clear();
    pSecond->DestroyWindow();
    EXPECT_EQ(s_log, (Log{"deactivate old", "view gone"}));
    EXPECT_EQ(pFrame->GetActiveView(), nullptr);
    pFrame->DestroyWindow();
}

TEST_F(Views, FocusOfTheFrameIsTheViews)
{
    auto* pFrame = new CTestFrame;
    ASSERT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), nullptr));
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    ::SetFocus(pFrame->m_hWnd);
    EXPECT_EQ(::GetFocus(), pFrame->View()->m_hWnd);
    pFrame->DestroyWindow();
}

TEST_F(Views, FrameWhoseClientCannotBeMadeIsNotMade)
{
    class CFailing : public CTestFrame
    {
        BOOL OnCreateClient(LPCREATESTRUCT, CCreateContext*) override { return FALSE; }
    };
    EXPECT_FALSE((new CFailing)->MakeWith(RUNTIME_CLASS(CTestView), nullptr));
    EXPECT_EQ(s_log, Log{"frame gone"});
    s_log.clear();
    EXPECT_FALSE((new CTestFrame)->MakeWith(RUNTIME_CLASS(CStringArray), nullptr)); // no window at all
}

TEST_F(Views, PathGivesTheTitleAndANewDocumentHasNone)
{
    CTestDoc doc;
    doc.m_bAutoDelete = FALSE;
    doc.SetPathName(L"C:\\Models\\Bridge.tarvo");
    EXPECT_EQ(doc.GetTitle(), L"Bridge.tarvo");
    doc.SetModifiedFlag();
    EXPECT_TRUE(doc.IsModified());
    EXPECT_TRUE(doc.OnNewDocument());
    EXPECT_FALSE(doc.IsModified());
    EXPECT_EQ(doc.GetPathName(), L"");
    EXPECT_FALSE(doc.OnOpenDocument(L"x"));
    EXPECT_FALSE(doc.OnSaveDocument(L"x"));
}

TEST_F(Views, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    const auto round = [] {
        auto* pFrame = new CTestFrame;
        EXPECT_TRUE(pFrame->MakeWith(RUNTIME_CLASS(CTestView), new CTestDoc));
        pFrame->InitialUpdateFrame(nullptr, TRUE);
        pFrame->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        pFrame->DestroyWindow();
        PumpAll();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(30, round);
}
} // namespace
