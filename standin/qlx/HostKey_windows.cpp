#include "qlx/HostKey.h"

#include <afxwin.h>

namespace qlx::lib
{
CString application_key()
{
    const CWinApp* app = AfxGetApp();
    CString key;
    if (app && app->m_pszRegistryKey && app->m_pszProfileName)
        key.Format(L"Software\\%s\\%s\\", app->m_pszRegistryKey, app->m_pszProfileName);
    return key;
}
} // namespace qlx::lib
