#pragma once
#include "demo/host/FramePainter.h"

#include <functional>

/// The child window that shows the model.
class CModelPicture : public CWnd
{
public:
    /// \p view is asked whenever the window paints.
    BOOL Open(CWnd* parent, UINT id, std::function<FrameView()> view);

protected:
    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC*) { return TRUE; } // OnPaint covers all of it
    DECLARE_MESSAGE_MAP()

private:
    std::function<FrameView()> m_view;
};
