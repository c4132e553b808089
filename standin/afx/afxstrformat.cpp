#include "afxexception.h"
#include "afxstr.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

namespace
{
enum class Size
{
    none,
    hh,
    h,
    l,
    ll,
    pointer,
    big_float,
    w
};

struct Conversion
{
    bool left = false;
    bool plus = false;
    bool space = false;
    bool alternate = false;
    bool zero = false;
    int width = 0;
    int precision = -1;
    Size size = Size::none;
    wchar_t type = 0;
};

// The arguments in a place that functions can share: a va_list parameter may be an array or a value.
struct Arguments
{
    std::va_list list;
};

// Digits of a number with what stands before them, in ASCII.
struct Number
{
    std::string prefix; // sign, "0x"
    std::string digits;
    bool zeros_allowed = true;
};

constexpr int most_width = INT_MAX / 4;

template <class T>
class Formatter
{
public:
    Formatter(const T* format, std::va_list args) : m_p(format) { va_copy(m_args.list, args); }
    ~Formatter() { va_end(m_args.list); }
    Formatter(const Formatter&) = delete;
    Formatter& operator=(const Formatter&) = delete;

    CStringT<T> Run();

private:
    // conversion ::= % {flag} [width] [. precision] [size] type
    bool Parse(Conversion& c);
    void ParseFlags(Conversion& c);
    void ParseSize(Conversion& c);
    bool ParseNumber(int& n);

    bool Write(const Conversion& c);
    void WriteText(const Conversion& c, bool wide);
    void WriteChar(const Conversion& c, bool wide);
    void WriteNumber(const Conversion& c, const Number& number);
    void WritePadded(const Conversion& c, const T* text, int length);
    void Pad(T ch, int count);

    std::int64_t Signed(Size size);
    std::uint64_t Unsigned(Size size);

