#include "HandleCount.h"
#include "TestApp.h"

#include <afxpriv.h>

namespace
{
class CRoundDlg : public CDialog
{
public:
    using CDialog::CDialog;
    CButton m_button;
    CFont m_font;

    BOOL OnInitDialog() override
    {
        CDialog::OnInitDialog();
        m_font.CreatePointFont(100, L"Tahoma");
        SendMessageToDescendants(WM_SETFONT, reinterpret_cast<WPARAM>(m_font.m_hObject), TRUE);
        CClientDC dc(this);
        CBrush brush(RGB(1, 2, 3));
        dc.FillRect(CRect(0, 0, 5, 5), &brush);
        GetDlgItem(IDC_TEXT)->GetFont();
        PostMessage(WM_COMMAND, IDOK);
        return TRUE;
    }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_BUTTON, m_button);
    }
};

void OneRound()
{
    CHostWnd host;
    CMenu menu;
    menu.LoadMenu(IDR_MENU);
    menu.GetSubMenu(0);
    CRoundDlg fromResource(IDD_FORM, &host);
    EXPECT_EQ(fromResource.DoModal(), IDOK);
    CDialogTemplate t;
    t.Load(MAKEINTRESOURCEW(IDD_FORM));
    t.SetFont(L"Tahoma", 11);
    CRoundDlg fromMemory;
    fromMemory.InitModalIndirect(t.m_hTemplate, &host);
    EXPECT_EQ(fromMemory.DoModal(), IDOK);
    theApp.OnIdle(1);
}

TEST(Leaks, RoundsOfDialogsLeaveNeitherDrawingObjectsNorWindows)
{
    for (int i = 0; i < 3; ++i)
        OneRound(); // the system keeps some of the first
    const int nObjects = CountDrawingObjects();
    const int nWindows = CountWindows();
    ASSERT_GT(nObjects, 0);
    for (int i = 0; i < 20; ++i)
        OneRound();
    EXPECT_LE(CountDrawingObjects(), nObjects);
    EXPECT_LE(CountWindows(), nWindows);
}

TEST(Leaks, CounterSeesADrawingObject)
{
    CFont font;
    font.CreatePointFont(100, L"Tahoma"); // the first drawing makes objects of the system's own
    font.DeleteObject();
    const int nBefore = CountDrawingObjects();
    font.CreatePointFont(100, L"Tahoma");
    EXPECT_EQ(CountDrawingObjects(), nBefore + 1);
}
} // namespace
