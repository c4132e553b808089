#pragma once
#include <string>
#include <vector>

/// One window in one language: what --pictures found.
struct WindowReport
{
    std::wstring window; ///< the dialog's symbol
    int language = 0;
    bool opened = false;
    int translated = 0; ///< texts from the dialog's section of the language's own file
    int fallback = 0;   ///< texts from the shared section or the secondary file
    int missing = 0;    ///< texts that stay as in the resource
    std::wstring file;  ///< the picture's name in the folder; empty without one
    std::vector<std::wstring> cutTexts;
};

/// What happened to all open windows when one language took another's place, and the font that it brought.
struct LanguageReport
{
    int language = 0;
    int former = 0; ///< in which the windows were opened
    bool opened = false;
    int controls = 0;
    int changed = 0;                ///< controls with another text than before
    std::vector<std::wstring> left; ///< controls that are not as in a window opened in the language
    std::wstring font;              ///< as the language wants it
    std::wstring mapped;            ///< as the system has it
    std::wstring dialogFont;        ///< the face of dialog templates, which decides on sizes
    std::wstring dialogMapped;
    std::wstring before; ///< the pictures' names
    std::wstring after;
};

/// The lines that are printed for it: font, change, and one for each control that was left.
std::vector<std::wstring> language_lines(const LanguageReport& report);

/// The line that is printed for it, without a line end.
std::wstring report_line(const WindowReport& report);

/// A page that shows the pictures side by side, windows as rows and languages as columns, with their
/// counts, and below them the changes of language; UTF-8. It refers to the picture files beside it and to
/// nothing else.
std::string index_page(const std::vector<WindowReport>& reports,
                       const std::vector<LanguageReport>& changes = {});

std::string to_utf8(const std::wstring& text);
