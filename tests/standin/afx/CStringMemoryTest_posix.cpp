#include <afx.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

// Every allocation of this program is counted. The framework is linked statically here, so its own are
// among them.
namespace
{
int s_nAllocations = 0;
bool s_bNoMemory = false;

void* counted(std::size_t size)
{
    ++s_nAllocations;
    return s_bNoMemory ? nullptr : std::malloc(size);
}
} // namespace

void* operator new(std::size_t size)
{
    void* p = counted(size);
    if (p == nullptr)
        throw std::bad_alloc();
    return p;
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return counted(size); }
void operator delete(void* p) noexcept { std::free(p); }
void operator delete(void* p, std::size_t) noexcept { std::free(p); }

namespace
{
template <class F>
int allocations_of(F f)
{
    const int before = s_nAllocations;
    f();
    return s_nAllocations - before;
}
} // namespace

TEST(CStringMemory, CopyingAllocatesNothing)
{
    const CString a(L"a text of some length");
    EXPECT_EQ(allocations_of([&] {
                  CString b(a);
                  CString c;
                  c = b;
                  CString d(std::move(c));
                  static_cast<void>(d.Mid(0));
              }),
              0);
}

TEST(CStringMemory, EmptyStringsAllocateNothing)
{
    EXPECT_EQ(allocations_of([&] {
                  CString a;
                  CString b(L"");
                  CString c(a + b);
                  c.Trim().MakeUpper();
                  c.Delete(0);
                  c.Truncate(0);
              }),
              0);
}

TEST(CStringMemory, TextIsMadeInOneAllocation)
{
    const wchar_t text[] = L"a text of some length";
    EXPECT_EQ(allocations_of([&] { CString a(text, 10); }), 1);
    EXPECT_EQ(allocations_of([&] { CString a(text); }), 1);
    EXPECT_EQ(allocations_of([&] { CString a("ascii"); }), 1);
    EXPECT_EQ(allocations_of([&] {
                  CString a;
                  a.GetBufferSetLength(1000);
              }),
              1);
    const CString b(text);
    EXPECT_EQ(allocations_of([&] { CString c(b + b); }), 1);
}

TEST(CStringMemory, AppendingCharacterByCharacterAllocatesSeldom)
{
    CString s;
    EXPECT_LT(allocations_of([&] {
                  for (int i = 0; i < 100000; ++i)
                      s.AppendChar(L'x');
              }),
              40);
}

TEST(CStringMemory, WithoutMemoryThrowsAndKeepsTheText)
{
    CString s(L"kept");
    bool bThrown = false;
    s_bNoMemory = true;
    try
    {
        s.Append(L"more than fits in what is there");
    }
    catch (CMemoryException* e)
    {
        bThrown = true;
        e->Delete();
    }
    s_bNoMemory = false;
    EXPECT_TRUE(bThrown);
    EXPECT_EQ(s, L"kept");
}
