#pragma once

#include <afxstr.h>

#include <span>

/// Takes a dialog template apart from its front. Past the end everything is zero and ok() is false.
class TemplateReader
{
public:
    explicit TemplateReader(std::span<const unsigned char> bytes) : m_bytes(bytes) {}

    /// Everything so far stood within the bytes.
    bool ok() const { return m_at <= m_bytes.size(); }
    std::size_t at() const { return m_at; }
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

/// What stands in a template before its first control.
struct TemplateHead
{
    bool extended = false;
    unsigned style = 0;
    std::size_t styleAt = 0;
    unsigned controls = 0;
    CString caption;
    bool hasFont = false;
    std::size_t fontAt = 0; ///< where the font stands, or would
    unsigned points = 0;
    unsigned fontTraits = 0; ///< the extended form's weight, italic and character set
    CString face;
};

/// Reads up to the first control, or rather up to the padding before it.
TemplateHead ReadTemplateHead(TemplateReader& reader, std::span<const unsigned char> bytes);
