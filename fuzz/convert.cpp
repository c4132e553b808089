#include "tarvo/text/ConvertString.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

// Any text converts. A length of -1 is the text before its NUL, an explicit one keeps every NUL; ASCII comes
// back as it was, UTF-8 that was made from units decodes to them. A number with commas is the number.
namespace
{
constexpr unsigned pages[] = {0, 949, 932, 936, 950, 1251, 1252, 65001};

void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

bool IsHalf(wchar_t ch) { return (ch & 0xF800) == 0xD800; }

void CheckBytes(const std::string& bytes, unsigned page)
{
    const int length = static_cast<int>(bytes.size());
    const std::wstring wide = CConvertString::MultiToWide(bytes.data(), length, page);
    Require(wide.size() <= bytes.size() && wide.empty() == bytes.empty(), "units for bytes");
    Require(std::count(wide.begin(), wide.end(), L'\0') == std::count(bytes.begin(), bytes.end(), '\0') ||
                page == 65001,
            "every NUL stays");
    const std::string before = bytes.substr(0, bytes.find('\0'));
    const std::wstring terminated = CConvertString::MultiToWide(bytes.c_str(), -1, page);
    Require(terminated == CConvertString::MultiToWide(before.c_str(), -1, page),
            "what follows the NUL does not count");
    Require(terminated.find(L'\0') == std::wstring::npos, "the NUL is dropped");
    const CString same = CConvertString::MultiToWideCSting(bytes.data(), length, page);
    Require(std::wstring_view(same, static_cast<std::size_t>(same.GetLength())) == wide,
            "both strings are equal");
    if (std::all_of(bytes.begin(), bytes.end(), [](char ch) { return ch >= 0; }))
    {
        Require(std::wstring(bytes.begin(), bytes.end()) == wide, "ASCII is itself");
        Require(CConvertString::WideToMulti(wide.data(), length, page) == bytes, "and comes back");
    }
}

void CheckUnits(const std::wstring& units, unsigned page)
{
    const int length = static_cast<int>(units.size());
    const std::string bytes = CConvertString::WideToMulti(units.data(), length, page);
    Require(bytes.empty() == units.empty(), "bytes for units");
    const std::wstring back = CConvertString::MultiToWide(bytes.data(), static_cast<int>(bytes.size()), page);
    if (page == 65001 && std::none_of(units.begin(), units.end(), IsHalf))
        Require(back == units, "UTF-8 comes back");
    const std::wstring before = units.substr(0, units.find(L'\0'));
    Require(CConvertString::WideToMulti(units.c_str(), -1, page) ==
                CConvertString::WideToMulti(before.data(), static_cast<int>(before.size()), page),
            "the text before the NUL");
    const CString text(units.data(), length);
    Require(CConvertString::CStringToInteger(text) == CConvertString::CStringToLong(text), "32 bits in both");
    Require(!std::isnan(CConvertString::CStringToDouble(text)), "always a number");
}

void CheckNumber(ULONGLONG value)
{
    CString text;
    Require(CConvertString::AddCommaToNumber(value, text) == 1, "1");
    for (int i = text.GetLength() - 4; i > 0; i -= 4)
        Require(text[i] == L',', "a comma before every three digits");
    Require(text[0] != L'0' || value == 0 || text[1] == L',', "a zero in front is a group of its own");
    text.Remove(L',');
    Require(std::stoull(std::wstring(text)) == value, "the digits are the number's");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const unsigned page = pages[data[0] % std::size(pages)];
    const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
    CheckBytes(bytes, page);
    std::wstring units;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units += static_cast<wchar_t>(static_cast<unsigned char>(bytes[i]) |
                                      static_cast<unsigned char>(bytes[i + 1]) << 8);
    CheckUnits(units, page);
    ULONGLONG value = 0;
    for (std::size_t i = 0; i < std::min<std::size_t>(8, bytes.size()); ++i)
        value = value << 8 | static_cast<unsigned char>(bytes[i]);
    CheckNumber(value);
    return 0;
}
