#pragma once
#include "demo/common/DemoModule.h"

#include <afxwin.h>

/// Makes the modules' language tables, registers them with the library under their project names and loads
/// the files that every program has, the Korean ones. Once, at the start of the program; the user's language
/// follows.
void register_language_tables(const std::vector<DemoModule>& modules);

/// The folder of the program's file, without a backslash at its end.
CString program_folder();
