#include "demo/host/MainWindow.h"

#include "demo/common/ModuleText.h"
#include "demo/host/AnalysisControl.h"
#include "demo/host/Calculation.h"
#include "demo/host/StructureWizard.h"
#include "demo/host/TextCount.h"
#include "demo/host/resource.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/msg/MSGFunction.h"

#include <algorithm>
#include <utility>

namespace
{
constexpr int kStatusHeight = 24;
constexpr int kPaneHeight = 200;
constexpr UINT kPictureId = AFX_IDW_PANE_FIRST + 1;

struct CommandDialog
{
    UINT command;
    const wchar_t* dialog;
};
constexpr CommandDialog kCommandDialogs[] = {
    {ID_MODEL_SETTINGS, L"IDD_PROJECT_SETTINGS"}, {ID_MODEL_UNITS, L"IDD_UNITS"},
    {ID_MODEL_SECTIONS, L"IDD_SECTION_LIBRARY"},  {ID_MODEL_MEMBERS, L"IDD_MEMBER_PROPERTIES"},
    {ID_ANALYSIS_LOADS, L"IDD_LOAD_CASES"},       {ID_HELP_ABOUT, L"IDD_ABOUT"}};
} // namespace

BEGIN_MESSAGE_MAP(CMainWindow, CFrameWnd)
ON_WM_PAINT()
ON_WM_ENTERIDLE()
ON_WM_CONTEXTMENU()
ON_COMMAND_RANGE(ID_MODEL_SETTINGS, ID_MODEL_MEMBERS, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_ANALYSIS_LOADS, ID_ANALYSIS_LOADS, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_HELP_ABOUT, ID_HELP_ABOUT, &CMainWindow::OnOpenDialog)
ON_COMMAND_RANGE(ID_LANGUAGE_FIRST, ID_LANGUAGE_LAST, &CMainWindow::OnLanguage)
ON_COMMAND_RANGE(ID_VIEW_GRID, ID_VIEW_NODES, &CMainWindow::OnViewOption)
ON_COMMAND(ID_VIEW_EXTENTS, &CMainWindow::OnViewExtents)
ON_COMMAND(ID_FILE_EXIT, &CMainWindow::OnFileExit)
ON_COMMAND(ID_MODEL_WIZARD, &CMainWindow::OnWizard)
ON_COMMAND(ID_MODEL_TOOL, &CMainWindow::OnTool)
ON_COMMAND(ID_ANALYSIS_CONTROL, &CMainWindow::OnAnalysisControl)
ON_COMMAND(ID_ANALYSIS_LIMITS, &CMainWindow::OnLimits)
ON_COMMAND(ID_ANALYSIS_CHECK, &CMainWindow::OnCheckModel)
ON_COMMAND(ID_ANALYSIS_RUN, &CMainWindow::OnRunAnalysis)
END_MESSAGE_MAP()

CMainWindow::CMainWindow(std::vector<DemoModule> modules, int language)
    : m_modules(std::move(modules)), m_language(language)
{
    m_bAutoMenuEnable = FALSE; // the resource says which items have nothing to do
}

BOOL CMainWindow::Open()
{
    CLanguageSwitch::SwitchTo(m_language);
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW), nullptr,
                            AfxGetApp()->LoadIcon(IDI_FRAME));
    const CRect place(20, 20, 20 + 900, 20 + 690);
    if (!Create(windowClass, L"TarvoDemo", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, place, nullptr,
                MAKEINTRESOURCEW(IDR_MAINFRAME)))
        return FALSE;
    SetActiveView(m_form, FALSE);
    SendMessageToDescendants(WM_INITIALUPDATE, 0, 0, TRUE, TRUE);
    CheckMenu();
    CLanguageSwitch::FollowMenu(m_hWnd, project_name(AfxGetInstanceHandle()));
    ShowLanguage();
    return TRUE;
}

BOOL CMainWindow::OnCreateClient(LPCREATESTRUCT, CCreateContext*)
{
    m_form = new CModelForm(m_model);
    if (!m_form->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 0, 0), this, AFX_IDW_PANE_FIRST))
        return FALSE;
    CRect place;
    m_form->GetWindowRect(&place);
    m_formSize = place.Size();
    const auto view = [this] { return FrameView{m_bGrid, m_bNodes, m_model.bays, m_model.storeys}; };
    if (!m_picture.Open(this, kPictureId, view) || !m_pane.Open(this))
        return FALSE;
    m_pane.ShowWindow(SW_SHOW);
    return TRUE;
}

CRect CMainWindow::StatusPlace() const
{
    CRect place;
    GetClientRect(&place);
    place.top = std::max(place.top, place.bottom - kStatusHeight);
    return place;
}

void CMainWindow::RecalcLayout(BOOL)
{
    if (!m_pane.m_hWnd || IsIconic())
        return;
    CRect room;
    GetClientRect(&room);
    room.bottom = std::max(room.top, StatusPlace().top);
    const int split = std::max(room.top, room.bottom - kPaneHeight);
    m_pane.MoveWindow(CRect(room.left, split, room.right, room.bottom));
    const int column = std::min<int>(room.left + m_formSize.cx, room.right);
    m_form->MoveWindow(CRect(room.left, room.top, column, split));
    m_picture.MoveWindow(CRect(column, room.top, room.right, split));
}

