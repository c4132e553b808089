#include "tarvo/intl/TemplateFont.h"
#include "tarvo/intl/TemplateLayout.h"
#include "tarvo/lang/DialogTemplate.h"

#include <cstdio>
#include <cstdlib>
#include <string>

// Any bytes are read or refused. In a template that is taken the font is the one that was set, every text
// and control is where it was, and setting the font once more changes nothing.
namespace
{
void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

bool Same(const DialogTexts& left, const DialogTexts& right)
{
    bool same = left.caption == right.caption && left.controls.size() == right.controls.size();
    for (std::size_t i = 0; same && i < left.controls.size(); ++i)
        same = left.controls[i].id == right.controls[i].id && left.controls[i].text == right.controls[i].text;
    return same;
}

bool Same(const TemplateLayout& left, const TemplateLayout& right)
{
    bool same = left.window == right.window && left.controls.size() == right.controls.size();
    for (std::size_t i = 0; same && i < left.controls.size(); ++i)
        same =
            left.controls[i].id == right.controls[i].id && left.controls[i].place == right.controls[i].place;
    return same;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::span<const unsigned char> bytes(data, size);
    const DialogTexts texts = ReadDialogTemplate(bytes);
    std::vector<unsigned char> once, twice;
    if (!SetTemplateFont(bytes, {L"Malgun Gothic", 10}, once))
    {
        Require(once.empty(), "nothing comes of a template that is refused");
        return 0;
    }
    TemplateFont font;
    Require(GetTemplateFont(once, font) && font.face == L"Malgun Gothic" && font.points == 10,
            "the font is set");
    Require(Same(texts, ReadDialogTemplate(once)), "every text stays");
    TemplateLayout before, after;
    Require(ReadTemplateLayout(bytes, before) == ReadTemplateLayout(once, after) && Same(before, after),
            "every control stays");
    Require(SetTemplateFont(once, {L"Malgun Gothic", 10}, twice) && once == twice,
            "setting again changes nothing");
    return 0;
}
