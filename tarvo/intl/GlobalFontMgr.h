#pragma once

#include "tarvo/export.h"

#include <afxwin.h>

/// Fonts that hosts and controls share: one for each description, which is a face, a size and a
/// resolution. The library's own window bases do not use it, each of them owns the font it makes.
///
/// A font that was handed out lives until ReleaseAll, and so may be sent to any number of windows; nobody
/// else deletes it. All members are static and belong to the user interface's thread; nothing throws.
class TARVO_API CGlobalFontMgr
{
public:
    /// The font of a face (any letter case) at a size in points, of normal weight, for devices of
    /// \p dotsPerInch dots; 0 stands for the screen's. Null when the system refuses it. A face that does not
    /// exist gives the font that the system puts in its place.
    static HFONT GetFont(const wchar_t* face, int points, int dotsPerInch = 0);
    /// The font of a description, for weights and the like. A face longer than its field is cut.
    static HFONT GetFont(const LOGFONTW& description);
    /// The description that GetFont uses: every trait but face and height is the default one.
    static LOGFONTW Describe(const wchar_t* face, int height);
    /// How many fonts there are.
    static int GetCount();
    /// Deletes every font, after the last window that has one: a host calls it from ExitInstance, and the
    /// library itself when it is unloaded.
    static void ReleaseAll();
};