void CMainWindow::SetLanguage(int language)
{
    m_language = language;
    CLanguageSwitch::SwitchTo(language);
    ShowLanguage();
}

/// What is no window's of the library: caption, status line, the mark at the language in force.
void CMainWindow::ShowLanguage()
{
    const HINSTANCE host = AfxGetInstanceHandle();
    CString caption;
    caption.Format(MODULE_TEXT(host, IDS_CAPTION),
                   static_cast<const wchar_t*>(MODULE_TEXT(host, IDS_SAMPLE_PROJECT)));
    SetWindowText(caption);
    m_font.DeleteObject();
    m_font.CreatePointFont(90, CMSGFunction::GetFont());
    m_count = count_menu_texts(IDR_MAINFRAME);
    CheckMenu();
    m_formSize = m_form->GetTotalSize(); // another language may have another font of dialogs
    RecalcLayout();
    m_pane.Arrange();
    RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

void CMainWindow::CheckMenu()
{
    const HMENU menu = ::GetMenu(m_hWnd);
    ::CheckMenuItem(menu, ID_VIEW_GRID, m_bGrid ? MF_CHECKED : MF_UNCHECKED);
    ::CheckMenuItem(menu, ID_VIEW_NODES, m_bNodes ? MF_CHECKED : MF_UNCHECKED);
    ::CheckMenuRadioItem(menu, ID_LANGUAGE_FIRST, ID_LANGUAGE_LAST,
                         ID_LANGUAGE_FIRST + static_cast<UINT>(m_language), MF_BYCOMMAND);
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
    // By the item's state: not every system's HiliteMenuItem takes the mark away.
    MENUITEMINFOW state{};
    state.cbSize = sizeof state;
    state.fMask = MIIM_STATE;
    state.fState = MFS_ENABLED | MFS_UNHILITE;
    ::SetMenuItemInfoW(bar, static_cast<UINT>(position), TRUE, &state);
    DrawMenuBar();
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
    CFont* before = dc.SelectObject(&m_font);
    CRect status = StatusPlace();
    dc.FillSolidRect(&status, ::GetSysColor(COLOR_BTNFACE));
    CString text;
    text.Format(MODULE_TEXT(AfxGetInstanceHandle(), IDS_STATUS), m_model.Nodes(), m_model.Members(),
                kLoadCaseCount);
    status.left += 10;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(::GetSysColor(COLOR_BTNTEXT));
    dc.DrawText(text, &status, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    dc.SelectObject(before);
}

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

void CMainWindow::OnLanguage(UINT id) { SetLanguage(static_cast<int>(id - ID_LANGUAGE_FIRST)); }

CMenu* CMainWindow::LoadPictureMenu(CMenu& menu) const
{
    if (!menu.LoadMenu(IDR_MAINFRAME))
        return nullptr;
    INIResourceManager::LoadMenuToINITranslate(project_name(AfxGetInstanceHandle()), menu.m_hMenu);
    CMenu* const view = menu.GetSubMenu(kViewMenu);
    view->CheckMenuItem(ID_VIEW_GRID, m_bGrid ? MF_CHECKED : MF_UNCHECKED);
    view->CheckMenuItem(ID_VIEW_NODES, m_bNodes ? MF_CHECKED : MF_UNCHECKED);
    return view;
}

void CMainWindow::OnContextMenu(CWnd* window, CPoint point)
{
    CMenu menu;
    CMenu* const view = window == &m_picture ? LoadPictureMenu(menu) : nullptr;
    if (view)
        view->TrackPopupMenu(TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON, point.x, point.y, this);
    else
        Default();
}

void CMainWindow::OnViewOption(UINT id)
{
    bool& option = id == ID_VIEW_GRID ? m_bGrid : m_bNodes;
    option = !option;
    CheckMenu();
    m_picture.Invalidate();
}

void CMainWindow::OnWizard()
{
    CStructureWizard wizard(this);
    if (wizard.DoModal() != ID_WIZFINISH)
        return;
    m_model = wizard.GetModel(m_model);
    m_form->ShowModel();
    Invalidate();
    m_picture.Invalidate();
    if (wizard.RunsAnalysis())
        run_analysis(m_model, m_form->GetAnalysis(), m_settings);
}

void CMainWindow::OnAnalysisControl() { CAnalysisControl(m_settings, this).DoModal(); }
void CMainWindow::OnLimits() { CLimitsDlg(m_model, this).DoModal(); }

void CMainWindow::OnCheckModel()
{
    m_form->TakeModel();
    check_model(m_model);
}

void CMainWindow::OnRunAnalysis()
{
    m_form->TakeModel();
    run_analysis(m_model, m_form->GetAnalysis(), m_settings);
}
