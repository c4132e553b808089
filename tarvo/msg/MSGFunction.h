#pragma once

#include "tarvo/export.h"

#include <afxstr.h>

/// The message catalogue of the process: the text of a message key in the user's language, the name and
/// size of the language's dialog font, and the names of the companion DLLs that depend on the language.
/// CMSGInfoImpl::LoadMessage fills it for a language; a host of another kind calls AddFile, SetFontPath and
/// LoadFile itself.
///
/// There are two catalogues, the primary one of the language in force and the fallback one. Look-ups ask
/// the primary one only; the fallback one holds its list of files and is not loaded.
///
/// Null texts count as empty. All of it belongs to the user interface's thread; nothing throws but for
/// want of memory. The catalogue is registered with the companion library (qlx::lib::MMSGFunction) when
/// the library is loaded, so that texts asked for there are found here, whatever the project's number.
class TARVO_API CMSGFunction
{
public:
    /// Adds a message file to each catalogue's list. Nothing is read before LoadFile.
    static void AddFile(const wchar_t* primaryPath, const wchar_t* fallbackPath);
    /// Empties both catalogues and their lists of files. The font and the DLL names stay.
    static void Reset();
    /// The font file that LoadFile reads into each catalogue.
    static void SetFontPath(const wchar_t* primaryPath, const wchar_t* fallbackPath);
    /// Reads the font file and the message files of the primary catalogue in the order in which they were
    /// added; what is in it already stays, and so does the first text of a key. A file that cannot be read
    /// is passed over. 8-bit files are in the system's ANSI page; in that of the language only when the
    /// host's profile has "LANGUAGECHECK" of at least 1 in its section "LANGUAGE". Always true.
    static bool LoadFile();

    /// The text of \p key, compared exactly. An unknown key shows as itself: the key, a blank and a colon.
    static CString GetValue(const wchar_t* key);
    /// True and the text of \p key; false, with \p value as it was, for an unknown one.
    static bool Find(const wchar_t* key, CString& value);
    /// Gives \p key the text \p value, in memory only, until Reset. True.
    static bool SetValue(const wchar_t* key, const wchar_t* value);
    /// \p text without the single quotes at both ends; any other text as it is, double quotes too.
    static CString RemoveQuote(const CString& text);

    /// The face name and the point size of the language's dialog font; empty and 0 until a font file was
    /// read, and those of the last font file that was there after that.
    static CString GetFont();
    static int GetFontSize();

    /// Makes the DLL names for the file suffix of a language ("_kr"). Before, they are empty.
    static void SetHatchAndExcelTemplateFileNames(const wchar_t* suffix);
    static CString Get_TarvoH_dll_Name(); ///< a bare file name; the others begin with a backslash
    static CString Get_TarvoBOMSource_RetWall_dll_Name();
    static CString Get_TarvoBOMSBHSource_dll_Name();
    static CString Get_TarvoBOMSource_dll_Name();
    static CString Get_TarvoVHSectionSource_dll_Name();
    static CString Get_TarvoStrutSource_dll_Name();
    static CString Get_TarvoBreakDownSource_dll_Name();

private:
    static CString m_str_TarvoH_dll_Name;
    static CString m_str_TarvoBOMSource_RetWall_dll_Name;
    static CString m_str_TarvoBOMSBHSource_dll_Name;
    static CString m_str_TarvoBOMSource_dll_Name;
    static CString m_str_TarvoVHSectionSource_dll_Name;
    static CString m_str_TarvoStrutSource_dll_Name;
    static CString m_str_TarvoBreakDownSource_dll_Name;
};
