#pragma once

#include "tarvo/export.h"

#include <afxwin.h>

/// The kinds of window that a skin is asked about.
enum class SKIN_WINDOW
{
    Dialog,
    FormView,
    PropertyPage,
    PropertySheet
};

/// Through this interface a host themes the library's window bases. The host implements and registers one
/// object, which stays its own; it overrides what it wants to decide and inherits the plain answers for the
/// rest. The bases ask on the user interface's thread.
class TARVO_API ISkinFunc
{
public:
    virtual ~ISkinFunc();

    /// The registered object; without one a plain skin, which changes nothing. Never null.
    static ISkinFunc* Instance();
    /// Registers the object that Instance answers from now on and returns the one before, null for the
    /// plain one. Null takes it back. An object that goes takes itself back.
    static ISkinFunc* Register(ISkinFunc* skin);

    /// Not 0: the window is drawn by the toolkit's visual manager. Asked once for each window, while it
    /// initialises. A page also follows its sheet.
    virtual int UsesVisualManager(CWnd* window, SKIN_WINDOW kind);
    /// A window of the library has finished its own initialisation, its font and texts are in place; also
    /// called after a change of language has put others in place.
    virtual void OnWindowReady(CWnd* window, SKIN_WINDOW kind);
    /// The background of a window or of one of its controls, which are about to be drawn in \p device:
    /// \p message is that of the WM_CTLCOLOR family. The skin may set the text's colours in the device.
    /// Null leaves it to the window. The brush stays the skin's own.
    virtual HBRUSH GetBackground(CWnd* window, HDC device, HWND control, UINT message);
};
