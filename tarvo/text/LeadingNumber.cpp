#include "tarvo/text/LeadingNumber.h"

#include "platform/letters.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <string>

namespace leading_number
{
namespace
{
// The zeros of the scripts whose decimal digits the C library reads in whole numbers.
constexpr char16_t zeros[] = {0x0030, 0x0660, 0x06F0, 0x0966, 0x09E6, 0x0A66, 0x0AE6, 0x0B66, 0x0C66,
                              0x0CE6, 0x0D66, 0x0E50, 0x0ED0, 0x0F20, 0x1040, 0x17E0, 0x1810, 0xFF10};

int digit_of_any_script(wchar_t ch)
{
    for (const char16_t zero : zeros)
        if (ch >= zero && ch <= zero + 9)
            return static_cast<int>(ch - zero);
    return -1;
}

bool is_digit(wchar_t ch) { return ch >= L'0' && ch <= L'9'; }

// Passes over white space and a sign. True for a minus.
bool skip_sign(const wchar_t*& p)
{
    while (platform::letters::is_space(*p))
        ++p;
    const bool negative = *p == L'-';
    if (negative || *p == L'+')
        ++p;
    return negative;
}

void copy_digits(const wchar_t*& p, std::string& to)
{
    for (; is_digit(*p); ++p)
        to += static_cast<char>(*p);
}

// exponent ::= (e | E | d | D) [sign] digits; without digits there is none. It is drawn in to what no text
// of digits can make up for.
int exponent(const wchar_t* p)
{
    if (*p != L'e' && *p != L'E' && *p != L'd' && *p != L'D')
        return 0;
    ++p;
    const bool negative = *p == L'-';
    if (negative || *p == L'+')
        ++p;
    constexpr int most = 1'000'000'000;
    int n = 0;
    for (; is_digit(*p); ++p)
        n = std::min(n * 10ll + (*p - L'0'), static_cast<long long>(most));
    return negative ? -n : n;
}
} // namespace

int integer(const wchar_t* text)
{
    const bool negative = skip_sign(text);
    constexpr std::int64_t most = std::numeric_limits<std::int32_t>::max();
    std::int64_t n = 0;
    for (int digit; (digit = digit_of_any_script(*text)) >= 0; ++text)
        n = std::min(n * 10 + digit, most + 1);
    return static_cast<int>(negative ? -n : std::min(n, most));
}

double real(const wchar_t* text)
{
    const bool negative = skip_sign(text);
    std::string number;
    copy_digits(text, number);
    const std::size_t whole = number.size();
    if (*text == L'.')
    {
        ++text;
        number += '.';
        copy_digits(text, number);
    }
    const std::size_t first = number.find_first_of("123456789");
    if (first == std::string::npos)
        return negative && number.find('0') != std::string::npos ? -0.0 : 0.0;
    const int scale = exponent(text);
    number += 'e' + std::to_string(scale);

    double value = 0;
    const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
    if (read.ec == std::errc::result_out_of_range)
    {
        // Which of the two ends: by the place of the first digit that counts.
        const std::int64_t place =
            static_cast<std::int64_t>(whole) - static_cast<std::int64_t>(first) + scale;
        value = place > 0 ? std::numeric_limits<double>::infinity() : 0.0;
    }
    return negative ? -value : value;
}
} // namespace leading_number
