#pragma once

#include "platform/handles.h"
#include "tarvo/export.h"
#include "tarvo/lang/DialogTemplate.h"
#include "tarvo/lang/XMultiLang.h"

#include <functional>
#include <map>

/// Where a project's texts in one language are: a primary file, one that fills its gaps (empty for none),
/// and the code page of both when they are 8-bit text.
struct CLanguageFiles
{
    CString strPrimary;
    CString strSecondary;
    int nCodePage = 0;
};

/// The language tables of the process, one for each module (project). Modules register their tables, the
/// registry loads the tables' files and answers texts across all of them. It owns the tables from their
/// registration on until DeleteINIResource. All members are static and belong to the user interface's
/// thread.
class TARVO_API INIResourceManager
{
public:
    /// Registers a table under a project's name (with letter case) and tells it the name. A table that
    /// was registered under that name before is replaced, but lives on until DeleteINIResource, as others
    /// may hold it; the name is listed once more. Returns 1.
    static int AppendMap(CString project, XMultiLang* table);
    /// Loads the file of every registered name in order: "ctrl_" + project + "_kr.ini" in the folder
    /// "Language\Korean" beside the program. It is the Korean file whatever the user's language: the
    /// other languages' texts come from the message catalogue. A file that is missing leaves its table as it
    /// is. Returns 1.
    static int InitINIResourceMgr();
    /// Loads other files into every table, one after the other in the order of the project names; \p files
    /// names those of a project. A table whose files are missing has no texts then, rather than those of
    /// the language before. The texts that GetValue has answered stay. Returns how many tables were loaded.
    static int ReloadINIResource(const std::function<CLanguageFiles(const CString& project)>& files);
    /// The path of a project's file in a language's folder beside the program: "Language", \p folder, and
    /// "ctrl_" + project + suffix + ".ini".
    static CString GetLanguageFilePath(const CString& project, const CString& folder, const CString& suffix);
    /// The table of a project; null when there is none.
    static XMultiLang* GetXMultiLang(CString project);
    /// The text of a key in the default sections: the first table's, in the order of the project names, whose
    /// text sorts after both "CaNNot Find szLangKey To Ini File" and "Can't load language file"; the last
    /// table's answer when none does. So a text that sorts before those, as one that begins with a digit or
    /// with "A", is passed over: callers rely on that order. Empty without tables. The text stays until
    /// DeleteINIResource.
    static const wchar_t* GetValue(const wchar_t* key);
    static int GetMapCount();
    static std::map<CString, XMultiLang*> GetMultiLangMap();
    /// Deletes every table. The lists of names and paths stay. Returns 1.
    static int DeleteINIResource();

    /// Translates a live menu with its popups by the table of a project (XMultiLang::TranslateMenuStringSub).
    /// Returns how many texts were set; 0 without a table and for a menu that does not exist. Call
    /// DrawMenuBar for a menu that a window shows.
    static int LoadMenuToINITranslate(CString project, HMENU menu);

    /// Lists what is still to be translated in "MissingINIFile.ini" beside the program, as UTF-16LE text with
    /// its mark: for each table a heading, then its sections with a line «key<tab>=<tab>#Need to Copy..#» for
    /// each entry that its files lack. Listed are the keys that were asked for in find mode (XMultiLang::
    /// m_bIniFindMode), and of the module that the table's resource header came from every control and menu
    /// item that has a name and a text. 0 when the file cannot be written.
    static int WriteMissingCtrlINIFile();
    /// Adds what a table's files lack of the dialogs and of the menus in its module to \p missing; returns
    /// how many entries were missing. A caption counts as a control under its dialog's name.
    static int FindCtrl_DialogINIResource(XMultiLang& table, XIni& missing);
    static int FindCtrl_MenuINIResource(XMultiLang& table, XIni& missing);
    /// The same for one dialog's texts.
    static int AddMissingControls(XMultiLang& table, const CString& dialog, const DialogTexts& texts,
                                  XIni& missing);
    /// What WriteMissingCtrlINIFile writes.
    static CString GetMissingText();

    static std::map<CString, XMultiLang*> m_gResourceListMap;
    static CStringArray m_arrProjectName; ///< in the order of registration, repeated names as often as given
    static CStringArray m_arrINIPath;     ///< the files that were loaded, in order

private:
    static int LoadINIDataToFile(CString project, CString path);
    static CString GetProgramRootPath(HINSTANCE module);
};
