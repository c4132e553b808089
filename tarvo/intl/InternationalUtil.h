#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

class CWnd;
struct tagLOGFONTW;

/// Which fonts the library's windows have, and what those fonts need of a window. The names and sizes are
/// the user's settings, read anew with each call from the section "ENV_GENERAL" of the host's registry key
/// (qlx::lib::MRegistry::MyGetRegistryKey): "DlgFontName_Std", "DlgFontSize_Std", "DlgFontName_Eng" and
/// "DlgFontSize_Eng". Sizes are in points. Operations on windows exist on Windows only, and do nothing for
/// a null window or one without a handle.
class TARVO_API CInternationalUtil
{
public:
    virtual ~CInternationalUtil() = default;

    /// The font of dialog templates: the face, Gulim (U+AD74 U+B9BC) when none is set, and the size, 0 when
    /// none is set.
    static CString GetDlgFontName();
    static int GetDlgFontSize();
    /// The font of the texts in a window: the face that the message catalogue names (CMSGFunction::GetFont),
    /// whatever the settings say, and the size, 9 when none above 0 is set.
    static CString GetDlgTextFontName();
    static int GetDlgTextFontSize();

    /// Describes a font for a window: normal weight, default character set, the height by the vertical
    /// resolution of the window's device. A face of more than 31 characters is cut. 0, with \p font
    /// untouched, for a null window or one without a handle, else 1.
    static int GetLogFont(CWnd* window, const wchar_t* face, int points, tagLOGFONTW& font);

    /// Makes the labels among a dialog's children as high as their text needs: 13 pixels when they are at
    /// most 12 high, 26 when they have several lines and are at most 24 high. The upper left corner stays.
    /// Pictures, empty labels and windows of other classes are left alone.
    static void AdjustStaticControlHeight(CWnd* dialog);
    /// Gives a font to the buttons among a dialog's children that are captioned "...", and to no other
    /// button. The font is one of CGlobalFontMgr's.
    static void ChangeButtonFont(CWnd* dialog, const wchar_t* face, int points);
    /// Gives a font to every edit control among a dialog's children. The font is one of CGlobalFontMgr's.
    static void ChangeEditBoxFont(CWnd* dialog, const wchar_t* face, int points);
};
