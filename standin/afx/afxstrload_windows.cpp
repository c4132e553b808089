#include "afxapp.h"
#include "afxstr.h"

template <class T>
BOOL CStringT<T>::LoadString(UINT nID)
{
    const HINSTANCE hInstance = AfxFindStringResourceHandle(nID);
    if (!hInstance)
    {
        Empty();
        return FALSE;
    }
    return LoadString(hInstance, nID);
}

template <class T>
BOOL CStringT<T>::LoadString(HINSTANCE hInstance, UINT nID)
{
    // With no room given the system answers where its own copy lies.
    const wchar_t* pszText = nullptr;
    const int nLength = ::LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(&pszText), 0);
    Empty();
    if (nLength <= 0)
        return FALSE;
    *this = CStringT(CStringT<wchar_t>(pszText, nLength));
    return TRUE;
}

template AFX_API BOOL CStringT<wchar_t>::LoadString(UINT nID);
template AFX_API BOOL CStringT<wchar_t>::LoadString(HINSTANCE hInstance, UINT nID);
template AFX_API BOOL CStringT<char>::LoadString(UINT nID);
template AFX_API BOOL CStringT<char>::LoadString(HINSTANCE hInstance, UINT nID);