    const T* m_p;
    Arguments m_args;
    CStringT<T> m_out;
};

template <class T>
CStringT<T> Formatter<T>::Run()
{
    while (*m_p != 0)
    {
        const T* start = m_p;
        while (*m_p != 0 && *m_p != '%')
            ++m_p;
        m_out.Append(start, static_cast<int>(m_p - start));
        if (*m_p == 0)
            break;
        start = m_p++;
        Conversion c;
        if (!Parse(c) || !Write(c))
            m_out.Append(start, static_cast<int>(m_p - start));
    }
    return m_out;
}

template <class T>
bool Formatter<T>::Parse(Conversion& c)
{
    ParseFlags(c);
    if (!ParseNumber(c.width))
        c.width = 0;
    if (c.width < 0)
    {
        c.left = true;
        c.width = -c.width;
    }
    if (*m_p == '.')
    {
        ++m_p;
        if (!ParseNumber(c.precision))
            c.precision = 0;
        c.precision = std::max(c.precision, -1);
    }
    ParseSize(c);
    if (*m_p == 0)
        return false;
    c.type = static_cast<wchar_t>(*m_p++);
    return true;
}

template <class T>
void Formatter<T>::ParseFlags(Conversion& c)
{
    for (;; ++m_p)
        switch (*m_p)
        {
        case '-':
            c.left = true;
            break;
        case '+':
            c.plus = true;
            break;
        case ' ':
            c.space = true;
            break;
        case '#':
            c.alternate = true;
            break;
        case '0':
            c.zero = true;
            break;
        default:
            return;
        }
}

// A number or '*', which takes it from the arguments.
template <class T>
bool Formatter<T>::ParseNumber(int& n)
{
    if (*m_p == '*')
    {
        ++m_p;
        n = std::clamp(va_arg(m_args.list, int), -most_width, most_width);
        return true;
    }
    if (*m_p < '0' || *m_p > '9')
        return false;
    for (n = 0; *m_p >= '0' && *m_p <= '9'; ++m_p)
        n = n > most_width / 10 ? most_width : n * 10 + static_cast<int>(*m_p - '0');
    return true;
}

template <class T>
void Formatter<T>::ParseSize(Conversion& c)
{
    static constexpr struct
    {
        std::string_view text;
        Size size;
    } sizes[] = {{"hh", Size::hh},     {"h", Size::h},       {"ll", Size::ll},       {"l", Size::l},
                 {"I64", Size::ll},    {"I32", Size::none},  {"I", Size::pointer},   {"j", Size::ll},
                 {"z", Size::pointer}, {"t", Size::pointer}, {"L", Size::big_float}, {"w", Size::w}};
    for (const auto& row : sizes)
    {
        std::size_t n = 0;
        while (n < row.text.size() && m_p[n] == static_cast<T>(row.text[n]))
            ++n;
        if (n == row.text.size())
        {
            m_p += n;
            c.size = row.size;
            return;
        }
    }
}

template <class T>
std::int64_t Formatter<T>::Signed(Size size)
{
    switch (size)
    {
    case Size::hh:
        return static_cast<signed char>(va_arg(m_args.list, int));
    case Size::h:
        return static_cast<short>(va_arg(m_args.list, int));
    // 32 bits, whatever this platform's long has.
    case Size::l:
        return static_cast<std::int32_t>(va_arg(m_args.list, long));
    case Size::ll:
        return va_arg(m_args.list, long long);
    case Size::pointer:
        return va_arg(m_args.list, std::intptr_t);
    default:
        return va_arg(m_args.list, int);
    }
}

template <class T>
std::uint64_t Formatter<T>::Unsigned(Size size)
{
    const auto n = static_cast<std::uint64_t>(Signed(size));
    switch (size)
    {
    case Size::hh:
        return n & 0xFF;
    case Size::h:
        return n & 0xFFFF;
    case Size::ll:
    case Size::pointer:
        return n;
    default:
        return n & 0xFFFFFFFF;
    }
}

std::string integer_digits(const Conversion& c, std::uint64_t n)
{
    const int base = c.type == 'o' ? 8 : c.type == 'x' || c.type == 'X' || c.type == 'p' ? 16 : 10;
    const char* symbols = c.type == 'x' ? "0123456789abcdef" : "0123456789ABCDEF";
    std::string digits;
    for (; n != 0; n /= static_cast<unsigned>(base))
        digits += symbols[n % static_cast<unsigned>(base)];
    const auto least = static_cast<std::size_t>(c.precision < 0 ? 1 : c.precision);
    if (digits.size() < least)
        digits.append(least - digits.size(), '0');
    if (c.type == 'o' && c.alternate && (digits.empty() || digits.back() != '0'))
        digits += '0';
    std::reverse(digits.begin(), digits.end());
    return digits;
}

std::string sign(const Conversion& c, bool negative)
{
    return negative ? "-" : c.plus ? "+" : c.space ? " " : "";
}

Number integer(const Conversion& c, bool negative, std::uint64_t magnitude)
{
    Number r;
    r.zeros_allowed = c.precision < 0;
    if (c.type == 'd' || c.type == 'i')
        r.prefix = sign(c, negative);
    else if ((c.type == 'x' || c.type == 'X') && c.alternate && magnitude != 0)
        r.prefix = c.type == 'x' ? "0x" : "0X";
    r.digits = integer_digits(c, magnitude);
    return r;
}

std::string float_chars(double value, std::chars_format form, int precision)
{
    std::string s(static_cast<std::size_t>(std::max(precision, 0)) +
                      std::numeric_limits<double>::max_exponent10 + 40,
                  '\0');
    const auto end = precision < 0 ? std::to_chars(s.data(), s.data() + s.size(), value, form)
                                   : std::to_chars(s.data(), s.data() + s.size(), value, form, precision);
    s.resize(static_cast<std::size_t>(end.ptr - s.data()));
    return s;
}

// %#g: as %g, with the zeros at the end that %g drops.
std::string general_with_zeros(double value, int precision)
{
    const int digits = std::max(precision, 1);
    const std::string scientific = float_chars(value, std::chars_format::scientific, digits - 1);
    const int exponent = std::stoi(scientific.substr(scientific.find('e') + 1));
    return exponent < -4 || exponent >= digits
               ? scientific
               : float_chars(value, std::chars_format::fixed, digits - 1 - exponent);
}

Number floating(const Conversion& c, double value)
{
    Number r;
    r.prefix = sign(c, std::signbit(value));
    value = std::fabs(value);
    const bool capitals = c.type < 'a';
    const char type = static_cast<char>(capitals ? c.type + 32 : c.type);
    const int precision = c.precision < 0 ? 6 : c.precision;
    if (!std::isfinite(value))
    {
        r.digits = std::isnan(value) ? "nan" : "inf";
        r.zeros_allowed = false;
    }
    else if (type == 'a')
    {
        r.prefix += "0x";
        r.digits = float_chars(value, std::chars_format::hex, c.precision < 0 ? 13 : precision);
    }
    else if (type == 'g' && c.alternate)
        r.digits = general_with_zeros(value, precision);
    else
        r.digits = float_chars(value,
                               type == 'e'   ? std::chars_format::scientific
                               : type == 'f' ? std::chars_format::fixed
                                             : std::chars_format::general,
                               precision);
    if (c.alternate && r.zeros_allowed && r.digits.find('.') == std::string::npos)
        r.digits.insert(std::min(r.digits.find_first_of(type == 'a' ? "p" : "e"), r.digits.size()), ".");
    const auto capital = [](char ch) { return static_cast<char>(ch >= 'a' && ch <= 'z' ? ch - 32 : ch); };
    if (capitals)
    {
        std::transform(r.prefix.begin(), r.prefix.end(), r.prefix.begin(), capital);
        std::transform(r.digits.begin(), r.digits.end(), r.digits.begin(), capital);
    }
    return r;
}

template <class T>
bool Formatter<T>::Write(const Conversion& c)
{
    constexpr bool own_is_wide = std::is_same_v<T, wchar_t>;
    const bool says_wide = c.size == Size::l || c.size == Size::ll || c.size == Size::w;
    switch (c.type)
    {
    case '%':
        m_out.AppendChar('%');
        return true;
    case 's':
        WriteText(c, says_wide || (own_is_wide && c.size != Size::h));
        return true;
    case 'S':
        WriteText(c, says_wide || (!own_is_wide && c.size != Size::h));
        return true;
    case 'c':
        WriteChar(c, says_wide || (own_is_wide && c.size != Size::h));
        return true;
    case 'C':
        WriteChar(c, says_wide || (!own_is_wide && c.size != Size::h));
        return true;
    case 'd':
    case 'i': {
        const std::int64_t n = Signed(c.size);
        WriteNumber(
            c, integer(c, n < 0, n < 0 ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n)));
        return true;
    }
    case 'u':
    case 'o':
    case 'x':
    case 'X':
        WriteNumber(c, integer(c, false, Unsigned(c.size)));
        return true;
    case 'p': {
        Conversion hex = c;
        hex.precision = 2 * sizeof(void*);
        WriteNumber(c, integer(hex, false, reinterpret_cast<std::uintptr_t>(va_arg(m_args.list, void*))));
        return true;
    }
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        // A double either way: the system's long double is one.
        WriteNumber(c, floating(c, c.size == Size::big_float
                                       ? static_cast<double>(va_arg(m_args.list, long double))
                                       : va_arg(m_args.list, double)));
        return true;
    case 'n': // writing through an argument is how format strings are abused
        static_cast<void>(va_arg(m_args.list, void*));
        return true;
    default:
        return false;
    }
}

