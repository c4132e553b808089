#include <afx.h>

#include "tests/support/print.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <cstdint>
#include <limits>
#include <windows.h>

// The formatter is our own on every platform; here it is held against the system's.
namespace
{
using Formatter = int(__cdecl*)(unsigned long long options, wchar_t* buffer, std::size_t size,
                                const wchar_t* format, void* locale, std::va_list args);

Formatter systems()
{
    const HMODULE module = LoadLibraryW(L"ucrtbase.dll");
    return reinterpret_cast<Formatter>(
        reinterpret_cast<void*>(GetProcAddress(module, "__stdio_common_vswprintf")));
}

void expect_same(const wchar_t* text, ...)
{
    static const Formatter system = systems();
    ASSERT_NE(system, nullptr);
    constexpr unsigned long long wide_texts_are_s = 4;
    constexpr unsigned long long ties_go_to_even = 0x20; // as the system has it since its version 2004
    wchar_t buffer[1000] = {};
    CString ours;
    std::va_list args;
    va_start(args, text);
    ours.FormatV(text, args);
    va_end(args);
    va_start(args, text);
    const int n = system(wide_texts_are_s | ties_go_to_even, buffer, std::size(buffer), text, nullptr, args);
    va_end(args);
    EXPECT_EQ(ours, CString(buffer, n < 0 ? 0 : n)) << testing::PrintToString(CString(text));
}

constexpr double inf = std::numeric_limits<double>::infinity();
} // namespace

TEST(CStringFormat, TextsAreThoseOfTheSystem)
{
    const wchar_t* const wide = L"wide";
    const char* const narrow = "narrow";
    expect_same(L"%s %ls %ws %S %hs %hS", wide, wide, wide, narrow, narrow, narrow);
    expect_same(L"[%6s|%-6s|%.2s|%6.2s|%.*s|%*s|%05s]", wide, wide, wide, wide, 3, wide, -6, wide, wide);
    expect_same(L"[%8S|%-8S|%.2S|%.0S]", narrow, narrow, narrow, narrow);
    expect_same(L"%c%C%hc%lc[%3c|%-3c]", L'a', 'b', 'c', 0xAC00, L'd', L'e');
    expect_same(L"%s|%S|%.3s|%10s", nullptr, nullptr, nullptr, nullptr);
}

TEST(CStringFormat, NumbersAreThoseOfTheSystem)
{
    expect_same(L"%d %i %u %hd %hu %ld %lu", -1, -1, -1, 70000, 70000, -1L, 1UL);
    expect_same(L"%I64d %I64u %I64x %lld %llu", INT64_MIN, UINT64_MAX, INT64_MAX, INT64_MIN, UINT64_MAX);
    expect_same(L"%I32d %Iu %Id %zu %td %jd", -5, SIZE_MAX, INT64_MIN, std::size_t{3}, std::ptrdiff_t{-3},
                INT64_MAX);
    expect_same(L"[%5d|%-5d|%05d|%+d|% d|% +d|%*d|%-*d|%*d]", 1, 2, 3, 4, 5, 6, 5, 7, 5, 8, -5, 9);
    expect_same(L"[%.3d|%.*d|%8.3d|%.0d|%+.0d|%-05d]", 1, 4, 2, 5, 0, 0, 3);
    expect_same(L"%x %X %#x %#X %o %#o %#.4x %08x %#08x [%-#8x] %#x %#o %+u", 255, 255, 255, 255, 8, 8, 31,
                255, 255, 255, 0, 0, 5);
    expect_same(L"%p [%20p|%-20p]", reinterpret_cast<void*>(std::uintptr_t{0x1234}), nullptr, nullptr);
}

TEST(CStringFormat, RealsAreThoseOfTheSystem)
{
    expect_same(L"%f %.2f [%10.3f|%-10.1f|%010.2f] %+f % f %lf", 1.5, 2.345, 3.14159, 1.25, -3.5, 1.0, 1.0,
                2.0);
    expect_same(L"%e %E %.0e %.40e [%-14e|%014e]", 12345.678, 0.00012, 12345.0, 1e300, 1.0, -1.0);
    expect_same(L"%g %G %g %g %g %#g %.10g %.17g", 1e-5, 1e20, 123456789.0, 100000.0, 1e6, 1.0, 0.1, 0.1);
    expect_same(L"%.0f %#.0f %.20f %f %g %e", 2.5, 2.5, 0.1, 1e300, 1e-310, 1e-310);
    expect_same(L"%a %A %.3a %.0a", 1.5, 1.5, 1.999, 1.0);
    expect_same(L"%f %F [%5.1f|%-8f|%08f|%+e]", inf, -inf, inf, inf, inf, inf);
}
