#pragma once

#include <afx.h>
#include <windows.h>

/// A pointer that the compiler knows nothing about. The framework's GetSafe functions answer for a null
/// object too, which a compiler would otherwise take as impossible inside a member function.
template <class T>
inline T* AfxOpaque(T* p)
{
    asm("" : "+r"(p));
    return p;
}

/// The system's point, size and rectangle with arithmetic. They have the layout of POINT, SIZE and RECT
/// and stand wherever the system wants one.

class CPoint;
class CRect;

class CSize : public tagSIZE
{
public:
    CSize() noexcept { cx = cy = 0; }
    CSize(int initCX, int initCY) noexcept
    {
        cx = initCX;
        cy = initCY;
    }
    CSize(SIZE initSize) noexcept { *static_cast<SIZE*>(this) = initSize; }
    CSize(POINT initPt) noexcept
    {
        cx = initPt.x;
        cy = initPt.y;
    }
    /// The low word is cx, the high word cy, both signed.
    CSize(DWORD dwSize) noexcept
    {
        cx = static_cast<short>(LOWORD(dwSize));
        cy = static_cast<short>(HIWORD(dwSize));
    }

    bool operator==(SIZE size) const noexcept { return cx == size.cx && cy == size.cy; }
    bool operator!=(SIZE size) const noexcept { return !(*this == size); }
    void operator+=(SIZE size) noexcept { SetSize(cx + size.cx, cy + size.cy); }
    void operator-=(SIZE size) noexcept { SetSize(cx - size.cx, cy - size.cy); }
    void SetSize(int CX, int CY) noexcept
    {
        cx = CX;
        cy = CY;
    }
    CSize operator+(SIZE size) const noexcept { return CSize(cx + size.cx, cy + size.cy); }
    CSize operator-(SIZE size) const noexcept { return CSize(cx - size.cx, cy - size.cy); }
    CSize operator-() const noexcept { return CSize(-cx, -cy); }
    CPoint operator+(POINT point) const noexcept;
    CPoint operator-(POINT point) const noexcept;
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

class CPoint : public tagPOINT
{
public:
    CPoint() noexcept { x = y = 0; }
    CPoint(int initX, int initY) noexcept
    {
        x = initX;
        y = initY;
    }
    CPoint(POINT initPt) noexcept { *static_cast<POINT*>(this) = initPt; }
    CPoint(SIZE initSize) noexcept
    {
        x = initSize.cx;
        y = initSize.cy;
    }
    /// The low word is x, the high word y, both signed: the point in a mouse message.
    CPoint(LPARAM dwPoint) noexcept
    {
        x = static_cast<short>(LOWORD(dwPoint));
        y = static_cast<short>(HIWORD(dwPoint));
    }

    void Offset(int xOffset, int yOffset) noexcept { SetPoint(x + xOffset, y + yOffset); }
    void Offset(POINT point) noexcept { Offset(point.x, point.y); }
    void Offset(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void SetPoint(int X, int Y) noexcept
    {
        x = X;
        y = Y;
    }
    bool operator==(POINT point) const noexcept { return x == point.x && y == point.y; }
    bool operator!=(POINT point) const noexcept { return !(*this == point); }
    void operator+=(SIZE size) noexcept { Offset(size.cx, size.cy); }
    void operator-=(SIZE size) noexcept { Offset(-size.cx, -size.cy); }
    void operator+=(POINT point) noexcept { Offset(point.x, point.y); }
    void operator-=(POINT point) noexcept { Offset(-point.x, -point.y); }
    CPoint operator+(SIZE size) const noexcept { return CPoint(x + size.cx, y + size.cy); }
    CPoint operator-(SIZE size) const noexcept { return CPoint(x - size.cx, y - size.cy); }
    CPoint operator-() const noexcept { return CPoint(-x, -y); }
    CPoint operator+(POINT point) const noexcept { return CPoint(x + point.x, y + point.y); }
    /// The way from \p point to this point.
    CSize operator-(POINT point) const noexcept { return CSize(x - point.x, y - point.y); }
    CRect operator+(const RECT* lpRect) const noexcept;
    CRect operator-(const RECT* lpRect) const noexcept;
};

/// A rectangle holds its left and top edges and ends before its right and bottom ones. Where an
/// operation says "normalized", left <= right and top <= bottom must hold for the result to mean anything.
class CRect : public tagRECT
{
public:
    CRect() noexcept { left = top = right = bottom = 0; }
    CRect(int l, int t, int r, int b) noexcept { SetRect(l, t, r, b); }
    CRect(const RECT& srcRect) noexcept { ::CopyRect(this, &srcRect); }
    CRect(const RECT* lpSrcRect) noexcept { ::CopyRect(this, lpSrcRect); }
    CRect(POINT point, SIZE size) noexcept
    {
        SetRect(point.x, point.y, point.x + size.cx, point.y + size.cy);
    }
    CRect(POINT topLeft, POINT bottomRight) noexcept { SetRect(topLeft, bottomRight); }

