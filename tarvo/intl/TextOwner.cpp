#include "tarvo/intl/TextOwner.h"

#include <afxstr.h>

#include <algorithm>
#include <initializer_list>

namespace
{
bool IsOneOf(std::wstring_view name, std::initializer_list<const wchar_t*> classes)
{
    const CString wanted(name.data(), static_cast<int>(name.size()));
    return std::any_of(classes.begin(), classes.end(),
                       [&](const wchar_t* known) { return wanted.CompareNoCase(known) == 0; });
}
} // namespace

namespace TextOwner
{
bool IsEntry(const Control& control)
{
    return control.takesSelection ||
           IsOneOf(control.className,
                   {L"Edit", L"ComboBox", L"ComboBoxEx32", L"ListBox", L"SysDateTimePick32",
                    L"SysIPAddress32", L"msctls_hotkey32", L"SysMonthCal32"});
}

bool IsReadOnlyEntry(const Control& control)
{
    constexpr unsigned kReadOnly = 0x0800; // ES_READONLY, which means something else to a combo box
    return (control.style & kReadOnly) != 0 &&
           (control.takesSelection || IsOneOf(control.className, {L"Edit"}));
}
} // namespace TextOwner
