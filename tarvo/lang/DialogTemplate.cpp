#include "tarvo/lang/DialogTemplate.h"

namespace
{
/// Takes a template apart from its front. Past the end everything is zero and ok() is false.
class TemplateReader
{
public:
    explicit TemplateReader(std::span<const unsigned char> bytes) : m_bytes(bytes) {}

    bool ok() const { return m_at <= m_bytes.size(); }
    void skip(std::size_t count) { m_at += count; }
    void align() { m_at = (m_at + 3) & ~std::size_t{3}; }

    unsigned word()
    {
        const unsigned value = m_at + 2 <= m_bytes.size() ? m_bytes[m_at] | m_bytes[m_at + 1] << 8 : 0u;
        m_at += 2;
        return value;
    }
    unsigned dword()
    {
        const unsigned low = word();
        return low | word() << 16;
    }
    CString text()
    {
        CString result;
        while (const unsigned unit = word())
            result.AppendChar(static_cast<wchar_t>(unit));
        return result;
    }
    /// A text, or a number behind 0xFFFF; false for a number.
    bool text_or_number(CString& result)
    {
        if (m_at + 2 <= m_bytes.size() && m_bytes[m_at] == 0xFF && m_bytes[m_at + 1] == 0xFF)
        {
            skip(4);
            return false;
        }
        result = text();
        return true;
    }

private:
    std::span<const unsigned char> m_bytes;
    std::size_t m_at = 0;
};

constexpr unsigned kSetFont = 0x40;   // DS_SETFONT
constexpr std::size_t kRectangle = 8; // four words

/// Reads up to the first control and returns how many there are.
unsigned ReadHead(TemplateReader& reader, bool extended, DialogTexts& texts)
{
    reader.skip(extended ? 12 : 0); // version, help identifier, extended style
    const unsigned style = reader.dword();
    reader.skip(extended ? 0 : 4);
    const unsigned controls = reader.word();
    reader.skip(kRectangle);
    CString menu, windowClass;
    reader.text_or_number(menu);
    reader.text_or_number(windowClass);
    texts.caption = reader.text();
    if (style & kSetFont)
    {
        reader.skip(extended ? 6 : 2); // size; weight, italic and character set
        reader.text();
    }
    return controls;
}

void ReadControl(TemplateReader& reader, bool extended, DialogTexts& texts)
{
    reader.align();
    reader.skip((extended ? 12 : 8) + kRectangle);
    const int id = static_cast<int>(extended ? reader.dword() : reader.word());
    CString windowClass, text;
    reader.text_or_number(windowClass);
    const bool isText = reader.text_or_number(text);
    reader.skip(reader.word());
    if (isText && reader.ok())
        texts.controls.push_back({id, text});
}
} // namespace

DialogTexts ReadDialogTemplate(std::span<const unsigned char> bytes)
{
    const bool extended =
        bytes.size() >= 4 && bytes[0] == 1 && bytes[1] == 0 && bytes[2] == 0xFF && bytes[3] == 0xFF;
    DialogTexts texts;
    TemplateReader reader(bytes);
    const unsigned controls = ReadHead(reader, extended, texts);
    for (unsigned i = 0; i < controls && reader.ok(); ++i)
        ReadControl(reader, extended, texts);
    return texts;
}
