#include "tarvo/intl/InternationalDlg.h"

#include "tarvo/intl/InternationalUtil.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/intl/LocaleLib.h"
#include "tarvo/intl/TemplateFont.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <afxpriv.h>

#include <functional>

namespace
{
/// A dialog whose behaviour each test gives; it notes what happens in which order.
class CSetupDlg : public CInternationalDlg
{
    DECLARE_DYNCREATE(CSetupDlg)

public:
    explicit CSetupDlg(UINT id = IDD_SETUP, CWnd* parent = nullptr) : CInternationalDlg(id, parent) {}
    explicit CSetupDlg(LPCTSTR name) : CInternationalDlg(name) {}
    using CInternationalDlg::m_lpszTemplateName;
    using CInternationalDlg::SetDlgResID_o;

    BOOL OnInitDialog() override
    {
        result = CInternationalDlg::OnInitDialog();
        log += L"init ";
        if (onInit)
            onInit();
        return result;
    }
    void SetText() override
    {
        log += L"text ";
        if (onText)
            onText();
    }
    int TranslateStringToINI() override
    {
        log += L"translate ";
        return CInternationalDlg::TranslateStringToINI();
    }
    void PostNcDestroy() override
    {
        CInternationalDlg::PostNcDestroy();
        log += L"gone";
        if (selfDeleting)
            delete this;
    }
    void Press(int id) { PostMessage(WM_COMMAND, Clicked(id)); }

    std::function<void()> onInit, onText;
    std::wstring log;
    BOOL result = -1;
    bool selfDeleting = false;
};

IMPLEMENT_DYNCREATE(CSetupDlg, CInternationalDlg)

class InternationalDialogs : public IntlWindows
{
};

/// Notes every WM_SETFONT that a control gets, and whether it was to redraw itself.
std::wstring g_fonts;
WNDPROC g_former;
LRESULT CALLBACK NoteFonts(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SETFONT)
        g_fonts += lParam ? L"redraw " : L"silent ";
    return ::CallWindowProcW(g_former, window, message, wParam, lParam);
}
} // namespace

TEST_F(InternationalDialogs, ComeUpInTheDialogFontAndGiveTheTextFontToEveryWindowBelow)
{
    Set(L"DlgFontName_Std", L"Arial");
    Set(L"DlgFontSize_Std", L"12");
    Set(L"DlgFontSize_Eng", L"10");
    SetTextFont("Lucida Console  ");
    CSetupDlg dlg;
    dlg.onInit = [&] {
        EXPECT_EQ(FontOf(dlg.m_hWnd), L"Arial -16") << "the dialog itself keeps its template's";
        ::EnumChildWindows(
            dlg.m_hWnd,
            [](HWND child, LPARAM) -> BOOL {
                if (::GetDlgCtrlID(child) != IDC_PICTURE) // it has no use for a font
                {
                    EXPECT_EQ(FontOf(child), L"Lucida Console -13") << ::GetDlgCtrlID(child);
                }
                return TRUE;
            },
            0);
        EXPECT_STREQ(dlg.GetTextLogFont().lfFaceName, L"Lucida Console");
        EXPECT_EQ(dlg.GetTextLogFont().lfHeight, -13);
        EXPECT_EQ(::GetObjectType(dlg.GetTextFont()), static_cast<DWORD>(OBJ_FONT));
        dlg.EndDialog(77);
    };
    EXPECT_EQ(dlg.DoModal(), 77);
    EXPECT_EQ(dlg.result, TRUE);
    EXPECT_EQ(dlg.GetTextFont(), nullptr);
    EXPECT_EQ(dlg.log, L"init translate text gone");
}

TEST_F(InternationalDialogs, SizeFollowsTheDialogFont)
{
    CSize small, large;
    for (const auto& [points, size] : {std::pair(L"8", &small), std::pair(L"16", &large)})
    {
        Set(L"DlgFontSize_Std", points);
        CSetupDlg dlg;
        dlg.onInit = [&, out = size] {
            CRect client;
            dlg.GetClientRect(client);
            *out = client.Size();
            dlg.EndDialog(IDOK);
        };
        dlg.DoModal();
    }
    EXPECT_GT(large.cx, small.cx * 3 / 2);
    EXPECT_GT(large.cy, small.cy * 3 / 2);
}

