#include "TestApp.h"

#include <limits>

namespace
{
class CFormDlg : public CDialog
{
public:
    CString m_strText;
    int m_nInt = 0;
    double m_dValue = 0;
    int m_nCheck = 0;
    int m_nRadio = 0;
    int m_nCombo = -1;
    CString m_strCombo;
    int m_nList = -1;
    int m_nMin = std::numeric_limits<int>::min();
    int m_nMax = std::numeric_limits<int>::max();
    double m_dMax = 1e300;
    int m_nMaxChars = 1000;
    BOOL m_bComboText = FALSE;
    CButton m_button;
    int m_nChanges = 0;

    void Set(int nID, LPCTSTR psz) { SetDlgItemText(nID, psz); }

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        CDialog::DoDataExchange(pDX);
        DDX_Control(pDX, IDC_BUTTON, m_button);
        DDX_Text(pDX, IDC_TEXT, m_strText);
        DDV_MaxChars(pDX, m_strText, m_nMaxChars);
        DDX_Text(pDX, IDC_INT, m_nInt);
        DDV_MinMaxInt(pDX, m_nInt, m_nMin, m_nMax);
        DDX_Text(pDX, IDC_DOUBLE, m_dValue);
        DDV_MinMaxDouble(pDX, m_dValue, -m_dMax, m_dMax);
        DDX_Check(pDX, IDC_CHECK, m_nCheck);
        DDX_Radio(pDX, IDC_RADIO1, m_nRadio);
        if (m_bComboText)
            DDX_CBString(pDX, IDC_COMBO, m_strCombo);
        else
            DDX_CBIndex(pDX, IDC_COMBO, m_nCombo);
        DDX_LBIndex(pDX, IDC_LIST, m_nList);
    }
    afx_msg void OnChange() { ++m_nChanges; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CFormDlg, CDialog)
ON_EN_CHANGE(IDC_TEXT, &CFormDlg::OnChange)
END_MESSAGE_MAP()

class DataExchange : public WindowTest
{
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        ASSERT_TRUE(m_dlg.Create(IDD_FORM));
        m_dlg.ShowWindow(SW_SHOW);
    }
    ~DataExchange() override { m_dlg.DestroyWindow(); }
    CString Text(int nID)
    {
        CString strText;
        m_dlg.GetDlgItemText(nID, strText);
        return strText;
    }
    void ExpectRefused(int nID, LPCTSTR pszText, LPCTSTR pszPrompt)
    {
        theApp.m_boxes.clear();
        m_dlg.Set(nID, pszText);
        EXPECT_FALSE(m_dlg.UpdateData(TRUE)) << CStringA(pszText).GetString();
        EXPECT_EQ(theApp.m_boxes, std::vector<std::wstring>{pszPrompt});
        EXPECT_EQ(::GetFocus(), ::GetDlgItem(m_dlg.m_hWnd, nID));
        int nFrom = -1;
        int nTo = -1;
        static_cast<CEdit*>(m_dlg.GetDlgItem(nID))->GetSel(nFrom, nTo);
        EXPECT_EQ(nFrom, 0);
        EXPECT_EQ(nTo, static_cast<int>(::wcslen(pszText)));
    }
    CFormDlg m_dlg;
};

TEST_F(DataExchange, MembersReachTheirControls)
{
    m_dlg.m_strText = L"Träger 보";
    m_dlg.m_nInt = -12;
    m_dlg.m_dValue = 0.25;
    m_dlg.m_nCheck = BST_INDETERMINATE;
    m_dlg.m_nRadio = 2;
    m_dlg.m_nCombo = 1;
    m_dlg.m_nList = 0;
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(Text(IDC_TEXT), L"Träger 보");
    EXPECT_EQ(Text(IDC_INT), L"-12");
    EXPECT_EQ(Text(IDC_DOUBLE), L"0.25");
    EXPECT_EQ(m_dlg.IsDlgButtonChecked(IDC_CHECK), static_cast<UINT>(BST_INDETERMINATE));
    EXPECT_EQ(m_dlg.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO3), IDC_RADIO3);
    EXPECT_EQ(Text(IDC_COMBO), L"Beta");
    EXPECT_EQ(static_cast<CListBox*>(m_dlg.GetDlgItem(IDC_LIST))->GetCurSel(), 0);
}

TEST_F(DataExchange, ControlsReachTheirMembers)
{
    m_dlg.Set(IDC_TEXT, L"x\ty");
    m_dlg.Set(IDC_INT, L" 2147483647 ");
    m_dlg.Set(IDC_DOUBLE, L"-1.5e3");
    m_dlg.CheckDlgButton(IDC_CHECK, BST_CHECKED);
    m_dlg.CheckRadioButton(IDC_RADIO1, IDC_RADIO3, IDC_RADIO2);
    static_cast<CComboBox*>(m_dlg.GetDlgItem(IDC_COMBO))->SetCurSel(0);
    static_cast<CListBox*>(m_dlg.GetDlgItem(IDC_LIST))->SetCurSel(0);
    ASSERT_TRUE(m_dlg.UpdateData(TRUE));
    EXPECT_EQ(m_dlg.m_strText, L"x\ty");
    EXPECT_EQ(m_dlg.m_nInt, 2147483647);
    EXPECT_EQ(m_dlg.m_dValue, -1500);
    EXPECT_EQ(m_dlg.m_nCheck, BST_CHECKED);
    EXPECT_EQ(m_dlg.m_nRadio, 1);
    EXPECT_EQ(m_dlg.m_nCombo, 0);
    EXPECT_EQ(m_dlg.m_nList, 0);
}

