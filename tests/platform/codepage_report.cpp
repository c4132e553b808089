#include "tests/platform/codepage_report.h"

#include <cstdint>
#include <cstdio>

namespace codepage_report
{
const std::vector<int> pages = {949,  932,  936,  950,  1250, 1251, 1252, 1253,
                                1254, 1255, 1256, 1257, 1258, 874,  437,  65001};

namespace
{
void append_hex(std::string& digits, int width, unsigned value)
{
    while (width-- > 0)
        digits += "0123456789ABCDEF"[value >> 4 * width & 0xF];
}

std::string hex(std::string_view bytes)
{
    std::string digits;
    for (const char c : bytes)
        append_hex(digits, 2, static_cast<unsigned char>(c));
    return digits;
}

std::string hex(std::u16string_view text)
{
    std::string digits;
    for (const char16_t c : text)
        append_hex(digits, 4, c);
    return digits;
}

/// True when \p b is the number after \p a, both in hexadecimal and of the same length.
bool follows(const std::string& a, const std::string& b)
{
    return a.size() == b.size() && a != "." && !a.empty() &&
           std::stoull(a, nullptr, 16) + 1 == std::stoull(b, nullptr, 16);
}

/// "AC00 AC01 AC02 3F 3F" -> "AC00+3 3F*2".
std::string runs(const std::vector<std::string>& values)
{
    std::string line;
    for (std::size_t i = 0; i < values.size();)
    {
        std::size_t same = i + 1;
        while (same < values.size() && values[same] == values[i])
            ++same;
        std::size_t rising = i + 1;
        while (rising < values.size() && follows(values[rising - 1], values[rising]))
            ++rising;
        line += ' ' + (values[i].empty() ? "nothing" : values[i]);
        const std::size_t end = std::max(same, rising);
        if (end - i > 1)
            line += (same > rising ? '*' : '+') + std::to_string(end - i);
        i = end;
    }
    return line + '\n';
}

/// Every platform must draw the same numbers, so this is not the standard library's generator.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_state(seed * 0x9E3779B97F4A7C15u + 1) {}

    unsigned below(unsigned n)
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 7;
        m_state ^= m_state << 17;
        return static_cast<unsigned>(m_state >> 33) % n;
    }

private:
    std::uint64_t m_state;
};

/// Any bytes, mixed with the ones on which the rules of multi-byte pages turn, or with rows of ASCII as real
/// text has them.
std::string random_bytes(Random& random, unsigned longest)
{
    static constexpr unsigned char turning[] = {
        0x00, 0x0A, 0x2F, 0x30, 0x3F, 0x40, 0x41, 0x5C, 0x7E, 0x7F, 0x80, 0x81, 0x8F, 0x90,
        0x9F, 0xA0, 0xA1, 0xB0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF, 0xE0, 0xE1, 0xEC, 0xED, 0xEE,
        0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xF7, 0xF8, 0xFB, 0xFC, 0xFD, 0xFE, 0xFF};
    std::string bytes(1 + random.below(longest), '\0');
    const unsigned kind = random.below(4);
    unsigned ascii = 0;
    for (char& c : bytes)
    {
        if (kind == 2 && ascii == 0 && random.below(8) == 0)
            ascii = random.below(100);
        if (ascii > 0)
            c = static_cast<char>(0x20 + random.below(0x5F)), --ascii;
        else if (kind == 3)
            c = static_cast<char>(0x80 + random.below(0x80));
        else
            c = static_cast<char>(kind == 1 ? turning[random.below(sizeof turning)] : random.below(256));
    }
    return bytes;
}

/// Well-formed and broken characters of UTF-8, which random bytes hardly ever make.
std::string random_utf8(Random& random, unsigned longest)
{
    static constexpr std::string_view pieces[] = {"a",
                                                  "\n",
                                                  " ascii",
                                                  "twenty ascii letters",
                                                  "\xC3\xA9",
                                                  "\xD0\x96",
                                                  "\xED\x95\x9C",
                                                  "\xEA\xB0\x80",
                                                  "\xE4\xB8\xAD",
                                                  "\xEF\xBF\xBD",
                                                  "\xF0\x9F\x98\x80",
                                                  "\xF4\x8F\xBF\xBF",
                                                  "\xE0\xA0\x80",
                                                  "\xED\x9F\xBF",
                                                  "\xEE\x80\x80",
                                                  "\xED\xA0\x80",
                                                  "\xE0\x9F\xBF",
                                                  "\xC1\xBF",
                                                  "\xF0\x8F\xBF\xBF",
                                                  "\xF4\x90\x80\x80",
                                                  "\xE3\x81",
                                                  "\xF0\x9F\x98",
                                                  "\xC3",
                                                  "\x80",
                                                  "\xFF"};
    const unsigned kinds = random.below(2) ? std::size(pieces) : 15;
    std::string bytes;
    while (bytes.size() < longest && (bytes.empty() || random.below(longest) > 2))
        bytes += pieces[random.below(kinds)];
    return bytes;
}

