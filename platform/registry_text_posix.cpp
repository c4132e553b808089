#include "platform/registry_text_posix.h"

#include "platform/codepage.h"
#include "platform/letters.h"
#include "platform/registry.h"

#include <algorithm>

namespace platform::registry::posix
{
namespace
{
constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return std::string_view();
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// UTF-8 as wide text; nothing when some byte could not be kept.
std::optional<std::wstring> exact_wide(std::string_view bytes)
{
    std::optional<std::wstring> text = codepage::decode(codepage::utf8, bytes);
    if (text && codepage::encode(codepage::utf8, *text) != bytes)
        text.reset();
    return text;
}

std::string utf8(std::wstring_view text)
{
    return codepage::encode(codepage::utf8, text).value_or(std::string());
}

int hex_digit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char small = static_cast<char>(c | 0x20);
    return small >= 'a' && small <= 'f' ? small - 'a' + 10 : -1;
}

/// number ::= digit {digit}, at most \p most digits
std::optional<std::uint32_t> read_hex(std::string_view& text, int most)
{
    std::uint32_t number = 0;
    int digits = 0;
    for (; digits < most && !text.empty() && hex_digit(text.front()) >= 0; ++digits, text.remove_prefix(1))
        number = number << 4 | static_cast<std::uint32_t>(hex_digit(text.front()));
    return digits > 0 ? std::optional(number) : std::nullopt;
}

void append_hex(std::string& out, std::uint32_t number, int digits)
{
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4)
        out += "0123456789abcdef"[(number >> shift) & 15];
}

/// escape ::= "\\" | "\"" | "n" | "r" | "0" | "u" digit digit digit digit
std::optional<wchar_t> read_escape(std::string_view& text)
{
    if (text.empty())
        return std::nullopt;
    const char c = text.front();
    text.remove_prefix(1);
    switch (c)
    {
    case '\\':
    case '"':
        return static_cast<wchar_t>(c);
    case 'n':
        return L'\n';
    case 'r':
        return L'\r';
    case '0':
        return L'\0';
    case 'u': {
        const std::size_t before = text.size();
        const std::optional<std::uint32_t> unit = read_hex(text, 4);
        return unit && before - text.size() == 4 ? std::optional(static_cast<wchar_t>(*unit)) : std::nullopt;
    }
    default:
        return std::nullopt;
    }
}

/// quoted ::= "\"" {character | "\\" escape} "\""
std::optional<std::wstring> read_quoted(std::string_view& text)
{
    if (!text.starts_with('"'))
        return std::nullopt;
    text.remove_prefix(1);
    std::wstring out;
    while (true)
    {
        const std::size_t plain = std::min(text.find_first_of("\"\\"), text.size());
        const std::optional<std::wstring> piece = exact_wide(text.substr(0, plain));
        if (!piece || plain == text.size())
            return std::nullopt;
        out += *piece;
        const bool ends = text[plain] == '"';
        text.remove_prefix(plain + 1);
        if (ends)
            return out;
        const std::optional<wchar_t> unit = read_escape(text);
        if (!unit)
            return std::nullopt;
        out += *unit;
    }
}

bool is_high(wchar_t c) { return c >= 0xD800 && c < 0xDC00; }
bool is_low(wchar_t c) { return c >= 0xDC00 && c < 0xE000; }

/// How many units from \p i on stand in the file as they are: 0 for one that needs an escape.
std::size_t plain_units(std::wstring_view text, std::size_t i)
{
    const wchar_t c = text[i];
    if (is_high(c))
        return i + 1 < text.size() && is_low(text[i + 1]) ? 2 : 0;
    return c < 0x20 || c == L'"' || c == L'\\' || c == 0x7F || is_low(c) ? 0 : 1;
}

void append_escape(std::string& out, wchar_t c)
{
    out += '\\';
    if (c == L'"' || c == L'\\')
        out += static_cast<char>(c);
    else if (c == L'\n' || c == L'\r' || c == L'\0')
        out += c == L'\n' ? 'n' : c == L'\r' ? 'r' : '0';
    else
        append_hex(out += 'u', static_cast<std::uint32_t>(c), 4);
}

std::string quoted(std::wstring_view text)
{
    std::string out = "\"";
    for (std::size_t i = 0; i < text.size();)
    {
        const std::size_t start = i;
        for (std::size_t n; i < text.size() && (n = plain_units(text, i)) > 0;)
            i += n;
        out += utf8(text.substr(start, i - start));
        if (i < text.size())
            append_escape(out, text[i++]);
    }
    return out += '"';
}

