#include "tests/standin/afx/windows/HandleCount.h"
#include "tests/standin/toolkit/Colours.h"

IMPLEMENT_DYNCREATE(CNightManager, CBCGPVisualManager)

namespace
{
class BcgpDialog : public ThemeTest
{
};

/// A checkbox that answers for its own colours.
class COwnColours : public CButton
{
public:
    CBrush m_brush{RGB(9, 8, 7)};

protected:
    afx_msg HBRUSH CtlColor(CDC*, UINT) { return m_brush; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(COwnColours, CButton)
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

HWND Item(CWnd& wnd, int nID) { return ::GetDlgItem(wnd.m_hWnd, nID); }

TEST_F(BcgpDialog, WithoutTheStyleTheColoursAreTheSystems)
{
    CBCGPDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    EXPECT_FALSE(dlg.IsVisualManagerStyle());
    const Colours own = Colours::Of(dlg, WM_CTLCOLORDLG, dlg.m_hWnd);
    EXPECT_EQ(own.hBrush, ::GetSysColorBrush(COLOR_3DFACE));
    EXPECT_EQ(ErasedPixel(dlg), ::GetSysColor(COLOR_3DFACE));
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, WithTheStyleBackgroundAndLabelsHaveTheManagersColours)
{
    CBCGPDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    dlg.EnableVisualManagerStyle(TRUE, TRUE);
    EXPECT_TRUE(dlg.IsVisualManagerStyle());
    EXPECT_TRUE(dlg.IsVisualManagerNCArea());
    EXPECT_NE(PlainBackground(), ::GetSysColor(COLOR_3DFACE));
    EXPECT_EQ(ErasedPixel(dlg), PlainBackground());
    for (UINT message : {WM_CTLCOLORDLG, WM_CTLCOLORSTATIC, WM_CTLCOLORBTN})
    {
        const HWND hControl = message == WM_CTLCOLORDLG ? dlg.m_hWnd : Item(dlg, IDC_CHECK);
        const Colours colours = Colours::Of(dlg, message, hControl);
        EXPECT_EQ(colours.background, PlainBackground()) << message;
        EXPECT_EQ(colours.text, ::GetSysColor(COLOR_WINDOWTEXT)) << message;
    }
    dlg.EnableVisualManagerStyle(FALSE);
    EXPECT_EQ(ErasedPixel(dlg), ::GetSysColor(COLOR_3DFACE));
    EXPECT_FALSE(dlg.IsVisualManagerNCArea());
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, StyleMayBeSetBeforeThereIsAWindow)
{
    CBCGPDialog dlg;
    dlg.EnableVisualManagerStyle();
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    EXPECT_EQ(ErasedPixel(dlg), PlainBackground());
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, FieldsAndControlsNamedAsPlainKeepTheSystemsColours)
{
    CBCGPDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    CList<UINT, UINT> plain;
    plain.AddTail(IDC_RADIO2);
    dlg.EnableVisualManagerStyle(TRUE, FALSE, &plain);
    EXPECT_NE(Colours::Of(dlg, WM_CTLCOLORSTATIC, Item(dlg, IDC_RADIO2)).background, PlainBackground());
    EXPECT_EQ(Colours::Of(dlg, WM_CTLCOLORSTATIC, Item(dlg, IDC_RADIO1)).background, PlainBackground());
    // A read-only field asks as a label does.
    EXPECT_NE(Colours::Of(dlg, WM_CTLCOLORSTATIC, Item(dlg, IDC_TEXT)).background, PlainBackground());
    EXPECT_NE(Colours::Of(dlg, WM_CTLCOLOREDIT, Item(dlg, IDC_TEXT)).background, PlainBackground());
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, ControlThatAnswersForItselfIsAskedFirst)
{
    CBCGPDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    COwnColours check;
    ASSERT_TRUE(check.SubclassDlgItem(IDC_CHECK, &dlg));
    dlg.EnableVisualManagerStyle();
    EXPECT_EQ(Colours::Of(dlg, WM_CTLCOLORSTATIC, check.m_hWnd).background, RGB(9, 8, 7));
    dlg.EnableVisualManagerStyle(FALSE);
    EXPECT_EQ(Colours::Of(dlg, WM_CTLCOLORSTATIC, check.m_hWnd).background, RGB(9, 8, 7));
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, AnotherManagerRecoloursOpenDialogsAtOnce)
{
    CBCGPDialog styled;
    CBCGPDialog plain;
    ASSERT_TRUE(styled.Create(IDD_FORM));
    ASSERT_TRUE(plain.Create(IDD_FORM));
    styled.EnableVisualManagerStyle();
    for (CBCGPDialog* pDlg : {&styled, &plain})
    {
        pDlg->ShowWindow(SW_SHOW);
        pDlg->RedrawWindow(nullptr, nullptr, RDW_ERASENOW | RDW_UPDATENOW | RDW_ALLCHILDREN);
        pDlg->ValidateRect(nullptr);
    }
    CBCGPVisualManager::SetDefaultManager(RUNTIME_CLASS(CNightManager));
    CRect dirty;
    EXPECT_TRUE(styled.GetUpdateRect(dirty));
    EXPECT_FALSE(plain.GetUpdateRect(dirty));
    EXPECT_EQ(ErasedPixel(styled), CNightManager::BACKGROUND);
    EXPECT_EQ(Colours::Of(styled, WM_CTLCOLORSTATIC, Item(styled, IDC_CHECK)).text, CNightManager::TEXT);
    EXPECT_EQ(ErasedPixel(plain), ::GetSysColor(COLOR_3DFACE));
    styled.DestroyWindow();
    plain.DestroyWindow();
}

TEST_F(BcgpDialog, ClassThatIsNoManagerGivesThePlainTheme)
{
    for (CRuntimeClass* pClass : {RUNTIME_CLASS(CWnd), RUNTIME_CLASS(CBCGPDialog)})
    {
        CBCGPVisualManager::SetDefaultManager(pClass);
        EXPECT_STREQ(CBCGPVisualManager::GetInstance()->GetRuntimeClass()->m_lpszClassName,
                     "CBCGPVisualManager");
    }
}

TEST_F(BcgpDialog, OwnBackgroundGoesBeforeTheThemeAndCanBeTakenAway)
{
    CBCGPDialog dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    dlg.SetBackgroundColor(RGB(250, 240, 230));
    EXPECT_EQ(ErasedPixel(dlg), RGB(250, 240, 230));
    dlg.EnableVisualManagerStyle();
    EXPECT_EQ(ErasedPixel(dlg), RGB(250, 240, 230));
    const Colours label = Colours::Of(dlg, WM_CTLCOLORSTATIC, Item(dlg, IDC_CHECK));
    EXPECT_EQ(label.background, RGB(250, 240, 230));
    EXPECT_EQ(label.text, ::GetSysColor(COLOR_WINDOWTEXT));
    dlg.SetBackgroundColor(CLR_INVALID);
    EXPECT_EQ(ErasedPixel(dlg), PlainBackground());
    dlg.DestroyWindow();
}

TEST_F(BcgpDialog, SystemColoursAreTakenAnew)
{
    CBCGPDialog dlg;
    dlg.EnableVisualManagerStyle();
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    const COLORREF former = PlainBackground();
    const COLORREF systems = ::GetSysColor(COLOR_3DFACE);
    const int nIndex = COLOR_3DFACE;
    const COLORREF other = RGB(10, 10, 10);
    ::SetSysColors(1, &nIndex, &other);
    dlg.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_NE(PlainBackground(), former);
    ::SetSysColors(1, &nIndex, &systems);
    dlg.SendMessage(WM_SYSCOLORCHANGE);
    EXPECT_EQ(PlainBackground(), former);
    dlg.DestroyWindow();
}

class CEndingDlg : public CBCGPDialog
{
public:
    using CBCGPDialog::CBCGPDialog;
    BOOL OnInitDialog() override
    {
        CBCGPDialog::OnInitDialog();
        EnableVisualManagerStyle();
        ErasedPixel(*this);
        EndDialog(IDOK);
        return TRUE;
    }
};

TEST_F(BcgpDialog, RoundsLeaveNeitherDrawingObjectsNorWindows)
{
    const auto round = [] {
        CHostWnd host;
        CEndingDlg dlg(IDD_FORM, &host);
        EXPECT_EQ(dlg.DoModal(), IDOK);
        CBCGPDialog modeless;
        modeless.SetBackgroundColor(RGB(1, 1, 1));
        EXPECT_TRUE(modeless.Create(IDD_FORM, &host));
        CBCGPVisualManager::SetDefaultManager(RUNTIME_CLASS(CNightManager));
        CBCGPVisualManager::GetInstance();
        modeless.DestroyWindow();
        theApp.OnIdle(1);
    };
    ExpectRoundsLoseNothing(30, round);
}
} // namespace
