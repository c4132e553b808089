#include "tarvo/lang/DialogTemplate.h"

#include "tarvo/lang/TemplateReader.h"

namespace
{
constexpr unsigned kSetFont = 0x40;   // DS_SETFONT
constexpr std::size_t kRectangle = 8; // four words
constexpr unsigned kMessageFont = 0x7FFF;

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

TemplateHead ReadTemplateHead(TemplateReader& reader, std::span<const unsigned char> bytes)
{
    TemplateHead head;
    head.extended =
        bytes.size() >= 4 && bytes[0] == 1 && bytes[1] == 0 && bytes[2] == 0xFF && bytes[3] == 0xFF;
    reader.skip(head.extended ? 12 : 0); // version, help identifier, extended style
    head.styleAt = reader.at();
    head.style = reader.dword();
    reader.skip(head.extended ? 0 : 4);
    head.controls = reader.word();
    reader.skip(kRectangle);
    CString menu, windowClass;
    reader.text_or_number(menu);
    reader.text_or_number(windowClass);
    head.caption = reader.text();
    head.fontAt = reader.at();
    head.hasFont = (head.style & kSetFont) != 0;
    if (head.hasFont)
    {
        head.points = reader.word();
        if (head.points == kMessageFont) // the system's own, whose name does not follow
            return head;
        head.fontTraits = head.extended ? reader.dword() : 0;
        head.face = reader.text();
    }
    return head;
}

DialogTexts ReadDialogTemplate(std::span<const unsigned char> bytes)
{
    DialogTexts texts;
    TemplateReader reader(bytes);
    const TemplateHead head = ReadTemplateHead(reader, bytes);
    texts.caption = head.caption;
    for (unsigned i = 0; i < head.controls && reader.ok(); ++i)
        ReadControl(reader, head.extended, texts);
    return texts;
}
