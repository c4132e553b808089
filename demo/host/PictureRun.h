#pragma once
#include "demo/common/DemoModule.h"

#include <string>
#include <vector>

/// Opens the main window with its menu and every dialog in each of the languages, writes the pictures and
/// index.html to the folder (made when missing) and prints a line for each window. Needs no display.
///
/// For each language the windows that follow a change of language are also opened in another one and
/// switched, and then must look, control by control, as those that were opened in it. The exit status: 0, or
/// 1 when they do not, a window did not come up or a file could not be written.
int run_pictures(const std::vector<DemoModule>& modules, const std::wstring& folder,
                 const std::vector<int>& languages);

/// Prints one line to standard output as UTF-8.
void print_line(const std::wstring& line);
