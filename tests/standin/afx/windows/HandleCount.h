#pragma once

#include <gtest/gtest.h>

#include <windows.h>

/// How many drawing objects and windows the process holds. Some of the first rounds' objects the system
/// keeps: warm up, then demand no growth.

/// The process' table of drawing objects, which the system maps into every process.
struct GdiEntry
{
    ULONGLONG object;
    ULONG owner;
    USHORT unique;
    UCHAR type;
    UCHAR flags;
    ULONGLONG user;
};

inline int CountDrawingObjects()
{
    constexpr std::size_t TABLE_IN_PEB = 0xF8;
    constexpr int ENTRIES = 16384;
    using GetPeb = const char*(WINAPI*)();
    const FARPROC pfn = ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "RtlGetCurrentPeb");
    const char* pPeb = reinterpret_cast<GetPeb>(reinterpret_cast<void*>(pfn))();
    const auto* pEntries = *reinterpret_cast<GdiEntry* const*>(pPeb + TABLE_IN_PEB);
    int nCount = 0;
    for (int i = 0; i < ENTRIES; ++i)
        nCount += pEntries[i].type != 0;
    return nCount;
}

/// Top-level windows of this thread and everything below them.
inline int CountWindows()
{
    int nCount = 0;
    ::EnumThreadWindows(
        ::GetCurrentThreadId(),
        [](HWND hWnd, LPARAM lParam) -> BOOL {
            const auto countOne = [](HWND, LPARAM lCount) -> BOOL {
                ++*reinterpret_cast<int*>(lCount);
                return TRUE;
            };
            countOne(hWnd, lParam);
            ::EnumChildWindows(hWnd, countOne, lParam);
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&nCount));
    return nCount;
}

/// Runs a few rounds for what the system keeps of the first ones, then \p nRounds after which no more
/// drawing objects and windows may be held than before.
template <class Round>
void ExpectRoundsLoseNothing(int nRounds, Round round)
{
    for (int i = 0; i < 3; ++i)
        round();
    const int nObjects = CountDrawingObjects();
    const int nWindows = CountWindows();
    ASSERT_GT(nObjects, 0) << "the table is read where it is";
    for (int i = 0; i < nRounds; ++i)
        round();
    EXPECT_LE(CountDrawingObjects(), nObjects);
    EXPECT_LE(CountWindows(), nWindows);
}
