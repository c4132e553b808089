#include "tarvo/text/ConvertString.h"

#include "platform/codepage.h"
#include "tarvo/text/LeadingNumber.h"

#include <cstring>
#include <cwchar>
#include <string_view>

namespace
{
namespace codepage = platform::codepage;

// The least double whose logarithm, rounded to a double, reaches 3, 6, 9, ...: written out, since the C
// libraries differ in the last bit.
constexpr double group_from[] = {1e3, 1e6, 1e9, 1e12, 999999999999998.0, 999999999999996032.0};

int groups_of(ULONGLONG value)
{
    int groups = 0;
    for (const double from : group_from)
        groups += static_cast<double>(value) >= from ? 1 : 0;
    return groups;
}

ULONGLONG power_of_1000(int n)
{
    ULONGLONG power = 1;
    for (; n > 0; --n)
        power *= 1000;
    return power;
}
} // namespace

std::wstring CConvertString::MultiToWide(const char* text, int length, unsigned int codePage)
{
    if (text == nullptr || length == 0)
        return {};
    const bool terminated = length < 0;
    // The terminating NUL goes through the conversion: a character that it cuts off may become another one
    // than at the end of a length.
    const std::size_t bytes = terminated ? std::strlen(text) + 1 : static_cast<std::size_t>(length);
    auto wide = codepage::decode(static_cast<int>(codePage), std::string_view(text, bytes));
    if (!wide || wide->empty())
        return {};
    if (terminated)
        wide->pop_back();
    return std::move(*wide);
}

CString CConvertString::MultiToWideCSting(const char* text, int length, unsigned int codePage)
{
    const std::wstring wide = MultiToWide(text, length, codePage);
    return CString(wide.data(), static_cast<int>(wide.size()));
}

std::string CConvertString::WideToMulti(const wchar_t* text, int length, unsigned int codePage)
{
    if (text == nullptr || length == 0)
        return {};
    const bool terminated = length < 0;
    const std::size_t units = terminated ? std::wcslen(text) + 1 : static_cast<std::size_t>(length);
    auto bytes = codepage::encode(static_cast<int>(codePage), std::wstring_view(text, units));
    if (!bytes || bytes->empty())
        return {};
    if (terminated)
        bytes->pop_back();
    return std::move(*bytes);
}

double CConvertString::CStringToDouble(const CString& text) { return leading_number::real(text); }

int CConvertString::CStringToInteger(const CString& text) { return leading_number::integer(text); }

long CConvertString::CStringToLong(const CString& text) { return leading_number::integer(text); }

int CConvertString::AddCommaToNumber(ULONGLONG value, CString& text)
{
    text.Empty();
    for (int k = groups_of(value); k >= 0; --k)
    {
        const ULONGLONG divisor = power_of_1000(k);
        text.AppendFormat(text.IsEmpty() ? L"%u" : L",%03u", static_cast<unsigned>(value / divisor));
        value %= divisor;
    }
    return 1;
}
