#include "afxroute.h"
#include "afxstate.h"

IMPLEMENT_DYNAMIC(CCmdTarget, CObject)

CCmdTarget::CCmdTarget() : m_pModuleState(AfxThreadState().pModuleState) {}

const AFX_MSGMAP* PASCAL CCmdTarget::GetThisMessageMap()
{
    static const AFX_MSGMAP_ENTRY entries[] = {{0, 0, 0, 0, nullptr, nullptr}};
    static const AFX_MSGMAP map = {nullptr, entries};
    return &map;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

const AFX_MSGMAP_ENTRY* AfxFindEntry(const AFX_MSGMAP* pMap,
                                     bool (*fits)(const AFX_MSGMAP_ENTRY&, const AfxRouteKey&),
                                     const AfxRouteKey& key)
{
    for (; pMap; pMap = pMap->pfnGetBaseMap ? pMap->pfnGetBaseMap() : nullptr)
        for (const AFX_MSGMAP_ENTRY* pEntry = pMap->lpEntries; pEntry->pfnCall; ++pEntry)
            if (fits(*pEntry, key))
                return pEntry;
    return nullptr;
}

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    const bool bUpdate = nCode == CN_UPDATE_COMMAND_UI;
    UINT nMessage = bUpdate ? 0 : HIWORD(nCode);
    if (nMessage == 0)
        nMessage = WM_COMMAND;
    const AfxRouteKey key{nMessage, bUpdate ? static_cast<UINT>(nCode) : LOWORD(nCode), nID};
    const AFX_MSGMAP_ENTRY* pEntry = AfxFindEntry(
        GetMessageMap(),
        [](const AFX_MSGMAP_ENTRY& entry, const AfxRouteKey& k) {
            return entry.nMessage == k.nMessage && entry.nCode == k.nCode && k.nID >= entry.nID &&
                   k.nID <= entry.nLastID;
        },
        key);
    if (!pEntry)
        return FALSE;
    if (pHandlerInfo)
    {
        *pHandlerInfo = {this, pEntry};
        return TRUE;
    }
    AFX_MSGCALL call{nMessage, 0, 0, 0, nID, nullptr, nullptr, nullptr, TRUE};
    if (bUpdate)
        call.pCmdUI = static_cast<CCmdUI*>(pExtra);
    else if (pExtra)
    {
        const auto* pNotify = static_cast<AFX_NOTIFY*>(pExtra);
        call.pNMHDR = pNotify->pNMHDR;
        call.pResult = pNotify->pResult;
    }
    pEntry->pfnCall(this, call);
    return call.bHandled;
}

void CCmdTarget::BeginWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(1);
}

void CCmdTarget::EndWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    if (CWinApp* pApp = AfxGetApp())
        pApp->DoWaitCursor(0);
}

CWaitCursor::CWaitCursor() : m_hFormer(::SetCursor(::LoadCursorW(nullptr, IDC_WAIT))) {}
CWaitCursor::~CWaitCursor() { ::SetCursor(m_hFormer); }
void CWaitCursor::Restore() { ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT)); }
