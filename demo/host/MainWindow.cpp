#include "demo/host/MainWindow.h"

#include "demo/common/ModuleText.h"
#include "demo/host/FramePainter.h"
#include "demo/host/LanguageTables.h"
#include "demo/host/resource.h"
#include "tarvo/lang/INIResourceManager.h"

#include <string>
#include <utility>

namespace
{
constexpr int kStatusHeight = 24;

struct CommandDialog
{
    UINT command;
    const wchar_t* dialog;
};
constexpr CommandDialog kCommandDialogs[] = {
    {ID_MODEL_SETTINGS, L"IDD_PROJECT_SETTINGS"}, {ID_MODEL_UNITS, L"IDD_UNITS"},
    {ID_MODEL_SECTIONS, L"IDD_SECTION_LIBRARY"},  {ID_MODEL_MEMBERS, L"IDD_MEMBER_PROPERTIES"},
    {ID_ANALYSIS_LOADS, L"IDD_LOAD_CASES"},       {ID_HELP_ABOUT, L"IDD_ABOUT"}};

/// Where the translations of a menu that still has the resource's texts will come from, at any depth.
void count_menu_texts(XMultiLang& table, HMENU menu, CTranslateCount& count)
{
    for (int position = 0; position < ::GetMenuItemCount(menu); ++position)
    {
        wchar_t text[256] = L"";
        MENUITEMINFOW item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_ID | MIIM_STRING | MIIM_SUBMENU;
        item.dwTypeData = text;
        item.cch = 256;
        ::GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &item);
        // The languages stand under their own names whatever the language is.
        if (text[0] == 0 || (item.wID >= ID_LANGUAGE_FIRST && item.wID <= ID_LANGUAGE_LAST))
            continue;
        const CString key =
            table.GetResourceHeader().FindFirst(CResourceHeader::Menu, std::to_wstring(item.wID).c_str());
        CString translated;
        if (!table.GetXIni().GetStr(L"MENUSTR", key, L"").IsEmpty())
            ++count.nTranslated;
        else if (table.FindMenuText(item.wID, item.hSubMenu != nullptr, text, translated))
            ++count.nFallback;
        else
            ++count.nMissing;
        if (item.hSubMenu)
            count_menu_texts(table, item.hSubMenu, count);
    }
}
} // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_CLOSE()
ON_WM_ENTERIDLE()
ON_COMMAND_RANGE(ID_MODEL_SETTINGS, ID_MODEL_MEMBERS, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_ANALYSIS_LOADS, ID_ANALYSIS_LOADS, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_HELP_ABOUT, ID_HELP_ABOUT, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_LANGUAGE_FIRST, ID_LANGUAGE_LAST, &CMainWindow::OnLanguage)
ON_COMMAND_RANGE(ID_VIEW_GRID, ID_VIEW_NODES, &CMainWindow::OnViewOption)
ON_COMMAND(ID_VIEW_EXTENTS, &CMainWindow::OnViewExtents)
ON_COMMAND(ID_FILE_EXIT, &CMainWindow::OnFileExit)
END_MESSAGE_MAP()

CMainWindow::CMainWindow(std::vector<DemoModule> modules, int language)
    : m_modules(std::move(modules)), m_language(language)
{
}

CMainWindow::~CMainWindow() { DestroyWindow(); }

BOOL CMainWindow::Open()
{
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW), nullptr,
                            AfxGetApp()->LoadIcon(IDI_FRAME));
    const CRect place(40, 40, 40 + 720, 40 + 520);
    if (!CreateEx(0, windowClass, L"TarvoDemo", WS_OVERLAPPEDWINDOW, place, nullptr, 0))
        return FALSE;
    SetLanguage(m_language);
    return TRUE;
}

void CMainWindow::SetLanguage(int language)
{
    m_language = language;
    load_language(m_modules, language);
    const HINSTANCE host = AfxGetInstanceHandle();
    CString caption;
    caption.Format(MODULE_TEXT(host, IDS_CAPTION),
                   static_cast<const wchar_t*>(MODULE_TEXT(host, IDS_SAMPLE_PROJECT)));
    SetWindowText(caption);
    m_font.DeleteObject();
    XMultiLang* table = INIResourceManager::GetXMultiLang(project_name(host));
    m_font.CreatePointFont(90, table->GetXIni().GetStr(L"GENERAL", L"FONT", L"MS Shell Dlg"));
    BuildMenu();
    Invalidate();
}

