#pragma once

#include <string_view>

namespace platform::codepage
{
/// The system's own ANSI page, whatever stands for it in this process.
int system_ansi_page();

/// The ANSI page that goes with a system language as locale::system_language() gives it ("0412").
/// Natively only: Windows itself knows its page.
int page_of_language(std::wstring_view language);
} // namespace platform::codepage
