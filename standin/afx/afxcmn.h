#pragma once

/// The common controls. Thin, as the controls of afxctrl.h: each function is the message of its name with
/// its results.

#include <afxtempl.h>
#include <afxwin.h>

#include "afximagelist.h"
#include "afxlistctrl.h"
#include "afxprogress.h"
#include "afxtabctrl.h"
#include "afxtreectrl.h"