TEST_F(InternationalDialogs, WithoutASizeKeepTheTemplates)
{
    Set(L"DlgFontSize_Std", L"");
    CSetupDlg dlg;
    dlg.onInit = [&] {
        EXPECT_EQ(FontOf(dlg.m_hWnd), L"Tahoma -12");
        dlg.EndDialog(IDOK);
    };
    dlg.DoModal();
}

TEST_F(InternationalDialogs, LabelsAreRaisedAndListsFilledFromTheTemplate)
{
    Set(L"DlgFontSize_Std", L"8");
    CSetupDlg dlg;
    dlg.onInit = [&] {
        EXPECT_EQ(HeightOf(*dlg.GetDlgItem(IDC_LABEL)), 13);
        EXPECT_EQ(HeightOf(*dlg.GetDlgItem(IDC_NOTE)), 26);
        EXPECT_EQ(dlg.SendDlgItemMessage(IDC_UNIT, CB_GETCOUNT), 2);
        EXPECT_EQ(dlg.m_lpszTemplateName, nullptr);
        dlg.EndDialog(IDOK);
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
}

TEST_F(InternationalDialogs, SendTheTextFontFirstWithoutAndThenWithRedraw)
{
    class CNotingDlg : public CSetupDlg
    {
    protected:
        void PreInitDialog() override
        {
            g_former = reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(
                ::GetDlgItem(m_hWnd, IDC_LABEL), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(NoteFonts)));
        }
    };
    g_fonts.clear();
    CNotingDlg dlg;
    dlg.onInit = [&] { dlg.EndDialog(IDOK); };
    dlg.DoModal();
    EXPECT_EQ(g_fonts, L"silent redraw ");
}

namespace
{
int g_raised;
/// A label that stays as low as it is, however often it is raised.
LRESULT CALLBACK StayLow(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_WINDOWPOSCHANGING)
    {
        ++g_raised;
        reinterpret_cast<WINDOWPOS*>(lParam)->flags |= SWP_NOSIZE;
    }
    return ::CallWindowProcW(g_former, window, message, wParam, lParam);
}
} // namespace

TEST_F(InternationalDialogs, RaiseLabelsTwiceOnAnEnglishOrRussianSystemAndOnceOnOthers)
{
    class CLowDlg : public CSetupDlg
    {
    protected:
        void PreInitDialog() override
        {
            const HWND label = ::GetDlgItem(m_hWnd, IDC_LABEL);
            ::SetWindowPos(label, nullptr, 0, 0, 60, 8, SWP_NOMOVE | SWP_NOZORDER);
            g_raised = 0;
            g_former = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtrW(label, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(StayLow)));
        }
    };
    CLowDlg dlg;
    dlg.onInit = [&] { dlg.EndDialog(IDOK); };
    dlg.DoModal();
    EXPECT_EQ(g_raised, CLocaleLib::IsEnglish() || CLocaleLib::IsRussian() ? 2 : 1);
}

TEST_F(InternationalDialogs, OfFiveHundredNestedChildrenGiveTheFontToAll)
{
    class CNestedDlg : public CSetupDlg
    {
    public:
        std::vector<HWND> nested;

    protected:
        void PreInitDialog() override
        {
            HWND parent = m_hWnd;
            for (int i = 0; i < 500 && parent; ++i)
            {
                parent = ::CreateWindowExW(0, L"Static", L"x", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, parent,
                                           nullptr, nullptr, nullptr);
                if (parent)
                    nested.push_back(parent);
            }
        }
    };
    CNestedDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    ASSERT_EQ(dlg.nested.size(), 500u) << "the system has no limit at this depth";
    dlg.ShowWindow(SW_SHOW);
    PumpAll();
    for (const HWND window : dlg.nested)
        EXPECT_EQ(FontOf(window), L"Tahoma -12");
    SetTextFont("Lucida Console");
    EXPECT_EQ(CLanguageSwitch::Retranslate(), 1);
    PumpAll();
    for (const HWND window : dlg.nested)
        EXPECT_EQ(FontOf(window), L"Lucida Console -12");
    dlg.DestroyWindow();
}

