#include "TestApp.h"

namespace
{
class HandleMaps : public WindowTest
{
};

/// A bare window of the system, known to no object.
struct BareWindow
{
    HWND hWnd =
        ::CreateWindowExW(0, L"Static", L"bare", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    ~BareWindow() { ::DestroyWindow(hWnd); }
};

TEST_F(HandleMaps, ForeignWindowGetsOneTemporaryObjectUntilIdle)
{
    const BareWindow bare;
    CWnd* pWnd = CWnd::FromHandle(bare.hWnd);
    ASSERT_NE(pWnd, nullptr);
    EXPECT_EQ(pWnd->m_hWnd, bare.hWnd);
    EXPECT_EQ(CWnd::FromHandle(bare.hWnd), pWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare.hWnd), nullptr);
    // What an object was told is gone with it; its address may come again.
    const BareWindow owner;
    pWnd->SetOwner(CWnd::FromHandle(owner.hWnd));
    const auto owned = [&] {
        return CWnd::SafeHandle(CWnd::FromHandle(bare.hWnd)->GetOwner()) == owner.hWnd;
    };
    theApp.OnIdle(0);
    EXPECT_TRUE(owned()); // only the second call cleans up
    AfxLockTempMaps();
    theApp.OnIdle(1);
    EXPECT_TRUE(owned()); // a lock holds them
    EXPECT_FALSE(AfxUnlockTempMaps(FALSE));
    EXPECT_TRUE(owned());
    theApp.OnIdle(1);
    EXPECT_FALSE(owned());
    EXPECT_TRUE(::IsWindow(bare.hWnd)); // the object went, the window stayed
}

TEST_F(HandleMaps, NullHandleHasNoObject)
{
    EXPECT_EQ(CWnd::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CMenu::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
    EXPECT_EQ(CGdiObject::FromHandle(nullptr), nullptr);
    CWnd* pNoWindow = AfxOpaque<CWnd>(nullptr);
    CFont* pNoFont = AfxOpaque<CFont>(nullptr);
    CDC* pNoContext = AfxOpaque<CDC>(nullptr);
    CMenu* pNoMenu = AfxOpaque<CMenu>(nullptr);
    EXPECT_EQ(pNoWindow->GetSafeHwnd(), nullptr);
    EXPECT_EQ(pNoFont->GetSafeHandle(), nullptr);
    EXPECT_EQ(pNoContext->GetSafeHdc(), nullptr);
    EXPECT_EQ(pNoMenu->GetSafeHmenu(), nullptr);
}

TEST_F(HandleMaps, AttachedObjectIsTheWindowsOnlyObjectAndSurvivesIdle)
{
    const BareWindow bare;
    CWnd::FromHandle(bare.hWnd);
    CWnd wnd;
    EXPECT_TRUE(wnd.Attach(bare.hWnd));
    EXPECT_EQ(CWnd::FromHandle(bare.hWnd), &wnd);
    theApp.OnIdle(1);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare.hWnd), &wnd);
    EXPECT_EQ(wnd.Detach(), bare.hWnd);
    EXPECT_EQ(wnd.m_hWnd, nullptr);
    EXPECT_EQ(CWnd::FromHandlePermanent(bare.hWnd), nullptr);
    EXPECT_FALSE(wnd.Attach(nullptr));
}

TEST_F(HandleMaps, HandleIsNullAfterTheWindowIsGoneHoweverItGoes)
{
    CWnd wnd;
    for (int nWay = 0; nWay < 3; ++nWay)
    {
        ASSERT_TRUE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
        const HWND hWnd = wnd.m_hWnd;
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), &wnd);
        if (nWay == 0)
            EXPECT_TRUE(wnd.DestroyWindow());
        else if (nWay == 1)
            EXPECT_TRUE(::DestroyWindow(hWnd));
        else
            wnd.SendMessage(WM_CLOSE);
        EXPECT_EQ(wnd.m_hWnd, nullptr);
        EXPECT_EQ(CWnd::FromHandlePermanent(hWnd), nullptr);
    }
    EXPECT_FALSE(wnd.DestroyWindow());
}

