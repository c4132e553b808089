#include "demo/host/FramePainter.h"

#include <algorithm>

namespace
{
constexpr COLORREF kGridColour = RGB(222, 228, 236);
constexpr COLORREF kMemberColour = RGB(31, 95, 168);
constexpr COLORREF kSupportColour = RGB(96, 104, 112);
constexpr COLORREF kLoadColour = RGB(200, 60, 40);
constexpr COLORREF kTextColour = RGB(40, 48, 58);

/// Selects an object while it lives.
class CSelected
{
public:
    CSelected(CDC& dc, HGDIOBJ object) : m_dc(dc), m_before(dc.SelectObject(object)) {}
    ~CSelected() { m_dc.SelectObject(m_before); }
    CSelected(const CSelected&) = delete;
    CSelected& operator=(const CSelected&) = delete;

private:
    CDC& m_dc;
    HGDIOBJ m_before;
};

/// Places of the model's nodes in the area, level 0 at the supports.
class CFrame
{
public:
    CFrame(const CRect& area, int bays, int storeys) : m_bays(bays), m_storeys(storeys)
    {
        m_bay = std::min(area.Width() * 6 / 10 / bays, area.Height() * 4 / 5 / std::min(bays, storeys));
        m_storey = area.Height() * 3 / 4 / storeys;
        m_left = area.left + (area.Width() - bays * m_bay) / 2 + m_bay / 10;
        m_bottom = area.bottom - area.Height() / 9;
    }
    CPoint At(int column, int level) const { return {m_left + column * m_bay, m_bottom - level * m_storey}; }
    int Bays() const { return m_bays; }
    int Storeys() const { return m_storeys; }

private:
    int m_bays;
    int m_storeys;
    int m_bay;
    int m_storey;
    int m_left;
    int m_bottom;
};

void line(CDC& dc, CPoint from, CPoint to)
{
    dc.MoveTo(from);
    dc.LineTo(to);
}

void paint_grid(CDC& dc, const CRect& area)
{
    CPen pen(PS_SOLID, 1, kGridColour);
    const CSelected selected(dc, pen.m_hObject);
    constexpr int step = 24;
    for (int x = area.left + step; x < area.right; x += step)
        line(dc, {x, area.top}, {x, area.bottom});
    for (int y = area.top + step; y < area.bottom; y += step)
        line(dc, {area.left, y}, {area.right, y});
}

void paint_members(CDC& dc, const CFrame& frame)
{
    CPen pen(PS_SOLID, 5, kMemberColour);
    const CSelected selected(dc, pen.m_hObject);
    for (int column = 0; column <= frame.Bays(); ++column)
        line(dc, frame.At(column, 0), frame.At(column, frame.Storeys()));
    for (int level = 1; level <= frame.Storeys(); ++level)
        line(dc, frame.At(0, level), frame.At(frame.Bays(), level));
}

void paint_supports(CDC& dc, const CFrame& frame)
{
    CPen pen(PS_SOLID, 2, kSupportColour);
    const CSelected selected(dc, pen.m_hObject);
    for (int column = 0; column <= frame.Bays(); ++column)
    {
        const CPoint foot = frame.At(column, 0);
        line(dc, {foot.x - 16, foot.y + 3}, {foot.x + 17, foot.y + 3});
        for (int x = -14; x <= 14; x += 7)
            line(dc, {foot.x + x, foot.y + 4}, {foot.x + x - 6, foot.y + 10});
    }
}

void paint_arrow(CDC& dc, CPoint from, CPoint to)
{
    line(dc, from, to);
    const bool down = from.x == to.x;
    const POINT head[] = {{to.x, to.y},
                          {to.x - (down ? 3 : 6), to.y - (down ? 6 : 3)},
                          {to.x + (down ? 3 : -6), to.y + (down ? -6 : 3)}};
    dc.Polygon(head, 3);
}

void paint_loads(CDC& dc, const CFrame& frame)
{
    CPen pen(PS_SOLID, 1, kLoadColour);
    CBrush brush(kLoadColour);
    const CSelected selectedPen(dc, pen.m_hObject);
    const CSelected selectedBrush(dc, brush.m_hObject);
    constexpr int arrowsPerBay = 7;
    for (int level = 1; level <= frame.Storeys(); ++level)
    {
        const CPoint left = frame.At(0, level);
        const CPoint right = frame.At(frame.Bays(), level);
        line(dc, {left.x, left.y - 26}, {right.x, right.y - 26});
        for (int i = 0; i <= frame.Bays() * arrowsPerBay; ++i)
        {
            const int x = left.x + i * (right.x - left.x) / (frame.Bays() * arrowsPerBay);
            paint_arrow(dc, {x, left.y - 26}, {x, left.y - 4});
        }
        paint_arrow(dc, {left.x - 52, left.y}, {left.x - 6, left.y});
    }
}

void paint_node_numbers(CDC& dc, const CFrame& frame)
{
    int number = 0;
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(kTextColour);
    CPen pen(PS_SOLID, 1, kMemberColour);
    CBrush brush(RGB(255, 255, 255));
    const CSelected selectedPen(dc, pen.m_hObject);
    const CSelected selectedBrush(dc, brush.m_hObject);
    for (int level = 0; level <= frame.Storeys(); ++level)
    {
        for (int column = 0; column <= frame.Bays(); ++column)
        {
            const CPoint node = frame.At(column, level);
            const CRect dot(node.x - 5, node.y - 5, node.x + 6, node.y + 6);
            dc.Ellipse(&dot);
            CString text;
            text.Format(L"%d", ++number);
            dc.TextOut(node.x + 9, node.y + (level == 0 ? 11 : 5), text); // clear of the supports
        }
    }
}
} // namespace

void paint_frame(CDC& dc, const CRect& area, const FrameView& view)
{
    dc.FillSolidRect(&area, RGB(250, 251, 253));
    if (view.grid)
        paint_grid(dc, area);
    const CFrame frame(area, view.bays, view.storeys);
    paint_loads(dc, frame);
    paint_supports(dc, frame);
    paint_members(dc, frame);
    if (view.nodeNumbers)
        paint_node_numbers(dc, frame);
}
