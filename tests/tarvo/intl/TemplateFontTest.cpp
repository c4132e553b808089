#include "tarvo/intl/TemplateFont.h"

#include "tarvo/lang/DialogTemplate.h"
#include "tests/support/print.h"
#include "tests/tarvo/lang/TemplateBytes.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
using Bytes = std::vector<unsigned char>;

std::wstring font_of(const Bytes& bytes)
{
    TemplateFont font;
    return GetTemplateFont(bytes, font) ? std::to_wstring(font.points) + L" " + std::wstring(font.face)
                                        : L"none";
}

std::wstring texts_of(const Bytes& bytes)
{
    const DialogTexts texts = ReadDialogTemplate(bytes);
    std::wstring result = std::wstring(texts.caption);
    for (const DialogTexts::Control& control : texts.controls)
        result += L" " + std::to_wstring(control.id) + L":" + std::wstring(control.text);
    return result;
}

Bytes setup(bool extended, bool font) { return SetupTemplate(extended, font).control(1004, L"last").bytes(); }

Bytes with_font(const Bytes& bytes, const wchar_t* face, int points)
{
    Bytes result;
    EXPECT_TRUE(SetTemplateFont(bytes, {face, points}, result));
    return result;
}
} // namespace

TEST(TemplateFont, ReplacesTheFontAndKeepsEveryControl)
{
    for (const bool extended : {false, true})
        for (const bool font : {false, true})
            for (const wchar_t* face : {L"A", L"Gulim", L"Malgun Gothic", L"\xAD74\xB9BC"})
            {
                const Bytes bytes = with_font(setup(extended, font), face, 11);
                EXPECT_EQ(font_of(bytes), std::wstring(L"11 ") + face);
                EXPECT_EQ(texts_of(bytes), L"Setup 1001:Name 1:OK! 1004:last") << extended << font;
            }
}

TEST(TemplateFont, SetAgainGivesTheBytesOfSetOnce)
{
    for (const bool extended : {false, true})
    {
        const Bytes bytes = setup(extended, true);
        EXPECT_EQ(with_font(with_font(bytes, L"A face with quite a name", 30), L"Tahoma", 9),
                  with_font(bytes, L"Tahoma", 9));
    }
}

TEST(TemplateFont, LeavesOpenWhatIsNotSaid)
{
    const Bytes bytes = setup(true, true);
    EXPECT_EQ(font_of(with_font(bytes, L"", 11)), L"11 Tahoma");
    for (const int points : {0, -3, 128, 2147483647, -2147483647})
        EXPECT_EQ(font_of(with_font(bytes, L"Gulim", points)), L"9 Gulim") << points;
    EXPECT_EQ(font_of(with_font(bytes, L"Gulim", 127)), L"127 Gulim");
    EXPECT_EQ(font_of(with_font(bytes, L"Gulim", 1)), L"1 Gulim");
    for (const bool extended : {false, true})
        EXPECT_EQ(font_of(with_font(setup(extended, false), L"", 0)), L"9 MS Shell Dlg");
}

TEST(TemplateFont, CutsTheFaceToWhatAFontsNameMayBe)
{
    const std::wstring face(40, L'x');
    EXPECT_EQ(font_of(with_font(setup(true, true), face.c_str(), 9)), L"9 " + face.substr(0, 31));
}

TEST(TemplateFont, KeepsWeightAndItalicButNotTheCharacterSetOfTheFormerFace)
{
    Bytes bytes = setup(true, true);
    const std::size_t traits = 26 + 4 + 12 + 2; // head, no menu and usual class, "Setup", points
    bytes[traits] = 0xBC;                       // 700, bold
    bytes[traits + 1] = 0x02;
    bytes[traits + 2] = 1;   // italic
    bytes[traits + 3] = 129; // Hangul
    const Bytes result = with_font(bytes, L"Tahoma", 9);
    EXPECT_EQ(Bytes(result.begin() + traits, result.begin() + traits + 4), (Bytes{0xBC, 0x02, 1, 1}));
    const Bytes added = with_font(setup(true, false), L"Tahoma", 9);
    EXPECT_EQ(Bytes(added.begin() + traits, added.begin() + traits + 4), (Bytes{0x90, 0x01, 0, 1}));
}

TEST(TemplateFont, MessageFontHasNoNameThatFollows)
{
    // Points 0x7FFF: the system's message font; what stands behind belongs to the first control.
    Bytes bytes = TemplateBytes(false, false).caption(L"S").control(7, L"x").bytes();
    bytes[0] |= 0x40;
    const std::size_t at = 18 + 4 + 4; // head, no menu and usual class, "S"
    bytes[at] = 0xFF;                  // in the place of the padding
    bytes[at + 1] = 0x7F;
    EXPECT_EQ(texts_of(bytes), L"S 7:x");
    EXPECT_EQ(font_of(bytes), L"32767 ");
    EXPECT_EQ(font_of(with_font(bytes, L"", 0)), L"9 MS Shell Dlg");
    EXPECT_EQ(texts_of(with_font(bytes, L"Gulim", 9)), L"S 7:x");
}

TEST(TemplateFont, TemplateThatEndsBeforeItsFirstControlIsRefused)
{
    const Bytes whole = setup(true, true);
    const std::size_t controls = (26 + 4 + 12 + 2 + 4 + 14 + 3) & ~3u;
    for (std::size_t size = 0; size <= whole.size(); ++size)
    {
        Bytes result{1};
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        EXPECT_EQ(SetTemplateFont(part, {L"Gulim", 9}, result), size > controls) << size;
        EXPECT_EQ(result.empty(), size <= controls) << size;
    }
}

TEST(TemplateFont, TemplateWithoutControlsMayEndWithItsFont)
{
    const Bytes bytes = with_font(TemplateBytes(false, true).caption(L"Empty").bytes(), L"Gulim", 9);
    EXPECT_EQ(texts_of(bytes), L"Empty");
    EXPECT_EQ(font_of(bytes), L"9 Gulim");
    EXPECT_EQ(bytes.size() % 4, 0u);
}
