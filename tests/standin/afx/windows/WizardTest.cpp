#include "TestSheet.h"

namespace
{
class Wizards : public WindowTest
{
protected:
    Log m_log;
    CHostWnd m_host;
    CStepSheet m_sheet{m_log, &m_host};
    CLogPage m_first{IDD_PAGE1, "1", m_log};
    CLogPage m_second{IDD_PAGE2, "2", m_log};
    CLogPage m_third{IDD_PAGE3, "3", m_log};

    void SetUp() override
    {
        WindowTest::SetUp();
        m_sheet.AddPage(&m_first);
        m_sheet.AddPage(&m_second);
        m_sheet.AddPage(&m_third);
        m_sheet.SetWizardMode();
        m_first.m_onSetActive = [this] { m_sheet.SetWizardButtons(PSWIZB_NEXT); };
        m_second.m_onSetActive = [this] { m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_NEXT); };
        m_third.m_onSetActive = [this] { m_sheet.SetWizardButtons(PSWIZB_BACK | PSWIZB_FINISH); };
    }
    Log Take() { return std::exchange(m_log, {}); }
    std::function<void()> Press(int nButton, Log& log)
    {
        return [this, nButton, &log] {
            Take();
            m_sheet.PressButton(nButton);
            log = Take();
        };
    }
};

TEST_F(Wizards, NextBackAndFinishLeadThroughThePages)
{
    EXPECT_TRUE(m_sheet.IsWizard());
    Log toSecond;
    Log back;
    Log toThird;
    Log finish;
    m_sheet.m_steps = {[&] {
                           EXPECT_TRUE(m_first.IsButtonEnabled(PSBTN_NEXT));
                           EXPECT_FALSE(m_first.IsButtonEnabled(PSBTN_BACK));
                       },
                       Press(PSBTN_NEXT, toSecond),
                       [&] { EXPECT_TRUE(m_second.IsButtonEnabled(PSBTN_BACK)); },
                       Press(PSBTN_BACK, back),
                       [&] { m_sheet.PressButton(PSBTN_NEXT); },
                       Press(PSBTN_NEXT, toThird),
                       Press(PSBTN_FINISH, finish)};
    EXPECT_EQ(m_sheet.DoModal(), static_cast<INT_PTR>(ID_WIZFINISH));
    EXPECT_EQ(toSecond, (Log{"1 next", "1 kill active", "2 init", "2 set active"}));
    EXPECT_EQ(back, (Log{"2 back", "2 kill active", "1 set active"}));
    EXPECT_EQ(toThird, (Log{"2 next", "2 kill active", "3 init", "3 set active"}));
    EXPECT_NE(std::find(finish.begin(), finish.end(), "3 finish"), finish.end());
}

TEST_F(Wizards, PageMayHoldTheUserOrSendHimElsewhere)
{
    int nHeld = -1;
    int nSent = -1;
    int nSentBack = -1;
    m_sheet.m_steps = {[&] {
                           m_first.m_lNext = -1;
                           m_sheet.PressButton(PSBTN_NEXT);
                           nHeld = m_sheet.GetActiveIndex();
                       },
                       [&] {
                           m_first.m_lNext = IDD_PAGE3;
                           m_sheet.PressButton(PSBTN_NEXT);
                           nSent = m_sheet.GetActiveIndex();
                       },
                       [&] {
                           m_third.m_lBack = IDD_PAGE1;
                           m_sheet.PressButton(PSBTN_BACK);
                           nSentBack = m_sheet.GetActiveIndex();
                       },
                       [&] { m_sheet.PressButton(PSBTN_CANCEL); }};
    EXPECT_EQ(m_sheet.DoModal(), IDCANCEL);
    EXPECT_EQ(nHeld, 0);
    EXPECT_EQ(nSent, 2);
    EXPECT_EQ(nSentBack, 0);
}

TEST_F(Wizards, FinishMayBeRefusedAndHasItsOwnText)
{
    m_third.m_bFinishes = FALSE;
    CString strText;
    m_sheet.SetActivePage(2);
    m_third.m_onSetActive = [this] { m_sheet.SetFinishText(L"Build"); };
    m_sheet.m_steps = {[&] {
                           if (CWnd* pFinish = m_sheet.GetDlgItem(ID_WIZFINISH))
                               pFinish->GetWindowText(strText);
                           m_sheet.PressButton(PSBTN_FINISH);
                       },
                       [&] {
                           EXPECT_NE(m_sheet.m_hWnd, nullptr);
                           EXPECT_EQ(m_sheet.GetActivePage(), &m_third);
                           m_third.m_bFinishes = TRUE;
                           m_sheet.PressButton(PSBTN_FINISH);
                       }};
    EXPECT_EQ(m_sheet.DoModal(), static_cast<INT_PTR>(ID_WIZFINISH));
    EXPECT_EQ(strText, L"Build");
}

TEST_F(Wizards, CancelAsksThePage)
{
    m_first.m_bMayCancel = FALSE;
    m_sheet.m_steps = {[&] {
                           m_sheet.PressButton(PSBTN_CANCEL);
                           EXPECT_EQ(m_sheet.GetActivePage(), &m_first);
                       },
                       [&] {
                           m_first.m_bMayCancel = TRUE;
                           m_sheet.PressButton(PSBTN_CANCEL);
                       }};
    EXPECT_EQ(m_sheet.DoModal(), IDCANCEL);
}
} // namespace
