#pragma once

#include "afxdoc.h"
#include "afxwnd.h"

/// The child window that a frame shows its first view in; more follow upwards.
inline constexpr UINT AFX_IDW_PANE_FIRST = 0xE900;
inline constexpr UINT AFX_IDW_PANE_LAST = 0xE9FF;

/// A view's usual style.
#define AFX_WS_DEFAULT_VIEW (WS_CHILD | WS_VISIBLE | WS_BORDER)

struct CPrintInfo;

/// A window that shows a document, or shows something without one. Made with new, it deletes itself when its
/// window is gone, also when the window could not be made.
///
/// Commands go to the view and then to its document. A click makes it its frame's active view.
class AFX_API CView : public CWnd
{
    DECLARE_DYNAMIC(CView)

public:
    /// Null without one.
    CDocument* GetDocument() const { return m_pDocument; }

    /// Everything is made and not yet shown; called by the frame's InitialUpdateFrame, or by who made the
    /// view. The default calls OnUpdate(nullptr, 0, nullptr).
    virtual void OnInitialUpdate();

    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

protected:
    CView() = default;
    ~CView() override;

    /// The document has changed; the default draws the whole view anew.
    virtual void OnUpdate(CView* pSender, LPARAM lHint, CObject* pHint);
    virtual void OnDraw(CDC* pDC) = 0;
    /// Before OnDraw; where the origin and the mapping are set.
    virtual void OnPrepareDC(CDC*, CPrintInfo* = nullptr) {}
    /// The frame has made it the active view (the focus is set), or another one.
    virtual void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView);
    /// The frame was activated or deactivated (WA_ACTIVE and the like).
    virtual void OnActivateFrame(UINT, CFrameWnd*) {}
    void PostNcDestroy() override { delete this; }

    afx_msg int OnCreate(LPCREATESTRUCT lpcs);
    afx_msg void OnDestroy();
    afx_msg void OnPaint();
    afx_msg int OnMouseActivate(CWnd* pDesktopWnd, UINT nHitTest, UINT message);
    afx_msg LRESULT OnInitialUpdateMessage(WPARAM, LPARAM);

    static const AFX_MSGMAP* PASCAL GetThisMessageMap();
    const AFX_MSGMAP* GetMessageMap() const override;

    CDocument* m_pDocument = nullptr;

    friend class CDocument;
    friend class CFrameWnd;
};
