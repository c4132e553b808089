#include "tarvo/intl/LanguageSwitch.h"

#include "tarvo/intl/LanguageWindow.h"
#include "tarvo/intl/MenuTexts_windows.h"
#include "tarvo/msg/Languages.h"
#include "tarvo/msg/MSGInfo.h"

#include <map>
#include <utility>

namespace
{
CLanguageSwitch::FILE_RULE& FileRule()
{
    static CLanguageSwitch::FILE_RULE rule;
    return rule;
}

struct FollowedMenu
{
    CString project;
    CMenuTexts texts;
};

std::map<HWND, FollowedMenu>& Menus()
{
    static std::map<HWND, FollowedMenu> menus;
    return menus;
}

int TranslateMenu(HWND window, FollowedMenu& followed)
{
    const int count =
        followed.texts.Translate(::GetMenu(window), INIResourceManager::GetXMultiLang(followed.project));
    if (count > 0)
        ::DrawMenuBar(window);
    return count;
}
} // namespace

void CLanguageSwitch::SetFileRule(FILE_RULE rule) { FileRule() = std::move(rule); }

CLanguageFiles CLanguageSwitch::GetDefaultFiles(const CString& project, int language)
{
    const auto path = [&](const languages::Row& row) {
        return INIResourceManager::GetLanguageFilePath(project, row.folder, row.suffix);
    };
    const languages::Row& row = languages::of(language);
    return {path(row), path(languages::of(languages::fallback)), row.codePage};
}

int CLanguageSwitch::SwitchTo(int language)
{
    if (IMSGInfo* const info = IMSGInfo::Instance())
        info->LoadMessage(language);
    INIResourceManager::ReloadINIResource([language](const CString& project) {
        const FILE_RULE& rule = FileRule();
        return rule ? rule(project, language) : GetDefaultFiles(project, language);
    });
    return Retranslate();
}

int CLanguageSwitch::Retranslate()
{
    int count = 0;
    for (CLanguageWindow* const window : CLanguageWindow::GetOpenWindows())
    {
        // A window that was translated before it may have closed it.
        if (!CLanguageWindow::IsOpen(window) || !window->FollowsLanguage())
            continue;
        window->ChangeLanguage();
        ++count;
    }
    std::erase_if(Menus(), [](const auto& entry) { return !::IsWindow(entry.first); });
    for (auto& [window, followed] : Menus())
        TranslateMenu(window, followed);
    return count;
}

int CLanguageSwitch::FollowMenu(HWND window, const CString& project)
{
    if (!::IsWindow(window))
        return 0;
    FollowedMenu& followed = Menus()[window];
    followed.project = project;
    return TranslateMenu(window, followed);
}
