#include "afxexception.h"

#include <algorithm>
#include <cwchar>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CSimpleException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CSimpleException)
IMPLEMENT_DYNAMIC(CNotSupportedException, CSimpleException)
IMPLEMENT_DYNAMIC(CInvalidArgException, CSimpleException)
IMPLEMENT_DYNAMIC(CResourceException, CSimpleException)
IMPLEMENT_DYNAMIC(CUserException, CSimpleException)

void CException::Delete()
{
    if (m_bAutoDelete)
        delete this;
}

BOOL CException::GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext) const
{
    if (pnHelpContext != nullptr)
        *pnHelpContext = 0;
    if (lpszError == nullptr || nMaxError == 0)
        return FALSE;
    const CString str = ErrorText().Left(static_cast<int>(std::min(nMaxError - 1, 0x7FFFu)));
    std::wmemcpy(lpszError, str, static_cast<std::size_t>(str.GetLength()) + 1);
    return !str.IsEmpty();
}

CString CException::ErrorText() const { return CString(); }
CString CMemoryException::ErrorText() const { return L"Out of memory."; }
CString CNotSupportedException::ErrorText() const { return L"The operation is not supported."; }
CString CInvalidArgException::ErrorText() const { return L"An argument is not valid."; }
CString CResourceException::ErrorText() const { return L"A required resource is not available."; }

void AfxThrowMemoryException()
{
    // There may be no memory for an exception object either.
    static CMemoryException exception(FALSE);
    throw &exception;
}

void AfxThrowNotSupportedException() { throw new CNotSupportedException; }
void AfxThrowInvalidArgException() { throw new CInvalidArgException; }
void AfxThrowResourceException() { throw new CResourceException; }
void AfxThrowUserException() { throw new CUserException; }
