#include "tarvo/intl/TemplateLayout.h"
#include "tests/tarvo/intl/windows/IntlFixture.h"
#include "tests/tarvo/intl/windows/TestSheet.h"

#include <afxcmn.h>

#include <functional>
#include <utility>

namespace
{
CRect PlaceIn(HWND parent, HWND window)
{
    CRect place;
    ::GetWindowRect(window, place);
    ::MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

CRect ClientOf(HWND window)
{
    CRect client;
    ::GetClientRect(window, client);
    return client;
}

bool Lies(const CRect& inner, const CRect& outer)
{
    CRect both;
    both.UnionRect(inner, outer);
    return both == outer;
}

class SheetSize : public IntlWindows
{
protected:
    void UseFont(const wchar_t* face, const wchar_t* size)
    {
        Set(L"DlgFontName_Std", face);
        Set(L"DlgFontSize_Std", size);
    }
    /// The font that the system makes sheets in; it depends on the machine's language.
    void UseSystemsFont()
    {
        CPropertyPage page(IDD_PAGE_ONE);
        CPropertySheet sheet(L"Sheet");
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create(&host));
        LOGFONTW font = {};
        ::GetObjectW(reinterpret_cast<HFONT>(sheet.SendMessage(WM_GETFONT)), sizeof font, &font);
        sheet.DestroyWindow();
        const std::wstring points = std::to_wstring(::MulDiv(-font.lfHeight, 72, 96));
        UseFont(font.lfFaceName, points.c_str());
        Set(L"DlgFontSize_Eng", points.c_str());
        const CStringA face(font.lfFaceName);
        SetTextFont(face.GetString());
    }
    /// Every control inside its page, every page inside the tabs' display area or above a wizard's buttons,
    /// every button inside the sheet.
    static void ExpectAllToShow(CPropertySheet& sheet)
    {
        for (int i = 0; i < sheet.GetPageCount(); ++i)
        {
            ASSERT_TRUE(sheet.SetActivePage(i));
            const HWND page = sheet.GetPage(i)->m_hWnd;
            for (HWND child = ::GetWindow(page, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
            {
                EXPECT_PRED2(Lies, PlaceIn(page, child), ClientOf(page)) << ::GetDlgCtrlID(child);
            }
            EXPECT_PRED2(Lies, PlaceIn(sheet, page), RoomForPages(sheet)) << "page " << i;
        }
        for (HWND child = ::GetWindow(sheet, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        {
            if (!(::GetWindowLongPtrW(child, GWL_STYLE) & WS_VISIBLE))
                continue;
            EXPECT_PRED2(Lies, PlaceIn(sheet, child), ClientOf(sheet)) << ::GetDlgCtrlID(child);
        }
    }
    static CRect RoomForPages(CPropertySheet& sheet)
    {
        CRect room = ClientOf(sheet);
        if (sheet.IsWizard())
        {
            room.bottom = PlaceIn(sheet, ::GetDlgItem(sheet, ID_WIZNEXT)).top;
            return room;
        }
        CTabCtrl* const tabs = sheet.GetTabControl();
        room = ClientOf(tabs->m_hWnd);
        tabs->AdjustRect(FALSE, room);
        tabs->MapWindowPoints(&sheet, room);
        return room;
    }
    /// The window of the toolkit's that is no part of the system's.
    static HWND HeaderOf(CPropertySheet& sheet)
    {
        HWND child = ::GetWindow(sheet, GW_CHILD);
        while (child && (::GetDlgCtrlID(child) != 0 ||
                         DYNAMIC_DOWNCAST(CPropertyPage, CWnd::FromHandlePermanent(child))))
            child = ::GetWindow(child, GW_HWNDNEXT);
        return child;
    }
    /// Shows a sheet of two pages modally and looks at it.
    static void Show(CTestSheet& sheet, CPropertyPage& first, CPropertyPage& second,
                     const std::function<void()>& look)
    {
        sheet.AddPage(&first);
        sheet.AddPage(&second);
        sheet.onText = [&] {
            look();
            sheet.EndDialog(IDCANCEL);
        };
        EXPECT_EQ(sheet.DoModal(), IDCANCEL);
    }
    static std::wstring SizeOf(HWND window)
    {
        CRect place;
        ::GetWindowRect(window, place);
        return std::to_wstring(place.Width()) + L"x" + std::to_wstring(place.Height());
    }
    CHostWnd host;
};
} // namespace

TEST_F(SheetSize, PagesOfAnyFontShowWhole)
{
    for (const auto& [face, points] : {std::pair(L"MS Shell Dlg", L"8"), std::pair(L"Tahoma", L"14"),
                                       std::pair(L"Arial", L"19"), std::pair(L"Lucida Console", L"8")})
        for (const bool wizard : {false, true})
        {
            SCOPED_TRACE((wizard ? "wizard in " : "sheet in ") + testing::PrintToString(std::wstring(face)));
            UseFont(face, points);
            CInternationalPropertyPage one(IDD_PAGE_ONE), wide(IDD_PAGE_WIDE);
            CTestSheet sheet(L"Sheet", &host);
            if (wizard)
                sheet.SetWizardMode();
            Show(sheet, one, wide, [&] { ExpectAllToShow(sheet); });
        }
}

TEST_F(SheetSize, PagesOfOtherClassesAndModelessSheetsShowWhole)
{
    UseFont(L"Arial", L"16");
    CInternationalPropertyPage one(IDD_PAGE_ONE);
    CPropertyPage plain(IDD_PAGE_WIDE);
    CTestSheet sheet(L"Sheet");
    sheet.AddPage(&one);
    sheet.AddPage(&plain);
    ASSERT_TRUE(sheet.Create(&host));
    ExpectAllToShow(sheet);
    sheet.DestroyWindow();
}

TEST_F(SheetSize, PagesShowWholeBelowAHeader)
{
    UseFont(L"Arial", L"16");
    CInternationalPropertyPage one(IDD_PAGE_ONE), wide(IDD_PAGE_WIDE);
    CTestSheet sheet(L"Sheet", &host);
    sheet.EnablePageHeader(30);
    Show(sheet, one, wide, [&] {
        ExpectAllToShow(sheet);
        const CRect page = PlaceIn(sheet, wide);
        EXPECT_EQ(page.top, RoomForPages(sheet).top + 30);
        const CRect header = PlaceIn(sheet, HeaderOf(sheet));
        EXPECT_EQ(header, CRect(page.left, header.top, page.right, header.top + 30));
        EXPECT_LE(page.top - header.bottom, 1) << "the tabs are higher in the texts' font";
    });
}

TEST_F(SheetSize, NothingChangesWhenAllFits)
{
    UseSystemsFont();
    for (const bool wizard : {false, true})
    {
        const auto places = [&](CPropertySheet& sheet, CPropertyPage& page) {
            sheet.AddPage(&page);
            if (wizard)
                sheet.SetWizardMode();
            EXPECT_TRUE(sheet.Create(&host));
            std::vector<CRect> all{ClientOf(sheet)};
            for (HWND child = ::GetWindow(sheet, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
                all.push_back(PlaceIn(sheet, child));
            sheet.DestroyWindow();
            return all;
        };
        CPropertyPage systemPage(IDD_PAGE_ONE);
        CInternationalPropertyPage page(IDD_PAGE_ONE);
        CPropertySheet system(L"Sheet");
        CTestSheet sheet(L"Sheet");
        EXPECT_EQ(places(sheet, page), places(system, systemPage)) << wizard;
    }
}

TEST_F(SheetSize, SheetGrowsByWhatItsPagesLackAndNoMore)
{
    const auto sizes = [&](const wchar_t* points) {
        UseFont(L"Tahoma", points);
        CInternationalPropertyPage wide(IDD_PAGE_WIDE);
        CTestSheet sheet(L"Sheet");
        sheet.AddPage(&wide);
        EXPECT_TRUE(sheet.Create(&host));
        CRect window, page;
        sheet.GetWindowRect(window);
        wide.GetWindowRect(page);
        sheet.DestroyWindow();
        return window.Size() - page.Size();
    };
    EXPECT_EQ(sizes(L"8"), sizes(L"15"));
}

TEST_F(SheetSize, SheetIsNeverLargerThanTheScreenAndItsButtonsCanBeReached)
{
    UseFont(L"Arial", L"60");
    CInternationalPropertyPage one(IDD_PAGE_ONE), wide(IDD_PAGE_WIDE);
    CTestSheet sheet(L"Sheet", &host);
    Show(sheet, one, wide, [&] {
        CRect screen, window, button;
        ::SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
        sheet.GetWindowRect(window);
        EXPECT_EQ(window, screen);
        ::GetWindowRect(::GetDlgItem(sheet, IDCANCEL), button);
        EXPECT_PRED2(Lies, button, window);
        EXPECT_PRED2(Lies, PlaceIn(sheet, one), RoomForPages(sheet));
    });
}

TEST_F(SheetSize, GrownSheetFollowsItsSizeAndKeepsWhatADerivedClassAdds)
{
    UseFont(L"Tahoma", L"14");
    CInternationalPropertyPage one(IDD_PAGE_ONE), wide(IDD_PAGE_WIDE);
    CTestSheet sheet(L"Sheet", &host);
    sheet.SetResizable(TRUE);
    CWnd note;
    CRect noteThen;
    const auto resize = [&](int dx, int dy) {
        CRect place;
        sheet.GetWindowRect(place);
        sheet.SetWindowPos(nullptr, 0, 0, place.Width() + dx, place.Height() + dy, SWP_NOMOVE | SWP_NOZORDER);
    };
    sheet.onInit = [&] { // a line of its own below the buttons
        const CRect client = ClientOf(sheet);
        resize(0, 20);
        noteThen = CRect(0, client.bottom, client.right, client.bottom + 20);
        note.Create(L"Static", L"note", WS_CHILD | WS_VISIBLE, noteThen, &sheet, 4000);
    };
    Show(sheet, one, wide, [&] {
        ExpectAllToShow(sheet);
        EXPECT_EQ(PlaceIn(sheet, note), noteThen);
        sheet.SetActivePage(0);
        const CRect pageThen = PlaceIn(sheet, one), buttonThen = PlaceIn(sheet, ::GetDlgItem(sheet, IDOK));
        resize(40, 30);
        EXPECT_EQ(PlaceIn(sheet, one), CRect(pageThen.TopLeft(), pageThen.BottomRight() + CSize(40, 30)));
        EXPECT_EQ(PlaceIn(sheet, ::GetDlgItem(sheet, IDOK)), buttonThen + CPoint(40, 30));
        sheet.SetActivePage(1);
        EXPECT_EQ(PlaceIn(sheet, wide), PlaceIn(sheet, one));
        resize(-40, -30);
        EXPECT_EQ(PlaceIn(sheet, wide), pageThen);
    });
}

TEST_F(SheetSize, DialogUnitsBecomePixelsAsTheSystemHasIt)
{
    for (const wchar_t* points : {L"7", L"8", L"9", L"10", L"13", L"22"})
    {
        UseFont(L"Tahoma", points);
        CInternationalPropertyPage wide(IDD_PAGE_WIDE);
        CTestSheet sheet(L"Sheet");
        sheet.AddPage(&wide);
        ASSERT_TRUE(sheet.Create(&host));
        CRect mapped(0, 0, 4, 8);
        ::MapDialogRect(wide, mapped);
        const DialogUnits units{mapped.right, mapped.bottom};
        for (const auto& [id, place] : {std::pair(IDC_NAME_EDIT, TemplateLayout::Place{190, 7, 70, 12}),
                                        std::pair(IDC_SEARCH, TemplateLayout::Place{210, 146, 50, 14})})
        {
            const TemplateLayout::Place pixels = ToPixels(place, units);
            EXPECT_EQ(PlaceIn(wide, ::GetDlgItem(wide, id)),
                      CRect(CPoint(pixels.x, pixels.y), CSize(pixels.cx, pixels.cy)));
        }
        sheet.DestroyWindow();
    }
}
