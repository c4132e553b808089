#include "tarvo/intl/LanguageWindow.h"

#include "tarvo/intl/InternationalUtil.h"
#include "tarvo/intl/LocaleLib.h"
#include "tarvo/intl/ModuleTable_windows.h"
#include "tarvo/intl/TemplateTexts_windows.h"
#include "tarvo/intl/TextGuard_windows.h"
#include "tarvo/intl/WindowText_windows.h"
#include "tarvo/lang/PaintingPause_windows.h"

#include <algorithm>
#include <cstring>

namespace
{
std::vector<CLanguageWindow*>& OpenWindows()
{
    static std::vector<CLanguageWindow*> windows;
    return windows;
}
} // namespace

CLanguageWindow::CLanguageWindow(SKIN_WINDOW kind) : m_kind(kind), m_pTexts(new CTemplateTexts) {}

CLanguageWindow::~CLanguageWindow() { CLanguageWindow::CloseWindow(); }

std::vector<CLanguageWindow*> CLanguageWindow::GetOpenWindows() { return OpenWindows(); }

bool CLanguageWindow::IsOpen(const CLanguageWindow* window)
{
    const std::vector<CLanguageWindow*>& all = OpenWindows();
    return std::find(all.begin(), all.end(), window) != all.end();
}

void CLanguageWindow::OpenWindow(CWnd* window)
{
    m_pWindow = window;
    if (!IsOpen(this))
        OpenWindows().push_back(this);
    m_pTexts->Note(window->m_hWnd);
}

void CLanguageWindow::CloseWindow()
{
    std::erase(OpenWindows(), this);
    m_pWindow = nullptr;
    if (m_hTextFont)
        ::DeleteObject(m_hTextFont);
    m_hTextFont = nullptr;
}

bool CLanguageWindow::MakeTextFont()
{
    CString face = CInternationalUtil::GetDlgTextFontName();
    face.TrimRight();
    LOGFONTW description;
    if (!CInternationalUtil::GetLogFont(m_pWindow, face, CInternationalUtil::GetDlgTextFontSize(),
                                        description))
        return false;
    if (m_hTextFont && std::memcmp(&description, &m_lfText, sizeof description) == 0)
        return false;
    const HFONT font = ::CreateFontIndirectW(&description);
    if (!font)
        return false;
    m_lfText = description;
    m_hTextFont = font;
    return true;
}

std::vector<HWND> CLanguageWindow::GetFontTargets() const { return DescendantsOf(m_pWindow->m_hWnd); }

void CLanguageWindow::TranslateBy(const std::function<CString(HWND, const CString&)>& translated)
{
    m_pTexts->Examine();
    m_pTexts->TranslateBy(translated);
    m_bTranslatedByTable = true;
    if (IsOpen(this))
        m_pTexts->Settle();
}

void CLanguageWindow::SendTextFont(HFONT former, bool redraw) const
{
    for (const HWND window : GetFontTargets())
    {
        if (!::IsWindow(window))
            continue;
        const auto now = reinterpret_cast<HFONT>(former ? ::SendMessageW(window, WM_GETFONT, 0, 0) : 0);
        if (now == former || !now)
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_hTextFont), redraw);
    }
}

void CLanguageWindow::PutTextFont()
{
    if (CLocaleLib::IsEnglish() || CLocaleLib::IsRussian())
        CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
    // Once more, on every system.
    CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
    if (!MakeTextFont())
        return;
    SendTextFont(nullptr, false);
    SendTextFont(nullptr, true);
}

void CLanguageWindow::ChangeTextFont()
{
    const CPaintingPause pause(m_pWindow->m_hWnd);
    CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
    const HFONT former = m_hTextFont;
    if (!MakeTextFont())
        return;
    SendTextFont(former, true);
    if (former)
        ::DeleteObject(former);
}

int CLanguageWindow::TranslateByTable(UINT resource)
{
    if (!m_pWindow || !m_pWindow->m_hWnd)
        return 0;
    const ModuleTable found = TableOfWindow(m_pWindow->m_hWnd, resource);
    if (!found.pTable)
    {
        if (m_bChanging)
            m_pTexts->Restore();
        return 0;
    }
    if (m_bChanging)
        m_pTexts->Translate(*found.pTable, resource, found.strProject);
    else
        TranslateFirst(*found.pTable, resource, found.strProject);
    return 1;
}

void CLanguageWindow::TranslateFirst(XMultiLang& table, UINT resource, const CString& project)
{
    m_pTexts->Examine();
    table.SetDlgTexts(m_pWindow->m_hWnd, resource, project);
    if (!IsOpen(this))
        return;
    m_pTexts->Settle();
    m_bTranslatedByTable = true;
}

void CLanguageWindow::RunTranslation()
{
    m_pTexts->Examine();
    TranslateStringToINI();
    if (IsOpen(this))
        m_pTexts->Settle();
}

HBRUSH CLanguageWindow::GetSkinBackground(CDC& device, CWnd& control, UINT nCtlColor) const
{
    return ISkinFunc::Instance()->GetBackground(m_pWindow, device.m_hDC, control.m_hWnd,
                                                WM_CTLCOLORMSGBOX + nCtlColor);
}

void CLanguageWindow::FinishStart()
{
    RunTranslation();
    if (IsOpen(this))
        SetText();
    if (IsOpen(this))
        ISkinFunc::Instance()->OnWindowReady(m_pWindow, m_kind);
}

/// The template's texts, then the window's own. What the program has set stays, whoever translates.
void CLanguageWindow::ChangeTexts()
{
    const CPaintingPause pause(m_pWindow->m_hWnd);
    m_bChanging = true;
    m_pTexts->Examine();
    {
        std::vector<HWND> kept = m_pTexts->GetReadOnlyEntries();
        const std::vector<HWND> program = m_pTexts->GetSetByProgram();
        kept.insert(kept.end(), program.begin(), program.end());
        const CTextGuard guard(kept);
        // A translation of the derived class's own starts from what the windows show.
        if (!m_bTranslatedByTable)
            m_pTexts->Restore();
        TranslateStringToINI();
    }
    if (!IsOpen(this))
        return;
    m_pTexts->Settle();
    m_bChanging = false;
    ChangeOwnTexts();
}

void CLanguageWindow::ChangeLanguage()
{
    if (!IsOpen(this) || !m_pWindow->m_hWnd)
        return;
    const CEntryKeeper entries(m_pTexts->GetEntries());
    {
        const CTextGuard guard(m_pTexts->GetTypedEntries());
        ChangeTexts();
        if (IsOpen(this))
            SetText();
    }
    if (!IsOpen(this))
        return;
    ChangeTextFont();
    // Group boxes and tabs leave what a shorter text uncovers to the window below them.
    m_pWindow->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    ISkinFunc::Instance()->OnWindowReady(m_pWindow, m_kind);
}
