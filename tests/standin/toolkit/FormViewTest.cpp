#include "tests/standin/afx/windows/HandleCount.h"
#include "tests/standin/toolkit/Colours.h"

namespace
{
class CTestForm : public CBCGPFormView
{
    DECLARE_DYNCREATE(CTestForm)

public:
    CTestForm() : CBCGPFormView(IDD_VIEW) {}
};

IMPLEMENT_DYNCREATE(CTestForm, CBCGPFormView)

class BcgpFormView : public ThemeTest
{
protected:
    static CTestForm* Make(CWnd& host)
    {
        auto* pForm = new CTestForm;
        return pForm->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 80), &host, 7, nullptr)
                   ? pForm
                   : nullptr;
    }
};

TEST_F(BcgpFormView, TakesTheManagersColoursOnlyWithTheStyle)
{
    CHostWnd host;
    CTestForm* pForm = Make(host);
    ASSERT_NE(pForm, nullptr);
    EXPECT_EQ(ErasedPixel(*pForm), ::GetSysColor(COLOR_3DFACE));
    pForm->EnableVisualManagerStyle();
    EXPECT_TRUE(pForm->IsVisualManagerStyle());
    CBCGPVisualManager::SetDefaultManager(RUNTIME_CLASS(CNightManager));
    EXPECT_EQ(ErasedPixel(*pForm), CNightManager::BACKGROUND);
    const Colours button = Colours::Of(*pForm, WM_CTLCOLORBTN, pForm->GetDlgItem(IDC_BUTTON)->m_hWnd);
    EXPECT_EQ(button.background, CNightManager::BACKGROUND);
    EXPECT_EQ(button.text, CNightManager::TEXT);
    pForm->SetBackgroundColor(RGB(1, 2, 3));
    EXPECT_EQ(ErasedPixel(*pForm), RGB(1, 2, 3));
}

TEST_F(BcgpFormView, LivesInAFrame)
{
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(CTestForm);
    auto* pFrame = new CFrameWnd;
    ASSERT_TRUE(pFrame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr,
                               nullptr, 0, &context));
    pFrame->InitialUpdateFrame(nullptr, TRUE);
    ASSERT_NE(pFrame->GetActiveView(), nullptr);
    EXPECT_TRUE(pFrame->GetActiveView()->IsKindOf(RUNTIME_CLASS(CBCGPFormView)));
    pFrame->DestroyWindow();
}

TEST_F(BcgpFormView, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    const auto round = [] {
        CHostWnd host;
        CTestForm* pForm = Make(host);
        ASSERT_NE(pForm, nullptr);
        pForm->EnableVisualManagerStyle();
        pForm->SetBackgroundColor(RGB(1, 2, 3));
        ErasedPixel(*pForm);
        host.DestroyWindow();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(30, round);
}
} // namespace
