#pragma once

/// The framework's own state: which object stands for which handle, and what a thread is doing. Not for
/// users of the framework.

#include "afxapp.h"
#include "afxdc.h"
#include "afximagelist.h"
#include "afxmenu.h"
#include "afxwnd.h"

#include <memory>
#include <unordered_map>

/// Which object stands for a handle: a permanent one, attached by somebody, or one made on the way by
/// FromHandle, which lives until the next idle time. The second never owns its handle.
template <class Object, class Handle, auto HandleMember>
class AfxHandleMap
{
public:
    Object* LookupPermanent(Handle handle) const
    {
        auto it = m_permanent.find(handle);
        return it == m_permanent.end() ? nullptr : it->second;
    }
    void SetPermanent(Handle handle, Object* pObject) { m_permanent[handle] = pObject; }
    /// Leaves another object's entry alone: the handle may have been attached anew.
    void Remove(Handle handle, const Object* pObject)
    {
        auto it = m_permanent.find(handle);
        if (it != m_permanent.end() && it->second == pObject)
            m_permanent.erase(it);
    }
    Object* FromHandle(Handle handle)
    {
        if (!handle)
            return nullptr;
        if (Object* pObject = LookupPermanent(handle))
            return pObject;
        auto& pTemporary = m_temporary[handle];
        if (!pTemporary)
            pTemporary = new Object;
        pTemporary->*HandleMember = handle; // a temporary object that was told to give its handle up
        return pTemporary;
    }
    void DeleteTemporary()
    {
        auto temporary = std::move(m_temporary);
        m_temporary.clear();
        for (auto& [handle, pObject] : temporary)
        {
            pObject->*HandleMember = nullptr;
            delete pObject;
        }
    }

private:
    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Object*> m_temporary;
};

/// Tells code that works on an object across messages whether the object was deleted meanwhile.
class AfxLifeLine
{
public:
    explicit AfxLifeLine(CWnd* pWnd);
    ~AfxLifeLine();
    AfxLifeLine(const AfxLifeLine&) = delete;
    AfxLifeLine& operator=(const AfxLifeLine&) = delete;
    bool IsAlive() const { return m_pWnd != nullptr; }
    /// From the object's destructor.
    static void Cut(const CWnd* pWnd);

private:
    CWnd* m_pWnd;
    AfxLifeLine* m_pOuter;
};

struct AFX_THREAD_STATE
{
    AfxHandleMap<CWnd, HWND, &CWnd::m_hWnd> windows;
    AfxHandleMap<CMenu, HMENU, &CMenu::m_hMenu> menus;
    AfxHandleMap<CDC, HDC, &CDC::m_hDC> contexts;
    AfxHandleMap<CGdiObject, HGDIOBJ, &CGdiObject::m_hObject> objects;
    AfxHandleMap<CImageList, HIMAGELIST, &CImageList::m_hImageList> imageLists;

    AFX_MODULE_STATE* pModuleState = nullptr; ///< null: the program's
    CWinThread* pThread = nullptr;
    int nTempMapLock = 0;

    CWnd* pWndInit = nullptr;      ///< the object that waits for the window being created
    HWND hWndInitParent = nullptr; ///< whose child that window is; null: any window will do
    HHOOK hCreationHook = nullptr;
    MSG lastSentMsg{};                   ///< what Default() repeats
    HWND hLockoutNotifyWindow = nullptr; ///< the dialog whose data is being exchanged: takes no notifications
    AfxLifeLine* pLifeLines = nullptr;
};

/// What the framework does to a window's object from outside.
struct AfxWndAccess
{
    /// Attaches and takes the window's messages.
    static void Adopt(CWnd* pWnd, HWND hWnd);
    static LRESULT Call(CWnd* pWnd, const MSG& msg);
    static INT_PTR InitDialog(CWnd* pWnd, const MSG& msg);
    static void Abandon(CWnd* pWnd) { pWnd->PostNcDestroy(); }
    static void Exchange(CWnd* pWnd, CDataExchange* pDX) { pWnd->DoDataExchange(pDX); }
};

void AfxSetAppModuleState(AFX_MODULE_STATE* pState);
void AfxInitCommonControls();
/// Of a template of either form.
DWORD AfxTemplateStyle(const DLGTEMPLATE* pTemplate);
CPoint AfxTemplatePlace(const DLGTEMPLATE* pTemplate);
void AfxSetTemplateStyle(DLGTEMPLATE* pTemplate, DWORD dwStyle, DWORD dwExStyle);
/// The message that AfxPumpMessage took last.
MSG* AfxCurrentMessage();
BOOL AfxIsIdleMessage(MSG* pMsg);

/// What a message answers whose handler threw; deletes the exception. Null: one that is not the framework's.
LRESULT AfxProcessException(CException* e, const MSG& msg);

/// This thread's state, made on first use and freed when the thread ends.
AFX_THREAD_STATE& AfxThreadState();

/// Called around everything that runs user code for a window, so that resources are found in the module
/// that the window belongs to.
class AfxStateScope
{
public:
    explicit AfxStateScope(AFX_MODULE_STATE* pState)
        : m_pFormer(std::exchange(AfxThreadState().pModuleState, pState))
    {
    }
    ~AfxStateScope() { AfxThreadState().pModuleState = m_pFormer; }
    AfxStateScope(const AfxStateScope&) = delete;
    AfxStateScope& operator=(const AfxStateScope&) = delete;

private:
    AFX_MODULE_STATE* m_pFormer;
};

/// Runs \p call, which runs user code for the message, and lets no exception out: the answer is then
/// what ProcessWndProcException gives.
template <class Call>
LRESULT AfxGuardedCall(const MSG& msg, Call call)
{
    try
    {
        return call();
    }
    catch (CException* e)
    {
        return AfxProcessException(e, msg);
    }
    catch (...)
    {
        return AfxProcessException(nullptr, msg);
    }
}