void CMainWindow::BuildMenu()
{
    const HMENU before = ::GetMenu(m_hWnd);
    CMenu menu;
    if (!menu.LoadMenu(IDR_MAINFRAME))
        return;
    XMultiLang* table = INIResourceManager::GetXMultiLang(project_name(AfxGetInstanceHandle()));
    m_count = {};
    count_menu_texts(*table, menu.m_hMenu, m_count);
    table->TranslateMenuStringSub(menu.m_hMenu);
    menu.CheckMenuItem(ID_VIEW_GRID, m_bGrid ? MF_CHECKED : MF_UNCHECKED);
    menu.CheckMenuItem(ID_VIEW_NODES, m_bNodes ? MF_CHECKED : MF_UNCHECKED);
    menu.CheckMenuRadioItem(ID_LANGUAGE_FIRST, ID_LANGUAGE_LAST,
                            ID_LANGUAGE_FIRST + static_cast<UINT>(m_language), MF_BYCOMMAND);
    SetMenu(&menu);
    menu.Detach(); // the window's from now on
    if (before)
        ::DestroyMenu(before);
}

void CMainWindow::ShowPopup(int position, void (*shown)(void* context), void* context)
{
    m_pfnShown = shown;
    m_pShownContext = context;
    CRect item;
    const HMENU bar = ::GetMenu(m_hWnd);
    ::GetMenuItemRect(m_hWnd, bar, static_cast<UINT>(position), &item);
    ::HiliteMenuItem(m_hWnd, bar, static_cast<UINT>(position), MF_BYPOSITION | MF_HILITE);
    CMenu::FromHandle(bar)->GetSubMenu(position)->TrackPopupMenu(TPM_LEFTALIGN | TPM_TOPALIGN, item.left,
                                                                 item.bottom, this);
    ::HiliteMenuItem(m_hWnd, bar, static_cast<UINT>(position), MF_BYPOSITION | MF_UNHILITE);
    m_pfnShown = nullptr;
}

void CMainWindow::OnEnterIdle(UINT why, CWnd*)
{
    if (why != MSGF_MENU || !m_pfnShown)
        return;
    std::exchange(m_pfnShown, nullptr)(m_pShownContext);
    ::EndMenu();
}

void CMainWindow::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    CRect model = client;
    model.bottom -= kStatusHeight;
    CFont* before = dc.SelectObject(&m_font);
    paint_frame(dc, model, {m_bGrid, m_bNodes});

    CRect status(client.left, model.bottom, client.right, client.bottom);
    dc.FillSolidRect(&status, ::GetSysColor(COLOR_BTNFACE));
    CString text;
    text.Format(MODULE_TEXT(AfxGetInstanceHandle(), IDS_STATUS), kNodeCount, kMemberCount, kLoadCaseCount);
    status.left += 10;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    dc.DrawText(text, &status, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    dc.SelectObject(before);
}

BOOL CMainWindow::OnEraseBkgnd(CDC*)
{
    return TRUE; // OnPaint covers all of it
}

void CMainWindow::OnSize(UINT type, int cx, int cy)
{
    CWnd::OnSize(type, cx, cy);
    Invalidate();
}

void CMainWindow::OnClose() { DestroyWindow(); }

void CMainWindow::OnOpenDialog(UINT id)
{
    for (const CommandDialog& wanted : kCommandDialogs)
    {
        if (wanted.command != id)
            continue;
        for (const DemoModule& module : m_modules)
        {
            for (const DialogEntry& entry : module.dialogs)
            {
                if (std::wcscmp(entry.symbol, wanted.dialog) == 0)
                    entry.make(this)->DoModal();
            }
        }
    }
}

void CMainWindow::OnLanguage(UINT id)
{
    SetLanguage(static_cast<int>(id - ID_LANGUAGE_FIRST));
    AfxGetApp()->WriteProfileInt(L"LANGUAGE", L"LANGUAGE", m_language);
}

void CMainWindow::OnViewOption(UINT id)
{
    bool& option = id == ID_VIEW_GRID ? m_bGrid : m_bNodes;
    option = !option;
    ::CheckMenuItem(::GetMenu(m_hWnd), id, option ? MF_CHECKED : MF_UNCHECKED);
    Invalidate();
}
