#pragma once

#include <array>
#include <string_view>
#include <vector>

/// A dialog template, written byte by byte.
class TemplateBytes
{
public:
    TemplateBytes(bool extended, bool font) : m_extended(extended), m_font(font)
    {
        if (extended)
            words({1, 0xFFFF, 0, 0, 0, 0});
        words({font ? 0x40u : 0u, 0x80C8});
        if (!extended)
            words({0, 0});
        m_countAt = m_bytes.size();
        words({0, 0, 0, 200, 100, 0, 0}); // controls, rectangle, no menu, usual class
    }
    TemplateBytes& caption(std::wstring_view text)
    {
        put(text);
        if (m_font)
            words({9});
        if (m_font && m_extended)
            words({400, 0});
        if (m_font)
            put(L"Tahoma");
        return *this;
    }
    TemplateBytes& control(int id, std::wstring_view text, std::wstring_view windowClass = {},
                           unsigned extra = 0)
    {
        begin(id);
        if (windowClass.empty())
            words({0xFFFF, 0x82});
        else
            put(windowClass);
        put(text);
        words({extra});
        m_bytes.insert(m_bytes.end(), extra, 0xEE);
        return *this;
    }
    /// A control whose text is the number of an icon.
    TemplateBytes& icon(int id)
    {
        begin(id);
        words({0xFFFF, 0x82, 0xFFFF, 7, 0});
        return *this;
    }
    /// Where the controls from here on stand; before, all stand at 7, 7 and are 50 x 14 units large.
    TemplateBytes& place(int x, int y, int cx, int cy)
    {
        m_place = {x, y, cx, cy};
        return *this;
    }
    const std::vector<unsigned char>& bytes() const { return m_bytes; }

private:
    void words(std::initializer_list<unsigned> values)
    {
        for (const unsigned value : values)
        {
            m_bytes.push_back(static_cast<unsigned char>(value));
            m_bytes.push_back(static_cast<unsigned char>(value >> 8));
        }
    }
    void put(std::wstring_view text)
    {
        for (const wchar_t unit : text)
            words({static_cast<unsigned>(unit)});
        words({0});
    }
    void begin(int id)
    {
        while (m_bytes.size() % 4)
            m_bytes.push_back(0);
        ++m_bytes[m_countAt];
        words(m_extended ? std::initializer_list<unsigned>{0, 0, 0, 0, 0, 0x5000}
                         : std::initializer_list<unsigned>{0, 0x5000, 0, 0});
        for (const int number : m_place)
            words({static_cast<unsigned>(number)});
        words({static_cast<unsigned>(id)});
        if (m_extended)
            words({static_cast<unsigned>(id) >> 16});
    }

    std::vector<unsigned char> m_bytes;
    std::size_t m_countAt = 0;
    std::array<int, 4> m_place{7, 7, 50, 14};
    bool m_extended;
    bool m_font;
};

/// A dialog "Setup" with a label, a button of a class by name with creation data, and an icon.
inline TemplateBytes SetupTemplate(bool extended, bool font)
{
    return TemplateBytes(extended, font)
        .caption(L"Setup")
        .control(1001, L"Name")
        .control(1, L"OK!", L"Button", 3)
        .icon(1003);
}