/// bytes ::= [digit digit {"," digit digit}]
std::optional<std::string> read_bytes(std::string_view text)
{
    std::string data;
    data.reserve(text.size() / 3 + 1);
    while (!text.empty())
    {
        if (!data.empty() && !text.starts_with(','))
            return std::nullopt;
        text.remove_prefix(data.empty() ? 0 : 1);
        if (text.size() < 2 || hex_digit(text[0]) < 0 || hex_digit(text[1]) < 0)
            return std::nullopt;
        data += static_cast<char>(hex_digit(text[0]) << 4 | hex_digit(text[1]));
        text.remove_prefix(2);
    }
    return data;
}

/// data ::= quoted | "dword:" number | "hex:" bytes | "hex(" number "):" bytes
std::optional<Value> read_data(std::string_view text)
{
    if (text.starts_with('"'))
    {
        const std::optional<std::wstring> out = read_quoted(text);
        if (!out || !text.empty())
            return std::nullopt;
        return Value{type_string, codepage::to_utf16le(*out + L'\0')};
    }
    std::uint32_t type = type_binary;
    if (text.starts_with("dword:"))
    {
        text.remove_prefix(6);
        const std::optional<std::uint32_t> number = read_hex(text, 8);
        if (!number || !text.empty())
            return std::nullopt;
        std::string data;
        for (int shift = 0; shift < 32; shift += 8)
            data += static_cast<char>(*number >> shift);
        return Value{type_dword, data};
    }
    if (text.starts_with("hex("))
    {
        text.remove_prefix(4);
        const std::optional<std::uint32_t> number = read_hex(text, 8);
        if (!number || !text.starts_with("):"))
            return std::nullopt;
        text.remove_prefix(2);
        type = *number;
    }
    else if (text.starts_with("hex:"))
        text.remove_prefix(4);
    else
        return std::nullopt;
    std::optional<std::string> data = read_bytes(text);
    return data ? std::optional(Value{type, std::move(*data)}) : std::nullopt;
}

std::string written(const Value& value)
{
    const std::string& data = value.data;
    const std::size_t size = data.size();
    if (value.type == type_string && size >= 2 && size % 2 == 0 && !data[size - 1] && !data[size - 2])
        return quoted(codepage::from_utf16le(std::string_view(data).substr(0, size - 2)));
    std::string out;
    if (value.type == type_dword && size == 4)
    {
        out = "dword:";
        for (std::size_t i = 4; i-- > 0;)
            append_hex(out, static_cast<unsigned char>(data[i]), 2);
        return out;
    }
    out.reserve(3 * size + 16);
    out = "hex";
    if (value.type != type_binary)
    {
        int digits = 1;
        while (digits < 8 && value.type >> (4 * digits))
            ++digits;
        append_hex(out += '(', value.type, digits);
        out += ')';
    }
    char before = ':';
    for (const char c : data)
    {
        append_hex(out += before, static_cast<unsigned char>(c), 2);
        before = ',';
    }
    return size ? out : out + ':';
}

/// path ::= root {"\\" component}, the root in any letter case
bool is_key_path(std::wstring_view path)
{
    if (!root_by_name(path.substr(0, path.find(L'\\'))))
        return false;
    const bool control = std::any_of(path.begin(), path.end(), [](wchar_t c) { return c < 0x20; });
    return !control && path.back() != L'\\' && path.find(L"\\\\") == std::wstring_view::npos;
}

bool is_at_or_below(std::wstring_view path, std::wstring_view top)
{
    return path.starts_with(top) && (path.size() == top.size() || path[top.size()] == L'\\');
}
} // namespace

std::wstring upper(std::wstring_view text)
{
    std::wstring out(text);
    std::transform(out.begin(), out.end(), out.begin(), letters::upper);
    return out;
}

std::string_view Document::heading()
{
    return "; Settings of Tarvo programs, in the notation of exported registry files.\n"
           "; Programs write this file whole; lines that they cannot read stay as they are.\n";
}

