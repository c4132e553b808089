#include "afxdebugout.h"

#include <windows.h>

void afx_debug_out(const wchar_t* text) { OutputDebugStringW(text); }