TEST_F(InternationalDialogs, ModelessOneTakesTheTemplatesIdForItsOwnUnlessItHasOne)
{
    CSetupDlg dlg(0u);
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    EXPECT_EQ(dlg.GetDlgResID(), static_cast<UINT>(IDD_SETUP));
    EXPECT_EQ(dlg.log, L"init translate text ");
    EXPECT_EQ(FontOf(dlg.m_hWnd), L"Tahoma -12");
    dlg.DestroyWindow();
    CSetupDlg other(IDD_OLD_FORM);
    ASSERT_TRUE(other.Create(IDD_SETUP));
    EXPECT_EQ(other.GetDlgResID(), static_cast<UINT>(IDD_OLD_FORM));
    EXPECT_NE(other.GetDlgItem(IDC_UNIT), nullptr);
    other.DestroyWindow();
}

TEST_F(InternationalDialogs, StandWhereTheirTemplateSays)
{
    CHostWnd host;
    CSetupDlg dlg(IDD_SETUP, &host);
    ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
    CRect units(40, 30, 0, 0);
    CPoint client, inside;
    dlg.MapDialogRect(units);
    host.ClientToScreen(&client);
    dlg.ClientToScreen(&inside);
    EXPECT_EQ(inside, client + CSize(units.left, units.top));
    dlg.DestroyWindow();
}

TEST_F(InternationalDialogs, TemplateOfTheOlderFormWorksAndTheObjectCanBeShownAgain)
{
    Set(L"DlgFontSize_Std", L"12");
    CSetupDlg dlg(IDD_OLD_FORM);
    for (int i = 0; i < 2; ++i)
    {
        dlg.onInit = [&] {
            EXPECT_EQ(FontOf(dlg.m_hWnd), L"Tahoma -16");
            EXPECT_EQ(TextsOf(dlg.m_hWnd), L"Old|Name|OK");
            dlg.Press(IDOK);
        };
        EXPECT_EQ(dlg.DoModal(), IDOK);
    }
}

TEST_F(InternationalDialogs, MissingTemplateIsAnsweredByZeroAndMinusOne)
{
    CSetupDlg dlg(999);
    CDialogTemplate memory;
    EXPECT_EQ(dlg.ChangeDlgFont(memory, L"Tahoma", 9), 0);
    EXPECT_EQ(memory.m_hTemplate, nullptr);
    EXPECT_EQ(dlg.DoModal(), -1);
    EXPECT_FALSE(dlg.Create(999u));
    EXPECT_FALSE(dlg.Create(L"NOT_THERE"));
    EXPECT_EQ(dlg.log, L"");
}

TEST_F(InternationalDialogs, ChangeDlgFontPutsTheFontIntoTheTemplate)
{
    CSetupDlg dlg;
    CDialogTemplate memory;
    ASSERT_EQ(dlg.ChangeDlgFont(memory, L"Arial", 11), 1);
    CString face;
    WORD points = 0;
    EXPECT_TRUE(memory.GetFont(face, points));
    EXPECT_EQ(face, L"Arial");
    EXPECT_EQ(points, 11);
    dlg.onInit = [&] {
        EXPECT_EQ(FontOf(dlg.m_hWnd), L"Arial -15");
        dlg.EndDialog(5);
    };
    EXPECT_EQ(dlg.CBCGPDialog::DoModal(), 5);
}

TEST_F(InternationalDialogs, FontThatDoesNotExistIsNoHindrance)
{
    Set(L"DlgFontName_Std", L"No such face at all");
    SetTextFont("Neither this");
    CSetupDlg dlg;
    dlg.onInit = [&] { dlg.Press(IDOK); };
    EXPECT_EQ(dlg.DoModal(), IDOK);
    SetTextFont("");
    EXPECT_EQ(dlg.DoModal(), IDOK);
}

