#pragma once

/// The framework's ground: strings, run-time classes, exceptions, files, debug checks.
#include "afxassert.h"
#include "afxexception.h"
#include "afxfile.h"
#include "afxobject.h"
#include "afxstr.h"
