#include "TestApp.h"

#include <cstdlib>
#include <cstring>
#include <functional>

namespace
{
using Log = std::vector<std::string>;

/// A dialog whose behaviour each test gives.
class CScriptDlg : public CDialog
{
public:
    explicit CScriptDlg(UINT nID, CWnd* pParent = nullptr) : CDialog(nID, pParent) {}
    CScriptDlg() = default;

    std::function<void()> m_onInit;
    std::function<void()> m_onButton;
    Log m_log;
    BOOL m_bWatchKeys = FALSE;

    using CDialog::OnCancel;
    using CDialog::OnOK;
    void Press(int nID)
    {
        PostMessage(WM_COMMAND, Clicked(nID), reinterpret_cast<LPARAM>(::GetDlgItem(m_hWnd, nID)));
    }

    BOOL OnInitDialog() override
    {
        const BOOL bFocus = CDialog::OnInitDialog();
        m_log.push_back("init");
        if (m_onInit)
            m_onInit();
        return bFocus;
    }
    BOOL PreTranslateMessage(MSG* pMsg) override
    {
        if (m_bWatchKeys && pMsg->message == WM_SYSKEYDOWN)
            m_log.push_back("PreTranslateMessage " + std::to_string(pMsg->wParam));
        return CDialog::PreTranslateMessage(pMsg);
    }

protected:
    void PostNcDestroy() override { m_log.push_back("PostNcDestroy"); }
    afx_msg void OnButton()
    {
        m_log.push_back("button");
        if (m_onButton)
            m_onButton();
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CScriptDlg, CDialog)
ON_BN_CLICKED(IDC_BUTTON, &CScriptDlg::OnButton)
END_MESSAGE_MAP()

class Dialogs : public WindowTest
{
};

TEST_F(Dialogs, ModalDialogAnswersTheButtonThatEndedItAndHasNoWindowAfterwards)
{
    for (int nButton : {IDOK, IDCANCEL})
    {
        CScriptDlg dlg(IDD_FORM);
        dlg.m_onInit = [&] { dlg.Press(nButton); };
        EXPECT_EQ(dlg.DoModal(), nButton);
        EXPECT_EQ(dlg.m_hWnd, nullptr);
        EXPECT_EQ(dlg.m_log, (Log{"init", "PostNcDestroy"}));
    }
}

TEST_F(Dialogs, EndDialogsNumberIsTheAnswerAlsoFromWithinItsInitialisation)
{
    CScriptDlg late(IDD_FORM);
    late.m_onInit = [&] { late.Press(IDC_BUTTON); };
    late.m_onButton = [&] { late.EndDialog(77); };
    EXPECT_EQ(late.DoModal(), 77);
    CScriptDlg early(IDD_FORM);
    early.m_onInit = [&] { early.EndDialog(78); };
    EXPECT_EQ(early.DoModal(), 78);
    EXPECT_EQ(early.m_hWnd, nullptr);
}

TEST_F(Dialogs, SameObjectCanBeShownAgain)
{
    CScriptDlg dlg(IDD_FORM);
    dlg.m_onInit = [&] { dlg.Press(IDOK); };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    dlg.m_onInit = [&] { dlg.Press(IDCANCEL); };
    EXPECT_EQ(dlg.DoModal(), IDCANCEL);
}

TEST_F(Dialogs, MissingTemplateIsAnsweredAndNotShown)
{
    CScriptDlg dlg(999);
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_FALSE(dlg.Create(999u));
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

TEST_F(Dialogs, OwnerIsDisabledWhileTheDialogRunsAndEnabledAfterwards)
{
    CHostWnd host;
    CScriptDlg dlg(IDD_FORM, &host);
    BOOL bEnabled = TRUE;
    HWND hOwner = nullptr;
    dlg.m_onInit = [&] { dlg.Press(IDC_BUTTON); };
    dlg.m_onButton = [&] {
        bEnabled = host.IsWindowEnabled();
        hOwner = ::GetWindow(dlg.m_hWnd, GW_OWNER);
        dlg.EndDialog(IDOK);
    };
    dlg.DoModal();
    EXPECT_FALSE(bEnabled);
    EXPECT_EQ(hOwner, host.m_hWnd);
    EXPECT_TRUE(host.IsWindowEnabled());
}

TEST_F(Dialogs, OwnerThatWasDisabledStaysDisabled)
{
    CHostWnd host;
    host.EnableWindow(FALSE);
    CScriptDlg dlg(IDD_FORM, &host);
    dlg.m_onInit = [&] { dlg.Press(IDOK); };
    dlg.DoModal();
    EXPECT_FALSE(host.IsWindowEnabled());
}

TEST_F(Dialogs, DialogOfAChildBelongsToTheChildsTopWindow)
{
    CHostWnd host;
    CStatic child;
    ASSERT_TRUE(child.Create(L"", WS_VISIBLE, CRect(0, 0, 9, 9), &host, 1));
    CScriptDlg dlg(IDD_FORM, &child);
    HWND hOwner = nullptr;
    dlg.m_onInit = [&] {
        hOwner = ::GetWindow(dlg.m_hWnd, GW_OWNER);
        dlg.Press(IDOK);
    };
    dlg.DoModal();
    EXPECT_EQ(hOwner, host.m_hWnd);
}

TEST_F(Dialogs, NestedLoopsEndInTheirOrder)
{
    CHostWnd host;
    Log order;
    CScriptDlg outer(IDD_FORM, &host);
    outer.m_onInit = [&] { outer.Press(IDC_BUTTON); };
    outer.m_onButton = [&] {
        CScriptDlg inner(IDD_FORM, &outer);
        inner.m_onInit = [&] { inner.Press(IDC_BUTTON); };
        inner.m_onButton = [&] {
            outer.EndDialog(5); // the outer waits until the inner is done
            EXPECT_FALSE(outer.IsWindowEnabled());
            EXPECT_FALSE(host.IsWindowEnabled());
            CScriptDlg third(IDD_SMALL, &inner);
            third.m_onInit = [&] { third.Press(IDOK); };
            order.push_back("third " + std::to_string(third.DoModal()));
            inner.EndDialog(6);
        };
        order.push_back("inner " + std::to_string(inner.DoModal()));
    };
    order.push_back("outer " + std::to_string(outer.DoModal()));
    EXPECT_EQ(order, (Log{"third 1", "inner 6", "outer 5"}));
    EXPECT_TRUE(host.IsWindowEnabled());
}

TEST_F(Dialogs, WindowDestroyedByItsOwnHandlerEndsTheLoop)
{
    CScriptDlg dlg(IDD_FORM);
    dlg.m_onInit = [&] { dlg.Press(IDC_BUTTON); };
    dlg.m_onButton = [&] { dlg.DestroyWindow(); };
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_EQ(dlg.m_hWnd, nullptr);
    EXPECT_EQ(dlg.m_log, (Log{"init", "button", "PostNcDestroy"}));
}

TEST_F(Dialogs, WindowDestroyedDuringItsInitialisationIsAFailure)
{
    CScriptDlg dlg(IDD_FORM);
    dlg.m_onInit = [&] { dlg.DestroyWindow(); };
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_EQ(dlg.m_hWnd, nullptr);
    EXPECT_FALSE(dlg.Create(IDD_FORM));
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

TEST_F(Dialogs, OwnerDestroyedUnderTheDialogEndsTheLoop)
{
    CHostWnd host;
    CScriptDlg dlg(IDD_FORM, &host);
    dlg.m_onInit = [&] { dlg.Press(IDC_BUTTON); };
    dlg.m_onButton = [&] { host.DestroyWindow(); };
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

TEST_F(Dialogs, ModelessDialogMayDeleteItselfInItsLastCall)
{
    static int s_nDeleted;
    s_nDeleted = 0;
    class CSelfDeleting : public CScriptDlg
    {
    public:
        ~CSelfDeleting() override { ++s_nDeleted; }
        void PostNcDestroy() override { delete this; }
    };
    auto* pDlg = new CSelfDeleting;
    ASSERT_TRUE(pDlg->Create(IDD_FORM));
    pDlg->m_onButton = [pDlg] { pDlg->DestroyWindow(); };
    pDlg->SendMessage(WM_COMMAND, Clicked(IDC_BUTTON),
                      reinterpret_cast<LPARAM>(::GetDlgItem(pDlg->m_hWnd, IDC_BUTTON)));
    EXPECT_EQ(s_nDeleted, 1);
    pDlg = new CSelfDeleting;
    pDlg->m_onInit = [pDlg] { pDlg->DestroyWindow(); };
    EXPECT_FALSE(pDlg->Create(IDD_FORM));
    EXPECT_EQ(s_nDeleted, 2);
}

TEST_F(Dialogs, ModelessDialogStaysUntilItIsDestroyed)
{
    CScriptDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    PumpAll();
    EXPECT_TRUE(::IsWindow(dlg.m_hWnd));
    CString strTitle;
    dlg.GetWindowText(strTitle);
    EXPECT_EQ(strTitle, L"Form");
    EXPECT_TRUE(dlg.DestroyWindow());
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

/// An empty dialog of the older form in memory.
std::vector<WORD> MemoryTemplate(short x, short y)
{
    DLGTEMPLATE head{WS_POPUP | WS_CAPTION, 0, 0, x, y, 80, 40};
    std::vector<WORD> bytes(sizeof(head) / sizeof(WORD) + 3);
    std::memcpy(bytes.data(), &head, sizeof(head));
    return bytes; // no menu, no class, no title
}

TEST_F(Dialogs, TemplateInMemoryMakesModalAndModelessDialogs)
{
    std::vector<WORD> bytes = MemoryTemplate(10, 10);
    const auto* pTemplate = reinterpret_cast<LPCDLGTEMPLATE>(bytes.data());
    CScriptDlg modal;
    ASSERT_TRUE(modal.InitModalIndirect(pTemplate));
    modal.m_onInit = [&] { modal.PostMessage(WM_COMMAND, IDCANCEL); };
    EXPECT_EQ(modal.DoModal(), IDCANCEL);

    for (UINT nFlags : {UINT(GMEM_FIXED), UINT(GMEM_MOVEABLE)})
    {
        const HGLOBAL hGlobal = ::GlobalAlloc(nFlags, bytes.size() * sizeof(WORD));
        std::memcpy(::GlobalLock(hGlobal), bytes.data(), bytes.size() * sizeof(WORD));
        ::GlobalUnlock(hGlobal);
        CScriptDlg fromHandle;
        ASSERT_TRUE(fromHandle.InitModalIndirect(hGlobal));
        fromHandle.m_onInit = [&] { fromHandle.EndDialog(3); };
        EXPECT_EQ(fromHandle.DoModal(), 3);
        ::GlobalFree(hGlobal);
    }

    CScriptDlg modeless;
    ASSERT_TRUE(modeless.CreateIndirect(pTemplate));
    EXPECT_NE(modeless.m_hWnd, nullptr);
    modeless.DestroyWindow();
}

TEST_F(Dialogs, DialogAtPlaceZeroComesUpInTheMiddleOfItsOwner)
{
    CHostWnd host;
    CScriptDlg middle(IDD_SMALL, &host);
    CScriptDlg placed(IDD_FAR, &host);
    CRect owner;
    host.GetWindowRect(owner);
    for (CScriptDlg* pDlg : {&middle, &placed})
    {
        CRect where;
        // The place counts when the dialog is shown, after its initialisation.
        pDlg->m_onInit = [&, pDlg] {
            pDlg->PostMessage(WM_COMMAND, MAKEWPARAM(IDC_BUTTON, BN_CLICKED),
                              reinterpret_cast<LPARAM>(pDlg->m_hWnd));
        };
        pDlg->m_onButton = [&, pDlg] {
            pDlg->GetWindowRect(where);
            pDlg->EndDialog(0);
        };
        pDlg->DoModal();
        const bool bMiddle = std::abs(where.CenterPoint().x - owner.CenterPoint().x) <= 1 &&
                             std::abs(where.CenterPoint().y - owner.CenterPoint().y) <= 1;
        EXPECT_EQ(bMiddle, pDlg == &middle);
    }
}

TEST_F(Dialogs, ModalLoopOffersMessagesToPreTranslateMessage)
{
    CScriptDlg dlg(IDD_FORM);
    dlg.m_bWatchKeys = TRUE;
    dlg.m_onInit = [&] {
        dlg.PostMessage(WM_SYSKEYDOWN, VK_F12, 0x20580001);
        dlg.Press(IDOK);
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    EXPECT_EQ(dlg.m_log, (Log{"init", "PreTranslateMessage " + std::to_string(VK_F12), "PostNcDestroy"}));
}

TEST_F(Dialogs, EscapeAndEnterWorkThroughTheLoop)
{
    for (int nKey : {VK_ESCAPE, VK_RETURN})
    {
        CScriptDlg dlg(IDD_FORM);
        dlg.m_onInit = [&] {
            ::PostMessageW(::GetDlgItem(dlg.m_hWnd, IDC_TEXT), WM_KEYDOWN, static_cast<WPARAM>(nKey), 1);
        };
        EXPECT_EQ(dlg.DoModal(), nKey == VK_ESCAPE ? IDCANCEL : IDOK);
    }
}

TEST_F(Dialogs, ModalDialogIsShownWhenTheQueueIsEmpty)
{
    class CIdleDlg : public CScriptDlg
    {
    public:
        using CScriptDlg::CScriptDlg;
        BOOL m_bShown = FALSE;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_KICKIDLE)
            {
                m_bShown = IsWindowVisible();
                EndDialog(IDOK);
                return 0;
            }
            return CScriptDlg::WindowProc(message, wParam, lParam);
        }
    };
    CIdleDlg dlg(IDD_FORM);
    EXPECT_EQ(dlg.DoModal(), IDOK);
    EXPECT_TRUE(dlg.m_bShown);
}

TEST_F(Dialogs, ExceptionDuringInitialisationEndsTheDialog)
{
    CScriptDlg dlg(IDD_FORM);
    dlg.m_onInit = [] { AfxThrowMemoryException(); };
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_FALSE(dlg.Create(IDD_FORM));
    EXPECT_EQ(dlg.m_hWnd, nullptr);
}

TEST_F(Dialogs, EndOfTheProgramEndsAllLoops)
{
    CScriptDlg outer(IDD_FORM);
    INT_PTR nInner = 0;
    outer.m_onInit = [&] { outer.Press(IDC_BUTTON); };
    outer.m_onButton = [&] {
        CScriptDlg inner(IDD_FORM, &outer);
        inner.m_onInit = [] { AfxPostQuitMessage(9); };
        nInner = inner.DoModal();
    };
    EXPECT_EQ(outer.DoModal(), -1);
    EXPECT_EQ(nInner, -1);
    MSG msg;
    ASSERT_TRUE(::PeekMessageW(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE)); // and the application's loop
    EXPECT_EQ(msg.wParam, 9u);
}

TEST_F(Dialogs, InitialLinesOfTheResourceFillItsLists)
{
    CScriptDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    auto* pCombo = static_cast<CComboBox*>(dlg.GetDlgItem(IDC_COMBO));
    auto* pList = static_cast<CListBox*>(dlg.GetDlgItem(IDC_LIST));
    ASSERT_EQ(pCombo->GetCount(), 2);
    CString strLine;
    pCombo->GetLBText(0, strLine);
    EXPECT_EQ(strLine, L"Alpha");
    pCombo->GetLBText(1, strLine);
    EXPECT_EQ(strLine, L"Beta");
    pCombo->GetLBText(2, strLine);
    EXPECT_EQ(strLine, L"");
    ASSERT_EQ(pList->GetCount(), 1);
    pList->GetText(0, strLine);
    EXPECT_EQ(strLine, L"Gamma");
    dlg.DestroyWindow();
}

TEST_F(Dialogs, DamagedInitialLinesAreRefusedWithoutReadingPastThem)
{
    CScriptDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SMALL));
    BYTE cut[] = {1, 0, 3, 4, 9, 0, 0, 0, 'x', 0};
    EXPECT_FALSE(dlg.ExecuteDlgInit(cut, sizeof(cut)));
    EXPECT_FALSE(dlg.ExecuteDlgInit(cut, 5));
    BYTE empty[] = {0, 0};
    EXPECT_TRUE(dlg.ExecuteDlgInit(empty, sizeof(empty)));
    dlg.DestroyWindow();
}

TEST_F(Dialogs, DescendantsGetAMessageDeepOrFlat)
{
    CScriptDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    CFont font;
    font.CreatePointFont(120, L"Tahoma");
    const HWND hInner =
        ::GetWindow(::GetDlgItem(dlg.m_hWnd, IDC_COMBO), GW_CHILD); // the combo box's edit part
    ASSERT_NE(hInner, nullptr);
    dlg.SendMessageToDescendants(WM_SETFONT, reinterpret_cast<WPARAM>(font.m_hObject), TRUE);
    EXPECT_EQ(dlg.GetDlgItem(IDC_TEXT)->GetFont()->m_hObject, font.m_hObject);
    EXPECT_EQ(CWnd::FromHandle(hInner)->GetFont()->m_hObject, font.m_hObject);
    EXPECT_EQ(dlg.GetDescendantWindow(IDC_TEXT)->m_hWnd, ::GetDlgItem(dlg.m_hWnd, IDC_TEXT));
    EXPECT_EQ(dlg.GetDescendantWindow(IDC_TEXT, TRUE), nullptr);
    dlg.DestroyWindow();
}

TEST_F(Dialogs, CommandOfAMenuGoesOnToTheOwnerAndTheApplication)
{
    CHostWnd host;
    CScriptDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM, &host));
    Log log;
    theApp.m_pLog = &log;
    dlg.SendMessage(WM_COMMAND, ID_FILE_SAVE);
    dlg.SendMessage(WM_COMMAND, 17); // a control's number goes nowhere else
    theApp.m_pLog = nullptr;
    EXPECT_EQ(log, Log{"app OnCmdMsg"});
    dlg.DestroyWindow();
}

TEST_F(Dialogs, ModalDialogThatDeletesItselfIsSurvived)
{
    static int s_nDeleted;
    s_nDeleted = 0;
    class CSelfDeleting : public CScriptDlg
    {
    public:
        using CScriptDlg::CScriptDlg;
        ~CSelfDeleting() override { ++s_nDeleted; }
        void PostNcDestroy() override { delete this; }
    };
    CHostWnd host;
    auto* pDlg = new CSelfDeleting(IDD_FORM, &host);
    pDlg->m_onInit = [pDlg] { pDlg->Press(IDC_BUTTON); };
    pDlg->m_onButton = [pDlg] { pDlg->DestroyWindow(); };
    EXPECT_EQ(pDlg->DoModal(), -1);
    EXPECT_EQ(s_nDeleted, 1);
    EXPECT_TRUE(host.IsWindowEnabled());
}
} // namespace
