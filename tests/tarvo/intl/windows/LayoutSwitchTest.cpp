#include "tarvo/intl/InternationalDlg.h"
#include "tarvo/intl/InternationalFormView.h"
#include "tarvo/intl/InternationalPropertySheet.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/intl/LocaleLib.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"

#include <afxcmn.h>
#include <afxpriv.h>

#include <functional>
#include <memory>

// The font of dialogs changes with the language while windows are open.

namespace
{
class CFontDlg : public CInternationalDlg
{
public:
    explicit CFontDlg(CWnd* parent = nullptr) : CInternationalDlg(IDD_SETUP, parent) {}
    BOOL OnInitDialog() override
    {
        CInternationalDlg::OnInitDialog();
        if (onInit)
            onInit();
        return TRUE;
    }
    int TranslateStringToINI() override { return TranslateByTable(GetDlgResID()); }
    int FollowsLanguage() override { return follows; }
    void OnLayoutChanged() override { ++layouts; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = CInternationalDlg::WindowProc(message, wParam, lParam);
        if (message == WM_SIZE && m_hWnd && onSize)
            onSize(Low(lParam), High(lParam));
        return result;
    }
    HWND Item(int id) const { return ::GetDlgItem(m_hWnd, id); }
    CRect PlaceOf(HWND window) const
    {
        CRect place;
        ::GetWindowRect(window, place);
        ScreenToClient(place);
        return place;
    }
    CRect PlaceOf(int id) const { return PlaceOf(Item(id)); }
    CSize Client() const
    {
        CRect client;
        GetClientRect(client);
        return client.Size();
    }
    CSize Size() const
    {
        CRect window;
        GetWindowRect(window);
        return window.Size();
    }
    void Enlarge(int dx, int dy)
    {
        SetWindowPos(nullptr, 0, 0, Size().cx + dx, Size().cy + dy, SWP_NOMOVE | SWP_NOZORDER);
    }
    std::function<void()> onInit;
    std::function<void(int, int)> onSize;
    int follows = 1;
    int layouts = 0;

private:
    static int Low(LPARAM value) { return static_cast<short>(LOWORD(value)); }
    static int High(LPARAM value) { return static_cast<short>(HIWORD(value)); }
};

class CFontForm : public CInternationalFormView
{
public:
    CFontForm() : CInternationalFormView(IDD_VIEW_FORM) {}
};

/// Everything that can be seen of a window and what is below it.
std::wstring LookOf(HWND window, const std::function<bool(HWND)>& wanted = {})
{
    CRect place;
    ::GetWindowRect(window, place);
    return std::to_wstring(place.Width()) + L"x" + std::to_wstring(place.Height()) + L" " + FontOf(window) +
           L"\n" + TextOf(window) + L"\n" + DumpOf(window, wanted);
}

class LayoutSwitch : public IntlWindows
{
protected:
    void UseFont(const wchar_t* face, const wchar_t* size)
    {
        Set(L"DlgFontName_Std", face);
        Set(L"DlgFontSize_Std", size);
    }
    void SwitchFont(const wchar_t* face, const wchar_t* size, int expected = 1)
    {
        UseFont(face, size);
        EXPECT_EQ(CLanguageSwitch::Retranslate(), expected);
    }
    static std::wstring FreshDialog()
    {
        CFontDlg dlg;
        EXPECT_TRUE(dlg.Create(IDD_SETUP));
        std::wstring look = LookOf(dlg.m_hWnd);
        dlg.DestroyWindow();
        return look;
    }
    CHostWnd host;
};

constexpr std::pair<const wchar_t*, const wchar_t*> kFonts[] = {
    {L"Arial", L"14"}, {L"Lucida Console", L"8"}, {L"Tahoma", L"20"}, {L"Tahoma", L"9"}, {L"Arial", L"0"}};
} // namespace

