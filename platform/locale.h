#pragma once

#include <cstdint>
#include <string>

/// What the machine says about its language.
namespace platform::locale
{
/// The system default locale's language identifier as four lower-case hexadecimal digits ("0412").
/// Natively it is taken from the environment's LC_ALL, LC_CTYPE, LANG in this order; "0409" when none
/// names a known language.
std::wstring system_language();

/// The user's interface language as a number (0x0412 is 1042); 0 when the platform cannot say.
/// Natively from LC_ALL, LC_MESSAGES, LANG.
std::uint16_t user_interface_language();
} // namespace platform::locale
