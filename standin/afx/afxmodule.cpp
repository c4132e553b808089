#include "afxstate.h"

#include <algorithm>
#include <vector>

namespace
{
/// The program's state until its application object brings its own.
AFX_MODULE_STATE& BaseState()
{
    static AFX_MODULE_STATE state(::GetModuleHandleW(nullptr));
    return state;
}

AFX_MODULE_STATE* s_pAppState = nullptr;

std::vector<CDynLinkLibrary*>& Libraries()
{
    static std::vector<CDynLinkLibrary*> libraries;
    return libraries;
}

/// The first module that answers yes, in the order in which resources are looked for; null for none.
template <class HasIt>
HINSTANCE FindModule(HasIt hasIt)
{
    const HINSTANCE hCurrent = AfxGetResourceHandle();
    if (hasIt(hCurrent))
        return hCurrent;
    const auto newest =
        std::find_if(Libraries().rbegin(), Libraries().rend(),
                     [&](const CDynLinkLibrary* pLibrary) { return hasIt(pLibrary->m_hResource); });
    if (newest != Libraries().rend())
        return (*newest)->m_hResource;
    const HINSTANCE hProgram = AfxGetAppModuleState()->m_hCurrentResourceHandle;
    return hProgram != hCurrent && hasIt(hProgram) ? hProgram : nullptr;
}

/// String tables hold sixteen texts each, numbered from 1; an absent text has length 0.
BOOL HasString(HINSTANCE hModule, UINT nID)
{
    LPCWSTR pszText = nullptr;
    return ::LoadStringW(hModule, nID, reinterpret_cast<LPWSTR>(&pszText), 0) > 0;
}
} // namespace

AFX_MODULE_STATE* AfxGetAppModuleState() { return s_pAppState ? s_pAppState : &BaseState(); }

AFX_MODULE_STATE* AfxGetModuleState()
{
    AFX_MODULE_STATE* pState = AfxThreadState().pModuleState;
    return pState ? pState : AfxGetAppModuleState();
}

AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState)
{
    AFX_MODULE_STATE* pFormer = AfxGetModuleState();
    AfxThreadState().pModuleState = pNewState;
    return pFormer;
}

void AfxSetAppModuleState(AFX_MODULE_STATE* pState) { s_pAppState = pState; }

CWinApp* AfxGetApp()
{
    CWinApp* pApp = AfxGetModuleState()->m_pCurrentWinApp;
    return pApp ? pApp : AfxGetAppModuleState()->m_pCurrentWinApp;
}

CWinThread* AfxGetThread()
{
    CWinThread* pThread = AfxThreadState().pThread;
    return pThread ? pThread : AfxGetApp();
}

CWnd* AfxGetMainWnd()
{
    CWinThread* pThread = AfxGetThread();
    return pThread ? pThread->GetMainWnd() : nullptr;
}

HINSTANCE AfxGetInstanceHandle() { return AfxGetModuleState()->m_hCurrentInstanceHandle; }
LPCTSTR AfxGetAppName() { return AfxGetModuleState()->m_lpszCurrentAppName; }
HINSTANCE AfxGetResourceHandle() { return AfxGetModuleState()->m_hCurrentResourceHandle; }
void AfxSetResourceHandle(HINSTANCE hInstResource)
{
    AfxGetModuleState()->m_hCurrentResourceHandle = hInstResource;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    const HINSTANCE hFound = FindModule(
        [&](HINSTANCE hModule) { return ::FindResourceW(hModule, lpszName, lpszType) != nullptr; });
    return hFound ? hFound : AfxGetResourceHandle();
}

HINSTANCE AfxFindStringResourceHandle(UINT nID)
{
    return FindModule([&](HINSTANCE hModule) { return HasString(hModule, nID); });
}

int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf)
{
    if (nMaxBuf == 0)
        return 0;
    *lpszBuf = 0;
    const HINSTANCE hModule = AfxFindStringResourceHandle(nIDS);
    return hModule ? ::LoadStringW(hModule, nIDS, lpszBuf, static_cast<int>(nMaxBuf)) : 0;
}

BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString, TCHAR chSep)
{
    rString.Empty();
    if (!lpszFullString)
        return FALSE;
    for (; iSubString > 0; --iSubString)
    {
        lpszFullString = ::wcschr(lpszFullString, chSep);
        if (!lpszFullString)
            return FALSE;
        ++lpszFullString;
    }
    LPCTSTR lpszEnd = ::wcschr(lpszFullString, chSep);
    rString.SetString(lpszFullString,
                      static_cast<int>(lpszEnd ? lpszEnd - lpszFullString : ::wcslen(lpszFullString)));
    return TRUE;
}

int AfxMessageBox(LPCTSTR lpszText, UINT nType, UINT)
{
    if (CWinApp* pApp = AfxGetApp())
        return pApp->DoMessageBox(lpszText, nType, 0);
    return ::MessageBoxW(nullptr, lpszText, nullptr, nType);
}

int AfxMessageBox(UINT nIDPrompt, UINT nType, UINT nIDHelp)
{
    CString strText;
    strText.LoadString(nIDPrompt);
    return AfxMessageBox(strText, nType, nIDHelp);
}

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod)
{
    if (state.bInitialized)
        return FALSE;
    state.bInitialized = TRUE;
    state.hModule = hMod;
    if (!state.hResource)
        state.hResource = hMod;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll)
{
    const auto libraries = Libraries();
    for (CDynLinkLibrary* pLibrary : libraries)
        if (bAll || pLibrary->m_hModule == state.hModule)
            delete pLibrary;
    state.bInitialized = FALSE;
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem)
    : m_hModule(state.hModule), m_hResource(state.hResource), m_bSystem(bSystem)
{
    Libraries().push_back(this);
}

CDynLinkLibrary::~CDynLinkLibrary() { std::erase(Libraries(), this); }
