#include "afxstr.h"

template <class T>
BOOL CStringT<T>::LoadString(UINT)
{
    Empty();
    return FALSE;
}

template <class T>
BOOL CStringT<T>::LoadString(HINSTANCE, UINT)
{
    Empty();
    return FALSE;
}

template AFX_API BOOL CStringT<wchar_t>::LoadString(UINT nID);
template AFX_API BOOL CStringT<wchar_t>::LoadString(HINSTANCE hInstance, UINT nID);
template AFX_API BOOL CStringT<char>::LoadString(UINT nID);
template AFX_API BOOL CStringT<char>::LoadString(HINSTANCE hInstance, UINT nID);
