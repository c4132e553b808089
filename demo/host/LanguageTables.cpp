#include "demo/host/LanguageTables.h"

#include "demo/common/ModuleText.h"
#include "tarvo/lang/INIResourceManager.h"

void register_language_tables(const std::vector<DemoModule>& modules)
{
    for (const DemoModule& module : modules)
    {
        auto* table = new XMultiLang; // the registry deletes it
        table->LoadResourceHeaderByDLL(module.headerResource, kHeaderType, module.instance);
        INIResourceManager::AppendMap(project_name(module.instance), table);
    }
    INIResourceManager::InitINIResourceMgr();
}

CString program_folder()
{
    wchar_t path[1040] = L"";
    ::GetModuleFileNameW(nullptr, path, 1040);
    CString folder = path;
    return folder.Left(folder.ReverseFind(L'\\'));
}
