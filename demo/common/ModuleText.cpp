#include "demo/common/ModuleText.h"

#include "tarvo/lang/INIResourceManager.h"
#include "tarvo/lang/XMultiLang.h"

CString project_name(HINSTANCE module)
{
    return XMultiLang::GetProjectName(kProjectNameResource, kProjectNameType, module);
}

CString module_text(HINSTANCE module, const wchar_t* symbol, UINT id)
{
    if (XMultiLang* table = INIResourceManager::GetXMultiLang(project_name(module)))
    {
        // A key that is in no file answers with a text that says so; the resource's own text is better here.
        CString text = table->Lang(symbol, L"TEXT");
        if (text != L"CaNNot Find szLangKey To Ini File" && text != L"Can't load language file")
            return text;
    }
    wchar_t text[512] = L"";
    ::LoadStringW(module, id, text, 512);
    return text;
}
