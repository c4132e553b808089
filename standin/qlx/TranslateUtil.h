#pragma once

#include "qlx/qlx_export.h"

namespace qlx::lib
{
/// The number of a project that is not known.
inline constexpr int no_project = -1;

/// The projects (modules) whose messages are told apart by number.
class QLX_API TranslateUtil
{
public:
    /// The number of a project, its name in any letter case; no_project when it is not registered.
    static int GetMSGPROJbyName(const wchar_t* projectName);

    /// Registers a project, copying its name. The last number given for a name counts.
    static void RegisterProject(const wchar_t* projectName, int number);
    static void UnregisterProject(const wchar_t* projectName);
};
} // namespace qlx::lib
