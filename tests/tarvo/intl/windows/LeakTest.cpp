#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/InternationalFormView.h"
#include "tarvo/intl/InternationalPropertySheet.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tests/standin/afx/windows/HandleCount.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <functional>

namespace
{
constexpr int kRounds = 1000;

class CRoundDlg : public CInternationalDlg
{
public:
    using CInternationalDlg::CInternationalDlg;
    void SetText() override
    {
        if (m_bModal)
            EndDialog(IDOK);
    }
    int TranslateStringToINI() override { return TranslateByTable(GetDlgResID()); }
    bool m_bModal = false;
};

class CRoundForm : public CInternationalFormView
{
public:
    CRoundForm() : CInternationalFormView(IDD_VIEW_FORM) {}
};

class CRoundPage : public CInternationalPropertyPage
{
public:
    using CInternationalPropertyPage::CInternationalPropertyPage;
};

class CRoundSheet : public CInternationalPropertySheet
{
public:
    using CInternationalPropertySheet::CInternationalPropertySheet;
    void SetText() override { EndDialog(IDOK); }
};

/// A thousand rounds of a window leave nothing behind.
class ThousandRounds : public IntlWindows
{
protected:
    void Run(const std::function<void()>& round)
    {
        for (int i = 0; i < 5; ++i)
            round(); // the system keeps some of the first
        theApp.OnIdle(1);
        const int objects = CountDrawingObjects();
        const int windows = CountWindows();
        ASSERT_GT(objects, 0);
        for (int i = 0; i < kRounds; ++i)
        {
            round();
            theApp.OnIdle(1);
        }
        EXPECT_LE(CountDrawingObjects(), objects);
        EXPECT_LE(CountWindows(), windows);
        EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
    }
    CHostWnd host;
};
} // namespace

TEST_F(ThousandRounds, OfAModalDialogLoseNothing)
{
    Run([&] {
        CRoundDlg dlg(IDD_SETUP, &host);
        dlg.m_bModal = true;
        EXPECT_EQ(dlg.DoModal(), IDOK);
    });
}

TEST_F(ThousandRounds, OfAModelessDialogThatChangesItsLanguageLoseNothing)
{
    int n = 0;
    Run([&] {
        CRoundDlg dlg(IDD_SETUP, &host);
        ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
        ++n % 2 ? SpeakGerman() : SpeakFrench();
        SetTextFont(n % 2 ? "Lucida Console" : "Tahoma");
        Set(L"DlgFontSize_Std", n % 2 ? L"12" : L"9");
        EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
        dlg.DestroyWindow();
    });
}

TEST_F(ThousandRounds, OfAFormViewLoseNothing)
{
    Run([&] {
        auto* const form = new CRoundForm;
        ASSERT_TRUE(form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 200, 100), &host, 7));
        form->OnInitialUpdate();
        form->DestroyWindow();
    });
}

TEST_F(ThousandRounds, OfASheetWithItsPagesLoseNothing)
{
    Run([&] {
        CRoundPage one(IDD_PAGE_ONE), two(IDD_PAGE_TWO);
        CRoundSheet sheet(IDS_SHEET_CAPTION, &host);
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        EXPECT_EQ(sheet.DoModal(), IDOK);
    });
}

TEST_F(ThousandRounds, OfASheetThatGrowsAndChangesItsFontsLoseNothing)
{
    Run([&] {
        Set(L"DlgFontSize_Std", L"14");
        CRoundPage one(IDD_PAGE_ONE), two(IDD_PAGE_TWO);
        CInternationalPropertySheet sheet(L"Sheet");
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        ASSERT_TRUE(sheet.Create(&host));
        Set(L"DlgFontSize_Std", L"9");
        EXPECT_EQ(CLanguageSwitch::Retranslate(), 2);
        sheet.DestroyWindow();
    });
}

TEST_F(ThousandRounds, OfAModelessSheetWithAllPagesMadeLoseNothing)
{
    Run([&] {
        CRoundPage one(IDD_PAGE_ONE), two(IDD_PAGE_TWO);
        CInternationalPropertySheet sheet(L"Sheet");
        sheet.AddPage(&one);
        sheet.AddPage(&two);
        ASSERT_TRUE(sheet.Create(&host));
        sheet.SetActivePage(1);
        sheet.DestroyWindow();
    });
}