    int Width() const noexcept { return right - left; }
    int Height() const noexcept { return bottom - top; }
    CSize Size() const noexcept { return CSize(Width(), Height()); }
    CPoint& TopLeft() noexcept { return *reinterpret_cast<CPoint*>(&left); }
    CPoint& BottomRight() noexcept { return *reinterpret_cast<CPoint*>(&right); }
    const CPoint& TopLeft() const noexcept { return *reinterpret_cast<const CPoint*>(&left); }
    const CPoint& BottomRight() const noexcept { return *reinterpret_cast<const CPoint*>(&right); }
    CPoint CenterPoint() const noexcept { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator LPRECT() noexcept { return this; }
    operator LPCRECT() const noexcept { return this; }

    /// Width or height of 0 or less.
    BOOL IsRectEmpty() const noexcept { return ::IsRectEmpty(this); }
    BOOL IsRectNull() const noexcept { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    BOOL PtInRect(POINT point) const noexcept { return ::PtInRect(this, point); }

    void SetRect(int x1, int y1, int x2, int y2) noexcept { ::SetRect(this, x1, y1, x2, y2); }
    void SetRect(POINT topLeft, POINT bottomRight) noexcept
    {
        ::SetRect(this, topLeft.x, topLeft.y, bottomRight.x, bottomRight.y);
    }
    void SetRectEmpty() noexcept { ::SetRectEmpty(this); }
    void CopyRect(LPCRECT lpSrcRect) noexcept { ::CopyRect(this, lpSrcRect); }
    BOOL EqualRect(LPCRECT lpRect) const noexcept { return ::EqualRect(this, lpRect); }

    /// Moves the sides outwards.
    void InflateRect(int x, int y) noexcept { ::InflateRect(this, x, y); }
    void InflateRect(SIZE size) noexcept { ::InflateRect(this, size.cx, size.cy); }
    void InflateRect(LPCRECT lpRect) noexcept
    {
        InflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void InflateRect(int l, int t, int r, int b) noexcept
    {
        SetRect(left - l, top - t, right + r, bottom + b);
    }
    /// Moves the sides inwards.
    void DeflateRect(int x, int y) noexcept { ::InflateRect(this, -x, -y); }
    void DeflateRect(SIZE size) noexcept { ::InflateRect(this, -size.cx, -size.cy); }
    void DeflateRect(LPCRECT lpRect) noexcept
    {
        DeflateRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void DeflateRect(int l, int t, int r, int b) noexcept
    {
        SetRect(left + l, top + t, right - r, bottom - b);
    }

    void OffsetRect(int x, int y) noexcept { ::OffsetRect(this, x, y); }
    void OffsetRect(SIZE size) noexcept { ::OffsetRect(this, size.cx, size.cy); }
    void OffsetRect(POINT point) noexcept { ::OffsetRect(this, point.x, point.y); }
    /// Exchanges the sides where they stand the wrong way round.
    void NormalizeRect() noexcept
    {
        SetRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                top < bottom ? bottom : top);
    }
    void MoveToX(int x) noexcept { SetRect(x, top, Width() + x, bottom); }
    void MoveToY(int y) noexcept { SetRect(left, y, right, Height() + y); }
    void MoveToXY(int x, int y) noexcept { SetRect(x, y, Width() + x, Height() + y); }
    void MoveToXY(POINT point) noexcept { MoveToXY(point.x, point.y); }

    /// The common part; FALSE and an empty rectangle when there is none.
    BOOL IntersectRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept
    {
        return ::IntersectRect(this, lpRect1, lpRect2);
    }
    /// The smallest rectangle around both; an empty one does not count. FALSE when both are empty.
    BOOL UnionRect(LPCRECT lpRect1, LPCRECT lpRect2) noexcept { return ::UnionRect(this, lpRect1, lpRect2); }
    /// The first without the second, where what remains is a rectangle; otherwise the first.
    BOOL SubtractRect(LPCRECT lpRectSrc1, LPCRECT lpRectSrc2) noexcept
    {
        return ::SubtractRect(this, lpRectSrc1, lpRectSrc2);
    }

    void operator=(const RECT& srcRect) noexcept { ::CopyRect(this, &srcRect); }
    bool operator==(const RECT& rect) const noexcept { return ::EqualRect(this, &rect) != 0; }
    bool operator!=(const RECT& rect) const noexcept { return !::EqualRect(this, &rect); }
    /// A point or a size moves the rectangle; a rectangle inflates (+=) or deflates (-=) it side by side.
    void operator+=(POINT point) noexcept { OffsetRect(point); }
    void operator+=(SIZE size) noexcept { OffsetRect(size); }
    void operator+=(LPCRECT lpRect) noexcept { InflateRect(lpRect); }
    void operator-=(POINT point) noexcept { ::OffsetRect(this, -point.x, -point.y); }
    void operator-=(SIZE size) noexcept { ::OffsetRect(this, -size.cx, -size.cy); }
    void operator-=(LPCRECT lpRect) noexcept { DeflateRect(lpRect); }
    void operator&=(const RECT& rect) noexcept { ::IntersectRect(this, this, &rect); }
    void operator|=(const RECT& rect) noexcept { ::UnionRect(this, this, &rect); }
    CRect operator+(POINT point) const noexcept
    {
        return With([&](CRect& r) { r += point; });
    }
    CRect operator+(SIZE size) const noexcept
    {
        return With([&](CRect& r) { r += size; });
    }
    CRect operator+(LPCRECT lpRect) const noexcept
    {
        return With([&](CRect& r) { r += lpRect; });
    }
    CRect operator-(POINT point) const noexcept
    {
        return With([&](CRect& r) { r -= point; });
    }
    CRect operator-(SIZE size) const noexcept
    {
        return With([&](CRect& r) { r -= size; });
    }
    CRect operator-(LPCRECT lpRect) const noexcept
    {
        return With([&](CRect& r) { r -= lpRect; });
    }
    CRect operator&(const RECT& rect2) const noexcept
    {
        return With([&](CRect& r) { r &= rect2; });
    }
    CRect operator|(const RECT& rect2) const noexcept
    {
        return With([&](CRect& r) { r |= rect2; });
    }
    /// Each side by itself, as MulDiv rounds.
    CRect MulDiv(int nMultiplier, int nDivisor) const noexcept
    {
        return CRect(::MulDiv(left, nMultiplier, nDivisor), ::MulDiv(top, nMultiplier, nDivisor),
                     ::MulDiv(right, nMultiplier, nDivisor), ::MulDiv(bottom, nMultiplier, nDivisor));
    }

private:
    template <class Change>
    CRect With(Change change) const noexcept
    {
        CRect rect(*this);
        change(rect);
        return rect;
    }
};

inline CPoint CSize::operator+(POINT point) const noexcept { return CPoint(cx + point.x, cy + point.y); }
inline CPoint CSize::operator-(POINT point) const noexcept { return CPoint(cx - point.x, cy - point.y); }
inline CRect CSize::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CSize::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
inline CRect CPoint::operator+(const RECT* lpRect) const noexcept { return CRect(lpRect) + *this; }
inline CRect CPoint::operator-(const RECT* lpRect) const noexcept { return CRect(lpRect) - *this; }
