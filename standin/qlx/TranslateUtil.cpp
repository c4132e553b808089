#include "qlx/TranslateUtil.h"

#include <afxstr.h>
#include <algorithm>
#include <vector>

namespace qlx::lib
{
namespace
{
struct Project
{
    CString name;
    int number;
};

/// Made on first use: modules register while they are being loaded.
std::vector<Project>& projects()
{
    static std::vector<Project> all;
    return all;
}

auto find(const wchar_t* name)
{
    return std::find_if(projects().begin(), projects().end(),
                        [&](const Project& project) { return project.name.CompareNoCase(name) == 0; });
}
} // namespace

int TranslateUtil::GetMSGPROJbyName(const wchar_t* projectName)
{
    const auto found = find(projectName);
    return found == projects().end() ? no_project : found->number;
}

void TranslateUtil::RegisterProject(const wchar_t* projectName, int number)
{
    const auto found = find(projectName);
    if (found == projects().end())
        projects().push_back({projectName, number});
    else
        found->number = number;
}

void TranslateUtil::UnregisterProject(const wchar_t* projectName)
{
    const auto found = find(projectName);
    if (found != projects().end())
        projects().erase(found);
}
} // namespace qlx::lib