TEST_F(DataExchange, GroupWithoutACheckedButtonIsMinusOne)
{
    m_dlg.m_nRadio = -1;
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(m_dlg.GetCheckedRadioButton(IDC_RADIO1, IDC_RADIO3), 0);
    m_dlg.m_nRadio = 5;
    ASSERT_TRUE(m_dlg.UpdateData(TRUE));
    EXPECT_EQ(m_dlg.m_nRadio, -1);
}

TEST_F(DataExchange, ComboBoxTextSelectsItsLineOrStandsInTheEditPart)
{
    m_dlg.m_bComboText = TRUE;
    auto* pCombo = static_cast<CComboBox*>(m_dlg.GetDlgItem(IDC_COMBO));
    m_dlg.m_strCombo = L"Beta";
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(pCombo->GetCurSel(), 1);
    m_dlg.m_strCombo = L"Other";
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(Text(IDC_COMBO), L"Other");
    m_dlg.Set(IDC_COMBO, L"Typed");
    ASSERT_TRUE(m_dlg.UpdateData(TRUE));
    EXPECT_EQ(m_dlg.m_strCombo, L"Typed");
}

TEST_F(DataExchange, TextThatIsNoNumberIsRefusedWithFocusAndSelection)
{
    for (LPCTSTR psz : {L"", L"abc", L"12x", L"2147483648", L"1.5"})
    {
        m_dlg.m_nInt = 3;
        ExpectRefused(IDC_INT, psz, L"Please enter an integer.");
        EXPECT_EQ(m_dlg.m_nInt, 3);
    }
    m_dlg.Set(IDC_INT, L"1");
    for (LPCTSTR psz : {L"", L"e5", L"1,5", L"1e999", L"nan"})
        ExpectRefused(IDC_DOUBLE, psz, L"Please enter a number.");
}

TEST_F(DataExchange, ValueOutsideItsBoundsIsRefusedAndBothBoundsAreAllowed)
{
    m_dlg.m_nMin = 1;
    m_dlg.m_nMax = 10;
    ExpectRefused(IDC_INT, L"0", L"Please enter an integer between 1 and 10.");
    ExpectRefused(IDC_INT, L"11", L"Please enter an integer between 1 and 10.");
    m_dlg.m_dMax = 2.5;
    for (LPCTSTR psz : {L"1", L"10"})
    {
        m_dlg.Set(IDC_INT, psz);
        EXPECT_TRUE(m_dlg.UpdateData(TRUE));
    }
    ExpectRefused(IDC_DOUBLE, L"2.51", L"Please enter a number between -2.5 and 2.5.");
    m_dlg.Set(IDC_DOUBLE, L"2.5");
    EXPECT_TRUE(m_dlg.UpdateData(TRUE));
}

TEST_F(DataExchange, LengthLimitHoldsForTypingAndForWhatIsSetOtherwise)
{
    m_dlg.m_nMaxChars = 4;
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(static_cast<CEdit*>(m_dlg.GetDlgItem(IDC_TEXT))->GetLimitText(), 4u);
    ExpectRefused(IDC_TEXT, L"12345", L"Please enter no more than 4 characters.");
    m_dlg.Set(IDC_TEXT, L"1234");
    EXPECT_TRUE(m_dlg.UpdateData(TRUE));
}

TEST_F(DataExchange, FillingTheDialogIsNoChangeByTheUser)
{
    m_dlg.m_nChanges = 0;
    m_dlg.m_strText = L"filled";
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(m_dlg.m_nChanges, 0);
    m_dlg.Set(IDC_TEXT, L"typed");
    EXPECT_EQ(m_dlg.m_nChanges, 1);
}

TEST_F(DataExchange, ControlMembersAreAttachedOnceAndGoWithTheWindow)
{
    const HWND hButton = m_dlg.m_button.m_hWnd;
    EXPECT_EQ(hButton, ::GetDlgItem(m_dlg.m_hWnd, IDC_BUTTON));
    ASSERT_TRUE(m_dlg.UpdateData(FALSE));
    EXPECT_EQ(m_dlg.m_button.m_hWnd, hButton);
    m_dlg.DestroyWindow();
    EXPECT_EQ(m_dlg.m_button.m_hWnd, nullptr);
}

TEST_F(DataExchange, DialogStaysOpenWhileItsDataIsRefused)
{
    class CChecked : public CFormDlg
    {
    public:
        using CFormDlg::OnOK;
    };
    CChecked dlg;
    ASSERT_TRUE(dlg.Create(IDD_FORM));
    dlg.Set(IDC_INT, L"wrong");
    dlg.ShowWindow(SW_SHOW);
    dlg.OnOK();
    EXPECT_TRUE(dlg.IsWindowVisible());
    dlg.Set(IDC_INT, L"1");
    dlg.OnOK();
    EXPECT_FALSE(dlg.IsWindowVisible()); // a modeless dialog is hidden
    dlg.DestroyWindow();
}

TEST_F(DataExchange, WithoutAWindowNothingIsExchanged)
{
    CFormDlg dlg;
    EXPECT_FALSE(dlg.UpdateData(TRUE));
}
} // namespace
