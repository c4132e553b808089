#include "afxassert.h"

#include "afxdebugout.h"
#include "afxstr.h"

#include <cstdio>
#include <cstdlib>

void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine)
{
    std::fprintf(stderr, "Assertion failed: %s, line %d\n", lpszFileName, nLine);
    std::fflush(stderr);
    std::abort();
}

void AfxTrace(LPCWSTR lpszFormat, ...)
{
    std::va_list args;
    va_start(args, lpszFormat);
    CString str;
    str.FormatV(lpszFormat, args);
    va_end(args);
    afx_debug_out(str);
}

void AfxTrace(LPCSTR lpszFormat, ...)
{
    std::va_list args;
    va_start(args, lpszFormat);
    CStringA str;
    str.FormatV(lpszFormat, args);
    va_end(args);
    afx_debug_out(CString(str));
}