TEST_F(LayoutSwitch, OpenDialogLooksAsAFreshOneInEveryRespect)
{
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    int n = 0;
    for (const auto& [face, points] : kFonts)
    {
        ++n % 2 ? SpeakGerman() : SpeakFrench();
        SetTextFont(n % 2 ? "Lucida Console" : "Arial");
        SwitchFont(face, points);
        EXPECT_EQ(LookOf(dlg.m_hWnd), FreshDialog()) << n;
        EXPECT_EQ(dlg.layouts, n);
    }
    CLanguageSwitch::Retranslate();
    EXPECT_EQ(dlg.layouts, n) << "the same font moves nothing";
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, FontThatComesOutTheSameMovesNothing)
{
    UseFont(L"Tahoma", L"9");
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    const std::wstring before = LookOf(dlg.m_hWnd);
    SwitchFont(L"TAHOMA", L"500"); // no size: the template's own, which is 9
    EXPECT_EQ(LookOf(dlg.m_hWnd), before);
    EXPECT_EQ(dlg.layouts, 0);
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, EntriesFocusAndSelectionStay)
{
    CFontDlg dlg(&host);
    ASSERT_TRUE(dlg.Create(IDD_SETUP, &host));
    dlg.ShowWindow(SW_SHOW);
    dlg.SetForegroundWindow();
    dlg.SetDlgItemText(IDC_NAME_EDIT, L"typed by the user");
    dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_SETSEL, 3, 7);
    dlg.SendDlgItemMessage(IDC_UNIT, CB_SETCURSEL, 1);
    dlg.SetDlgItemText(IDC_TYPED, L"12.5");
    dlg.CheckDlgButton(IDC_USE, BST_CHECKED);
    ::SetFocus(dlg.Item(IDC_NAME_EDIT));
    SwitchFont(L"Arial", L"15");
    EXPECT_EQ(TextOf(dlg.Item(IDC_NAME_EDIT)), L"typed by the user");
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_NAME_EDIT, EM_GETSEL), MAKELRESULT(3, 7));
    EXPECT_EQ(dlg.SendDlgItemMessage(IDC_UNIT, CB_GETCURSEL), 1);
    EXPECT_EQ(TextOf(dlg.Item(IDC_TYPED)), L"12.5");
    EXPECT_EQ(dlg.IsDlgButtonChecked(IDC_USE), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(::GetFocus(), dlg.Item(IDC_NAME_EDIT));
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, WhatWasMovedOrEnlargedKeepsItsDistanceFromTheTemplate)
{
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    const CRect listThen = dlg.PlaceOf(IDC_KIND), buttonThen = dlg.PlaceOf(IDC_SEARCH);
    ::MoveWindow(dlg.Item(IDC_SEARCH), buttonThen.left + 11, buttonThen.top - 3, buttonThen.Width() + 40,
                 buttonThen.Height(), FALSE);
    dlg.Enlarge(100, 50);
    SwitchFont(L"Arial", L"14");
    UseFont(L"Arial", L"14");
    CFontDlg fresh;
    ASSERT_TRUE(fresh.Create(IDD_SETUP));
    const CRect freshButton = fresh.PlaceOf(IDC_SEARCH);
    EXPECT_EQ(dlg.PlaceOf(IDC_SEARCH), CRect(freshButton.left + 11, freshButton.top - 3,
                                             freshButton.right + 51, freshButton.bottom - 3));
    EXPECT_EQ(dlg.PlaceOf(IDC_KIND), fresh.PlaceOf(IDC_KIND));
    EXPECT_NE(dlg.PlaceOf(IDC_KIND), listThen);
    EXPECT_EQ(dlg.Size(), fresh.Size() + CSize(100, 50));
    SwitchFont(L"Tahoma", L"9", 2);
    EXPECT_EQ(dlg.PlaceOf(IDC_SEARCH),
              CRect(buttonThen.left + 11, buttonThen.top - 3, buttonThen.right + 51, buttonThen.bottom - 3))
        << "and comes back";
    fresh.DestroyWindow();
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, PartsThatFollowTheWindowsSizeDoSoAfterwardsToo)
{
    // The usual handler: what stands at the right is moved by what the window's width has changed.
    const auto anchor = [](CFontDlg& dlg, CSize& last) {
        dlg.onInit = [&] { last = dlg.Client(); };
        dlg.onSize = [&](int cx, int cy) {
            if (last.cx == 0)
                return;
            for (const int id : {IDOK, IDCANCEL})
            {
                const CRect place = dlg.PlaceOf(id) + CPoint(cx - last.cx, cy - last.cy);
                ::MoveWindow(dlg.Item(id), place.left, place.top, place.Width(), place.Height(), FALSE);
            }
            last = CSize(cx, cy);
        };
    };
    CFontDlg dlg, fresh;
    CSize last(0, 0), lastFresh(0, 0);
    anchor(dlg, last);
    anchor(fresh, lastFresh);
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.Enlarge(60, 30);
    SwitchFont(L"Arial", L"14");
    ASSERT_TRUE(fresh.Create(IDD_SETUP));
    fresh.Enlarge(60, 30);
    EXPECT_EQ(LookOf(dlg.m_hWnd), LookOf(fresh.m_hWnd));
    dlg.Enlarge(-60, -30);
    fresh.Enlarge(-60, -30);
    EXPECT_EQ(LookOf(dlg.m_hWnd), LookOf(fresh.m_hWnd));
    dlg.DestroyWindow();
    fresh.DestroyWindow();
}

