#pragma once

#include "platform/letters.h"
#include "tarvo/export.h"

#include <afxstr.h>

#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

/// Stored text is UTF-16 units of 16 bits on every platform, half of what wide text takes natively. Here
/// is what the readers of files need over such runs: four units are looked at in one step.
namespace units
{
/// Windows hands views over in memory, and copying one that was just written there waits for it: what every
/// line of a file passes through takes them by reference or is inline.
using view = std::u16string_view;
/// A wide text that is looked for among units as it stands: a processor that reads what it has just written,
/// in other pieces, waits until all before that is done.
using asked = std::wstring_view;

inline asked ask(const wchar_t* text) { return text ? asked(text) : asked(); }

/// The first unit of [\p first, \p last) that equals \p unit; \p last when there is none.
TARVO_API const char16_t* find(const char16_t* first, const char16_t* last, char16_t unit);
/// The first \p unit that \p next follows.
TARVO_API const char16_t* find_pair(const char16_t* first, const char16_t* last, char16_t unit,
                                    char16_t next);
/// The first line feed or carriage return.
TARVO_API const char16_t* find_break(const char16_t* first, const char16_t* last);

/// Four units as one word: the first, third, second and fourth from its lowest bits up, as two words of wide
/// characters fall into one another.
inline std::uint64_t load_four(const char16_t* four)
{
    std::uint64_t word;
    std::memcpy(&word, four, sizeof word);
    const std::uint64_t crossed = (word ^ word >> 16) & 0x00000000FFFF0000;
    return word ^ crossed ^ crossed << 16;
}
inline std::uint64_t load_four(const wchar_t* four)
{
    if constexpr (sizeof(wchar_t) == sizeof(char16_t))
    {
        char16_t units[4];
        std::memcpy(units, four, sizeof units);
        return load_four(units);
    }
    std::uint64_t words[2];
    std::memcpy(words, four, sizeof words);
    return words[0] | words[1] << 16;
}

/// The hash of a text, the same for its units and for as many wide characters.
template <class Char>
std::uint32_t hash(const std::basic_string_view<Char>& text)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    const auto mix = [](std::uint64_t a, std::uint64_t b) {
        __extension__ const unsigned __int128 product = static_cast<unsigned __int128>(a) * b;
        return static_cast<std::uint64_t>(product) ^ static_cast<std::uint64_t>(product >> 64);
    };
    const Char* p = text.data();
    const std::size_t count = text.size();
    std::uint64_t h = count * kFactor, first = 0, last = 0;
    if (count >= 8)
    {
        // The last words overlap what went before, so that they are whole ones.
        const Char* const end = p + count;
        for (; end - p > 8; p += 8)
            h = mix(load_four(p) ^ kFactor, load_four(p + 4) ^ h);
        first = load_four(end - 8);
        last = load_four(end - 4);
    }
    else if (count >= 4)
    {
        first = load_four(p);
        last = load_four(p + count - 4);
    }
    else
        for (std::size_t i = 0; i < count; ++i)
            first = first << 16 | static_cast<char16_t>(p[i]);
    return static_cast<std::uint32_t>(mix(mix(first ^ kFactor, last ^ h), kFactor));
}
inline std::uint32_t hash(const view& text) { return hash<char16_t>(text); }
/// Below, equal to or above zero by the first unit that differs, then by length.
TARVO_API int compare(view a, view b);
inline bool equal(const view& a, const view& b)
{
    return a.size() == b.size() &&
           (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(char16_t)) == 0);
}
/// Whether \p count units, kept as such or as bytes, are these characters.
TARVO_API bool same(const char16_t* units, const char16_t* text, std::size_t count);
TARVO_API bool same(const char16_t* units, const wchar_t* text, std::size_t count);
TARVO_API bool same(const std::uint8_t* units, const char16_t* text, std::size_t count);
TARVO_API bool same(const std::uint8_t* units, const wchar_t* text, std::size_t count);
inline bool equal(const view& a, const asked& b)
{
    return a.size() == b.size() && same(a.data(), b.data(), b.size());
}
TARVO_API bool equal_no_case(view a, view b);
TARVO_API bool equal_no_case(view a, asked b);
/// \p text without the white space (platform::letters::is_space) at both ends.
[[gnu::always_inline]] inline view trim(view text)
{
    while (!text.empty() && platform::letters::is_space(text.back()))
        text.remove_suffix(1);
    while (!text.empty() && platform::letters::is_space(text.front()))
        text.remove_prefix(1);
    return text;
}

/// Copies \p Step bytes, \p Times of them from the front and as many up to the end, over what they share
/// twice.
template <std::size_t Step, std::size_t Times = 1>
void put_ends(char* out, const char* from, std::size_t count)
{
    for (std::size_t i = 0; i < Times * Step; i += Step)
    {
        std::memcpy(out + i, from + i, Step);
        std::memcpy(out + count - Step - i, from + count - Step - i, Step);
    }
}

/// Puts the bytes of \p text at \p out and returns what lies behind them: for texts that mostly are shorter
/// than calling memcpy takes.
inline char* put(char* out, const view& text)
{
    const char* const from = reinterpret_cast<const char*>(text.data());
    const std::size_t count = text.size() * sizeof(char16_t);
    if (count >= 16)
    {
        if (count <= 32)
            put_ends<16>(out, from, count);
        else if (count <= 64)
            put_ends<16, 2>(out, from, count);
        else if (count <= 128)
            put_ends<16, 4>(out, from, count);
        else
            std::memcpy(out, from, count);
    }
    else if (count >= 8)
        put_ends<8>(out, from, count);
    else if (count >= 4)
        put_ends<4>(out, from, count);
    else if (count != 0)
        put_ends<2>(out, from, count);
    return out + count;
}
inline char16_t* copy(const view& text, char16_t* out)
{
    put(reinterpret_cast<char*>(out), text);
    return out + text.size();
}
/// The same units as a string of the framework.
TARVO_API CString to_string(view text);
/// Puts \p count units at \p out, one wide character each.
TARVO_API void widen(const char16_t* text, std::size_t count, wchar_t* out);
/// Puts \p count wide characters (each one unit) at \p out.
TARVO_API void narrow(const wchar_t* text, std::size_t count, char16_t* out);
/// Whether all units are below 256. Then to_bytes puts \p count of them at \p out, a byte for each.
TARVO_API bool are_bytes(view text);
TARVO_API void to_bytes(const char16_t* text, std::size_t count, std::uint8_t* out);
} // namespace units

/// A wide text held as units while a call lasts. Null is an empty text.
class TARVO_API CUnits
{
public:
    explicit CUnits(const wchar_t* psz);
    CUnits(const CUnits&) = delete;
    CUnits& operator=(const CUnits&) = delete;

    operator units::view() const { return m_view; }

private:
    static constexpr std::size_t kShort = 120;
    char16_t m_szShort[kShort];
    std::unique_ptr<char16_t[]> m_pLong;
    units::view m_view;
};

/// UTF-16LE bytes as units, copied only where they do not lie as units do.
class TARVO_API CAlignedUnits
{
public:
    CAlignedUnits(const void* bytes, std::size_t count);
    CAlignedUnits(const CAlignedUnits&) = delete;
    CAlignedUnits& operator=(const CAlignedUnits&) = delete;

    operator units::view() const { return m_view; }

private:
    std::unique_ptr<char16_t[]> m_pCopy;
    units::view m_view;
};
