#pragma once

#include "qlx/TranslateUtil.h"
#include "qlx/qlx_export.h"

#include <afxstr.h>

namespace qlx::lib
{
/// Where message texts come from. The host or a library implements and registers it.
class QLX_API IMSGTextProvider
{
public:
    virtual ~IMSGTextProvider();

    /// Puts the text of \p key into \p text and returns true; returns false and leaves \p text alone when
    /// the key is not known. \p project is the number of the asking project, no_project
    /// when the asker named none; a provider with one name space for all projects ignores it.
    virtual bool GetText(const wchar_t* key, int project, CString& text) = 0;
};

/// Message texts by key.
class QLX_API MMSGFunction
{
public:
    /// The text of \p key. For an unknown key a visible placeholder, "Not Registered String [KEY]", which
    /// callers find by its first three words.
    static CString GetValue(const wchar_t* key);
    static CString GetValue(const wchar_t* key, int project);

    /// The text of \p key in a project; for an unknown key \p defaultText when \p bUseDefault is not 0, else
    /// what GetValue answers.
    static CString GetValueByDefault(const wchar_t* key, const wchar_t* defaultText, int project,
                                     int bUseDefault);

    /// Registers a provider, which stays the caller's own and must be unregistered before it goes. The
    /// last one registered is asked first, the others after it for keys that it does not know; one that
    /// is registered again becomes the last. Null is ignored. Without a provider every key is unknown.
    static void RegisterProvider(IMSGTextProvider* provider);
    static void UnregisterProvider(IMSGTextProvider* provider);
};
} // namespace qlx::lib
