#pragma once

#include <afxstr.h>

namespace qlx::lib
{
/// The application object's "Software\<company>\<profile name>\"; empty where there is none or it
/// keeps its settings elsewhere.
CString application_key();
} // namespace qlx::lib
