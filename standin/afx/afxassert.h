#pragma once

#include "afxexport.h"
#include "afxtypes.h"

#include <cassert>

/// Debug checks and debug output. They are there in builds with `_DEBUG` or without `NDEBUG`; in others
/// ASSERT and TRACE evaluate nothing, VERIFY evaluates its condition and drops the answer.

#if defined(_DEBUG) || !defined(NDEBUG)
#define AFX_DEBUG_CHECKS 1
#else
#define AFX_DEBUG_CHECKS 0
#endif

/// Writes "Assertion failed: FILE, line N" where debug output goes and to the error stream, and ends the
/// program.
[[noreturn]] AFX_API void AfxAssertFailedLine(LPCSTR lpszFileName, int nLine);

/// Writes formatted text (CString::Format) to the system's debug output; natively to the error stream.
AFX_API void AfxTrace(LPCWSTR lpszFormat, ...);
AFX_API void AfxTrace(LPCSTR lpszFormat, ...);

/// Throws CInvalidArgException when \p condition is false, in every build.
#define ENSURE(condition)                                                                                    \
    do                                                                                                       \
    {                                                                                                        \
        if (!(condition))                                                                                    \
            AfxThrowInvalidArgException();                                                                   \
    } while (false)

#if AFX_DEBUG_CHECKS
#define ASSERT(condition) ((condition) ? (void)0 : AfxAssertFailedLine(__FILE__, __LINE__))
#define VERIFY(condition) ASSERT(condition)
#define TRACE(...) AfxTrace(__VA_ARGS__)
#define ASSERT_VALID(object)                                                                                 \
    ((object) != nullptr ? (object)->AssertValid() : AfxAssertFailedLine(__FILE__, __LINE__))
#else
#define ASSERT(condition) ((void)0)
#define VERIFY(condition) ((void)(condition))
#define TRACE(...) ((void)0)
#define ASSERT_VALID(object) ((void)0)
#endif

#define TRACE0(text) TRACE(text)
#define TRACE1(format, a) TRACE(format, a)
#define TRACE2(format, a, b) TRACE(format, a, b)
#define TRACE3(format, a, b, c) TRACE(format, a, b, c)
#define ATLASSERT(condition) ASSERT(condition)
#define ASSERT_KINDOF(class_name, object) ASSERT((object)->IsKindOf(RUNTIME_CLASS(class_name)))
