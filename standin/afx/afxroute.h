#pragma once

#include "afxcmd.h"

/// Routing shared by commands and window messages. Not for users of the framework.

/// What OnCmdMsg gets with a WM_NOTIFY.
struct AFX_NOTIFY
{
    LRESULT* pResult;
    NMHDR* pNMHDR;
};

struct AfxRouteKey
{
    UINT nMessage;
    UINT nCode;
    UINT nID;
};

/// The first line that fits, from \p pMap on through its base classes' maps; null for none.
const AFX_MSGMAP_ENTRY* AfxFindEntry(const AFX_MSGMAP* pMap,
                                     bool (*fits)(const AFX_MSGMAP_ENTRY&, const AfxRouteKey&),
                                     const AfxRouteKey& key);