/// Any units, mixed with ranges that some pages know whole, and with rows of ASCII.
std::u16string random_text(Random& random, unsigned longest)
{
    static constexpr struct
    {
        unsigned first, count;
    } ranges[] = {{0, 0x80},        {0x80, 0x100},    {0, 0x10000},     {0x3040, 0xC0},
                  {0x4E00, 0x5200}, {0xAC00, 0x2BA4}, {0xD800, 0x400},  {0xDC00, 0x400},
                  {0xE000, 0x1900}, {0xFF00, 0x100},  {0x0400, 0x0100}, {0xD800, 0x800}};
    std::u16string text(1 + random.below(longest), u'\0');
    unsigned ascii = 0;
    for (char16_t& c : text)
    {
        if (ascii == 0 && random.below(12) == 0)
            ascii = random.below(longest);
        const auto& range = ranges[ascii > 0 ? 0 : random.below(std::size(ranges))];
        ascii -= ascii > 0;
        c = static_cast<char16_t>(range.first + random.below(range.count));
    }
    return text;
}

class Digest
{
public:
    void add(std::string_view bytes)
    {
        for (const char c : bytes)
            m_value = (m_value ^ static_cast<unsigned char>(c)) * 0x100000001B3u;
        m_value = (m_value ^ 0x100) * 0x100000001B3u;
    }
    std::string text() const
    {
        char digits[17];
        std::snprintf(digits, sizeof digits, "%016llX", static_cast<unsigned long long>(m_value));
        return digits;
    }

private:
    std::uint64_t m_value = 0xCBF29CE484222325u;
};

constexpr int shown = 100;
constexpr int drawn = 8000;
} // namespace

std::string of(int page, const Converter& converter)
{
    std::string report = "# Code page " + std::to_string(page) + R"(
# V+n: n values, each one more than the one before; V*n: the same value n times.
# byte: every byte alone
# pair: a byte with each byte after it; "." stands for both decoded by themselves, and a row of nothing
#       else is left out
# unit: every UTF-16 unit alone
# bytes, text: some longer input; the digest is over many more of the same kind
)";
    const auto decode = [&](std::string_view bytes) { return hex(converter.decode(page, bytes)); };
    const auto encode = [&](std::u16string_view text) { return hex(converter.encode(page, text)); };

    std::vector<std::string> single(256), row(256);
    for (int b = 0; b < 256; ++b)
        single[b] = decode(std::string(1, static_cast<char>(b)));
    report += "byte:" + runs(single);
    for (int first = 0; first < 256; ++first)
    {
        for (int second = 0; second < 256; ++second)
        {
            row[second] = decode(std::string{static_cast<char>(first), static_cast<char>(second)});
            if (row[second] == single[first] + single[second])
                row[second] = ".";
        }
        if (row != std::vector<std::string>(256, "."))
            report += "pair " + hex(std::string(1, static_cast<char>(first))) + ":" + runs(row);
    }
    for (int high = 0; high < 256; ++high)
    {
        for (int low = 0; low < 256; ++low)
            row[low] = encode(std::u16string(1, static_cast<char16_t>(high << 8 | low)));
        report += "unit " + hex(std::string(1, static_cast<char>(high))) + ":" + runs(row);
    }

    Random random(static_cast<std::uint64_t>(page));
    Digest decoded, encoded;
    for (int i = 0; i < drawn; ++i)
    {
        const unsigned longest = i < shown || i % 4 ? 12 : 300;
        const std::string bytes =
            page == 65001 && i % 2 ? random_utf8(random, longest) : random_bytes(random, longest);
        const std::string answer = decode(bytes);
        decoded.add(answer);
        if (i < shown)
            report += "bytes " + hex(bytes) + ": " + answer + '\n';
    }
    for (int i = 0; i < drawn; ++i)
    {
        const std::u16string text = random_text(random, i < shown || i % 4 ? 8 : 200);
        const std::string answer = encode(text);
        encoded.add(answer);
        if (i < shown)
            report += "text " + hex(text) + ": " + answer + '\n';
    }
    return report + "digest: " + decoded.text() + ' ' + encoded.text() + '\n';
}
} // namespace codepage_report
