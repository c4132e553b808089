#pragma once

#include "tarvo/lang/INIResourceManager.h"

#include <afxwin.h>

/// The project that a module belongs to, and the project's language table; null when there is none.
struct ModuleTable
{
    CString strProject;
    XMultiLang* pTable = nullptr;
};

/// By the project's name in the module's resource of type "Binary" and number 65533.
inline ModuleTable TableOfModule(HINSTANCE module)
{
    constexpr int kProjectResource = 65533;
    ModuleTable found;
    found.strProject = XMultiLang::GetProjectName(kProjectResource, L"Binary", module);
    found.pTable = INIResourceManager::GetXMultiLang(found.strProject);
    return found;
}

/// The table for a window made from a dialog resource: that of the module which owns the window, else that
/// of the module which holds the resource.
inline ModuleTable TableOfWindow(HWND window, UINT resource)
{
    const auto owner = reinterpret_cast<HINSTANCE>(::GetWindowLongPtrW(window, GWLP_HINSTANCE));
    ModuleTable found = TableOfModule(owner);
    if (found.pTable)
        return found;
    const HINSTANCE holder = AfxFindResourceHandle(MAKEINTRESOURCEW(resource), RT_DIALOG);
    return holder != owner ? TableOfModule(holder) : found;
}
