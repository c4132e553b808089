#include "demo/host/Catalogue.h"

#include "demo/host/LanguageTables.h"
#include "demo/host/Languages.h"
#include "demo/host/MessageModules.h"
#include "tarvo/intl/LanguageSwitch.h"
#include "tarvo/msg/MSGFunction.h"

#include <cwchar>

namespace
{
constexpr const wchar_t* kSection = L"LANGUAGE";
constexpr const wchar_t* kCheck = L"LANGUAGECHECK";

CLanguageFiles files_of(const CString& project, int language)
{
    const bool known = language >= 0 && language < static_cast<int>(kLanguages.size());
    const int shown = known ? language : kEnglish;
    const CString folder = program_folder();
    return {language_file(folder, project, shown), language_file(folder, project, kGlobal),
            kLanguages.at(static_cast<std::size_t>(shown)).codePage};
}

void fill(CWnd& window, int combo, const std::vector<CString>& texts)
{
    const LRESULT chosen = window.SendDlgItemMessage(combo, CB_GETCURSEL);
    window.SendDlgItemMessage(combo, CB_RESETCONTENT);
    for (const CString& text : texts)
        window.SendDlgItemMessage(combo, CB_ADDSTRING, 0,
                                  reinterpret_cast<LPARAM>(static_cast<const wchar_t*>(text)));
    window.SendDlgItemMessage(combo, CB_SETCURSEL, static_cast<WPARAM>(chosen == CB_ERR ? 0 : chosen));
}
} // namespace

std::unique_ptr<CMSGInfoImpl> start_messages()
{
    // Some of the shipped files are 8-bit text in their language's code page, whatever the machine's is.
    CWinApp& app = *AfxGetApp();
    if (static_cast<int>(app.GetProfileInt(kSection, kCheck, -1)) < 0)
        app.WriteProfileInt(kSection, kCheck, 1);
    CMSGDeployment deployment;
    for (const wchar_t* const name : kMessageModules)
        deployment.arrModule.push_back(name);
    deployment.strAlias = kAliasModule;
    deployment.strAliasModule = kAliasStandsFor;
    CMSGInfoImpl::SetDeployment(deployment);
    CLanguageSwitch::SetFileRule(files_of);
    return std::make_unique<CMSGInfoImpl>();
}

CString catalogue_text(const wchar_t* key) { return CMSGFunction::GetValue(key); }

void fill_from_catalogue(CWnd& window, int combo, const std::vector<const wchar_t*>& keys)
{
    std::vector<CString> texts;
    texts.reserve(keys.size());
    for (const wchar_t* const key : keys)
        texts.push_back(catalogue_text(key));
    fill(window, combo, texts);
}

void fill_with_texts(CWnd& window, int combo, const std::vector<const wchar_t*>& texts)
{
    fill(window, combo, {texts.begin(), texts.end()});
}

double entered_number(const CWnd& window, int edit)
{
    CString text;
    window.GetDlgItemText(edit, text);
    text.Replace(L',', L'.');
    return std::wcstod(text, nullptr);
}

void show_number(CWnd& window, int control, double value, int decimals)
{
    CString text;
    text.Format(L"%.*f", decimals, value);
    window.SetDlgItemText(control, text);
}
