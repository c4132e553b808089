#pragma once

#include "tarvo/settings/HostApp.h"

/// The application object behind CHostApp, where the platform has one. Each answers as CHostApp's
/// operation of that name; false or null where there is no application object.
namespace HostProfile
{
bool GetIdentity(CString& company, CString& profileName);
bool ReadInt(const wchar_t* section, const wchar_t* entry, int& value);
bool ReadText(const wchar_t* section, const wchar_t* entry, const wchar_t* defaultText, CString& value);
bool WriteInt(const wchar_t* section, const wchar_t* entry, int nValue);
bool WriteText(const wchar_t* section, const wchar_t* entry, const wchar_t* text);
} // namespace HostProfile
