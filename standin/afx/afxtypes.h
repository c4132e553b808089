#pragma once

#include "platform/handles.h"

/// The names of the system's scalar types that the framework's headers use. On Windows they are the
/// system's own; elsewhere they are declared here with the same widths and meanings.

#ifndef _WIN32

#include <cstdint>

using LPCTSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using TCHAR = wchar_t;
using WCHAR = wchar_t;
using PCWSTR = const wchar_t*;
using PWSTR = wchar_t*;
using PCSTR = const char*;
using LPCSTR = const char*;
using LPSTR = char*;
using HANDLE = void*;
using LPVOID = void*;
using LPCVOID = const void*;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = std::int64_t;
using ULONGLONG = std::uint64_t;
using INT_PTR = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;

#define TRUE 1
#define FALSE 0

#endif

#ifndef _T
#define _T(text) L##text
#endif
