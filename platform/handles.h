#pragma once

/// The system's handle types and scalar names under their usual names, so that headers of the
/// library read the same on every platform. On Windows they are the system's own; elsewhere opaque
/// pointers that only platform/ may look behind.

#ifdef _WIN32

#include <windows.h>

#else

#include <cstdint>

struct HWND__;
struct HINSTANCE__;
struct HMENU__;
struct HKEY__;
using HWND = HWND__*;
using HINSTANCE = HINSTANCE__*;
using HMODULE = HINSTANCE;
using HMENU = HMENU__*;
using HKEY = HKEY__*;
using UINT = unsigned int;
using DWORD = std::uint32_t;
using WORD = std::uint16_t;
using BYTE = unsigned char;
using BOOL = int;
using LPARAM = std::intptr_t;
using LPCWSTR = const wchar_t*;
using LPWSTR = wchar_t*;

#endif
