#include "afxdlgs.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CFileDialog, CDialog)

CFileDialog::CFileDialog(BOOL bOpenFileDialog, LPCTSTR lpszDefExt, LPCTSTR lpszFileName, DWORD dwFlags,
                         LPCTSTR lpszFilter, CWnd* pParentWnd)
    : m_bOpenFileDialog(bOpenFileDialog), m_strFilter(lpszFilter), m_strDefExt(lpszDefExt)
{
    m_pParentWnd = pParentWnd;
    if (lpszFileName)
        ::lstrcpynW(m_szFileName, lpszFileName, static_cast<int>(std::size(m_szFileName)));
    m_strFilter.Replace(L'|', L'\0');
    m_ofn.lStructSize = sizeof(m_ofn);
    m_ofn.lpstrFile = m_szFileName;
    m_ofn.nMaxFile = static_cast<DWORD>(std::size(m_szFileName));
    m_ofn.lpstrFilter = m_strFilter.IsEmpty() ? nullptr : m_strFilter.GetString();
    m_ofn.lpstrDefExt = lpszDefExt ? m_strDefExt.GetString() : nullptr;
    m_ofn.Flags = dwFlags | OFN_EXPLORER | OFN_ENABLESIZING;
    m_ofn.hInstance = AfxGetResourceHandle();
}

INT_PTR CFileDialog::DoModal()
{
    CWnd* pOwner = m_pParentWnd ? m_pParentWnd : AfxGetMainWnd();
    m_ofn.hwndOwner = SafeHandle(pOwner);
    return (m_bOpenFileDialog ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn)) ? IDOK : IDCANCEL;
}

namespace
{
int NameStart(const CString& strPath) { return strPath.ReverseFind(L'\\') + 1; }
} // namespace

// Several files come as folder NUL name NUL name NUL NUL, one as its path.
CString CFileDialog::NameAt(LPCTSTR lpsz) const
{
    if (lpsz == m_ofn.lpstrFile)
        return CString(lpsz);
    CString strPath(m_ofn.lpstrFile);
    if (strPath.Right(1) != L"\\")
        strPath += L'\\';
    return strPath + lpsz;
}

POSITION CFileDialog::GetStartPosition() const
{
    LPTSTR psz = m_ofn.lpstrFile;
    const bool bSeveral = (m_ofn.Flags & OFN_ALLOWMULTISELECT) && *psz != 0 && psz[::wcslen(psz) + 1] != 0;
    return reinterpret_cast<POSITION>(bSeveral ? psz + ::wcslen(psz) + 1 : psz);
}

CString CFileDialog::GetNextPathName(POSITION& pos) const
{
    LPTSTR psz = reinterpret_cast<LPTSTR>(pos);
    CString strPath = NameAt(psz);
    LPTSTR pszNext = psz + ::wcslen(psz) + 1;
    pos = psz != m_ofn.lpstrFile && *pszNext != 0 ? reinterpret_cast<POSITION>(pszNext) : nullptr;
    return strPath;
}

CString CFileDialog::GetPathName() const
{
    POSITION pos = GetStartPosition();
    return GetNextPathName(pos);
}

CString CFileDialog::GetFileName() const
{
    const CString strPath = GetPathName();
    return strPath.Mid(NameStart(strPath));
}

CString CFileDialog::GetFolderPath() const
{
    const CString strPath = GetPathName();
    return strPath.Left(std::max(0, NameStart(strPath) - 1));
}

CString CFileDialog::GetFileExt() const
{
    const CString strName = GetFileName();
    const int iDot = strName.ReverseFind(L'.');
    return iDot < 0 ? CString() : strName.Mid(iDot + 1);
}

CString CFileDialog::GetFileTitle() const
{
    const CString strName = GetFileName();
    const int iDot = strName.ReverseFind(L'.');
    return iDot < 0 ? strName : strName.Left(iDot);
}
