#pragma once
#include "demo/common/TranslatedDialog.h"

#include <memory>
#include <vector>

/// One dialog of a module. \p make builds the object; the window comes with Open or DoModal.
struct DialogEntry
{
    const wchar_t* symbol;
    UINT id;
    std::unique_ptr<CTranslatedDialog> (*make)(CWnd* parent);
};

/// What the host knows of a module: where its resources are, under which number it embeds its resource
/// header (type "RESOURCE_HEADER"), and its dialogs.
struct DemoModule
{
    HINSTANCE instance;
    int headerResource;
    std::vector<DialogEntry> dialogs;
};

inline constexpr const wchar_t* kHeaderType = L"RESOURCE_HEADER";
