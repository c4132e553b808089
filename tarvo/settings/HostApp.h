#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// The host program as the settings see it: its company, its profile name and its own settings, the
/// profile.
///
/// On Windows this is the framework's application object (AfxGetApp): `m_pszRegistryKey`,
/// `m_pszProfileName` and its profile functions. A program without one, and every native program, may
/// register its names here instead; its profile is then kept where the framework would keep it, below
/// HKEY_CURRENT_USER\Software\<company>\<profile name>. Names that are registered win over the
/// application object. Nothing throws.
class TARVO_API CHostApp
{
public:
    /// Registers the names for this process, copying them. A null company takes them back.
    static void Register(const wchar_t* company, const wchar_t* profileName);

    /// The host's names. False, both empty, when there is no host. A host that has no company (its
    /// profile is a file) or no profile name gives an empty text for it.
    static bool GetIdentity(CString& company, CString& profileName);

    /// An integer of the profile; \p nDefault when it is missing or there is no host.
    static int ReadInt(const wchar_t* section, const wchar_t* entry, int nDefault);
    /// A text of the profile; \p defaultText (null is empty) when it is missing or there is no host.
    static CString ReadText(const wchar_t* section, const wchar_t* entry, const wchar_t* defaultText);
    /// Writes to the profile. 1, or 0 when it failed or there is no host.
    static int WriteInt(const wchar_t* section, const wchar_t* entry, int nValue);
    /// The same; a null \p text removes the entry.
    static int WriteText(const wchar_t* section, const wchar_t* entry, const wchar_t* text);
};