TEST_F(HandleMaps, SubclassedWindowIsGivenBackAsItWas)
{
    const BareWindow bare;
    const LONG_PTR before = ::GetWindowLongPtrW(bare.hWnd, GWLP_WNDPROC);
    CWnd wnd;
    ASSERT_TRUE(wnd.SubclassWindow(bare.hWnd));
    EXPECT_NE(::GetWindowLongPtrW(bare.hWnd, GWLP_WNDPROC), before);
    CWnd second;
    EXPECT_FALSE(second.SubclassWindow(bare.hWnd)); // one object for a window
    EXPECT_EQ(second.m_hWnd, nullptr);
    EXPECT_EQ(wnd.UnsubclassWindow(), bare.hWnd);
    EXPECT_EQ(::GetWindowLongPtrW(bare.hWnd, GWLP_WNDPROC), before);
    EXPECT_EQ(wnd.UnsubclassWindow(), nullptr);
    EXPECT_FALSE(wnd.SubclassWindow(reinterpret_cast<HWND>(static_cast<INT_PTR>(0x12345))));
}

TEST_F(HandleMaps, ObjectThatDiesTakesItsWindowWithIt)
{
    HWND hWnd = nullptr;
    {
        CWnd wnd;
        ASSERT_TRUE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
        hWnd = wnd.m_hWnd;
    }
    EXPECT_FALSE(::IsWindow(hWnd));
}

TEST_F(HandleMaps, ObjectSeesItsWindowFromTheFirstMessageToTheLast)
{
    class CWatching : public CWnd
    {
    public:
        std::vector<UINT> m_messages;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            EXPECT_EQ(FromHandlePermanent(m_hWnd), this);
            for (UINT nWatched : {UINT(WM_NCCREATE), UINT(WM_CREATE), UINT(WM_DESTROY), UINT(WM_NCDESTROY)})
                if (message == nWatched)
                    m_messages.push_back(message);
            return CWnd::WindowProc(message, wParam, lParam);
        }
        void PreSubclassWindow() override { m_messages.push_back(1); }
        void PostNcDestroy() override
        {
            EXPECT_EQ(m_hWnd, nullptr);
            m_messages.push_back(2);
        }
    };
    CWatching wnd;
    ASSERT_TRUE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    wnd.DestroyWindow();
    EXPECT_EQ(wnd.m_messages, (std::vector<UINT>{1, WM_NCCREATE, WM_CREATE, WM_DESTROY, WM_NCDESTROY, 2}));
}

