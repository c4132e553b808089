#pragma once

/// The framework's ground: strings, run-time classes, exceptions, debug checks.
#include "afxassert.h"
#include "afxexception.h"
#include "afxobject.h"
#include "afxstr.h"