// The first characters of a text that need not end within the precision.
template <class U>
int limited_length(const U* text, int precision)
{
    if (precision < 0)
        return CStringT<U>::StringLength(text);
    int n = 0;
    while (n < precision && text[n] != 0)
        ++n;
    return n;
}

// The same for a text of the other character type: as much of it is read as makes precision characters,
// and one byte more while the last one may be the first half of a character.
template <class T, class U>
CStringT<T> limited_conversion(const U* text, int precision)
{
    if (precision < 0)
        return CStringT<T>(text);
    for (int most = precision;; ++most)
    {
        const int n = limited_length(text, most);
        const CStringT<T> converted(text, n);
        const bool complete = n == 0 || static_cast<std::uint32_t>(text[n - 1]) < 0x80;
        if (n < most || converted.GetLength() > precision || (complete && converted.GetLength() == precision))
            return converted.Left(precision);
    }
}

template <class T>
void Formatter<T>::WriteText(const Conversion& c, bool wide)
{
    using U = typename CStringT<T>::YCHAR;
    const void* arg = va_arg(m_args.list, const void*);
    if (arg == nullptr)
    {
        const CStringT<T> null("(null)");
        WritePadded(c, null, limited_length(null.GetString(), c.precision));
    }
    else if (wide == std::is_same_v<T, wchar_t>)
        WritePadded(c, static_cast<const T*>(arg), limited_length(static_cast<const T*>(arg), c.precision));
    else
    {
        const CStringT<T> str = limited_conversion<T>(static_cast<const U*>(arg), c.precision);
        WritePadded(c, str, str.GetLength());
    }
}

