#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The text of the native registry file: UTF-8, in the notation of exported registry files.
///
///     ; a remark
///     [HKEY_CURRENT_USER\Software\Company\Program]
///     "Text"="C:\\Data \"main\""
///     "Number"=dword:0000001f
///     "Any bytes"=hex:01,02,ff
///     "Other type"=hex(7):61,00,00,00
///     @="the key's unnamed value"
///
/// A key line names a key from its root name on and is followed by the key's values. In quotes stand
/// \\ \" \n \r \0 and \uXXXX (one UTF-16 unit), as \u also what UTF-8 cannot hold and control characters.
/// A text whose data is not whole units ending in a null is written as hex(1). A key exists when a line
/// names it or one below it. Of two lines for one value the later counts.
///
/// A line that is none of these (a remark, a blank or a damaged line) has no meaning and stays byte for
/// byte where it is when the file is written again; so nothing is lost by a slip of an editor. Values
/// below a damaged key line belong to no key until the line is mended.
namespace platform::registry::posix
{
struct Value
{
    std::uint32_t type = 0;
    std::string data;
};

/// Names are equal when their upper-case forms are (platform/letters.h).
std::wstring upper(std::wstring_view text);

/// The text of a registry file and what it says. Key paths begin with a root name and are valid.
class Document
{
public:
    /// The text of a new file: a remark that says what it is.
    static std::string_view heading();

    explicit Document(std::string_view text);
    std::string text() const;

    bool has_key(std::wstring_view path) const;
    void add_key(std::wstring_view path);
    /// False when there is no such key.
    bool remove_tree(std::wstring_view path);

    const Value* find(std::wstring_view path, std::wstring_view name) const;
    /// False when there is no such key.
    bool set(std::wstring_view path, std::wstring_view name, Value value);
    /// False when there is no such value.
    bool remove_value(std::wstring_view path, std::wstring_view name);

private:
    enum class Kind
    {
        other,
        key,
        damaged_key,
        value
    };
    struct Line
    {
        std::string text; ///< as it stands in the file, without the line feed
        Kind kind = Kind::other;
        std::wstring name;   ///< of a value its name, of a key its path
        std::wstring folded; ///< the name in upper case
        Value value;
    };

    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    static Line read(std::string_view text);
    std::size_t end_of_block(std::size_t line) const;
    std::size_t find_key_line(std::wstring_view folded, std::size_t from) const;
    std::size_t find_value_line(std::wstring_view path, std::wstring_view name) const;
    std::size_t place_for_value(std::wstring_view path);

    std::vector<Line> m_lines;
};
} // namespace platform::registry::posix
