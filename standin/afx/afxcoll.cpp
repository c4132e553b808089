#include "afxcoll.h"

IMPLEMENT_DYNCREATE(CByteArray, CObject)
IMPLEMENT_DYNCREATE(CWordArray, CObject)
IMPLEMENT_DYNCREATE(CDWordArray, CObject)
IMPLEMENT_DYNCREATE(CUIntArray, CObject)
IMPLEMENT_DYNCREATE(CPtrArray, CObject)
IMPLEMENT_DYNCREATE(CObArray, CObject)
IMPLEMENT_DYNCREATE(CStringArray, CObject)
IMPLEMENT_DYNCREATE(CPtrList, CObject)
IMPLEMENT_DYNCREATE(CObList, CObject)
IMPLEMENT_DYNCREATE(CStringList, CObject)
IMPLEMENT_DYNCREATE(CMapPtrToPtr, CObject)
IMPLEMENT_DYNCREATE(CMapStringToPtr, CObject)
IMPLEMENT_DYNCREATE(CMapStringToOb, CObject)
IMPLEMENT_DYNCREATE(CMapStringToString, CObject)

BOOL CMapStringToString::LookupKey(LPCTSTR key, LPCTSTR& rKey) const
{
    const CPair* p = PLookup(key);
    if (p == nullptr)
        return FALSE;
    rKey = p->key;
    return TRUE;
}
