#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// What the machine says about its language. Languages are the system's 16-bit language identifiers
/// (0x0412 is Korean, 1042).
namespace platform::locale
{
/// The system default locale's language identifier as four lower-case hexadecimal digits ("0412").
/// Natively the first of the environment's LC_ALL, LC_CTYPE, LANG that is not empty decides; "0409" when
/// there is none or it names no known language.
std::wstring system_language();

/// The user's interface language; 0 when the platform cannot say. Natively by the first of LC_ALL,
/// LC_MESSAGES, LANG that is not empty.
std::uint16_t user_interface_language();

/// The identifier of a locale name as the native environment spells it ("ko_KR.UTF-8", "ca_ES@valencia");
/// a language without a territory, or with one that the system does not list, takes the language's
/// main territory. "C" and "POSIX" are English (United States), which their messages are written in.
/// 0 for an empty or unknown name.
std::uint16_t language_by_name(std::string_view name);
} // namespace platform::locale
