#pragma once

#include "afxtempl.h"

/// The ready-made containers. Pointers are kept as they are: who adds them destroys what they point to.

#define AFX_DECLARE_CONTAINER(class_name, ...)                                                               \
    class AFX_API class_name : public __VA_ARGS__                                                            \
    {                                                                                                        \
        DECLARE_DYNCREATE(class_name)                                                                        \
    };

AFX_DECLARE_CONTAINER(CByteArray, CArray<BYTE, BYTE>)
AFX_DECLARE_CONTAINER(CWordArray, CArray<WORD, WORD>)
AFX_DECLARE_CONTAINER(CDWordArray, CArray<DWORD, DWORD>)
AFX_DECLARE_CONTAINER(CUIntArray, CArray<UINT, UINT>)
AFX_DECLARE_CONTAINER(CPtrArray, CArray<void*, void*>)
AFX_DECLARE_CONTAINER(CObArray, CArray<CObject*, CObject*>)
AFX_DECLARE_CONTAINER(CStringArray, CArray<CString, const CString&>)

AFX_DECLARE_CONTAINER(CPtrList, CList<void*, void*>)
AFX_DECLARE_CONTAINER(CObList, CList<CObject*, CObject*>)
AFX_DECLARE_CONTAINER(CStringList, CList<CString, const CString&>)

AFX_DECLARE_CONTAINER(CMapPtrToPtr, CMap<void*, void*, void*, void*>)
AFX_DECLARE_CONTAINER(CMapStringToPtr, CMap<CString, LPCTSTR, void*, void*>)
AFX_DECLARE_CONTAINER(CMapStringToOb, CMap<CString, LPCTSTR, CObject*, CObject*>)

/// Texts by text.
class AFX_API CMapStringToString : public CMap<CString, LPCTSTR, CString, const CString&>
{
    DECLARE_DYNCREATE(CMapStringToString)

    /// The key as the map keeps it; FALSE when it is not there.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const;
};

#undef AFX_DECLARE_CONTAINER
