#include "afximagelist.h"

#include "afxstate.h"

IMPLEMENT_DYNCREATE(CImageList, CObject)

CImageList* PASCAL CImageList::FromHandle(HIMAGELIST hImageList)
{
    return AfxThreadState().imageLists.FromHandle(hImageList);
}
CImageList* PASCAL CImageList::FromHandlePermanent(HIMAGELIST hImageList)
{
    return AfxThreadState().imageLists.LookupPermanent(hImageList);
}

BOOL CImageList::Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask)
{
    const LPCTSTR lpszName = MAKEINTRESOURCEW(nBitmapID);
    return Attach(::ImageList_LoadImageW(AfxFindResourceHandle(lpszName, RT_BITMAP), lpszName, cx, nGrow,
                                         crMask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Attach(HIMAGELIST hImageList)
{
    if (!hImageList)
        return FALSE;
    Detach();
    m_hImageList = hImageList;
    AfxThreadState().imageLists.SetPermanent(hImageList, this);
    return TRUE;
}

HIMAGELIST CImageList::Detach()
{
    if (m_hImageList)
        AfxThreadState().imageLists.Remove(m_hImageList, this);
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::DeleteImageList() { return m_hImageList ? ::ImageList_Destroy(Detach()) : FALSE; }
