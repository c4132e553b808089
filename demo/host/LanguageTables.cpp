#include "demo/host/LanguageTables.h"

#include "demo/common/ModuleText.h"
#include "demo/host/Languages.h"
#include "tarvo/lang/INIResourceManager.h"

void register_language_tables(const std::vector<DemoModule>& modules)
{
    for (const DemoModule& module : modules)
    {
        auto* table = new XMultiLang; // the registry deletes it
        table->LoadResourceHeaderByDLL(module.headerResource, kHeaderType, module.instance);
        INIResourceManager::AppendMap(project_name(module.instance), table);
    }
}

int load_language(const std::vector<DemoModule>& modules, int language)
{
    const CString folder = program_folder();
    int loaded = 0;
    for (const DemoModule& module : modules)
    {
        const CString project = project_name(module.instance);
        XMultiLang* table = INIResourceManager::GetXMultiLang(project);
        // 8-bit files do not name their code page before they are read.
        table->GetXIni().SetCodePage(kLanguages.at(static_cast<std::size_t>(language)).codePage);
        table->GetSecondaryXIni().SetCodePage(kLanguages.at(kGlobal).codePage);
        loaded +=
            table->Create(language_file(folder, project, language), language_file(folder, project, kGlobal));
    }
    return loaded;
}

CString program_folder()
{
    wchar_t path[1040] = L"";
    ::GetModuleFileNameW(nullptr, path, 1040);
    CString folder = path;
    return folder.Left(folder.ReverseFind(L'\\'));
}