Document::Document(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    if (text.starts_with(mark))
        text.remove_prefix(mark.size());
    while (!text.empty())
    {
        const std::size_t end = std::min(text.find('\n'), text.size());
        m_lines.push_back(read(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::string Document::text() const
{
    std::string out;
    for (const Line& line : m_lines)
        (out += line.text) += '\n';
    return out;
}

Document::Line Document::read(std::string_view text)
{
    Line line;
    line.text = text;
    text = trimmed(text);
    if (text.starts_with('['))
    {
        line.kind = Kind::damaged_key;
        const std::optional<std::wstring> path =
            text.ends_with(']') ? exact_wide(text.substr(1, text.size() - 2)) : std::nullopt;
        if (!path || !is_key_path(*path))
            return line;
        line.kind = Kind::key;
        line.name = *path;
        line.folded = upper(line.name);
        return line;
    }
    std::optional<std::wstring> name;
    if (text.starts_with('@'))
        name.emplace(), text.remove_prefix(1);
    else
        name = read_quoted(text);
    text = trimmed(text);
    if (!name || !text.starts_with('='))
        return line;
    std::optional<Value> value = read_data(trimmed(text.substr(1)));
    if (!value)
        return line;
    line.kind = Kind::value;
    line.name = *name;
    line.folded = upper(line.name);
    line.value = std::move(*value);
    return line;
}

/// The index behind the last line that belongs to the key line \p line.
std::size_t Document::end_of_block(std::size_t line) const
{
    for (++line; line < m_lines.size(); ++line)
        if (m_lines[line].kind == Kind::key || m_lines[line].kind == Kind::damaged_key)
            break;
    return line;
}

bool Document::has_key(std::wstring_view path) const
{
    const std::wstring folded = upper(path);
    return std::any_of(m_lines.begin(), m_lines.end(), [&](const Line& line) {
        return line.kind == Kind::key && is_at_or_below(line.folded, folded);
    });
}

void Document::add_key(std::wstring_view path)
{
    if (!m_lines.empty() && !m_lines.back().text.empty())
        m_lines.emplace_back(); // a blank line between keys
    m_lines.push_back(read("[" + utf8(path) + "]"));
}

bool Document::remove_tree(std::wstring_view path)
{
    const std::wstring folded = upper(path);
    bool removed = false;
    for (std::size_t i = 0; i < m_lines.size();)
    {
        if (m_lines[i].kind == Kind::key && is_at_or_below(m_lines[i].folded, folded))
        {
            const auto first = m_lines.begin() + static_cast<std::ptrdiff_t>(i);
            m_lines.erase(first, m_lines.begin() + static_cast<std::ptrdiff_t>(end_of_block(i)));
            removed = true;
        }
        else
            ++i;
    }
    return removed;
}

std::size_t Document::find_key_line(std::wstring_view folded, std::size_t from) const
{
    for (std::size_t i = from; i < m_lines.size(); ++i)
        if (m_lines[i].kind == Kind::key && m_lines[i].folded == folded)
            return i;
    return none;
}

/// The last line for a value, which is the one that counts.
std::size_t Document::find_value_line(std::wstring_view path, std::wstring_view name) const
{
    const std::wstring folded_path = upper(path), folded_name = upper(name);
    std::size_t found = none;
    for (std::size_t key = find_key_line(folded_path, 0); key != none;
         key = find_key_line(folded_path, key + 1))
        for (std::size_t i = key + 1; i < end_of_block(key); ++i)
            if (m_lines[i].kind == Kind::value && m_lines[i].folded == folded_name)
                found = i;
    return found;
}

/// The index at which a new value of the key belongs: behind its last line that is not blank.
std::size_t Document::place_for_value(std::wstring_view path)
{
    std::size_t key = find_key_line(upper(path), 0);
    if (key == none) // so far it is only named by a key below it
    {
        add_key(path);
        key = m_lines.size() - 1;
    }
    std::size_t place = end_of_block(key);
    while (trimmed(m_lines[place - 1].text).empty())
        --place;
    return place;
}

const Value* Document::find(std::wstring_view path, std::wstring_view name) const
{
    const std::size_t line = find_value_line(path, name);
    return line == none ? nullptr : &m_lines[line].value;
}

bool Document::set(std::wstring_view path, std::wstring_view name, Value value)
{
    if (!has_key(path))
        return false;
    std::size_t i = find_value_line(path, name);
    if (i == none)
    {
        i = place_for_value(path);
        Line line;
        line.kind = Kind::value;
        line.name = name;
        line.folded = upper(name);
        m_lines.insert(m_lines.begin() + static_cast<std::ptrdiff_t>(i), std::move(line));
    }
    Line& line = m_lines[i];
    line.value = std::move(value);
    line.text = (line.name.empty() ? "@" : quoted(line.name)) + '=' + written(line.value);
    return true;
}

bool Document::remove_value(std::wstring_view path, std::wstring_view name)
{
    bool removed = false;
    // An earlier line for the same value would count again if it stayed.
    for (std::size_t i = find_value_line(path, name); i != none; i = find_value_line(path, name))
    {
        m_lines.erase(m_lines.begin() + static_cast<std::ptrdiff_t>(i));
        removed = true;
    }
    return removed;
}
} // namespace platform::registry::posix
