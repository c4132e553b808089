#include "bcgpvisualmanager.h"

#include "bcgpwindowstyle.h"

#include <memory>

IMPLEMENT_DYNCREATE(CBCGPVisualManager, CObject)

namespace
{
std::unique_ptr<CBCGPVisualManager> s_pManager;
CRuntimeClass* s_pManagerClass = nullptr; // null: the plain theme

std::unique_ptr<CBCGPVisualManager> MakeManager()
{
    const bool bFits = s_pManagerClass && s_pManagerClass->IsDerivedFrom(RUNTIME_CLASS(CBCGPVisualManager));
    CObject* pObject = bFits ? s_pManagerClass->CreateObject() : nullptr;
    return pObject ? std::unique_ptr<CBCGPVisualManager>(static_cast<CBCGPVisualManager*>(pObject))
                   : std::make_unique<CBCGPVisualManager>();
}

COLORREF Halfway(COLORREF a, COLORREF b)
{
    return RGB((GetRValue(a) + GetRValue(b)) / 2, (GetGValue(a) + GetGValue(b)) / 2,
               (GetBValue(a) + GetBValue(b)) / 2);
}
} // namespace

CBCGPVisualManager* CBCGPVisualManager::GetInstance()
{
    if (!s_pManager)
        s_pManager = MakeManager();
    return s_pManager.get();
}

void CBCGPVisualManager::SetDefaultManager(CRuntimeClass* pRTI)
{
    s_pManagerClass = pRTI;
    s_pManager.reset();
    CBCGPWindowStyle::RedrawAll();
}

void CBCGPVisualManager::DestroyInstance() { s_pManager.reset(); }

CBrush& CBCGPVisualManager::GetDlgBackBrush(CWnd*)
{
    if (!m_brBackground.GetSafeHandle())
        m_brBackground.CreateSolidBrush(Halfway(::GetSysColor(COLOR_3DFACE), ::GetSysColor(COLOR_WINDOW)));
    return m_brBackground;
}

COLORREF CBCGPVisualManager::GetDlgTextColor(CWnd*) { return ::GetSysColor(COLOR_WINDOWTEXT); }

void CBCGPVisualManager::OnFillDialog(CDC* pDC, CWnd* pDlg, CRect rect)
{
    pDC->FillRect(rect, &GetDlgBackBrush(pDlg));
}

void CBCGPVisualManager::OnUpdateSystemColors() { m_brBackground.DeleteObject(); }
