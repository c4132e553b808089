#pragma once

#include "afxcmd.h"

class CWnd;
class CWinApp;

/// One module's resources and application object. A DLL that exports functions to a host begins each of
/// them with AFX_MANAGE_STATE(AfxGetStaticModuleState()), so that its own resources are found inside.
struct AFX_MODULE_STATE
{
    explicit AFX_MODULE_STATE(HINSTANCE hInstance)
        : m_hCurrentInstanceHandle(hInstance), m_hCurrentResourceHandle(hInstance)
    {
    }

    HINSTANCE m_hCurrentInstanceHandle;
    HINSTANCE m_hCurrentResourceHandle;
    CWinApp* m_pCurrentWinApp = nullptr; ///< null in a module without one: the program's then counts
    LPCTSTR m_lpszCurrentAppName = nullptr;
};

extern "C" char __ImageBase; // the linker's name for where a module is loaded

/// The state of the module that calls it.
inline AFX_MODULE_STATE* AfxGetStaticModuleState()
{
    static AFX_MODULE_STATE state(reinterpret_cast<HINSTANCE>(&__ImageBase));
    return &state;
}

/// The state in force on this thread; the program's unless a module or a window of one is at work.
AFX_API AFX_MODULE_STATE* AfxGetModuleState();
/// The program's own.
AFX_API AFX_MODULE_STATE* AfxGetAppModuleState();
/// Answers the state that was in force.
AFX_API AFX_MODULE_STATE* AfxSetModuleState(AFX_MODULE_STATE* pNewState);

class AFX_API AFX_MAINTAIN_STATE2
{
public:
    explicit AFX_MAINTAIN_STATE2(AFX_MODULE_STATE* pModuleState)
        : m_pPrevModuleState(AfxSetModuleState(pModuleState))
    {
    }
    ~AFX_MAINTAIN_STATE2() { AfxSetModuleState(m_pPrevModuleState); }
    AFX_MAINTAIN_STATE2(const AFX_MAINTAIN_STATE2&) = delete;
    AFX_MAINTAIN_STATE2& operator=(const AFX_MAINTAIN_STATE2&) = delete;

private:
    AFX_MODULE_STATE* m_pPrevModuleState;
};
#define AFX_MANAGE_STATE(p) AFX_MAINTAIN_STATE2 _ctlState(p);

/// The application object, null in a program without one.
AFX_API CWinApp* AfxGetApp();
AFX_API class CWinThread* AfxGetThread();
AFX_API CWnd* AfxGetMainWnd();
AFX_API HINSTANCE AfxGetInstanceHandle();
AFX_API LPCTSTR AfxGetAppName();
AFX_API HINSTANCE AfxGetResourceHandle();
AFX_API void AfxSetResourceHandle(HINSTANCE hInstResource);
/// The module to load the resource from: the current resource module, then each extension DLL (the
/// newest first), then the program. When none has it, the current resource module.
AFX_API HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
/// The same for a text of a string table; null when none has it.
AFX_API HINSTANCE AfxFindStringResourceHandle(UINT nID);
/// Copies the text to the buffer and answers its length without the NUL; 0 and an empty text for none.
AFX_API int AfxLoadString(UINT nIDS, LPTSTR lpszBuf, UINT nMaxBuf = 256);
/// Takes the \p iSubString-th part (from 0) of a text in parts; FALSE and empty when there are fewer.
AFX_API BOOL AfxExtractSubString(CString& rString, LPCTSTR lpszFullString, int iSubString,
                                 TCHAR chSep = '\n');

/// Asks through the application object's DoMessageBox. The answer is the button's ID, 0 on failure.
AFX_API int AfxMessageBox(LPCTSTR lpszText, UINT nType = MB_OK, UINT nIDHelp = 0);
AFX_API int AfxMessageBox(UINT nIDPrompt, UINT nType = MB_OK, UINT nIDHelp = static_cast<UINT>(-1));

/// A DLL that adds its resources and classes to the program's keeps one of these.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HMODULE hModule;
    HMODULE hResource; ///< where the resources are; hModule unless set otherwise
};
/// From DllMain, DLL_PROCESS_ATTACH. FALSE when it was initialised before.
AFX_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hMod);
/// From DllMain, DLL_PROCESS_DETACH: takes its CDynLinkLibrary objects away.
AFX_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// While it lives, the module's resources are searched by AfxFindResourceHandle.
class AFX_API CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
    BOOL m_bSystem;
};

/// The message loop of a thread.
class AFX_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)

public:
    CWinThread() = default;

    CWnd* m_pMainWnd = nullptr;   ///< the program ends when it is destroyed
    CWnd* m_pActiveWnd = nullptr; ///< what AfxGetMainWnd answers when it is set
    BOOL m_bAutoDelete = TRUE;
    HANDLE m_hThread = nullptr;
    DWORD m_nThreadID = 0;

    virtual BOOL InitInstance() { return FALSE; }
    /// Dispatches messages until WM_QUIT, with OnIdle whenever the queue is empty; the answer is
    /// ExitInstance's.
    virtual int Run();
    virtual int ExitInstance();
    /// Takes a message out before it is dispatched. Offers it to the windows from its own up to the main
    /// window.
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    /// One message; FALSE when it was WM_QUIT.
    virtual BOOL PumpMessage();
    /// Called with 0, 1, ... while the queue stays empty and the answer is TRUE. Call 0 updates the main
    /// window's items; call 1 deletes the temporary objects.
    virtual BOOL OnIdle(LONG lCount);
    virtual BOOL IsIdleMessage(MSG* pMsg);
    /// An exception has left a handler of \p pMsg; the answer is the message's. The exception is deleted
    /// by the caller.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* pMsg);
    virtual CWnd* GetMainWnd();
    MSG m_msgCur{};