TEST_F(LayoutSwitch, AddedPartsAreScaledUnlessTheProgramPlacesThem)
{
    CFontDlg dlg;
    HWND added = nullptr, filling = nullptr;
    dlg.onInit = [&] {
        added = ::CreateWindowExW(0, L"Static", L"added", WS_CHILD, 40, 60, 100, 20, dlg.m_hWnd, nullptr,
                                  nullptr, nullptr);
        filling = ::CreateWindowExW(0, L"Static", L"", WS_CHILD, 0, 0, dlg.Client().cx, 5, dlg.m_hWnd,
                                    nullptr, nullptr, nullptr);
    };
    dlg.onSize = [&](int cx, int) {
        if (filling)
            ::MoveWindow(filling, 0, 0, cx, 5, FALSE);
    };
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    CRect before(0, 0, 400, 800), after = before;
    CFontDlg fresh;
    ASSERT_TRUE(fresh.Create(IDD_SETUP));
    fresh.MapDialogRect(before);
    fresh.DestroyWindow();
    SwitchFont(L"Arial", L"18");
    ASSERT_TRUE(fresh.Create(IDD_SETUP));
    fresh.MapDialogRect(after);
    fresh.DestroyWindow();
    const auto x = [&](int value) { return ::MulDiv(value, after.right, before.right); };
    const auto y = [&](int value) { return ::MulDiv(value, after.bottom, before.bottom); };
    EXPECT_EQ(dlg.PlaceOf(added), CRect(CPoint(x(40), y(60)), CSize(x(100), y(20))));
    EXPECT_EQ(dlg.PlaceOf(filling), CRect(0, 0, dlg.Client().cx, 5));
    SwitchFont(L"Tahoma", L"9");
    EXPECT_EQ(dlg.PlaceOf(added), CRect(40, 60, 140, 80));
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, PartOfTheTemplateThatIsGoneOrNewlyMadeIsNoTrouble)
{
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    ::DestroyWindow(dlg.Item(IDC_SEARCH));
    ::DestroyWindow(dlg.Item(IDC_UNIT));
    ::CreateWindowExW(0, L"Button", L"again", WS_CHILD, 1, 2, 30, 10, dlg.m_hWnd,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(IDC_SEARCH)), nullptr, nullptr);
    SwitchFont(L"Arial", L"14");
    CFontDlg fresh;
    ASSERT_TRUE(fresh.Create(IDD_SETUP));
    EXPECT_EQ(dlg.PlaceOf(IDOK), fresh.PlaceOf(IDOK));
    EXPECT_EQ(dlg.Size(), fresh.Size());
    fresh.DestroyWindow();
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, ControlsWithAFontOfTheirOwnKeepIt)
{
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    CFont bold;
    bold.CreatePointFont(140, L"Arial");
    dlg.SendDlgItemMessage(IDC_USE, WM_SETFONT, reinterpret_cast<WPARAM>(bold.m_hObject));
    SwitchFont(L"Arial", L"14");
    EXPECT_EQ(reinterpret_cast<HGDIOBJ>(dlg.SendDlgItemMessage(IDC_USE, WM_GETFONT)), bold.m_hObject);
    EXPECT_EQ(FontOf(dlg.Item(IDC_LABEL)), L"Tahoma -12");
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, DialogInADialogSizesItselfAndItsParentPlacesIt)
{
    class CInner : public CInternationalDlg
    {
    public:
        CInner() : CInternationalDlg(IDD_VIEW_FORM) {}
    };
    const auto open = [](CFontDlg& dlg, CInner& inner) {
        dlg.onInit = [&] {
            ASSERT_TRUE(inner.Create(IDD_VIEW_FORM, &dlg));
            CRect place(100, 100, 101, 101); // dialog units
            dlg.MapDialogRect(place);
            inner.SetWindowPos(nullptr, place.left, place.top, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        };
        ASSERT_TRUE(dlg.Create(IDD_SETUP));
    };
    CFontDlg dlg, fresh;
    CInner inner, freshInner;
    open(dlg, inner);
    SwitchFont(L"Arial", L"16", 2);
    open(fresh, freshInner);
    EXPECT_EQ(LookOf(inner.m_hWnd), LookOf(freshInner.m_hWnd));
    const CRect place = dlg.PlaceOf(inner.m_hWnd), freshPlace = fresh.PlaceOf(freshInner.m_hWnd);
    EXPECT_LE(std::abs(place.left - freshPlace.left), 1) << "rounded twice";
    EXPECT_LE(std::abs(place.top - freshPlace.top), 1);
    fresh.DestroyWindow();
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, WindowThatRefusesKeepsFontAndLayout)
{
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.follows = 0;
    const std::wstring before = LookOf(dlg.m_hWnd);
    SwitchFont(L"Arial", L"14", 0);
    EXPECT_EQ(LookOf(dlg.m_hWnd), before);
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, TemplateInMemoryKeepsTheFontThatItNames)
{
    CDialogTemplate memory;
    ASSERT_TRUE(memory.Load(MAKEINTRESOURCEW(IDD_SETUP)));
    CFontDlg dlg;
    ASSERT_TRUE(dlg.CreateIndirect(memory.m_hTemplate));
    const std::wstring before = LookOf(dlg.m_hWnd);
    SwitchFont(L"Arial", L"14");
    EXPECT_EQ(LookOf(dlg.m_hWnd), before);
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, WindowAtTheScreensEdgeStaysOnTheScreen)
{
    CRect screen, window;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.SetWindowPos(nullptr, screen.right - dlg.Size().cx, screen.bottom - dlg.Size().cy, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
    SwitchFont(L"Arial", L"14");
    dlg.GetWindowRect(window);
    EXPECT_EQ(window.BottomRight(), screen.BottomRight());
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, WindowThatTheScreenWasTooSmallForHasItsSizeAgainAfterwards)
{
    CRect screen;
    ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    CFontDlg dlg;
    ASSERT_TRUE(dlg.Create(IDD_SETUP));
    dlg.Enlarge(30, 20);
    const std::wstring before = LookOf(dlg.m_hWnd);
    SwitchFont(L"Arial", L"60");
    EXPECT_EQ(dlg.Size(), screen.Size());
    SwitchFont(L"Tahoma", L"9");
    EXPECT_EQ(LookOf(dlg.m_hWnd), before);
    dlg.DestroyWindow();
}

TEST_F(LayoutSwitch, MinimizedAndMaximizedWindowsAreLaidOutForWhenTheyAreRestored)
{
    UseFont(L"Arial", L"14");
    const std::wstring fresh = FreshDialog();
    for (const int show : {SW_SHOWMINNOACTIVE, SW_SHOWMAXIMIZED})
    {
        UseFont(L"Tahoma", L"9");
        CFontDlg dlg;
        ASSERT_TRUE(dlg.Create(IDD_SETUP));
        dlg.ShowWindow(show);
        SwitchFont(L"Arial", L"14");
        EXPECT_EQ(dlg.IsIconic(), show == SW_SHOWMINNOACTIVE);
        EXPECT_EQ(dlg.IsZoomed(), show == SW_SHOWMAXIMIZED);
        dlg.ShowWindow(SW_RESTORE);
        EXPECT_EQ(LookOf(dlg.m_hWnd), fresh) << show;
        dlg.DestroyWindow();
    }
}

TEST_F(LayoutSwitch, DialogThatClosesItselfWhenItIsSizedIsNoTrouble)
{
    CFontDlg dlg, other;
    ASSERT_TRUE(dlg.Create(IDD_SETUP) && other.Create(IDD_SETUP));
    dlg.onSize = [&](int, int) { dlg.DestroyWindow(); };
    SwitchFont(L"Arial", L"14", 2);
    EXPECT_EQ(dlg.m_hWnd, nullptr);
    EXPECT_EQ(LookOf(other.m_hWnd), FreshDialog());
    other.DestroyWindow();
}

TEST_F(LayoutSwitch, SameObjectShownAgainComesUpInTheNewFontAndFollowsAgain)
{
    CFontDlg dlg;
    for (const auto& [face, points] : kFonts)
    {
        ASSERT_TRUE(dlg.Create(IDD_SETUP));
        SwitchFont(face, points);
        EXPECT_EQ(LookOf(dlg.m_hWnd), FreshDialog());
        dlg.DestroyWindow();
        EXPECT_EQ(dlg.GetTextFont(), nullptr);
    }
}

// Form views.

TEST_F(LayoutSwitch, FormViewLooksAsAFreshOneAndKeepsItsPlace)
{
    const auto make = [this](const CRect& rect) {
        auto* const form = new CFontForm;
        EXPECT_TRUE(form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, rect, &host, 7));
        form->OnInitialUpdate();
        return form;
    };
    for (const CRect& rect : {CRect(0, 0, 400, 400), CRect(0, 0, 90, 60)})
    {
        UseFont(L"Tahoma", L"9");
        CFontForm* const form = make(rect);
        SwitchFont(L"Arial", L"14");
        CFontForm* const fresh = make(rect);
        EXPECT_EQ(LookOf(form->m_hWnd), LookOf(fresh->m_hWnd));
        EXPECT_EQ(form->GetTotalSize(), fresh->GetTotalSize());
        form->DestroyWindow();
        fresh->DestroyWindow();
    }
}

TEST_F(LayoutSwitch, ScrolledFormViewIsScrolledAsFarAsBefore)
{
    auto* const form = new CFontForm;
    ASSERT_TRUE(form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 60), &host, 7));
    form->OnInitialUpdate();
    CRect label;
    form->ScrollToPosition(CPoint(20, 30));
    const CSize former = form->GetTotalSize();
    SwitchFont(L"Arial", L"14");
    const CSize now = form->GetTotalSize();
    const CPoint scrolled = form->GetScrollPosition();
    EXPECT_EQ(scrolled, CPoint(::MulDiv(20, now.cx, former.cx), ::MulDiv(30, now.cy, former.cy)));
    const std::wstring scrolledLook = LookOf(form->m_hWnd);
    form->ScrollToPosition(CPoint(0, 0));
    const std::wstring look = LookOf(form->m_hWnd);
    EXPECT_NE(scrolledLook, look);
    form->DestroyWindow();
    auto* const fresh = new CFontForm;
    ASSERT_TRUE(fresh->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 90, 60), &host, 7));
    fresh->OnInitialUpdate();
    EXPECT_EQ(look, LookOf(fresh->m_hWnd));
    fresh->DestroyWindow();
}

