#include "tarvo/settings/HostProfile.h"

// There is no application object here; programs register their names.
namespace HostProfile
{
bool GetIdentity(CString&, CString&) { return false; }
bool ReadInt(const wchar_t*, const wchar_t*, int&) { return false; }
bool ReadText(const wchar_t*, const wchar_t*, const wchar_t*, CString&) { return false; }
bool WriteInt(const wchar_t*, const wchar_t*, int) { return false; }
bool WriteText(const wchar_t*, const wchar_t*, const wchar_t*) { return false; }
} // namespace HostProfile
