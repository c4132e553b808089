#include "tarvo/intl/RcStringExtract.h"

#include "tarvo/intl/ModuleTable_windows.h"
#include "tarvo/settings/HostApp.h"

#include <utility>

const UINT WM_QORVEL_RC_STRING_EXTRACT = ::RegisterWindowMessageW(L"WM_QORVEL_RC_STRING_EXTRACT");

namespace
{
IRcStringOpener* g_opener = nullptr;
}

IRcStringOpener::~IRcStringOpener()
{
    if (g_opener == this)
        g_opener = nullptr;
}

IRcStringOpener* IRcStringOpener::Instance() { return g_opener; }
IRcStringOpener* IRcStringOpener::Register(IRcStringOpener* opener)
{
    return std::exchange(g_opener, opener);
}

CRcSource::~CRcSource() = default;

UINT CRcSource::GetExtractMessage() { return WM_QORVEL_RC_STRING_EXTRACT; }

CString CRcSource::GetDlgResSymbol() const
{
    if (!m_strDlgResSymbol.IsEmpty() || m_nDlgResID == 0)
        return m_strDlgResSymbol;
    const HINSTANCE module = AfxFindResourceHandle(MAKEINTRESOURCEW(m_nDlgResID), RT_DIALOG);
    XMultiLang* const table = TableOfModule(module).pTable;
    CString value;
    value.Format(L"%u", m_nDlgResID);
    return table ? table->GetResourceHeader().FindFirst(CResourceHeader::Dialog, value) : CString();
}

bool CRcSource::IsChangerKey(const MSG& msg)
{
    constexpr LPARAM kAltIsHeld = 1 << 29;
    return msg.message == WM_SYSKEYDOWN && msg.wParam == VK_F12 &&
           ((msg.lParam & kAltIsHeld) || ::GetKeyState(VK_MENU) < 0);
}

void CRcSource::SetResource(UINT id, const CString& symbol)
{
    m_nDlgResID = id;
    m_strDlgResSymbol = symbol;
    m_lists.Clear();
}

void CRcSource::OpenChanger(CWnd* dialog)
{
    IRcStringOpener* const opener = IRcStringOpener::Instance();
    if (!opener)
        return;
    CRcStringExtract preset;
    preset.pDialog = dialog;
    preset.strFile1 = m_strWorkFolder + L"\\RCFiles\\" + m_strRCFile;
    preset.strFile2 = m_strWorkFolder + L"\\RCFiles\\" + m_strRCFile2;
    preset.strCurrentFile = preset.strFile1;
    preset.nDlgResID = m_nDlgResID;
    preset.strDlgResSymbol = GetDlgResSymbol();
    preset.strText = m_strText;
    preset.pLists = &m_lists;
    preset.nLanguage = CHostApp::ReadInt(L"LANGUAGE", L"LANGUAGE", 0);
    opener->Open(preset);
}
