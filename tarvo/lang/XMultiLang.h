#pragma once

#include "platform/handles.h"
#include "tarvo/export.h"
#include "tarvo/lang/ResourceHeader.h"
#include "tarvo/lang/XIni.h"

#include <afxcoll.h>
#include <afxstr.h>

#include <optional>

class CWnd;

/// Where the texts of a translated dialog came from.
struct CTranslateCount
{
    int nTranslated = 0; ///< the primary document's section of the dialog
    int nFallback = 0;   ///< the secondary document, or the section "DIALOG" of either
    int nMissing = 0;    ///< windows that have a name and a text, but no translation; they keep their text
};

/// The language table of one module (project): its texts in one language. It joins a primary language
/// file, a secondary one that fills its gaps, and the module's resource header, which gives the numbers
/// that windows know their symbolic names.
///
/// A language file has a section for each dialog, named by the dialog's symbol («[IDD_SETUP]»), with the
/// controls' symbols as keys («IDC_NAME=...»; the dialog's own symbol is its caption's key); the section
/// "DIALOG" for controls that many dialogs share; the section "MENUSTR" for menus; and any section for
/// texts asked for by key. In values "\n" and "\r" (two characters each) stand for line feed and carriage
/// return. Missing texts are no errors: the windows keep the texts they have.
///
/// One thread, the user interface's. Operations on windows exist on Windows only.
class TARVO_API XMultiLang
{
public:
    XMultiLang();
    ~XMultiLang();
    XMultiLang(const XMultiLang&) = delete;
    XMultiLang& operator=(const XMultiLang&) = delete;

    /// Opens the primary file and, unless its path is empty, the secondary one. 0 only when none could be
    /// read. 8-bit files are read in the code page that was set on their documents before.
    int Create(CString primaryPath, CString secondaryPath);
    /// Drops both documents and opens others: what a change of language does. 8-bit files are read in
    /// \p codePage. The same result as Create; after 0 the table answers as before its first Create.
    int Load(CString primaryPath, CString secondaryPath, int codePage);
    /// Takes the primary document from memory (XIni::OpenMemory); always 1.
    int Create(unsigned char* bytes, int size);
    /// The number "CODEPAGE" of the primary document's section "GENERAL" as it was when a Create last
    /// finished, 0 when absent. It is told, not applied.
    int GetCodePage() const { return m_nCodePage; }
    XIni& GetXIni() { return m_primary; }
    XIni& GetSecondaryXIni() { return m_secondary; }

    /// The name under which the table is registered; empty before.
    const CString& GetProjectName() const { return m_strProject; }
    void SetProjectName(const CString& project) { m_strProject = project; }

    /// Reads the resource header that a module holds as a resource of UTF-16LE text: the module whose
    /// resources the framework uses at the time, or the one given. 0 when it has none; the tables grow with
    /// each load.
    int LoadResourceHeader(int id, const wchar_t* type);
    int LoadResourceHeaderByDLL(int id, const wchar_t* type, HINSTANCE module);
    /// The memory form, \p count characters, and the file form; see CResourceHeader.
    int LoadResourceHeader(unsigned char* text, int count);
    int LoadResourceHeader(CString path);
    const CResourceHeader& GetResourceHeader() const { return m_header; }
    /// The module of the last header that came from one (null stands for the program); nothing before.
    std::optional<HINSTANCE> GetHeaderModule() const { return m_headerModule; }

    /// The first word of a text resource, which names the project that a module belongs to; "Non Find
    /// String" when there is no such resource.
    static CString GetProjectName(int id, const wchar_t* type, HINSTANCE module);
    static CString GetProjectName(unsigned char* text, int count);

    /// The text of a key: the primary document's unless that is missing or empty, else the secondary's, even
    /// when empty. "CaNNot Find szLangKey To Ini File" when neither has the key, "Can't load language file"
    /// before Create. A null section is the documents' default section.
    CString Lang(const wchar_t* key, const wchar_t* section);

    /// The dialog whose controls the next three operations translate, by its symbol. SetDlgTexts and
    /// TranslateDialog set it as well.
    void SetCurrentDlgManually(const CString& dialogName) { m_strDialog = dialogName; }
    const CString& GetCurrentDlg() const { return m_strDialog; }
    /// The text of a control of the current dialog. Of the identifier's first name, taken apart at commas,
    /// each part is looked for in the dialog's section and, unless no dialog is set, in "DIALOG", in the
    /// primary document before the secondary; the first text that is not empty counts. 0 and an empty text
    /// when there is none.
    int FindDialogControlText(int id, CString& text);
    /// Puts that text into \p window and returns it; leaves the window alone and returns an empty text when
    /// there is none.
    CString __TranslateCtrlID(CWnd* window, int id);

