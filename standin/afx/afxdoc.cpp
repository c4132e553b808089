#include "afxdoc.h"

#include "afxframe.h"
#include "afxview.h"

#include <vector>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

CDocument::~CDocument()
{
    while (!m_viewList.IsEmpty())
        static_cast<CView*>(m_viewList.RemoveHead())->m_pDocument = nullptr;
}

void CDocument::SetTitle(LPCTSTR lpszTitle) { m_strTitle = lpszTitle; }

void CDocument::SetPathName(LPCTSTR lpszPathName, BOOL)
{
    m_strPathName = lpszPathName;
    SetTitle(m_strPathName.Mid(m_strPathName.ReverseFind(L'\\') + 1));
}

void CDocument::AddView(CView* pView)
{
    if (pView->m_pDocument)
        return;
    m_viewList.AddTail(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView)
{
    const POSITION pos = m_viewList.Find(pView);
    if (!pos)
        return;
    m_viewList.RemoveAt(pos);
    pView->m_pDocument = nullptr;
    OnChangedViewList(); // the last call: the document may be gone
}

CView* CDocument::GetNextView(POSITION& rPosition) const
{
    return rPosition ? static_cast<CView*>(m_viewList.GetNext(rPosition)) : nullptr;
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint)
{
    for (POSITION pos = GetFirstViewPosition(); pos;)
        if (CView* pView = GetNextView(pos); pView != pSender)
            pView->OnUpdate(pSender, lHint, pHint);
}

void CDocument::SendInitialUpdate()
{
    for (POSITION pos = GetFirstViewPosition(); pos;)
        GetNextView(pos)->OnInitialUpdate();
}

void CDocument::OnChangedViewList()
{
    if (m_viewList.IsEmpty() && m_bAutoDelete)
        OnCloseDocument();
}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    m_strPathName.Empty();
    SetModifiedFlag(FALSE);
    return TRUE;
}

BOOL CDocument::OnOpenDocument(LPCTSTR) { return FALSE; }
BOOL CDocument::OnSaveDocument(LPCTSTR) { return FALSE; }

CFrameWnd* CDocument::AnyFrame() const
{
    for (POSITION pos = GetFirstViewPosition(); pos;)
        if (CFrameWnd* pFrame = GetNextView(pos)->GetParentFrame())
            return pFrame;
    return nullptr;
}

void CDocument::OnCloseDocument()
{
    // While its frames go, the list of views runs empty: it must not end the document a second time.
    const BOOL bAutoDelete = std::exchange(m_bAutoDelete, FALSE);
    while (CFrameWnd* pFrame = AnyFrame())
        if (!pFrame->DestroyWindow())
            break;
    m_bAutoDelete = bAutoDelete;
    DeleteContents();
    if (m_bAutoDelete)
        delete this;
}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame)
{
    // Another frame that shows it keeps the document.
    for (POSITION pos = GetFirstViewPosition(); pos;)
        if (CFrameWnd* pOther = GetNextView(pos)->GetParentFrame(); pOther && pOther != pFrame)
            return TRUE;
    return SaveModified();
}
