#pragma once

#include "tarvo/export.h"
#include "tarvo/intl/ISkinFunc.h"

#include <afxwin.h>

#include <functional>
#include <memory>
#include <vector>

class CDialogLayout;
class CTemplateTexts;
class XMultiLang;
struct TemplateFont;

/// What the four window bases share: the font and the texts of the user's language, when the window is
/// opened and when the language changes while it is open.
///
/// Every text comes from one of three places. The template's are translated by TranslateStringToINI. The
/// derived class's own are set by SetText. All others are set by the program while it runs, or entered by
/// the user, and no change of language touches them: edit controls, combo and list boxes keep text and
/// selection whatever SetText does, list views and trees that SetText fills anew keep what was chosen,
/// checked and open in them, and a label that the program has given another text since the window was opened
/// keeps it, unless SetText sets it. A list view's and a tree's lines are known again by their data, when
/// they have any, else by their number.
class TARVO_API CLanguageWindow
{
public:
    CLanguageWindow(const CLanguageWindow&) = delete;
    CLanguageWindow& operator=(const CLanguageWindow&) = delete;

    /// Sets the texts that the derived class takes from the message catalogue. Empty in the bases. The
    /// library calls it when the window's own initialisation has ended, the derived class's included, and
    /// with each change of language: it may run any number of times, so lists are emptied before they are
    /// filled.
    virtual void SetText() {}
    /// Translates the texts of the template. Not 0 when there is a language table for them. Called before
    /// SetText.
    virtual int TranslateStringToINI() { return 0; }
    /// 0: a change of language leaves this window alone.
    virtual int FollowsLanguage() { return 1; }

    /// Takes over the language that is now in force: texts, then the fonts. When the dialog font is another
    /// one now, the window is laid out in it: everything stands where it would in a window that is opened
    /// then, and what the program or the user has moved or made larger is as far from there as it was before.
    /// Dialogs change their size with it, sheets by what their pages need. Does nothing without a window.
    ///
    /// MapDialogRect goes on counting in the font that the window was made in: the system keeps that.
    void ChangeLanguage();
    /// The window has been laid out in another dialog font. A derived class that keeps places of its own, to
    /// follow the window's size by them, notes them anew. Empty in the bases.
    virtual void OnLayoutChanged() {}

    /// The window bases that have a window, in the order in which these were opened.
    static std::vector<CLanguageWindow*> GetOpenWindows();
    /// True when \p window is one of them; it need not exist any more.
    static bool IsOpen(const CLanguageWindow* window);

    /// The font of the window's texts, its own; null before it was made.
    HFONT GetTextFont() const { return m_hTextFont; }
    const LOGFONTW& GetTextLogFont() const { return m_lfText; }

protected:
    explicit CLanguageWindow(SKIN_WINDOW kind);
    virtual ~CLanguageWindow();

    /// The window is about to be made from a dialog resource with this font put in.
    void MadeFrom(LPCTSTR resource, const TemplateFont& font);
    /// The window has been made, and nothing has set a text in it yet.
    void OpenWindow(CWnd* window);
    /// The window is gone; frees the font.
    void CloseWindow();
    /// Makes labels as high as their text needs, the first time only on an English or Russian system, and
    /// sends the text font of the settings to every window below this one, twice, the second time with a
    /// repaint.
    void PutTextFont();
    /// What is left to do when the window's initialisation has ended: TranslateStringToINI, SetText, and the
    /// skin's part.
    void FinishStart();
    /// What OnCtlColor answers for the registered skin; null leaves it to the base.
    HBRUSH GetSkinBackground(CDC& device, CWnd& control, UINT nCtlColor) const;
    /// TranslateStringToINI by the message catalogue: the module's project is named by its resource of type
    /// "Binary" and number 65533, the project's table translates by the names of \p resource's controls.
    /// Returns not 0 when there is such a table.
    int TranslateByTable(UINT resource);
    /// Texts of the window that no template has. Called with a change of language, between the template's
    /// texts and SetText.
    virtual void ChangeOwnTexts() {}
    /// Around a change of the fonts, for windows that have to do more than to place their parts.
    /// BeginLayout is called only when the dialog font is another one, and tells how far the parts are
    /// scrolled; EndLayout is called always, and \p changed tells it.
    virtual CPoint BeginLayout() { return CPoint(0, 0); }
    virtual void EndLayout(bool changed) { static_cast<void>(changed); }
    /// The template's size in pixels, in the font that the window has now.
    CSize GetTemplateSize() const;
    /// What a window answers to WM_GETFONT; null leaves it to the system, which knows the font that it was
    /// made in.
    HFONT GetDialogFontNow() const;
    /// The windows that get the text font: every one below this one.
    virtual std::vector<HWND> GetFontTargets() const;
    /// Translates texts of the window and its children that no template has. \p translated is asked for each
    /// that nobody has changed since; it gets the window and the text that was there first.
    void TranslateBy(const std::function<CString(HWND window, const CString& original)>& translated);
    CWnd* GetLanguageWindow() const { return m_pWindow; }

    SKIN_WINDOW GetSkinKind() const { return m_kind; }

private:
    void RunTranslation();
    void TranslateFirst(XMultiLang& table, UINT resource, const CString& project);
    bool MakeTextFont();
    void SendTextFont(HFONT former, bool redraw) const;
    std::vector<HWND> GetHolders(HFONT font) const;
    void ChangeTexts();
    void ChangeFonts();
    void ChangeTextFont();
    void ChangeDialogFont();

    SKIN_WINDOW m_kind;
    CWnd* m_pWindow = nullptr;
    LOGFONTW m_lfText = {};
    HFONT m_hTextFont = nullptr;
    std::unique_ptr<CTemplateTexts> m_pTexts;
    std::unique_ptr<CDialogLayout> m_pLayout;
    bool m_bChanging = false;
    bool m_bTranslatedByTable = false; ///< the last translation started from the originals
};
