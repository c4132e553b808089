#include "tarvo/lang/Units.h"

#include "platform/letters.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <cwchar>

static_assert(std::endian::native == std::endian::little, "the first unit stands in a word's lowest bits");

namespace units
{
namespace
{
constexpr std::uint64_t kOnes = 0x0001000100010001;
constexpr std::uint64_t kTops = 0x8000800080008000;

std::uint64_t load(const char16_t* p)
{
    std::uint64_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

/// The top bit of each zero unit; bits above the lowest one set may be wrong.
std::uint64_t zero_units(std::uint64_t word) { return (word - kOnes) & ~word & kTops; }

/// The first unit whose bits under \p mask equal \p pattern.
const char16_t* find_masked(const char16_t* first, const char16_t* last, std::uint64_t mask, char16_t pattern)
{
    for (; last - first >= 4; first += 4)
        if (const std::uint64_t hit = zero_units((load(first) & mask) ^ kOnes * pattern))
            return first + std::countr_zero(hit) / 16;
    while (first != last && (*first & static_cast<char16_t>(mask)) != pattern)
        ++first;
    return first;
}
} // namespace

const char16_t* find(const char16_t* first, const char16_t* last, char16_t unit)
{
    return find_masked(first, last, ~std::uint64_t{0}, unit);
}

const char16_t* find_control(const char16_t* first, const char16_t* last)
{
    return find_masked(first, last, kOnes * 0xFFF0, 0);
}

std::uint32_t hash(view text)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    const char16_t* p = text.data();
    std::size_t left = text.size();
    std::uint64_t h = left * kFactor;
    for (; left >= 4; p += 4, left -= 4)
    {
        h = (h ^ load(p)) * kFactor;
        h ^= h >> 32;
    }
    if (left != 0)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, p, left * sizeof *p);
        h = (h ^ word) * kFactor;
        h ^= h >> 32;
    }
    return static_cast<std::uint32_t>(h);
}

int compare(view a, view b)
{
    const std::size_t shared = std::min(a.size(), b.size());
    std::size_t i = 0;
    for (; i + 4 <= shared; i += 4)
        if (const std::uint64_t differing = load(a.data() + i) ^ load(b.data() + i))
        {
            i += static_cast<std::size_t>(std::countr_zero(differing)) / 16;
            return a[i] < b[i] ? -1 : 1;
        }
    for (; i < shared; ++i)
        if (a[i] != b[i])
            return a[i] < b[i] ? -1 : 1;
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

bool equal_no_case(view a, view b)
{
    if (a.size() != b.size())
        return false;
    // Names of one file mostly begin alike (IDD_...): they differ at the end first.
    for (std::size_t i = a.size(); i-- > 0;)
        if (a[i] != b[i] && platform::letters::fold(a[i]) != platform::letters::fold(b[i]))
            return false;
    return true;
}

view trim(view text)
{
    while (!text.empty() && platform::letters::is_space(text.back()))
        text.remove_suffix(1);
    while (!text.empty() && platform::letters::is_space(text.front()))
        text.remove_prefix(1);
    return text;
}

CString to_string(view text)
{
    CString result;
    if (!text.empty())
        std::copy(text.begin(), text.end(), result.GetBufferSetLength(static_cast<int>(text.size())));
    return result;
}

void narrow(const wchar_t* text, std::size_t count, char16_t* out)
{
    for (std::size_t i = 0; i < count; ++i)
        out[i] = static_cast<char16_t>(text[i]);
}
} // namespace units

CUnits::CUnits(const wchar_t* psz)
{
    const std::size_t length = psz ? std::wcslen(psz) : 0;
    char16_t* out = m_szShort;
    if (length > kShort)
    {
        m_strLong.resize(length);
        out = m_strLong.data();
    }
    units::narrow(psz, length, out);
    m_view = units::view(out, length);
}