TEST_F(LayoutSwitch, FormOfAKoreanInterfaceGetsTheNewTemplateFontButNoTextFont)
{
    auto* const form = new CFontForm;
    ASSERT_TRUE(form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 300, 300), &host, 7));
    form->OnInitialUpdate();
    SetTextFont("Lucida Console");
    SwitchFont(L"Arial", L"14");
    EXPECT_EQ(FontOf(form->GetDlgItem(IDC_USE)->m_hWnd),
              CLocaleLib::bKoreanUILanguage ? FontOf(form->m_hWnd) : L"Lucida Console -12");
    EXPECT_EQ(form->GetTextFont() == nullptr, CLocaleLib::bKoreanUILanguage == 1);
    form->DestroyWindow();
}

// Property sheets.

namespace
{
/// A modeless sheet of three pages.
class CFontSheet : public CInternationalPropertySheet
{
public:
    CFontSheet(CWnd& host, bool wizard) : CInternationalPropertySheet(L"Sheet")
    {
        for (CInternationalPropertyPage* const page : {&one, &two, &wide})
            AddPage(page);
        if (wizard)
            SetWizardMode();
        SetResizable(TRUE);
        EXPECT_TRUE(Create(&host));
    }
    ~CFontSheet() override { DestroyWindow(); }
    /// The sheet with each page in front; those behind are placed when they come there.
    std::wstring Look()
    {
        std::wstring all;
        for (int i = 0; i < GetPageCount(); ++i)
        {
            EXPECT_TRUE(SetActivePage(i));
            all += DumpOf(GetPage(i)->m_hWnd) + LookOf(m_hWnd, [this](HWND window) {
                       return ::GetParent(window) == m_hWnd &&
                              (window == GetActivePage()->m_hWnd || !IsPage(window));
                   });
        }
        return all;
    }
    bool IsPage(HWND window) const
    {
        return DYNAMIC_DOWNCAST(CPropertyPage, FromHandlePermanent(window)) != nullptr;
    }
    void Enlarge(int dx, int dy)
    {
        CRect window;
        GetWindowRect(window);
        SetWindowPos(nullptr, 0, 0, window.Width() + dx, window.Height() + dy, SWP_NOMOVE | SWP_NOZORDER);
    }
    CInternationalPropertyPage one{IDD_PAGE_ONE}, two{IDD_PAGE_TWO}, wide{IDD_PAGE_WIDE};
};
} // namespace

