#pragma once

#include "tarvo/export.h"
#include "tarvo/lang/INIResourceManager.h"

#include <functional>

/// Changes the language of a running program: everything that is open comes up in it at once, as if it had
/// been opened in it. What the user has entered and chosen stays, and so does the focus.
///
/// All members are static and belong to the user interface's thread.
class TARVO_API CLanguageSwitch
{
public:
    /// Loads the messages of a language (IMSGInfo::LoadMessage, when the host has constructed its object),
    /// loads the language's files into every language table (INIResourceManager), and then translates what
    /// is open (Retranslate). A file that is missing leaves its texts as the resources have them. Returns
    /// how many windows took part.
    static int SwitchTo(int language);
    /// Translates every open dialog, form view, property page and sheet of the library's bases, in the order
    /// in which they were opened, and then the menus of FollowMenu, from the texts that are loaded now. A
    /// window that refuses (CLanguageWindow::FollowsLanguage) is left alone. Returns how many windows took
    /// part.
    static int Retranslate();

    /// How a host names the files of a project in a language.
    using FILE_RULE = std::function<CLanguageFiles(const CString& project, int language)>;
    /// The rule that SwitchTo asks; an empty one stands for GetDefaultFiles.
    static void SetFileRule(FILE_RULE rule);
    /// "Language", the language's folder and "ctrl_" + project + suffix + ".ini" beside the program, the
    /// Korean file of the project behind it, and the language's code page for 8-bit text.
    static CLanguageFiles GetDefaultFiles(const CString& project, int language);

    /// Translates the menu of a window by the table of a project (XMultiLang::TranslateMenuStringSub) and
    /// with each change of language again, until the window is gone. The menu must still show the texts of
    /// its resource: popups are known by these. A text that the program has changed since is left alone.
    /// Calling it again with another project replaces the first. Returns how many texts were set.
    static int FollowMenu(HWND window, const CString& project);
};
