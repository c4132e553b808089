#pragma once

/// The framework's extensions: form views, and with this header come the common controls and dialogs.

#include <afxcmn.h>
#include <afxdlgs.h>
#include <afxwin.h>

#include "afxformview.h"