    /// The text of a control that many dialogs share, by its name: of the section "DIALOG", primary before
    /// secondary. 0, with \p text empty, when it has none.
    int FindSharedText(const wchar_t* name, CString& text);

    /// Translates the caption and the direct children of a dialog from the message catalogue, by the keys
    /// "IDS_" + dialog + "_" + control. Does nothing when the identifier names no dialog. Empty texts stay
    /// empty.
    void SetDlgTexts(HWND dialog, unsigned int id, CString project);
    /// The rules of SetDlgTexts over texts that the caller has kept, for windows that are translated again.
    /// The first makes a dialog the current one, with the project whose messages count; 0 when the
    /// identifier names no dialog. The others give the text that takes the place of the caption, or of a
    /// control's text, in it; 0 when that is left alone.
    int SelectDlgTexts(unsigned int id, const CString& project);
    int GetDlgCaptionText(const CString& text, CString& translated) const;
    int GetDlgControlText(int id, const CString& text, CString& translated);
    /// Translates the caption and the direct children of a dialog from the language files, by the rules of
    /// FindDialogControlText, and counts where the texts came from. Windows without a name are not counted.
    /// Does nothing when the identifier names no dialog.
    CTranslateCount TranslateDialog(HWND dialog, unsigned int id);

    /// The text that replaces a menu item's, from the section "MENUSTR", primary before secondary. The key
    /// of an item is the first name that the menu table has for its identifier; a popup without one has its
    /// text for key, without "&" and without what follows a tab. What follows a tab in \p text is kept when
    /// the translation has no tab. 0 when there is no translation.
    int FindMenuText(unsigned int id, bool isPopup, const CString& text, CString& translated);
    /// The keys under which an item's text is looked for, in order; see FindMenuText. Empty when it has none.
    void GetMenuKeys(unsigned int id, bool isPopup, const CString& text, CStringArray& keys) const;
    /// Translates a menu and its popups at any depth. Separators, bitmaps and items that their owner draws
    /// are left alone. Returns how many texts were set; 0 for a menu that does not exist.
    int TranslateMenuStringSub(HMENU menu);

    /// Runs a dialog resource of a module, translated, until a standard button or the system menu ends it:
    /// what a translator sees of it without the program's own code. Returns the button's identifier, -1
    /// when there is no such resource.
    int OnMyModalDialogIndirect(HINSTANCE module, unsigned int id, HWND owner);

    /// Every key that was asked for while m_bIniFindMode was set and is in no file, with its section.
    const XIni& GetMissingKeys() const { return m_missing; }
    /// Notes a key as missing; a null section is the default one, "TEXT".
    void AddMissingKey(const wchar_t* section, const wchar_t* key);
    /// True when the key stands in either document, with or without a text.
    bool HasKey(const wchar_t* section, const wchar_t* key);
    /// True when a control of the dialog has an entry: one of \p names, taken apart at commas, stands in the
    /// dialog's section or in "DIALOG".
    bool HasControlKey(const CString& dialogName, const CString& names);

    /// 1 while keys that are missing are noted. Each construction sets it anew from the test value
    /// "INIFindMode", "yes" exactly.
    static int m_bIniFindMode;

private:
    friend class INIResourceManager;

    enum SOURCE
    {
        SOURCE_NONE,
        SOURCE_DIALOG, ///< the primary document's section of the dialog
        SOURCE_FALLBACK
    };

    int _Create();
    int LookUp(const wchar_t* key, const wchar_t* section, CString& text);
    SOURCE FindText(const wchar_t* section, const wchar_t* key, CString& text);
    SOURCE FindControlText(const CString& names, CString& text);
    void NoteMissingControl(const CString& names);
    CString NamesOf(int id) const;
    int SelectDialog(unsigned int id);
    void FindDialogControlText(int id, CStringArray& names);
    CString TranslateWindow(HWND window, const CString& names, CTranslateCount& count);
    static int EnumProc(HWND child, LPARAM table);
    CString FindCatalogueText(const CStringArray& names, const CString& fallback) const;

    CResourceHeader m_header;
    std::optional<HINSTANCE> m_headerModule;
    int m_nCodePage = 0;
    XIni m_primary;
    XIni m_secondary;
    int m_bCreated = 0;
    CString m_strProject;
    CString m_strDialog;
    HWND m_hDialog = nullptr;
    int m_nMsgProject = 0;
    XIni m_missing;
};