TEST_F(InternationalDialogs, ClosedFromTheirOwnInitialisationEndAtOnce)
{
    CSetupDlg ended;
    ended.onInit = [&] { ended.EndDialog(78); };
    EXPECT_EQ(ended.DoModal(), 78);
    CSetupDlg destroyed;
    destroyed.onInit = [&] { destroyed.DestroyWindow(); };
    EXPECT_EQ(destroyed.DoModal(), -1);
    EXPECT_EQ(destroyed.log, L"init gone") << "no text for a window that is gone";
    EXPECT_FALSE(destroyed.Create(IDD_SETUP));
    auto* self = new CSetupDlg;
    self->selfDeleting = true;
    self->onInit = [&] { self->DestroyWindow(); };
    EXPECT_FALSE(self->Create(IDD_SETUP));
    auto* fromText = new CSetupDlg;
    fromText->selfDeleting = true;
    fromText->onText = [&] { fromText->DestroyWindow(); };
    EXPECT_FALSE(fromText->Create(IDD_SETUP));
    EXPECT_TRUE(CLanguageWindow::GetOpenWindows().empty());
}

TEST_F(InternationalDialogs, AreDynamicallyCreatable)
{
    CRuntimeClass* const kind = RUNTIME_CLASS(CInternationalDlg);
    auto* const made = static_cast<CInternationalDlg*>(kind->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CBCGPDialog)));
    EXPECT_EQ(made->TranslateStringToINI(), 0);
    EXPECT_EQ(made->GetDlgResID(), 0u);
    EXPECT_TRUE(made->GetWorkingFolder().IsEmpty() && made->GetScriptFile().IsEmpty() &&
                made->GetSecondScriptFile().IsEmpty() && made->GetChangerText().IsEmpty() &&
                made->GetChangerNote().IsEmpty());
    delete made;
}

TEST_F(InternationalDialogs, DialogInMemoryKeepsTheFontThatItNames)
{
    CDialogTemplate memory;
    memory.Load(MAKEINTRESOURCEW(IDD_OLD_FORM));
    CSetupDlg dlg(0u);
    dlg.InitModalIndirect(memory.m_hTemplate, nullptr);
    dlg.onInit = [&] {
        EXPECT_EQ(FontOf(dlg.m_hWnd), L"Tahoma -11");
        dlg.EndDialog(6);
    };
    EXPECT_EQ(dlg.DoModal(), 6);
}

namespace
{
/// Keeps what the changer would have been opened with.
class CNotingOpener : public IRcStringOpener
{
public:
    CNotingOpener() { Register(this); }
    void Open(const CRcStringExtract& preset) override { presets.push_back(preset); }
    std::vector<CRcStringExtract> presets;
};

void Press(HWND window, UINT message, LPARAM flags)
{
    ::PostMessageW(window, message, VK_F12, flags);
    PumpAll();
}

constexpr LPARAM kAlt = 0x20580001;
} // namespace

TEST_F(InternationalDialogs, AltF12OpensTheResourceChangerOnThem)
{
    CNotingOpener opener;
    CSetupDlg dlg;
    dlg.SetWorkingFolder(L"C:\\Work");
    dlg.SetScriptFiles(L"Setup_kr.rc", L"Setup_us.rc");
    dlg.SetChangerTexts(L"a text", L"a note");
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    Press(dlg.m_hWnd, WM_KEYDOWN, 1);
    EXPECT_TRUE(opener.presets.empty()) << "F12 without Alt does nothing";
    Press(dlg.GetDlgItem(IDC_NAME_EDIT)->m_hWnd, WM_SYSKEYDOWN, kAlt);
    ASSERT_EQ(opener.presets.size(), 1u);
    const CRcStringExtract& preset = opener.presets[0];
    EXPECT_EQ(preset.pDialog, &dlg);
    EXPECT_EQ(preset.strFile1, L"C:\\Work\\RCFiles\\Setup_kr.rc");
    EXPECT_EQ(preset.strFile2, L"C:\\Work\\RCFiles\\Setup_us.rc");
    EXPECT_EQ(preset.strCurrentFile, preset.strFile1);
    EXPECT_EQ(preset.nDlgResID, static_cast<UINT>(IDD_SETUP));
    EXPECT_EQ(preset.strDlgResSymbol, L"IDD_SETUP") << "the module's header knows it";
    EXPECT_EQ(preset.strText, L"a text");
    EXPECT_EQ(preset.pLists, &dlg.GetControlLists());
    EXPECT_EQ(preset.nLanguage, 0);
    dlg.DestroyWindow();
}

