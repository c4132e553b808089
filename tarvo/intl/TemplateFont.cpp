#include "tarvo/intl/TemplateFont.h"

#include "tarvo/lang/TemplateReader.h"

#include <algorithm>

namespace
{
constexpr unsigned kSetFont = 0x40; // DS_SETFONT
constexpr int kMostFace = 31;       // LF_FACESIZE without the null
constexpr int kMostPoints = 127;
constexpr unsigned kMessageFont = 0x7FFF;
constexpr unsigned kNormal = 400; // FW_NORMAL, not italic
constexpr unsigned kDefaultCharacters = 1u << 24;
constexpr unsigned kWeightAndItalic = 0x00FFFFFF;

/// Where the first control begins; false when the template ends before it.
bool FindControls(TemplateReader& reader, const TemplateHead& head, std::size_t size, std::size_t& at)
{
    if (!reader.ok())
        return false;
    reader.align();
    at = std::min(reader.at(), size);
    return head.controls == 0 || at < size;
}

void PutWord(std::vector<unsigned char>& bytes, unsigned value)
{
    bytes.push_back(static_cast<unsigned char>(value));
    bytes.push_back(static_cast<unsigned char>(value >> 8));
}

void PutFont(std::vector<unsigned char>& bytes, const TemplateHead& head, const TemplateFont& font)
{
    const bool named = head.hasFont && head.points != kMessageFont;
    const CString face = !font.face.IsEmpty() ? font.face : named ? head.face : CString(L"MS Shell Dlg");
    const bool wanted = font.points >= 1 && font.points <= kMostPoints;
    PutWord(bytes, wanted ? static_cast<unsigned>(font.points) : named ? head.points : 9);
    if (head.extended)
    {
        const unsigned traits = named ? head.fontTraits & kWeightAndItalic : kNormal;
        PutWord(bytes, traits);
        PutWord(bytes, (traits | kDefaultCharacters) >> 16);
    }
    for (int i = 0; i < std::min(face.GetLength(), kMostFace); ++i)
        PutWord(bytes, static_cast<unsigned>(face[i]));
    PutWord(bytes, 0);
}
} // namespace

bool GetTemplateFont(std::span<const unsigned char> bytes, TemplateFont& font)
{
    TemplateReader reader(bytes);
    const TemplateHead head = ReadTemplateHead(reader, bytes);
    if (!reader.ok() || !head.hasFont)
        return false;
    font.face = head.face;
    font.points = static_cast<int>(head.points);
    return true;
}

bool SetTemplateFont(std::span<const unsigned char> bytes, const TemplateFont& font,
                     std::vector<unsigned char>& result)
{
    result.clear();
    TemplateReader reader(bytes);
    const TemplateHead head = ReadTemplateHead(reader, bytes);
    std::size_t controls = 0;
    if (!FindControls(reader, head, bytes.size(), controls))
        return false;
    result.assign(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(head.fontAt));
    result[head.styleAt] |= kSetFont;
    PutFont(result, head, font);
    result.resize((result.size() + 3) & ~std::size_t{3});
    result.insert(result.end(), bytes.begin() + static_cast<std::ptrdiff_t>(controls), bytes.end());
    return true;
}
