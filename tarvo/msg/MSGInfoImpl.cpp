#include "tarvo/msg/MSGInfoImpl.h"

#include "platform/file.h"
#include "platform/module.h"
#include "qlx/TranslateUtil.h"
#include "tarvo/msg/Languages.h"
#include "tarvo/msg/MSGFunction.h"
#include "tarvo/settings/HostApp.h"

#include <algorithm>

namespace
{
constexpr wchar_t kSection[] = L"LANGUAGE";
constexpr wchar_t kLanguage[] = L"LANGUAGE";
constexpr wchar_t kInstallLanguage[] = L"InstallLanguage";

/// Made on first use: a host may hand its deployment over while it is still being loaded.
CMSGDeployment& Deployed()
{
    static CMSGDeployment deployment;
    return deployment;
}

/// What keeps \p name from being part of a file's name on one of the platforms; empty when nothing does.
CString WhyNoFileName(const CString& name)
{
    if (name.IsEmpty())
        return L"is empty";
    if (name.FindOneOf(L"\\/:*?\"<>|") >= 0)
        return L"holds a character that no file name has";
    return CString();
}

bool StandsBefore(const std::vector<CString>& names, std::size_t index)
{
    const auto end = names.begin() + static_cast<std::ptrdiff_t>(index);
    return std::any_of(names.begin(), end,
                       [&](const CString& name) { return name.CompareNoCase(names[index]) == 0; });
}

/// The first thing that is wrong with the modules' names; empty for nothing.
CString WrongModule(const std::vector<CString>& names)
{
    CString text;
    if (names.empty())
        return L"no module is named";
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        CString wrong = WhyNoFileName(names[i]);
        if (wrong.IsEmpty() && StandsBefore(names, i))
            wrong = L"stands twice";
        if (wrong.IsEmpty())
            continue;
        text.Format(L"module name %d \"%s\" %s", static_cast<int>(i) + 1, names[i].GetString(),
                    wrong.GetString());
        return text;
    }
    return text;
}

CString WrongAlias(const CMSGDeployment& deployment)
{
    const CString& alias = deployment.strAlias;
    const CString& module = deployment.strAliasModule;
    if (alias.IsEmpty() && module.IsEmpty())
        return CString();
    if (alias.IsEmpty())
        return L"the alias of \"" + module + L"\" is empty";
    if (const CString wrong = WhyNoFileName(module); !wrong.IsEmpty())
        return L"the module of the alias \"" + alias + L"\" " + wrong;
    return alias.CompareNoCase(module) == 0 ? L"the alias \"" + alias + L"\" stands for itself" : CString();
}

/// The companion library tells modules apart by number; a number that the host gave stays.
void RegisterProjects(const CMSGDeployment& deployment)
{
    using qlx::lib::TranslateUtil;
    int number = 0;
    for (const CString& name : deployment.arrModule)
    {
        if (TranslateUtil::GetMSGPROJbyName(name) == qlx::lib::no_project)
            TranslateUtil::RegisterProject(name, number);
        ++number;
    }
}
} // namespace

int CMSGInfoImpl::SetDeployment(const CMSGDeployment& deployment, CString* error)
{
    CString wrong = WrongModule(deployment.arrModule);
    if (wrong.IsEmpty())
        wrong = WrongAlias(deployment);
    if (error)
        *error = wrong;
    if (!wrong.IsEmpty())
        return 0;
    Deployed() = deployment;
    RegisterProjects(deployment);
    return 1;
}

CMSGInfoImpl::CMSGInfoImpl() : m_deployment(Deployed())
{
    const int nLanguage = CHostApp::ReadInt(kSection, kLanguage, languages::english);
    CMSGInfoImpl::LoadMessage(nLanguage);
    m_nInstallLang = CHostApp::ReadInt(kSection, kInstallLanguage, nLanguage);
    m_nCurrentLang = nLanguage;
}

void CMSGInfoImpl::LoadMessage(int language)
{
    if (language == m_nCurrentLang)
        return;
    m_nCurrentLang = language;
    CMSGFunction::Reset();
    // Font paths do not depend on the module: asked for once more, they are there without modules too.
    CString strFont, strFallbackFont;
    GetLanguageINIFilePath(language, CString(), &strFont);
    GetLanguageINIFilePath(languages::fallback, CString(), &strFallbackFont);
    for (const CString& module : m_deployment.arrModule)
    {
        const CString strPath = GetLanguageINIFilePath(language, module, &strFont);
        const CString strFallback = GetLanguageINIFilePath(languages::fallback, module, &strFallbackFont);
        CMSGFunction::AddFile(strPath, strFallback);
    }
    CMSGFunction::SetFontPath(strFont, strFallbackFont);
    CMSGFunction::LoadFile();
    CMSGFunction::SetHatchAndExcelTemplateFileNames(languages::of(language).suffix);
    CHostApp::WriteInt(kSection, kLanguage, language);
}

CString CMSGInfoImpl::GetProgramPath()
{
    constexpr std::size_t kBuffer = 260;
    const CString path = platform::module::path(nullptr, kBuffer).c_str();
    const int nCut = path.ReverseFind(platform::file::separator);
    return nCut < 0 ? path : path.Left(nCut + 1);
}

int CMSGInfoImpl::GetCurrentLang() { return m_nCurrentLang; }
int CMSGInfoImpl::GetInstallLang() { return m_nInstallLang; }
int CMSGInfoImpl::IsInstalledForForeignLang() { return m_nInstallLang == languages::english; }

CString CMSGInfoImpl::GetLanguageINIFilePath(int language, CString module, CString* fontPath)
{
    if (!m_deployment.strAlias.IsEmpty() && module.CompareNoCase(m_deployment.strAlias) == 0)
        module = m_deployment.strAliasModule;
    const languages::Row& row = languages::of(language);
    CString folder = GetProgramPath() + L"Language";
    folder = folder + platform::file::separator + row.folder + platform::file::separator;
    if (fontPath)
        *fontPath = folder + L"Font" + row.suffix + L".ini";
    return folder + module + row.suffix + L".ini";
}
