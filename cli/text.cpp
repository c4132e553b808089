#include "cli/text.h"

#include "platform/codepage.h"

#include <algorithm>
#include <numeric>

namespace cli
{
namespace codepage = platform::codepage;

namespace
{
char folded(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Insertions, deletions and changes of one letter that turn \p a into \p b; letter case costs nothing.
std::size_t edit_distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (const char letter : a)
    {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < b.size(); ++j)
        {
            const std::size_t changed = diagonal + (folded(letter) == folded(b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}
} // namespace

std::wstring to_wide(std::string_view utf8) { return codepage::decode(codepage::utf8, utf8).value_or(L""); }

std::string to_utf8(std::wstring_view wide) { return codepage::encode(codepage::utf8, wide).value_or(""); }

void append_utf8(std::string& out, std::wstring_view wide)
{
    if (!wide.empty())
        out += to_utf8(wide);
}

std::string wrapped(std::string_view text, std::size_t indent, std::size_t width)
{
    std::string out;
    while (true)
    {
        const auto feed = std::min(text.find('\n'), text.size());
        std::string_view paragraph = text.substr(0, feed);
        std::size_t column = 0;
        while (!paragraph.empty())
        {
            const auto blank = std::min(paragraph.find(' '), paragraph.size());
            if (column > 0 && column + 1 + blank > width)
            {
                out += '\n';
                column = 0;
            }
            if (column == 0)
                out.append(indent, ' ');
            else
                out += ' ';
            column = (column == 0 ? indent : column + 1) + blank;
            out += paragraph.substr(0, blank);
            paragraph.remove_prefix(std::min(blank + 1, paragraph.size()));
        }
        out += '\n';
        if (feed == text.size())
            return out;
        text.remove_prefix(feed + 1);
    }
}

std::string painted(bool wanted, Color color, std::string_view text)
{
    if (!wanted)
        return std::string(text);
    const char* begin = color == Color::error     ? "\x1b[1;31m"
                        : color == Color::section ? "\x1b[36m"
                                                  : "\x1b[1m";
    return std::string(begin).append(text).append("\x1b[0m");
}

std::string_view nearest(std::string_view word, const std::vector<std::string_view>& known)
{
    std::string_view best;
    std::size_t least = word.size() < 4 ? 2 : 3;
    constexpr std::size_t longest = 200; // a name that somebody typed, not a line of data
    for (const std::string_view candidate : known)
    {
        if (candidate.size() >= word.size() + least || candidate.size() + least <= word.size() ||
            candidate.size() > longest)
            continue;
        if (const std::size_t distance = edit_distance(word, candidate); distance < least)
        {
            least = distance;
            best = candidate;
        }
    }
    return best;
}
} // namespace cli
