#pragma once
#include <afxwin.h>

/// The resource under which each module keeps its project's name: the library's own choice of type and
/// number, so that it finds the language table of any window.
inline constexpr int kProjectNameResource = 65533;
inline constexpr const wchar_t* kProjectNameType = L"Binary";

/// The project whose language table translates the module's windows.
CString project_name(HINSTANCE module);

/// A text that no control holds (a column, a row of a list): the language table's, section "TEXT", else the
/// module's string resource.
CString module_text(HINSTANCE module, const wchar_t* symbol, UINT id);

/// module_text by the symbol alone.
#define MODULE_TEXT(module, symbol) module_text(module, L"" #symbol, symbol)
