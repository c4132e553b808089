#pragma once

#include "tarvo/intl/DialogUnits_windows.h"
#include "tarvo/intl/TemplateFont.h"

#include <afxwin.h>

#include <vector>

/// What a window has from its template besides texts: its font, its size and the places of its parts. When
/// the font of dialogs changes while the window is open, all of it comes out as in a window that is opened
/// then, as far as nobody has changed it.
///
/// Each edge of a part that the program or the user has moved keeps its distance from where the template has
/// it, and so does the window's size: a list that was made 100 pixels wider stays 100 pixels wider than the
/// template's. A part that the program has added is scaled with the units.
class CDialogLayout
{
public:
    CDialogLayout() = default;
    ~CDialogLayout() { FreeFont(); }
    CDialogLayout(const CDialogLayout&) = delete;
    CDialogLayout& operator=(const CDialogLayout&) = delete;

    /// The window is about to be made from this resource in this font. Without it no change of the font is
    /// followed.
    void MadeFrom(LPCTSTR resource, const TemplateFont& font);
    /// The window has been made, and nothing has moved a part yet. \p sizesItself: it is as large as its
    /// template says; pages and forms are as large as others make them.
    void Open(HWND window, bool sizesItself);
    /// The window is gone.
    void Close();

    /// Notes by how much the parts were moved since the last Settle, before somebody moves parts who is not
    /// to be taken for the program. \p scrolled: how far the window shows its parts further left and up
    /// until Settle.
    void NoteMoves(const CPoint& scrolled);
    /// Comes after it.
    void Settle();

    /// Loads the template in the font of the settings; false when that is the one that the window has.
    bool LoadNew();
    /// Makes that font the window's, and moves and sizes the window and its parts. \p holders are the parts
    /// that have had the fonts which go; they get the new one. Between NoteMoves and Settle.
    void Apply(const std::vector<HWND>& holders);

    /// The font of the template that was applied last; null as long as the window has the one that it was
    /// made in.
    HFONT GetFont() const { return m_hFont; }
    /// The size of the template's window in pixels.
    CSize GetTemplateSize() const;

private:
    struct Part
    {
        HWND window;
        int id;
        CRect made;    ///< where it was first
        CRect left;    ///< where the layout last left it, had nobody moved it
        CRect moves;   ///< how far each edge was moved from there
        int item = -1; ///< the template's control; -1 for an added part
    };
    bool IsThere(const Part& part) const;
    CRect PlaceOf(HWND window) const;
    void AddParts();
    void FindItems();
    void ResizeWindow(const CSize& former);
    void PlaceParts(const std::vector<CRect>& before);
    CRect PlaceInTemplate(const Part& part) const;
    CRect Scaled(const CRect& place) const;
    void FreeFont();

    CString m_strResource; ///< its name; empty for a number
    UINT m_nResource = 0;
    TemplateFont m_setting; ///< as it was when the template was loaded
    HWND m_window = nullptr;
    bool m_sizesItself = false;
    DialogUnits m_units;
    DialogUnits m_formerUnits;
    TemplateLayout m_layout;
    DialogMeasure m_next;
    TemplateLayout m_nextLayout;
    std::vector<Part> m_parts;
    CPoint m_scrolled;
    CSize m_wanted; ///< the window's size by the layout
    CSize m_left;   ///< as the layout could make it, had nobody changed it since
    HFONT m_hFont = nullptr;
};
