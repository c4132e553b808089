#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// Which language is in force, which one the product was installed for, and where its files are. The host
/// constructs one object of a derived class (CMSGInfoImpl) at its start; everything else asks Instance().
/// Language numbers are 0 English, 1 Korean, 2 Japanese, 3 Chinese, 4 Russian, 5 Global; any other number
/// has English's files. All of it belongs to the user interface's thread.
class TARVO_API IMSGInfo
{
public:
    /// The first object constructed becomes the instance and stays it for the life of the process, also
    /// after its end: the host's object lives as long as the host. A copy never becomes it.
    IMSGInfo();
    IMSGInfo(const IMSGInfo&) = default;
    IMSGInfo& operator=(const IMSGInfo&) = default;
    virtual ~IMSGInfo();

    // In this order: host and modules share the table of virtual operations.

    /// Makes \p language the one in force and loads its messages. Nothing is done when it is in force
    /// already, not even for files that have changed.
    virtual void LoadMessage(int language) = 0;
    /// The folder of the running program with its separator at the end.
    virtual CString GetProgramPath() = 0;
    /// The number given last, -1 before the first; it may be one that has no files of its own.
    virtual int GetCurrentLang() = 0;
    virtual int GetInstallLang() = 0;
    /// 1 when the product was installed for English, which is foreign from where it is made, else 0.
    virtual int IsInstalledForForeignLang() = 0;
    /// The path of a module's message file in a language; the path of the language's font file goes to
    /// \p fontPath unless that is null. The files need not be there.
    virtual CString GetLanguageINIFilePath(int language, CString module, CString* fontPath) = 0;

    /// Null until the host has constructed its object; none is made here.
    static IMSGInfo* Instance();

    static IMSGInfo* m_pInstance;
};
