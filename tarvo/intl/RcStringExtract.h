#pragma once

#include "platform/handles.h"
#include "tarvo/export.h"

#include <afxwin.h>

#include <vector>

/// A control's text as the resource changer keeps it.
struct CRcControlText
{
    UINT nID = 0;
    CString strSymbol;
    CString strText;
};

/// A control's place, in pixels of its dialog's client area.
struct CRcControlPlace
{
    UINT nID = 0;
    CRect rect;
};

/// The lists that the resource changer fills for a dialog and reads again when it is opened on it once more.
struct CRcControlLists
{
    std::vector<CRcControlText> arrCurrent; ///< as the running dialog shows them
    std::vector<CRcControlText> arrKorean;
    std::vector<CRcControlText> arrRussian;
    std::vector<CRcControlText> arrEnglish;
    std::vector<CRcControlPlace> arrPlace;

    void Clear() { *this = {}; }
};

/// What the resource changer is preset with.
struct CRcStringExtract
{
    CWnd* pDialog = nullptr; ///< the dialog whose texts are to be changed, and the changer's parent
    CString strFile1;        ///< working folder + "\RCFiles\" + script file name
    CString strFile2;        ///< the same with the second script file name
    CString strCurrentFile;  ///< file 1 at first
    UINT nDlgResID = 0;
    CString strDlgResSymbol;
    CString strText;
    CRcControlLists* pLists = nullptr; ///< the dialog's own
    int nLanguage = 0;                 ///< of the host's profile: "LANGUAGE" in the section "LANGUAGE"
};

/// Opens the resource changer. It is a dialog of a higher layer, which registers its opener when it is
/// there; without one Alt+F12 does nothing.
class TARVO_API IRcStringOpener
{
public:
    virtual ~IRcStringOpener();

    /// Shows the changer modally.
    virtual void Open(const CRcStringExtract& preset) = 0;

    /// The registered opener, null without one.
    static IRcStringOpener* Instance();
    /// Registers an opener, which stays its owner's, and returns the one before. Null takes it back, and an
    /// opener that goes takes itself back.
    static IRcStringOpener* Register(IRcStringOpener* opener);
};

/// What a dialog and a property page know about their resource scripts, for the resource changer.
class TARVO_API CRcSource
{
public:
    virtual ~CRcSource();

    /// The folder under which the scripts lie, in its folder "RCFiles", and their file names.
    void SetWorkingFolder(const CString& folder) { m_strWorkFolder = folder; }
    void SetScriptFiles(const CString& file, const CString& secondFile)
    {
        m_strRCFile = file;
        m_strRCFile2 = secondFile;
    }
    /// Two texts for the changer: what it shows beside the files, and a note of the dialog's own.
    void SetChangerTexts(const CString& text, const CString& note)
    {
        m_strText = text;
        m_strNote = note;
    }
    const CString& GetWorkingFolder() const { return m_strWorkFolder; }
    const CString& GetScriptFile() const { return m_strRCFile; }
    const CString& GetSecondScriptFile() const { return m_strRCFile2; }
    const CString& GetChangerText() const { return m_strText; }
    const CString& GetChangerNote() const { return m_strNote; }
    CRcControlLists& GetControlLists() { return m_lists; }

    UINT GetDlgResID() const { return m_nDlgResID; }
    /// The symbol of the resource; when none was given, the one that the language table of the module that
    /// holds the resource knows, empty when that does not know it either.
    CString GetDlgResSymbol() const;

    /// The message that opens the changer: "WM_QORVEL_RC_STRING_EXTRACT", registered when the library is
    /// loaded.
    static UINT GetExtractMessage();

protected:
    /// True for the key that opens the changer: F12 while Alt is held.
    static bool IsChangerKey(const MSG& msg);
    /// Points at another dialog resource, and empties the lists.
    void SetResource(UINT id, const CString& symbol);
    /// Opens the changer on \p dialog through the registered opener.
    void OpenChanger(CWnd* dialog);

    CString m_strWorkFolder;
    CString m_strRCFile;
    CString m_strRCFile2;
    CString m_strText;
    CString m_strNote;
    UINT m_nDlgResID = 0;
    CString m_strDlgResSymbol;
    CRcControlLists m_lists;
};

/// The message of GetExtractMessage, for message maps.
TARVO_API extern const UINT WM_QORVEL_RC_STRING_EXTRACT;
