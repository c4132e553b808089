#include "tarvo/text/Units.h"

#include "platform/letters.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <cwchar>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

static_assert(std::endian::native == std::endian::little, "the first unit stands in a word's lowest bits");

namespace units
{
namespace
{
std::uint64_t load(const char16_t* p)
{
    std::uint64_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

/// The unit that is looked for.
struct One
{
    char16_t unit;
    bool holds(char16_t other) const { return other == unit; }
};

/// Two units that are looked for at once.
struct Either
{
    char16_t a;
    char16_t b;
    bool holds(char16_t unit) const { return unit == a || unit == b; }
};

#if defined(__SSE2__)
__m128i all(char16_t unit) { return _mm_set1_epi16(static_cast<short>(unit)); }

__m128i hits(__m128i eight, const One& wanted) { return _mm_cmpeq_epi16(eight, all(wanted.unit)); }

__m128i hits(__m128i eight, const Either& wanted)
{
    return _mm_or_si128(_mm_cmpeq_epi16(eight, all(wanted.a)), _mm_cmpeq_epi16(eight, all(wanted.b)));
}

/// A bit pair for each of the eight units at \p p that is wanted.
template <class Wanted>
unsigned hit_bits(const char16_t* p, const Wanted& wanted)
{
    const __m128i eight = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    return static_cast<unsigned>(_mm_movemask_epi8(hits(eight, wanted)));
}

/// The first wanted unit; the end of the last whole step when none of those looked at is.
template <class Wanted>
const char16_t* skip_steps(const char16_t* first, const char16_t* last, const Wanted& wanted)
{
    for (; last - first >= 16; first += 16)
        if (const unsigned hit = hit_bits(first, wanted) | hit_bits(first + 8, wanted) << 16)
            return first + std::countr_zero(hit) / 2;
    if (last - first >= 8)
    {
        const unsigned hit = hit_bits(first, wanted);
        first += hit ? std::countr_zero(hit) / 2 : 8;
    }
    return first;
}
#else
constexpr std::uint64_t kOnes = 0x0001000100010001;

/// The top bit of every unit that is 0, and perhaps of some above one that is.
std::uint64_t zeros(std::uint64_t four) { return (four - kOnes) & ~four & kOnes << 15; }

std::uint64_t hits(std::uint64_t four, const One& wanted) { return zeros(four ^ kOnes * wanted.unit); }

std::uint64_t hits(std::uint64_t four, const Either& wanted)
{
    return zeros(four ^ kOnes * wanted.a) | zeros(four ^ kOnes * wanted.b);
}

template <class Wanted>
const char16_t* skip_steps(const char16_t* first, const char16_t* last, const Wanted& wanted)
{
    for (; last - first >= 4; first += 4)
        if (const std::uint64_t hit = hits(load(first), wanted))
            return first + std::countr_zero(hit) / 16;
    return first;
}
#endif

template <class Other>
bool equal_folded(view a, const std::basic_string_view<Other>& b)
{
    if (a.size() != b.size())
        return false;
    // Names of one file mostly begin alike (IDD_...): they differ at the end first.
    for (std::size_t i = a.size(); i-- > 0;)
        if (const auto other = static_cast<char16_t>(b[i]);
            a[i] != other && platform::letters::fold(a[i]) != platform::letters::fold(other))
            return false;
    return true;
}

template <class Wanted>
const char16_t* find_wanted(const char16_t* first, const char16_t* last, const Wanted& wanted)
{
    first = skip_steps(first, last, wanted);
    while (first != last && !wanted.holds(*first))
        ++first;
    return first;
}
} // namespace

const char16_t* find(const char16_t* first, const char16_t* last, char16_t unit)
{
    return find_wanted(first, last, One{unit});
}

const char16_t* find_pair(const char16_t* first, const char16_t* last, char16_t unit, char16_t next)
{
#if defined(__SSE2__)
    for (; last - first > 8; first += 8)
        if (const unsigned hit = hit_bits(first, One{unit}) & hit_bits(first + 1, One{next}))
            return first + std::countr_zero(hit) / 2;
#endif
    for (; last - first > 1; ++first)
        if (first[0] == unit && first[1] == next)
            return first;
    return last;
}

const char16_t* find_break(const char16_t* first, const char16_t* last)
{
    return find_wanted(first, last, Either{u'\n', u'\r'});
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

namespace
{
#if defined(__SSE2__)
// Where wide text is wider than a unit: eight characters in one step. The pack saturates with a sign, so
// each character's sixteenth bit is made its sign before.
void copy_eight(const wchar_t* from, char16_t* to)
{
    const auto* const p = reinterpret_cast<const __m128i*>(from);
    const __m128i low = _mm_srai_epi32(_mm_slli_epi32(_mm_loadu_si128(p), 16), 16);
    const __m128i high = _mm_srai_epi32(_mm_slli_epi32(_mm_loadu_si128(p + 1), 16), 16);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(to), _mm_packs_epi32(low, high));
}
void copy_eight(const char16_t* from, wchar_t* to)
{
    const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    auto* const p = reinterpret_cast<__m128i*>(to);
    _mm_storeu_si128(p, _mm_unpacklo_epi16(units, _mm_setzero_si128()));
    _mm_storeu_si128(p + 1, _mm_unpackhi_epi16(units, _mm_setzero_si128()));
}
void copy_eight(const char16_t* from, std::uint8_t* to)
{
    const __m128i units = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(to), _mm_packus_epi16(units, units));
}

__m128i eight(const char16_t* units) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(units)); }
__m128i eight(const std::uint8_t* bytes)
{
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(bytes)), _mm_setzero_si128());
}
/// The bits of the eight that are the same are set.
template <class Char>
__m128i same_eight(__m128i units, const Char* text)
{
    const auto* const p = reinterpret_cast<const __m128i*>(text);
    if constexpr (sizeof(Char) == sizeof(char16_t))
        return _mm_cmpeq_epi16(units, _mm_loadu_si128(p));
    const __m128i low = _mm_cmpeq_epi32(_mm_unpacklo_epi16(units, _mm_setzero_si128()), _mm_loadu_si128(p));
    const __m128i high =
        _mm_cmpeq_epi32(_mm_unpackhi_epi16(units, _mm_setzero_si128()), _mm_loadu_si128(p + 1));
    return _mm_and_si128(low, high);
}
template <class Kept, class Char>
bool same_steps(const Kept* units, const Char* text, std::size_t count)
{
    __m128i all = same_eight(eight(units + count - 8), text + count - 8); // overlaps the last step
    for (std::size_t i = 0; i + 8 < count; i += 8)
        all = _mm_and_si128(all, same_eight(eight(units + i), text + i));
    return _mm_movemask_epi8(all) == 0xFFFF;
}

