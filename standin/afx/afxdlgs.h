#pragma once

#include <afxtempl.h>
#include <afxwin.h>

#include <commdlg.h>

#include "afxpropsheet.h"

/// Property sheets, and the system's own dialogs.

/// The system's dialog for opening or saving a file. DoModal answers IDOK or IDCANCEL; the texts below
/// hold what was chosen.
class AFX_API CFileDialog : public CDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// \p lpszFilter is "name|pattern|name|pattern||". TRUE opens, FALSE saves.
    explicit CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt = nullptr, LPCTSTR lpszFileName = nullptr,
                         DWORD dwFlags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR lpszFilter = nullptr,
                         CWnd* pParentWnd = nullptr);

    OPENFILENAMEW m_ofn{}; ///< may be changed before DoModal
    INT_PTR DoModal() override;
    OPENFILENAME& GetOFN() { return m_ofn; }
    /// The first chosen file with its folder, its name, and the parts of the name around the last dot.
    CString GetPathName() const;
    CString GetFileName() const;
    CString GetFileExt() const;
    CString GetFileTitle() const;
    CString GetFolderPath() const;
    /// One after the other of the chosen files (OFN_ALLOWMULTISELECT); the position is null after the last.
    POSITION GetStartPosition() const;
    CString GetNextPathName(POSITION& pos) const;

protected:
    CString NameAt(LPCTSTR lpsz) const;
    BOOL m_bOpenFileDialog;
    CString m_strFilter;
    CString m_strDefExt;
    WCHAR m_szFileName[32768] = {}; ///< room for many chosen files
};
