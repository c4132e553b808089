#include "demo/real/RealDialog.h"

CRealDialog::CRealDialog(XMultiLang& table, HINSTANCE module, UINT id, CWnd* parent)
    : CInternationalDlg(id, parent), m_table(table), m_module(module), m_id(id)
{
}

BOOL CRealDialog::Open()
{
    const HINSTANCE own = AfxGetResourceHandle();
    AfxSetResourceHandle(m_module);
    const BOOL open = Create(m_id, m_pParentWnd);
    AfxSetResourceHandle(own);
    if (!open)
        return FALSE;
    if (GetStyle() & WS_CHILD)
        FitParent();
    ShowWindow(SW_SHOW);
    return TRUE;
}

void CRealDialog::SetText() { m_count = m_table.TranslateDialog(m_hWnd, m_id); }

void CRealDialog::FitParent()
{
    CString caption;
    GetWindowText(caption);
    CWnd& parent = *GetParent();
    parent.SetWindowText(caption);
    CRect place;
    GetWindowRect(place);
    ::AdjustWindowRectEx(place, parent.GetStyle(), FALSE, parent.GetExStyle());
    parent.SetWindowPos(nullptr, 0, 0, place.Width(), place.Height(), SWP_NOMOVE | SWP_NOZORDER);
    SetWindowPos(nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    parent.ShowWindow(SW_SHOW);
}
