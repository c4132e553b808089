#pragma once

/// The framework's extensions: with this header come the frame window and the common controls.

#include <afxcmn.h>
#include <afxwin.h>