bool are_bytes_steps(const char16_t* units, std::size_t count)
{
    __m128i all = eight(units + count - 8);
    for (std::size_t i = 0; i + 8 < count; i += 8)
        all = _mm_or_si128(all, eight(units + i));
    return _mm_movemask_epi8(_mm_cmpeq_epi16(_mm_srli_epi16(all, 8), _mm_setzero_si128())) == 0xFFFF;
}
#else
template <class From, class To>
void copy_eight(const From* from, To* to)
{
    std::copy_n(from, 8, to);
}
#endif

template <class From, class To>
void copy_units(const From* from, std::size_t count, To* to)
{
    if (sizeof(From) == sizeof(To))
        std::memcpy(to, from, count * sizeof(To));
    else if (count < 8)
        std::transform(from, from + count, to, [](From unit) { return static_cast<To>(unit); });
    else
    {
        // Most texts end here: what is copied twice costs less than an end that cannot be foreseen.
        constexpr std::size_t kAtOnce = 48;
#pragma GCC unroll 6
        for (std::size_t i = 0; i < kAtOnce; i += 8)
        {
            const std::size_t at = std::min(i, count - 8);
            copy_eight(from + at, to + at);
        }
        for (std::size_t i = kAtOnce; i < count; i += 8)
        {
            const std::size_t at = std::min(i, count - 8);
            copy_eight(from + at, to + at);
        }
    }
}

template <class Kept, class Char>
bool same_units(const Kept* units, const Char* text, std::size_t count)
{
#if defined(__SSE2__)
    if (count >= 8)
        return same_steps(units, text, count);
#endif
    return std::equal(text, text + count, units, [](Char a, Kept b) { return a == static_cast<Char>(b); });
}
} // namespace

bool equal_no_case(view a, view b) { return equal_folded(a, b); }
bool equal_no_case(view a, asked b) { return equal_folded(a, b); }

bool same(const char16_t* units, const char16_t* text, std::size_t count)
{
    return same_units(units, text, count);
}
bool same(const char16_t* units, const wchar_t* text, std::size_t count)
{
    return same_units(units, text, count);
}
bool same(const std::uint8_t* units, const char16_t* text, std::size_t count)
{
    return same_units(units, text, count);
}
bool same(const std::uint8_t* units, const wchar_t* text, std::size_t count)
{
    return same_units(units, text, count);
}

bool are_bytes(view text)
{
#if defined(__SSE2__)
    if (text.size() >= 8)
        return are_bytes_steps(text.data(), text.size());
#endif
    return std::all_of(text.begin(), text.end(), [](char16_t unit) { return unit < 256; });
}

void to_bytes(const char16_t* text, std::size_t count, std::uint8_t* out) { copy_units(text, count, out); }

CString to_string(view text)
{
    CString result;
    if (!text.empty())
        copy_units(text.data(), text.size(), result.GetBufferSetLength(static_cast<int>(text.size())));
    return result;
}

void widen(const char16_t* text, std::size_t count, wchar_t* out) { copy_units(text, count, out); }

void narrow(const wchar_t* text, std::size_t count, char16_t* out) { copy_units(text, count, out); }
} // namespace units

CUnits::CUnits(const wchar_t* psz)
{
    const std::size_t length = psz ? std::wcslen(psz) : 0;
    char16_t* out = m_szShort;
    if (length > kShort)
    {
        m_pLong = std::make_unique_for_overwrite<char16_t[]>(length);
        out = m_pLong.get();
    }
    units::narrow(psz, length, out);
    m_view = units::view(out, length);
}

CAlignedUnits::CAlignedUnits(const void* bytes, std::size_t count)
{
    if (reinterpret_cast<std::uintptr_t>(bytes) % alignof(char16_t) == 0)
    {
        m_view = {static_cast<const char16_t*>(bytes), count};
        return;
    }
    m_pCopy = std::make_unique_for_overwrite<char16_t[]>(count);
    std::memcpy(m_pCopy.get(), bytes, count * sizeof(char16_t));
    m_view = {m_pCopy.get(), count};
}
