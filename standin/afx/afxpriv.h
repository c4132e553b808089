#pragma once

#include "afxwnd.h"

/// A dialog template in memory, of the older form or the extended one, whose font can be read and changed.
/// Made for templates of resources: they are copied first, so the module's own bytes stay as they are.
class AFX_API CDialogTemplate
{
public:
    CDialogTemplate() = default;
    /// A copy of the template; it must be whole.
    explicit CDialogTemplate(const DLGTEMPLATE* pTemplate);
    /// Takes the memory over and frees it at the end.
    explicit CDialogTemplate(HGLOBAL hGlobal);
    ~CDialogTemplate();
    CDialogTemplate(const CDialogTemplate&) = delete;
    CDialogTemplate& operator=(const CDialogTemplate&) = delete;

    HGLOBAL m_hTemplate = nullptr; ///< fixed memory unless given from outside; for CDialog::InitModalIndirect
    DWORD m_dwTemplateSize = 0;    ///< bytes
    BOOL m_bSystemFont = FALSE;    ///< the template names no font

    /// A copy of the resource, from the module that AfxFindResourceHandle names. FALSE when there is none.
    BOOL Load(LPCTSTR lpDialogTemplateID);
    /// Gives the memory to the caller.
    HGLOBAL Detach();
    BOOL HasFont() const;
    /// FALSE, and a size of 0, when the template names no font. \p nFontSize in points.
    BOOL GetFont(CString& strFaceName, WORD& nFontSize) const;
    static BOOL GetFont(const DLGTEMPLATE* pTemplate, CString& strFaceName, WORD& nFontSize);
    /// Replaces the font, or adds one (DS_SETFONT is set). Weight, italic and character set of an extended
    /// template stay; an added font is of normal weight and the default character set. FALSE without
    /// template or memory.
    BOOL SetFont(LPCTSTR lpFaceName, WORD nFontSize);
    /// The same with the system's dialog font; 0 takes its size as well.
    BOOL SetSystemFont(WORD nFontSize = 0);
    void GetSizeInDialogUnits(SIZE* pSize) const;
    /// What the template becomes on the screen in its font, without the frame.
    void GetSizeInPixels(SIZE* pSize) const;

protected:
    BOOL SetTemplate(const DLGTEMPLATE* pTemplate, UINT cb);
    /// The whole template's length in bytes, found by walking it.
    static UINT GetTemplateSize(const DLGTEMPLATE* pTemplate);
};
