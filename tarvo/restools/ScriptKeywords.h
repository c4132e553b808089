#pragma once

#include <cstdint>
#include <string_view>

/// The words that a line of a script can begin with and that say what it is.
enum class ScriptKeyword : std::uint8_t
{
    None, ///< any other word
    Language,
    StringTable,
    Begin,
    End,
    Style,
    ExStyle,
    Caption,
    Font,
    MenuItem,
    Popup,
    Button,
    Separator,
    // The controls.
    Control,
    LText,
    RText,
    CText,
    Icon,
    GroupBox,
    PushButton,
    DefPushButton,
    EditText,
    ComboBox,
    ListBox,
    ScrollBar,
    Count ///< how many there are
};

ScriptKeyword FindScriptKeyword(std::u16string_view word);

/// Several keywords, told from others in one step.
class CScriptKeywords
{
public:
    template <class... Keyword>
    explicit constexpr CScriptKeywords(Keyword... keywords) : m_bits((Bit(keywords) | ...))
    {
    }
    constexpr bool Hold(ScriptKeyword keyword) const { return (m_bits & Bit(keyword)) != 0; }
    /// With all from \p first to \p last.
    constexpr CScriptKeywords With(ScriptKeyword first, ScriptKeyword last) const
    {
        CScriptKeywords more = *this;
        more.m_bits |= (Bit(last) << 1) - Bit(first);
        return more;
    }

private:
    static constexpr std::uint32_t Bit(ScriptKeyword keyword)
    {
        return std::uint32_t{1} << static_cast<unsigned>(keyword);
    }
    std::uint32_t m_bits;
};
