#pragma once

#include "tarvo/export.h"

/// Makes \p page stand for the system's ANSI code page in the library's conversions, for this process; 0
/// takes that back. 0, and nothing changes, when the page is not known. For programs that read files of
/// another machine: a host never needs it. The framework's own conversions keep the system's page on Windows,
/// where every DLL carries the platform layer, and with it this setting, for itself.
TARVO_API int SetAnsiCodePage(int page);