private:
    POINT m_ptLastMouse{-1, -1};
    UINT m_nLastMouseMessage = 0;
};

/// The application object: one per program, a global variable. Its constructor registers it, the entry
/// point (afx_main, or AfxWinInit in a console program) fills it, then InitInstance, Run and ExitInstance
/// are called.
///
/// The profile functions keep settings in HKEY_CURRENT_USER\Software\<key>\<profile>\<section> once
/// SetRegistryKey was called, otherwise in the INI file m_pszProfileName of the Windows folder.
class AFX_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)

public:
    explicit CWinApp(LPCTSTR lpszAppName = nullptr,
                     AFX_MODULE_STATE* pModuleState = AfxGetStaticModuleState());
    ~CWinApp() override;

    HINSTANCE m_hInstance = nullptr;
    LPTSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    // Texts that the object frees with free(); allocate a replacement with _wcsdup.
    LPCTSTR m_pszAppName = nullptr;     ///< the constructor's, the string AFX_IDS_APP_TITLE or the file's
    LPCTSTR m_pszExeName = nullptr;     ///< the program's file name without folder and extension
    LPCTSTR m_pszRegistryKey = nullptr; ///< the company; null: settings are in the INI file
    LPCTSTR m_pszProfileName = nullptr; ///< the product below the company, or the INI file

    virtual BOOL InitApplication() { return TRUE; }
    BOOL InitInstance() override { return TRUE; }
    int Run() override;
    int ExitInstance() override;
    LRESULT ProcessWndProcException(CException* e, const MSG* pMsg) override;
    virtual int DoMessageBox(LPCTSTR lpszPrompt, UINT nType, UINT nIDPrompt);
    /// Begins and ends (1, -1) the hourglass, or shows it again (0).
    virtual void DoWaitCursor(int nCode);

    HCURSOR LoadCursor(LPCTSTR lpszResourceName) const;
    HCURSOR LoadCursor(UINT nIDResource) const { return LoadCursor(MAKEINTRESOURCEW(nIDResource)); }
    HCURSOR LoadStandardCursor(LPCTSTR lpszCursorName) const
    {
        return ::LoadCursorW(nullptr, lpszCursorName);
    }
    HICON LoadIcon(LPCTSTR lpszResourceName) const;
    HICON LoadIcon(UINT nIDResource) const { return LoadIcon(MAKEINTRESOURCEW(nIDResource)); }
    HICON LoadStandardIcon(LPCTSTR lpszIconName) const { return ::LoadIconW(nullptr, lpszIconName); }

    UINT GetProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nDefault);
    BOOL WriteProfileInt(LPCTSTR lpszSection, LPCTSTR lpszEntry, int nValue);
    CString GetProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszDefault = nullptr);
    /// A null entry deletes the section, a null value the entry.
    BOOL WriteProfileString(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPCTSTR lpszValue);
    /// \p *ppData is new BYTE[]: the caller deletes it. FALSE leaves it null.
    BOOL GetProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE* ppData, UINT* pBytes);
    BOOL WriteProfileBinary(LPCTSTR lpszSection, LPCTSTR lpszEntry, LPBYTE pData, UINT nBytes);
    /// HKEY_CURRENT_USER\Software\<key>\<profile>, created when missing; null without SetRegistryKey. The
    /// caller closes it.
    HKEY GetAppRegistryKey();
    HKEY GetSectionKey(LPCTSTR lpszSection);

    /// Fills what the constructor could not know. Called by the entry point.
    void SetCurrentHandles(HINSTANCE hInstance, LPTSTR lpCmdLine, int nCmdShow);

    afx_msg void OnAppExit();

protected:
    /// Settings go to the registry, under this company. The profile name becomes the application's name.
    void SetRegistryKey(LPCTSTR lpszRegistryKey);
    void SetRegistryKey(UINT nIDRegistryKey);

private:
    int m_nWaitCursorCount = 0;
    HCURSOR m_hcurWaitCursorRestore = nullptr;
};

/// Makes the framework ready in a program that has a main function of its own. FALSE when it cannot.
AFX_API BOOL AfxWinInit(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);
/// The whole life of a window program; what its entry point calls.
AFX_API int AfxWinMain(HINSTANCE hInstance, HINSTANCE hPrevInstance, LPTSTR lpCmdLine, int nCmdShow);

/// Temporary objects of FromHandle outlast idle times until the lock is taken back.
AFX_API void AfxLockTempMaps();
/// Deletes the temporary objects when the last lock goes and \p bDeleteTemps is TRUE. Answers whether locks
/// remain.
AFX_API BOOL AfxUnlockTempMaps(BOOL bDeleteTemps = TRUE);

/// One message of the thread's queue as Run handles it; for loops of one's own. FALSE at WM_QUIT.
AFX_API BOOL AfxPumpMessage();
AFX_API BOOL AfxPreTranslateMessage(MSG* pMsg);
AFX_API void AfxPostQuitMessage(int nExitCode);

inline constexpr UINT AFX_IDS_APP_TITLE = 0xE000;
inline constexpr UINT ID_APP_EXIT = 0xE141;
inline constexpr UINT ID_APP_ABOUT = 0xE140;
