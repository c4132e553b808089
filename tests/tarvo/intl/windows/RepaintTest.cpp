#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/intl/WindowText_windows.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <map>

// What is painted when the language changes.

namespace
{
class CPaintedDlg : public CInternationalDlg
{
public:
    explicit CPaintedDlg(CWnd* parent) : CInternationalDlg(IDD_SETUP, parent) {}
    int TranslateStringToINI() override { return TranslateByTable(GetDlgResID()); }
};

struct Watched
{
    WNDPROC former = nullptr;
    int paints = 0;
    int erasures = 0;
};
std::map<HWND, Watched> g_watched;

LRESULT CALLBACK Watch(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    Watched& watched = g_watched[window];
    watched.paints += message == WM_PAINT;
    watched.erasures += message == WM_ERASEBKGND;
    return ::CallWindowProcW(watched.former, window, message, wParam, lParam);
}

std::vector<HWND> WithAllBelow(HWND window)
{
    std::vector<HWND> all = DescendantsOf(window);
    all.insert(all.begin(), window);
    return all;
}

std::wstring Named(HWND window)
{
    wchar_t name[64] = {};
    ::GetClassNameW(window, name, 64);
    return name + (L" " + std::to_wstring(::GetDlgCtrlID(window)));
}

class Repaint : public IntlWindows
{
protected:
    void SetUp() override
    {
        IntlWindows::SetUp();
        SpeakGerman();
        ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
        dlg.ShowWindow(SW_SHOW);
        dlg.GetDlgItem(IDC_SEARCH)->ShowWindow(SW_HIDE);
        dlg.SetForegroundWindow();
        PumpAll();
        for (const HWND window : WithAllBelow(dlg))
        {
            g_watched[window].former = reinterpret_cast<WNDPROC>(
                ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Watch)));
        }
    }
    void TearDown() override
    {
        for (const auto& [window, watched] : g_watched)
            ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(watched.former));
        g_watched.clear();
        dlg.DestroyWindow();
        IntlWindows::TearDown();
    }
    void ExpectPaints(int expected, const char* when)
    {
        for (const HWND window : WithAllBelow(dlg))
            EXPECT_EQ(g_watched[window].paints, ::IsWindowVisible(window) ? expected : 0)
                << testing::PrintToString(Named(window)) << when;
    }
    CHostWnd host;
    CPaintedDlg dlg{&host};
};
} // namespace

TEST_F(Repaint, ChangeOfLanguagePaintsEveryVisibleWindowOnceAndWhole)
{
    SpeakFrench();
    SetTextFont("Lucida Console");
    ASSERT_EQ(CLanguageSwitch::Retranslate(), 1);
    ExpectPaints(0, " while the texts are set");
    for (const HWND window : WithAllBelow(dlg))
    {
        CRect client, waiting;
        ::GetClientRect(window, client);
        ::GetUpdateRect(window, waiting, FALSE);
        EXPECT_EQ(waiting, ::IsWindowVisible(window) ? client : CRect(0, 0, 0, 0))
            << testing::PrintToString(Named(window));
    }
    PumpAll();
    ExpectPaints(1, " afterwards");
}

TEST_F(Repaint, SoDoesAChangeOfTheDialogFont)
{
    Set(L"DlgFontName_Std", L"Arial");
    Set(L"DlgFontSize_Std", L"14");
    ASSERT_EQ(CLanguageSwitch::Retranslate(), 1);
    ExpectPaints(0, " while the parts are moved");
    PumpAll();
    ExpectPaints(1, " afterwards");
}

TEST_F(Repaint, WindowThatTakesNoPartIsNotPainted)
{
    PumpAll();
    CHostWnd other;
    PumpAll();
    ::ValidateRect(other, nullptr);
    ASSERT_EQ(CLanguageSwitch::Retranslate(), 1);
    CRect waiting;
    EXPECT_FALSE(::GetUpdateRect(other, waiting, FALSE));
}
