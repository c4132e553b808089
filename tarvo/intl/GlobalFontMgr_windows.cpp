#include "tarvo/intl/GlobalFontMgr.h"

#include "tarvo/intl/FontRules.h"

#include <afxwin.h>

#include <map>
#include <string>
#include <tuple>

namespace
{
/// A description's traits, and its face in one letter case. No CString: a tuple would compare its address.
using Key = std::tuple<std::wstring, LONG, LONG, LONG, LONG, LONG, DWORD, DWORD>;

Key KeyOf(const LOGFONTW& font)
{
    CString face(font.lfFaceName);
    face.MakeUpper();
    const DWORD style = static_cast<DWORD>(font.lfItalic | font.lfUnderline << 8 | font.lfStrikeOut << 16);
    const DWORD traits =
        static_cast<DWORD>(font.lfCharSet | font.lfOutPrecision << 8 | font.lfClipPrecision << 16) |
        static_cast<DWORD>(font.lfPitchAndFamily) << 24;
    return {
        std::wstring(face), font.lfHeight,  font.lfWidth, font.lfEscapement * 0x10000 + font.lfOrientation,
        font.lfWeight,      font.lfQuality, style,        traits};
}

/// Deletes what is left when the library goes.
struct Fonts
{
    ~Fonts() { Release(); }
    void Release()
    {
        for (const auto& [key, font] : all)
            ::DeleteObject(font);
        all.clear();
    }
    std::map<Key, HFONT> all;
};

Fonts g_fonts;

int ScreenResolution()
{
    const HDC screen = ::GetDC(nullptr);
    const int dotsPerInch = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dotsPerInch;
}
} // namespace

LOGFONTW CGlobalFontMgr::Describe(const wchar_t* face, int height)
{
    LOGFONTW font = {};
    font.lfHeight = height;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_TT_PRECIS;
    font.lfPitchAndFamily = VARIABLE_PITCH;
    ::lstrcpynW(font.lfFaceName, face ? face : L"", LF_FACESIZE);
    return font;
}

HFONT CGlobalFontMgr::GetFont(const wchar_t* face, int points, int dotsPerInch)
{
    const int resolution = dotsPerInch > 0 ? dotsPerInch : ScreenResolution();
    return GetFont(Describe(face, FontRules::Height(points, resolution)));
}

HFONT CGlobalFontMgr::GetFont(const LOGFONTW& description)
{
    LOGFONTW font = description;
    font.lfFaceName[LF_FACESIZE - 1] = L'\0';
    const Key key = KeyOf(font);
    const auto found = g_fonts.all.find(key);
    if (found != g_fonts.all.end())
        return found->second;
    const HFONT made = ::CreateFontIndirectW(&font);
    if (made)
        g_fonts.all.emplace(key, made);
    return made;
}

int CGlobalFontMgr::GetCount() { return static_cast<int>(g_fonts.all.size()); }

void CGlobalFontMgr::ReleaseAll() { g_fonts.Release(); }
