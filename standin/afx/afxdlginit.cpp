#include "afxstate.h"

#include <commctrl.h>
#include <cstring>

void AfxInitCommonControls()
{
    static const bool bDone = [] {
        const INITCOMMONCONTROLSEX wanted{sizeof(INITCOMMONCONTROLSEX),
                                          ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_USEREX_CLASSES |
                                              ICC_COOL_CLASSES | ICC_INTERNET_CLASSES};
        return ::InitCommonControlsEx(&wanted) != FALSE;
    }();
    (void)bDone;
}

namespace
{
const LPCTSTR RT_DLGINIT_TYPE = MAKEINTRESOURCEW(240);

// The resource has kept the message numbers of 16-bit Windows.
UINT ModernMessage(WORD wMessage)
{
    switch (wMessage)
    {
    case 0x0401:
        return LB_ADDSTRING;
    case 0x0403:
        return CB_ADDSTRING;
    default:
        return 0;
    }
}

WORD ReadWord(const BYTE* p)
{
    WORD w;
    std::memcpy(&w, p, sizeof(w));
    return w;
}
} // namespace

BOOL CWnd::ExecuteDlgInit(LPCTSTR lpszResourceName)
{
    const HINSTANCE hInst = AfxFindResourceHandle(lpszResourceName, RT_DLGINIT_TYPE);
    const HRSRC hResource = ::FindResourceW(hInst, lpszResourceName, RT_DLGINIT_TYPE);
    if (!hResource)
        return TRUE; // most dialogs have none
    void* pData = ::LockResource(::LoadResource(hInst, hResource));
    return pData ? ExecuteDlgInit(pData, ::SizeofResource(hInst, hResource)) : FALSE;
}

BOOL CWnd::ExecuteDlgInit(LPVOID lpResource, UINT nBytes)
{
    // line ::= control message length:DWORD 8-bit-text; a control of 0 ends
    constexpr UINT nHead = 2 * sizeof(WORD) + sizeof(DWORD);
    const auto* p = static_cast<const BYTE*>(lpResource);
    UINT nLeft = nBytes;
    while (nLeft >= sizeof(WORD) && ReadWord(p) != 0)
    {
        if (nLeft < nHead)
            return FALSE;
        DWORD dwLength = 0;
        std::memcpy(&dwLength, p + 2 * sizeof(WORD), sizeof(dwLength));
        if (dwLength > nLeft - nHead)
            return FALSE;
        const UINT message = ModernMessage(ReadWord(p + sizeof(WORD)));
        const CStringA strText(reinterpret_cast<const char*>(p + nHead), static_cast<int>(dwLength));
        if (message != 0 && ::SendDlgItemMessageA(m_hWnd, ReadWord(p), message, 0,
                                                  reinterpret_cast<LPARAM>(strText.GetString())) < 0)
            return FALSE;
        p += nHead + dwLength;
        nLeft -= nHead + dwLength;
    }
    return TRUE;
}
