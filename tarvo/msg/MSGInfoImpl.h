#pragma once

#include "tarvo/msg/MSGInfo.h"

#include <vector>

/// What a host ships: whose message files there are.
struct CMSGDeployment
{
    /// Base names of the host's modules, in the order in which their files are loaded: where two files
    /// have one key, the text of the earlier one counts. A module "Steel" has the files Steel_us.ini,
    /// Steel_kr.ini, ... in the folders of the languages.
    std::vector<CString> arrModule;
    /// One module's other name, in any letter case, and whose files serve it; both empty for none.
    CString strAlias;
    CString strAliasModule;
};

/// IMSGInfo over the host's own settings ("LANGUAGE" and "InstallLanguage" in the section "LANGUAGE" of its
/// profile), the files beside its program and the message catalogue (CMSGFunction).
class TARVO_API CMSGInfoImpl : public IMSGInfo
{
public:
    /// Hands over what the host ships; objects that are constructed later use it. The modules are also
    /// registered with the companion library as projects, numbered from 0 in this order, unless the host
    /// has given a number for the name itself.
    ///
    /// Returns 1, or 0 with the reason in \p error, unless that is null, and keeps what was handed over
    /// before: a list without names, an empty name or one that cannot be part of a file's name, a name that
    /// stands twice (letter case does not count), half an alias, or an alias for itself.
    static int SetDeployment(const CMSGDeployment& deployment, CString* error = nullptr);

    /// Loads the messages of the language that the profile's "LANGUAGE" names, English without one. The
    /// system's own language deliberately has no say. Without a deployment there are no message files; the
    /// font file of the language is read all the same.
    CMSGInfoImpl();

    /// Besides loading: the catalogue's DLL names get the language's suffix, and the number is written to
    /// the profile, so that the next start comes up in this language. Files that are missing are passed
    /// over; their keys show as themselves.
    void LoadMessage(int language) override;
    /// Ends with the platform's separator. A path without one is given back whole.
    CString GetProgramPath() override;
    int GetCurrentLang() override;
    /// The profile's "InstallLanguage" at the object's construction; without one the language of then.
    int GetInstallLang() override;
    int IsInstalledForForeignLang() override;
    /// Program folder, "Language", the language's folder, then module, suffix and ".ini", or "Font", suffix
    /// and ".ini", joined by the platform's separator.
    CString GetLanguageINIFilePath(int language, CString module, CString* fontPath) override;

private:
    CMSGDeployment m_deployment;
    int m_nCurrentLang = -1;
    int m_nInstallLang = 0;
};
