#include "demo/host/ModelPicture.h"

BEGIN_MESSAGE_MAP(CModelPicture, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

BOOL CModelPicture::Open(CWnd* parent, UINT id, std::function<FrameView()> view)
{
    m_view = std::move(view);
    const LPCTSTR windowClass =
        AfxRegisterWndClass(CS_HREDRAW | CS_VREDRAW, ::LoadCursorW(nullptr, IDC_ARROW), nullptr, nullptr);
    return Create(windowClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), parent, id);
}

void CModelPicture::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    // Painted aside, so that changes do not flicker.
    CDC memory;
    CBitmap bitmap;
    memory.CreateCompatibleDC(&dc);
    bitmap.CreateCompatibleBitmap(&dc, client.Width(), client.Height());
    const HGDIOBJ before = memory.SelectObject(bitmap.m_hObject);
    const HGDIOBJ font = memory.SelectObject(::GetStockObject(DEFAULT_GUI_FONT));
    paint_frame(memory, client, m_view());
    dc.BitBlt(0, 0, client.Width(), client.Height(), &memory, 0, 0, SRCCOPY);
    memory.SelectObject(font);
    memory.SelectObject(before);
}
