#pragma once

#include <string>
#include <string_view>

namespace cli
{
/// Writes one JSON value on one line, members in the order of the calls. Texts are exact: what UTF-8
/// cannot hold, a lone surrogate, is written as its \u escape.
class JsonWriter
{
public:
    JsonWriter& begin_object() { return open('{'); }
    JsonWriter& end_object() { return close('}'); }
    JsonWriter& begin_array() { return open('['); }
    JsonWriter& end_array() { return close(']'); }
    /// The name of the next member; plain ASCII that needs no escape.
    JsonWriter& key(std::string_view name);
    JsonWriter& text(std::wstring_view value);
    JsonWriter& number(long long value) { return word(std::to_string(value)); }
    JsonWriter& boolean(bool value) { return word(value ? "true" : "false"); }
    JsonWriter& null() { return word("null"); }

    /// The text with a line feed at its end; the writer is empty afterwards.
    std::string take();

private:
    JsonWriter& open(char bracket);
    JsonWriter& close(char bracket);
    JsonWriter& word(std::string_view value);
    void separate();

    std::string m_text;
    bool m_comma = false;
};
} // namespace cli
