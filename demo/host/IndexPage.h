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

/// The line that is printed for it, without a line end.
std::wstring report_line(const WindowReport& report);

/// A page that shows the pictures side by side, windows as rows and languages as columns, with their
/// counts; UTF-8. It refers to the picture files beside it and to nothing else.
std::string index_page(const std::vector<WindowReport>& reports);

std::string to_utf8(const std::wstring& text);
