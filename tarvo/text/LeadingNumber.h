#pragma once

/// The number that a text begins with, as the C library's _wtoi and _wtof read it, but the same on every
/// platform and in every locale. A text ends at its NUL.
namespace leading_number
{
/// Drawn in to 32 bits; 0 when there is none.
int integer(const wchar_t* text);
double real(const wchar_t* text);
} // namespace leading_number
