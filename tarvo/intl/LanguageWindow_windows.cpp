#include "tarvo/intl/LanguageWindow.h"

#include "tarvo/intl/ChoiceKeeper_windows.h"
#include "tarvo/intl/DialogLayout_windows.h"
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

CLanguageWindow::CLanguageWindow(SKIN_WINDOW kind)
    : m_kind(kind), m_pTexts(new CTemplateTexts), m_pLayout(new CDialogLayout)
{
}

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
    m_pLayout->Open(window->m_hWnd, m_kind == SKIN_WINDOW::Dialog);
}

void CLanguageWindow::MadeFrom(LPCTSTR resource, const TemplateFont& font)
{
    m_pLayout->MadeFrom(resource, font);
}

void CLanguageWindow::CloseWindow()
{
    std::erase(OpenWindows(), this);
    m_pWindow = nullptr;
    m_pLayout->Close();
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
    m_pLayout->NoteMoves(CPoint(0, 0));
    if (CLocaleLib::IsEnglish() || CLocaleLib::IsRussian())
        CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
    // Once more, on every system.
    CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
    if (MakeTextFont())
    {
        SendTextFont(nullptr, false);
        SendTextFont(nullptr, true);
    }
    m_pLayout->Settle();
}

/// The windows below that say they have this font.
std::vector<HWND> CLanguageWindow::GetHolders(HFONT font) const
{
    std::vector<HWND> holders = GetFontTargets();
    std::erase_if(holders, [font](HWND window) {
        return !font || reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)) != font;
    });
    return holders;
}

HFONT CLanguageWindow::GetDialogFontNow() const { return m_pLayout->GetFont(); }

CSize CLanguageWindow::GetTemplateSize() const { return m_pLayout->GetTemplateSize(); }

/// What had the text font gets it again afterwards: the places that a dialog's parts take depend on the font
/// that they have when they are placed.
void CLanguageWindow::ChangeDialogFont()
{
    const auto former = reinterpret_cast<HFONT>(m_pWindow->SendMessage(WM_GETFONT));
    const std::vector<HWND> texts = GetHolders(m_hTextFont);
    std::vector<HWND> holders = GetHolders(former);
    holders.insert(holders.end(), texts.begin(), texts.end());
    m_pLayout->Apply(holders);
    if (!IsOpen(this)) // closed on the way
        return;
    for (const HWND window : texts)
        if (::IsWindow(window))
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_hTextFont), FALSE);
}

void CLanguageWindow::ChangeFonts()
{
    const bool otherLayout = m_pLayout->LoadNew();
    const CPoint scrolled = otherLayout ? BeginLayout() : CPoint(0, 0);
    {
        // Its end has the whole window painted: group boxes and tabs leave what a shorter text uncovers to
        // the window below them.
        const CPaintingPause pause(m_pWindow->m_hWnd);
        m_pLayout->NoteMoves(scrolled);
        if (otherLayout)
            ChangeDialogFont();
        if (!IsOpen(this))
            return;
        CInternationalUtil::AdjustStaticControlHeight(m_pWindow);
        ChangeTextFont();
        m_pLayout->Settle();
    }
    EndLayout(otherLayout);
    if (otherLayout && IsOpen(this))
        OnLayoutChanged();
}

/// A form that keeps its template's font has no other.
void CLanguageWindow::ChangeTextFont()
{
    const HFONT former = m_hTextFont;
    if (!former || !MakeTextFont())
        return;
    SendTextFont(former, true);
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
        const CChoiceKeeper choices(m_pWindow->m_hWnd);
        const CTextGuard guard(m_pTexts->GetTypedEntries());
        ChangeTexts();
        if (IsOpen(this))
            SetText();
    }
    if (!IsOpen(this))
        return;
    ChangeFonts();
    if (!IsOpen(this))
        return;
    ISkinFunc::Instance()->OnWindowReady(m_pWindow, m_kind);
}
