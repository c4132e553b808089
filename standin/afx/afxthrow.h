#pragma once

#include "afxexport.h"

/// What the framework throws for itself: a pointer to an exception object that the catcher deletes
/// with CException::Delete.
[[noreturn]] AFX_API void AfxThrowMemoryException();
[[noreturn]] AFX_API void AfxThrowInvalidArgException();
