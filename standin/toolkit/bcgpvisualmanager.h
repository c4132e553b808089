#pragma once

#include <afxwin.h>

#include "bcgpexport.h"

/// Gives the windows with the visual-manager style their colours. There is one manager at a time; programs
/// derive their own theme from it and install it by its run-time class.
///
/// This base is a plain theme from the system's colours: a background halfway between dialogs and documents,
/// with the text colour of documents.
class BCGP_API CBCGPVisualManager : public CObject
{
    DECLARE_DYNCREATE(CBCGPVisualManager)

public:
    CBCGPVisualManager() = default;

    /// Never null: the manager of the installed class, made on first use. Do not keep the pointer.
    static CBCGPVisualManager* GetInstance();
    /// Installs a manager of this class, which must be creatable and derived from this one, else the plain
    /// theme stands in; null installs the plain theme. All windows with the style are drawn anew.
    static void SetDefaultManager(CRuntimeClass* pRTI);
    static void DestroyInstance();

    /// The brush and the colour of a window with the style, and of its labels, buttons and frames. The brush
    /// belongs to the manager.
    virtual CBrush& GetDlgBackBrush(CWnd* pDlg);
    virtual COLORREF GetDlgTextColor(CWnd* pDlg);
    /// The window's background; \p rect is its client area.
    virtual void OnFillDialog(CDC* pDC, CWnd* pDlg, CRect rect);
    /// The system's colours have changed.
    virtual void OnUpdateSystemColors();

private:
    CBrush m_brBackground;
};
