#include <afxwin.h>

#include <gtest/gtest.h>

namespace
{
struct Text : std::string
{
    using std::string::string;
    Text(const CRect& r)
        : std::string(std::to_string(r.left) + "," + std::to_string(r.top) + "," + std::to_string(r.right) +
                      "," + std::to_string(r.bottom))
    {
    }
    Text(const CPoint& p) : std::string(std::to_string(p.x) + "," + std::to_string(p.y)) {}
    Text(const CSize& s) : std::string(std::to_string(s.cx) + "," + std::to_string(s.cy)) {}
};

TEST(Rectangles, ArithmeticIsAsDocumented)
{
    const CRect r(10, 20, 50, 80);
    const struct
    {
        Text result;
        const char* expected;
    } rows[] = {
        {r.Size(), "40,60"},
        {r.CenterPoint(), "30,50"},
        {r.TopLeft(), "10,20"},
        {r.BottomRight(), "50,80"},
        {r + CPoint(1, 2), "11,22,51,82"},
        {r - CPoint(1, 2), "9,18,49,78"},
        {r + CSize(1, 2), "11,22,51,82"},
        {r + CRect(1, 2, 3, 4), "9,18,53,84"},
        {r - CRect(1, 2, 3, 4), "11,22,47,76"},
        {r & CRect(0, 0, 30, 30), "10,20,30,30"},
        {r & CRect(60, 0, 90, 30), "0,0,0,0"},
        {r | CRect(0, 0, 5, 5), "0,0,50,80"},
        {r | CRect(90, 90, 90, 95), "10,20,50,80"}, // an empty one does not count
        {r.MulDiv(1, 4), "3,5,13,20"},
        {CRect(CPoint(1, 2), CSize(3, 4)), "1,2,4,6"},
        {CRect(CPoint(1, 2), CPoint(3, 4)), "1,2,3,4"},
        {CPoint(MAKELPARAM(5, 0xFFFE)), "5,-2"},
        {CPoint(5, 6) - CPoint(1, 1), "4,5"},
        {CPoint(5, 6) + CSize(1, 1), "6,7"},
        {-CPoint(5, 6), "-5,-6"},
        {CSize(5, 6) + CSize(1, 1), "6,7"},
        {CSize(static_cast<DWORD>(MAKELONG(7, 0xFFFF))), "7,-1"},
        {CSize(1, 2) + static_cast<const RECT*>(r), "11,22,51,82"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(row.result, row.expected);
}

TEST(Rectangles, ChangesInPlaceAreAsDocumented)
{
    CRect r(10, 20, 50, 80);
    r.InflateRect(1, 2);
    EXPECT_EQ(Text(r), "9,18,51,82");
    r.DeflateRect(1, 2, 3, 4);
    EXPECT_EQ(Text(r), "10,20,48,78");
    r.MoveToXY(0, 0);
    EXPECT_EQ(Text(r), "0,0,38,58");
    r.MoveToX(5);
    r.MoveToY(6);
    EXPECT_EQ(Text(r), "5,6,43,64");
    r.OffsetRect(-5, -6);
    EXPECT_EQ(Text(r), "0,0,38,58");
    CRect turned(9, 8, 1, 2);
    turned.NormalizeRect();
    EXPECT_EQ(Text(turned), "1,2,9,8");
    EXPECT_FALSE(turned.IsRectEmpty());
    turned.SetRectEmpty();
    EXPECT_TRUE(turned.IsRectNull());
    EXPECT_TRUE(CRect(3, 3, 3, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(3, 3, 3, 9).IsRectNull());
}

TEST(Rectangles, RightAndBottomEdgesAreOutside)
{
    const CRect r(0, 0, 10, 10);
    EXPECT_TRUE(r.PtInRect(CPoint(0, 9)));
    EXPECT_FALSE(r.PtInRect(CPoint(10, 5)));
    EXPECT_FALSE(r.PtInRect(CPoint(5, 10)));
}

TEST(Rectangles, SubtractionLeavesTheFirstUnlessARectangleRemains)
{
    CRect r;
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 4, 10)));
    EXPECT_EQ(Text(r), "4,0,10,10");
    EXPECT_TRUE(r.SubtractRect(CRect(0, 0, 10, 10), CRect(0, 0, 4, 4)));
    EXPECT_EQ(Text(r), "0,0,10,10");
    EXPECT_FALSE(r.IntersectRect(CRect(0, 0, 1, 1), CRect(1, 1, 2, 2)));
}
} // namespace
