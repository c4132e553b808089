#pragma once

/// The framework's extensions: form views, and with this header come the common controls.

#include <afxcmn.h>
#include <afxwin.h>

#include "afxformview.h"