TEST_F(InternationalDialogs, WithoutAnOpenerAltF12DoesNothing)
{
    ASSERT_EQ(IRcStringOpener::Instance(), nullptr);
    CSetupDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    Press(dlg.m_hWnd, WM_SYSKEYDOWN, kAlt);
    EXPECT_EQ(dlg.SendMessage(WM_QORVEL_RC_STRING_EXTRACT), 0);
    dlg.DestroyWindow();
    EXPECT_EQ(WM_QORVEL_RC_STRING_EXTRACT, ::RegisterWindowMessageW(L"WM_QORVEL_RC_STRING_EXTRACT"));
}

TEST_F(InternationalDialogs, PointedAtAnotherResourceForgetTheChangersLists)
{
    CSetupDlg dlg;
    dlg.GetControlLists().arrKorean.push_back({1, L"IDC_A", L"a"});
    dlg.GetControlLists().arrPlace.push_back({1, CRect(0, 0, 1, 1)});
    dlg.SetDlgResID_o(IDD_OLD_FORM, L"IDD_OTHER");
    EXPECT_TRUE(dlg.GetControlLists().arrKorean.empty() && dlg.GetControlLists().arrPlace.empty());
    EXPECT_EQ(dlg.GetDlgResSymbol(), L"IDD_OTHER");
    dlg.onInit = [&] {
        EXPECT_EQ(TextsOf(dlg.m_hWnd), L"Old|Name|OK");
        dlg.EndDialog(IDOK);
    };
    EXPECT_EQ(dlg.DoModal(), IDOK);
}

namespace
{
class CDarkSkin : public ISkinFunc
{
public:
    CDarkSkin() { Register(this); }
    ~CDarkSkin() override { ::DeleteObject(brush); }
    int UsesVisualManager(CWnd*, SKIN_WINDOW kind) override { return kind == SKIN_WINDOW::Dialog; }
    void OnWindowReady(CWnd* window, SKIN_WINDOW) override { ready.push_back(window); }
    HBRUSH GetBackground(CWnd*, HDC, HWND, UINT message) override
    {
        return message == WM_CTLCOLORSTATIC ? brush : nullptr;
    }
    HBRUSH brush = ::CreateSolidBrush(RGB(1, 2, 3));
    std::vector<CWnd*> ready;
};
} // namespace

TEST_F(InternationalDialogs, AreThemedByTheRegisteredSkin)
{
    CDarkSkin skin;
    CSetupDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    EXPECT_TRUE(dlg.IsVisualManagerStyle());
    EXPECT_EQ(skin.ready, std::vector<CWnd*>{&dlg});
    CClientDC device(&dlg);
    const auto brush = [&](UINT message, int id) {
        return reinterpret_cast<HBRUSH>(
            dlg.SendMessage(message, reinterpret_cast<WPARAM>(device.m_hDC),
                            reinterpret_cast<LPARAM>(dlg.GetDlgItem(id)->m_hWnd)));
    };
    EXPECT_EQ(brush(WM_CTLCOLORSTATIC, IDC_LABEL), skin.brush);
    EXPECT_NE(brush(WM_CTLCOLOREDIT, IDC_NAME_EDIT), skin.brush);
    dlg.DestroyWindow();
}
