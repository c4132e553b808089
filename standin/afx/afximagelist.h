#pragma once

#include "afxwnd.h"

#include <commctrl.h>

/// A list of images of one size. The destructor destroys the list it owns; Detach gives it up.
class AFX_API CImageList : public CObject
{
    DECLARE_DYNCREATE(CImageList)

public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr;

    operator HIMAGELIST() const { return m_hImageList; }
    HIMAGELIST GetSafeHandle() const { return HandleOf(AfxOpaque(this)); }
    static HIMAGELIST HandleOf(const CImageList* pList) { return pList ? pList->m_hImageList : nullptr; }
    /// The object attached to the handle or a temporary one, which does not own it; null for a null handle.
    static CImageList* PASCAL FromHandle(HIMAGELIST hImageList);
    static CImageList* PASCAL FromHandlePermanent(HIMAGELIST hImageList);
    BOOL Create(int cx, int cy, UINT nFlags, int nInitial, int nGrow)
    {
        return Attach(::ImageList_Create(cx, cy, nFlags, nInitial, nGrow));
    }
    /// A bitmap resource of pictures \p cx wide; \p crMask is see-through.
    BOOL Create(UINT nBitmapID, int cx, int nGrow, COLORREF crMask);
    /// A copy with its own pictures.
    BOOL Create(CImageList* pImageList) { return Attach(::ImageList_Duplicate(HandleOf(pImageList))); }
    BOOL Attach(HIMAGELIST hImageList);
    HIMAGELIST Detach();
    BOOL DeleteImageList();
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    int Add(CBitmap* pbmImage, CBitmap* pbmMask)
    {
        return ::ImageList_Add(m_hImageList, *pbmImage, pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
    }
    int Add(CBitmap* pbmImage, COLORREF crMask)
    {
        return ::ImageList_AddMasked(m_hImageList, *pbmImage, crMask);
    }
    int Add(HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, hIcon); }
    int Replace(int nImage, HICON hIcon) { return ::ImageList_ReplaceIcon(m_hImageList, nImage, hIcon); }
    BOOL Replace(int nImage, CBitmap* pbmImage, CBitmap* pbmMask)
    {
        return ::ImageList_Replace(m_hImageList, nImage, *pbmImage,
                                   pbmMask ? static_cast<HBITMAP>(*pbmMask) : nullptr);
    }
    BOOL SetImageCount(UINT uNewCount) { return ::ImageList_SetImageCount(m_hImageList, uNewCount); }
    BOOL GetImageInfo(int nImage, IMAGEINFO* pImageInfo) const
    {
        return ::ImageList_GetImageInfo(m_hImageList, nImage, pImageInfo);
    }
    COLORREF SetBkColor(COLORREF cr) { return ::ImageList_SetBkColor(m_hImageList, cr); }
    COLORREF GetBkColor() const { return ::ImageList_GetBkColor(m_hImageList); }
    BOOL SetOverlayImage(int nImage, int nOverlay)
    {
        return ::ImageList_SetOverlayImage(m_hImageList, nImage, nOverlay);
    }
    BOOL Remove(int nImage) { return ::ImageList_Remove(m_hImageList, nImage); }
    BOOL Draw(CDC* pDC, int nImage, POINT pt, UINT nStyle)
    {
        return ::ImageList_Draw(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, nStyle);
    }
    BOOL DrawEx(CDC* pDC, int nImage, POINT pt, SIZE sz, COLORREF clrBk, COLORREF clrFg, UINT nStyle)
    {
        return ::ImageList_DrawEx(m_hImageList, nImage, pDC->m_hDC, pt.x, pt.y, sz.cx, sz.cy, clrBk, clrFg,
                                  nStyle);
    }

    // One picture is dragged at a time. Places are those of the window that DragEnter locked, frame included.
    BOOL BeginDrag(int nImage, CPoint ptHotSpot)
    {
        return ::ImageList_BeginDrag(m_hImageList, nImage, ptHotSpot.x, ptHotSpot.y);
    }
    static BOOL PASCAL DragEnter(CWnd* pWndLock, CPoint point)
    {
        return ::ImageList_DragEnter(CWnd::SafeHandle(pWndLock), point.x, point.y);
    }
    static BOOL PASCAL DragMove(CPoint pt) { return ::ImageList_DragMove(pt.x, pt.y); }
    static BOOL PASCAL DragShowNolock(BOOL bShow) { return ::ImageList_DragShowNolock(bShow); }
    static BOOL PASCAL DragLeave(CWnd* pWndLock) { return ::ImageList_DragLeave(CWnd::SafeHandle(pWndLock)); }
    static void PASCAL EndDrag() { ::ImageList_EndDrag(); }

    HICON ExtractIcon(int nImage) { return ::ImageList_GetIcon(m_hImageList, nImage, ILD_NORMAL); }
};