TEST_F(HandleMaps, WindowThatRefusesItsCreationLeavesTheObjectWithoutOne)
{
    class CRefusing : public CWnd
    {
    public:
        UINT m_nRefused = 0;
        int m_nPosts = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == m_nRefused)
                return message == WM_CREATE ? -1 : 0;
            return CWnd::WindowProc(message, wParam, lParam);
        }
        BOOL PreCreateWindow(CREATESTRUCT& cs) override
        {
            return m_nRefused != 0 && CWnd::PreCreateWindow(cs);
        }
        void PostNcDestroy() override { ++m_nPosts; }
    };
    for (UINT nRefused : {UINT(WM_CREATE), UINT(WM_NCCREATE), 0u})
    {
        CRefusing wnd;
        wnd.m_nRefused = nRefused;
        EXPECT_FALSE(wnd.CreateEx(0, nullptr, L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0)) << nRefused;
        EXPECT_EQ(wnd.m_hWnd, nullptr) << nRefused;
        EXPECT_EQ(wnd.m_nPosts, 1) << nRefused;
    }
    CWnd next; // and the hook waits for nobody any more
    EXPECT_FALSE(next.CreateEx(0, L"NoSuchWindowClass", L"", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    const BareWindow bare;
    EXPECT_EQ(next.m_hWnd, nullptr);
}

TEST_F(HandleMaps, WindowMadeInsideAnothersCreationGetsItsOwnObject)
{
    class COuter : public CWnd
    {
    public:
        CStatic m_inner;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_NCCREATE)
            {
                const LRESULT lResult = CWnd::WindowProc(message, wParam, lParam);
                m_inner.Create(L"inner", WS_VISIBLE, CRect(0, 0, 5, 5), this, 1);
                return lResult;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    COuter outer;
    ASSERT_TRUE(outer.CreateEx(0, nullptr, L"outer", WS_POPUP, CRect(0, 0, 9, 9), nullptr, 0));
    EXPECT_NE(outer.m_hWnd, outer.m_inner.m_hWnd);
    EXPECT_EQ(CWnd::FromHandlePermanent(outer.m_inner.m_hWnd), &outer.m_inner);
    EXPECT_EQ(outer.GetDlgItem(1), &outer.m_inner);
}

TEST_F(HandleMaps, DrawingObjectsOwnTheirHandlesAndTemporaryOnesDoNot)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    const HFONT hFont = font;
    EXPECT_EQ(CFont::FromHandle(hFont), &font);
    EXPECT_EQ(font.Detach(), hFont);
    EXPECT_EQ(CFont::FromHandle(hFont)->m_hObject, hFont);
    theApp.OnIdle(1);
    EXPECT_EQ(::GetObjectType(hFont), static_cast<DWORD>(OBJ_FONT));
    {
        CFont owner;
        owner.Attach(hFont);
    }
    EXPECT_EQ(::GetObjectType(hFont), 0u);
    EXPECT_FALSE(font.DeleteObject());
}

TEST_F(HandleMaps, PointSizeBecomesTheCharactersHeightInPixels)
{
    CFont font;
    ASSERT_TRUE(font.CreatePointFont(90, L"Tahoma"));
    LOGFONTW log{};
    font.GetLogFont(&log);
    EXPECT_EQ(log.lfHeight, -12);
    EXPECT_STREQ(log.lfFaceName, L"Tahoma");
}

TEST_F(HandleMaps, MemoryContextDrawsIntoItsBitmap)
{
    CDC dc;
    ASSERT_TRUE(dc.CreateCompatibleDC(nullptr));
    CClientDC screen(nullptr);
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 10, 10));
    CBitmap* pFormer = dc.SelectObject(&bitmap);
    dc.FillSolidRect(0, 0, 10, 10, RGB(0, 0, 255));
    CBrush red(RGB(255, 0, 0));
    dc.FillRect(CRect(2, 2, 4, 4), &red);
    EXPECT_EQ(dc.GetPixel(3, 3), RGB(255, 0, 0));
    EXPECT_EQ(dc.GetPixel(5, 5), RGB(0, 0, 255));
    dc.Draw3dRect(CRect(0, 0, 10, 10), RGB(0, 255, 0), RGB(9, 9, 9));
    EXPECT_EQ(dc.GetPixel(0, 0), RGB(0, 255, 0));
    EXPECT_EQ(dc.GetPixel(9, 9), RGB(9, 9, 9));
    dc.SelectObject(pFormer);
}

TEST_F(HandleMaps, PaintContextEndsThePainting)
{
    class CPainting : public CHostWnd
    {
    public:
        int m_nPaints = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message != WM_PAINT)
                return CHostWnd::WindowProc(message, wParam, lParam);
            const CPaintDC dc(this);
            EXPECT_EQ(dc.GetWindow(), this);
            ++m_nPaints;
            return 0;
        }
    };
    CPainting wnd;
    wnd.m_nPaints = 0;
    wnd.Invalidate();
    wnd.UpdateWindow();
    EXPECT_EQ(wnd.m_nPaints, 1);
    EXPECT_FALSE(wnd.GetUpdateRect(nullptr));
}
} // namespace
