#include "tarvo/intl/InternationalFormView.h"

#include "tarvo/intl/LocaleLib.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <afxext.h>

namespace
{
class CTestForm : public CInternationalFormView
{
    DECLARE_DYNCREATE(CTestForm)

public:
    CTestForm() : CInternationalFormView(IDD_VIEW_FORM) { ++s_alive; }
    explicit CTestForm(UINT id) : CInternationalFormView(id) { ++s_alive; }
    ~CTestForm() override { --s_alive; }
    void OnInitialUpdate() override
    {
        CInternationalFormView::OnInitialUpdate();
        log += L"init ";
    }
    void SetText() override { log += L"text "; }
    int TranslateStringToINI() override
    {
        translated = CInternationalFormView::TranslateStringToINI();
        log += L"translate ";
        return translated;
    }
    std::wstring log;
    int translated = -1;
    static int s_alive;
};

int CTestForm::s_alive = 0;
IMPLEMENT_DYNCREATE(CTestForm, CInternationalFormView)

class InternationalForms : public IntlWindows
{
protected:
    CTestForm* Make(UINT id = IDD_VIEW_FORM, const CRect& rect = CRect(5, 6, 205, 106))
    {
        auto* form = new CTestForm(id);
        return form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, rect, &host, 7, nullptr) ? form
                                                                                              : nullptr;
    }
    CHostWnd host;
};
} // namespace

TEST_F(InternationalForms, AreMadeInTheDialogFontWhereTheHostWantsThem)
{
    Set(L"DlgFontName_Std", L"Arial");
    Set(L"DlgFontSize_Std", L"12");
    CTestForm* const form = Make();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(FontOf(form->m_hWnd), L"Arial -16");
    CRect place;
    form->GetWindowRect(place);
    host.ScreenToClient(place);
    EXPECT_EQ(place, CRect(5, 6, 205, 106));
    EXPECT_TRUE(form->IsWindowVisible());
    EXPECT_EQ(form->GetDlgCtrlID(), 7);
    EXPECT_EQ(form->GetFormResID(), static_cast<UINT>(IDD_VIEW_FORM));
    form->DestroyWindow();
    EXPECT_EQ(CTestForm::s_alive, 0);
}

TEST_F(InternationalForms, GiveTheTextFontToTheirTextsOnlyWhereTheInterfaceIsNotKorean)
{
    SetTextFont("Lucida Console");
    CTestForm* const form = Make();
    ASSERT_NE(form, nullptr);
    form->OnInitialUpdate();
    for (const int id : {IDC_LABEL, IDC_NAME_EDIT, IDC_USE})
        EXPECT_EQ(FontOf(form->GetDlgItem(id)->m_hWnd),
                  CLocaleLib::bKoreanUILanguage ? L"Tahoma -12" : L"Lucida Console -12");
    EXPECT_EQ(form->GetTextFont() == nullptr, CLocaleLib::bKoreanUILanguage == 1);
    EXPECT_GE(HeightOf(form->GetDlgItem(IDC_LABEL)->m_hWnd), CLocaleLib::bKoreanUILanguage ? 1 : 13);
    form->DestroyWindow();
}

TEST_F(InternationalForms, AreTranslatedByTheirModulesTable)
{
    SpeakGerman();
    CTestForm* const form = Make();
    ASSERT_NE(form, nullptr);
    form->SendMessage(WM_INITIALUPDATE);
    EXPECT_EQ(TextsOf(form->m_hWnd), L"|Bezeichnung||Benutzen|No symbol");
    EXPECT_NE(form->translated, 0);
    EXPECT_EQ(form->log, L"init translate text ");
    form->DestroyWindow();
}

TEST_F(InternationalForms, InitialisedByTheProgramItselfHaveTheirTextsWhenItReturns)
{
    SpeakGerman();
    CTestForm* const form = Make();
    ASSERT_NE(form, nullptr);
    form->OnInitialUpdate();
    EXPECT_EQ(TextsOf(form->m_hWnd), L"|Bezeichnung||Benutzen|No symbol");
    EXPECT_EQ(form->log, L"translate text init ");
    form->DestroyWindow();
}

TEST_F(InternationalForms, WithoutALanguageTableStayAsTheirTemplateSays)
{
    SpeakGerman();
    INIResourceManager::DeleteINIResource();
    CTestForm* const form = Make();
    ASSERT_NE(form, nullptr);
    form->OnInitialUpdate();
    EXPECT_EQ(form->translated, 0);
    EXPECT_EQ(TextsOf(form->m_hWnd), L"|Name||Use|No symbol");
    form->DestroyWindow();
}

TEST_F(InternationalForms, TemplateThatIsMissingOrNoChildIsRefusedAndTheObjectGoes)
{
    EXPECT_EQ(Make(999), nullptr);
    EXPECT_EQ(Make(IDD_SETUP), nullptr);
    EXPECT_EQ(CTestForm::s_alive, 0);
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(InternationalForms, LiveInAFrame)
{
    SpeakGerman();
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(CTestForm);
    auto* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, L"frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 400, 300), nullptr, nullptr,
                              0, &context));
    frame->InitialUpdateFrame(nullptr, TRUE);
    CView* const view = frame->GetActiveView();
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(TextsOf(view->m_hWnd), L"|Bezeichnung||Benutzen|No symbol");
    EXPECT_EQ(CLanguageWindow::GetOpenWindows().size(), 1u);
    frame->DestroyWindow();
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}