template <class T>
void Formatter<T>::WriteChar(const Conversion& c, bool wide)
{
    using U = typename CStringT<T>::YCHAR;
    const int arg = va_arg(m_args.list, int);
    if (wide == std::is_same_v<T, wchar_t>)
    {
        // One UTF-16 unit, whatever this platform's wchar_t has.
        const auto ch = static_cast<T>(wide ? arg & 0xFFFF : arg);
        WritePadded(c, &ch, 1);
    }
    else
    {
        const auto ch = static_cast<U>(wide ? arg & 0xFFFF : arg);
        const CStringT<T> str(&ch, 1);
        WritePadded(c, str, str.GetLength());
    }
}

template <class T>
void Formatter<T>::WriteNumber(const Conversion& c, const Number& number)
{
    const auto put = [this](const std::string& ascii) {
        for (const char ch : ascii)
            m_out.AppendChar(static_cast<T>(ch));
    };
    const int blank = c.width - static_cast<int>(number.prefix.size() + number.digits.size());
    const bool zeros = c.zero && !c.left && number.zeros_allowed;
    if (!c.left && !zeros)
        Pad(' ', blank);
    put(number.prefix);
    if (zeros)
        Pad('0', blank);
    put(number.digits);
    if (c.left)
        Pad(' ', blank);
}

template <class T>
void Formatter<T>::WritePadded(const Conversion& c, const T* text, int length)
{
    if (!c.left)
        Pad(c.zero ? '0' : ' ', c.width - length);
    m_out.Append(text, length);
    if (c.left)
        Pad(' ', c.width - length);
}

template <class T>
void Formatter<T>::Pad(T ch, int count)
{
    if (count > 0)
        m_out.Append(CStringT<T>(ch, count));
}
} // namespace

template <class T>
void CStringT<T>::FormatV(PCXSTR pszFormat, std::va_list args)
{
    if (pszFormat == nullptr)
        ThrowInvalidArg();
    *this = Formatter<T>(pszFormat, args).Run();
}

template <class T>
void CStringT<T>::AppendFormatV(PCXSTR pszFormat, std::va_list args)
{
    if (pszFormat == nullptr)
        ThrowInvalidArg();
    Append(Formatter<T>(pszFormat, args).Run());
}

template <class T>
void CStringT<T>::Format(PCXSTR pszFormat, ...)
{
    std::va_list args;
    va_start(args, pszFormat);
    FormatV(pszFormat, args);
    va_end(args);
}

template <class T>
void CStringT<T>::AppendFormat(PCXSTR pszFormat, ...)
{
    std::va_list args;
    va_start(args, pszFormat);
    AppendFormatV(pszFormat, args);
    va_end(args);
}

template <class T>
void CStringT<T>::Format(UINT nFormatID, ...)
{
    CStringT strFormat;
    if (!strFormat.LoadString(nFormatID))
        ThrowInvalidArg();
    std::va_list args;
    va_start(args, nFormatID);
    FormatV(strFormat, args);
    va_end(args);
}

template <class T>
void CStringT<T>::AppendFormat(UINT nFormatID, ...)
{
    CStringT strFormat;
    if (!strFormat.LoadString(nFormatID))
        ThrowInvalidArg();
    std::va_list args;
    va_start(args, nFormatID);
    AppendFormatV(strFormat, args);
    va_end(args);
}

template AFX_API void CStringT<wchar_t>::FormatV(PCXSTR, std::va_list);
template AFX_API void CStringT<wchar_t>::AppendFormatV(PCXSTR, std::va_list);
template AFX_API void CStringT<wchar_t>::Format(PCXSTR, ...);
template AFX_API void CStringT<wchar_t>::AppendFormat(PCXSTR, ...);
template AFX_API void CStringT<char>::FormatV(PCXSTR, std::va_list);
template AFX_API void CStringT<char>::AppendFormatV(PCXSTR, std::va_list);
template AFX_API void CStringT<char>::Format(PCXSTR, ...);
template AFX_API void CStringT<char>::AppendFormat(PCXSTR, ...);
template AFX_API void CStringT<wchar_t>::Format(UINT, ...);
template AFX_API void CStringT<wchar_t>::AppendFormat(UINT, ...);
template AFX_API void CStringT<char>::Format(UINT, ...);
template AFX_API void CStringT<char>::AppendFormat(UINT, ...);