TEST_F(LayoutSwitch, SheetsAndWizardsLookAsFreshOnesWithPagesOpenOrNot)
{
    for (const bool wizard : {false, true})
    {
        UseFont(L"Tahoma", L"9");
        CFontSheet seen(host, wizard), unseen(host, wizard);
        seen.Look(); // makes every page
        for (const auto& [face, points] : {std::pair(L"Arial", L"15"), std::pair(L"Tahoma", L"7"),
                                           std::pair(L"Lucida Console", L"13"), std::pair(L"Tahoma", L"9")})
        {
            UseFont(face, points);
            CLanguageSwitch::Retranslate();
            CFontSheet fresh(host, wizard);
            const std::wstring look = fresh.Look();
            EXPECT_EQ(seen.Look(), look) << wizard << " " << points;
        }
        UseFont(L"Arial", L"15");
        CLanguageSwitch::Retranslate();
        CFontSheet fresh(host, wizard);
        EXPECT_EQ(unseen.Look(), fresh.Look()) << "pages that are made after the change";
    }
}

TEST_F(LayoutSwitch, SheetKeepsWhatTheUserHasAddedToItsSize)
{
    CFontSheet sheet(host, false);
    sheet.Enlarge(50, 30);
    UseFont(L"Arial", L"14");
    CLanguageSwitch::Retranslate();
    CFontSheet fresh(host, false);
    fresh.Enlarge(50, 30);
    EXPECT_EQ(sheet.Look(), fresh.Look());
}

TEST_F(LayoutSwitch, TabsThatBecomeHigherCoverNoPage)
{
    CFontSheet sheet(host, false);
    Set(L"DlgFontSize_Eng", L"16");
    CLanguageSwitch::Retranslate();
    CFontSheet fresh(host, false);
    EXPECT_EQ(sheet.Look(), fresh.Look());
}
