#pragma once

/// The framework's windows: everything that a window program includes.

#include <afx.h>

#include "afxapp.h"
#include "afxchecklist.h"
#include "afxctrl.h"
#include "afxdc.h"
#include "afxdlg.h"
#include "afxdoc.h"
#include "afxframe.h"
#include "afxgdi.h"
#include "afxlistbox.h"
#include "afxmenu.h"
#include "afxmsgmap.h"
#include "afxrect.h"
#include "afxscrollview.h"
#include "afxview.h"
#include "afxwnd.h"
