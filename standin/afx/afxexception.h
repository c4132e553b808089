#pragma once

#include "afxobject.h"
#include "afxstr.h"

/// What the framework throws is a pointer: `catch (CException* e)` ends with `e->Delete()`.
class AFX_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

public:
    /// An object made with `new`, which Delete destroys.
    CException() = default;
    /// \p bAutoDelete is FALSE for an object that lives elsewhere; Delete then leaves it alone.
    explicit CException(BOOL bAutoDelete) : m_bAutoDelete(bAutoDelete) {}
    void Delete();

    /// A line for the user, cut to \p nMaxError - 1 characters. FALSE, with an empty text, when there
    /// is none. \p pnHelpContext, when given, becomes 0.
    virtual BOOL GetErrorMessage(LPTSTR lpszError, UINT nMaxError, UINT* pnHelpContext = nullptr) const;

protected:
    /// The whole text that GetErrorMessage cuts to size.
    virtual CString ErrorText() const;

private:
    BOOL m_bAutoDelete = TRUE;
};

class AFX_API CSimpleException : public CException
{
    DECLARE_DYNAMIC(CSimpleException)

public:
    using CException::CException;
};

/// Memory could not be had, or a text or array would be longer than it can be.
class AFX_API CMemoryException : public CSimpleException
{
    DECLARE_DYNAMIC(CMemoryException)

public:
    using CSimpleException::CSimpleException;

protected:
    CString ErrorText() const override;
};

class AFX_API CNotSupportedException : public CSimpleException
{
    DECLARE_DYNAMIC(CNotSupportedException)

public:
    using CSimpleException::CSimpleException;

protected:
    CString ErrorText() const override;
};

class AFX_API CInvalidArgException : public CSimpleException
{
    DECLARE_DYNAMIC(CInvalidArgException)

public:
    using CSimpleException::CSimpleException;

protected:
    CString ErrorText() const override;
};

/// A resource could not be loaded or a system object not be made.
class AFX_API CResourceException : public CSimpleException
{
    DECLARE_DYNAMIC(CResourceException)

public:
    using CSimpleException::CSimpleException;

protected:
    CString ErrorText() const override;
};

/// Ends an operation that the user has already been told about.
class AFX_API CUserException : public CSimpleException
{
    DECLARE_DYNAMIC(CUserException)

public:
    using CSimpleException::CSimpleException;
};

[[noreturn]] AFX_API void AfxThrowMemoryException();
[[noreturn]] AFX_API void AfxThrowNotSupportedException();
[[noreturn]] AFX_API void AfxThrowInvalidArgException();
[[noreturn]] AFX_API void AfxThrowResourceException();
[[noreturn]] AFX_API void AfxThrowUserException();
