#pragma once

#include <afx.h>

/// The class name of the framework's exception that \p f throws, or "nothing".
template <class F>
CString thrown_by(F f)
{
    try
    {
        f();
    }
    catch (CException* e)
    {
        const CString name(e->GetRuntimeClass()->m_lpszClassName);
        e->Delete();
        return name;
    }
    return L"nothing";
}
