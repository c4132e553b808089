#include "afxdlg.h"
#include "afxstate.h"

#include <cerrno>
#include <climits>
#include <cmath>
#include <cwchar>

BOOL CWnd::UpdateData(BOOL bSaveAndValidate)
{
    if (!m_hWnd)
        return FALSE;
    CDataExchange dx(this, bSaveAndValidate);
    AFX_THREAD_STATE& state = AfxThreadState();
    // Controls that are being filled announce changes that are none of the user's.
    const HWND hFormer = std::exchange(state.hLockoutNotifyWindow, m_hWnd);
    BOOL bDone = FALSE;
    try
    {
        DoDataExchange(&dx);
        bDone = TRUE;
    }
    catch (CUserException* e)
    {
        e->Delete(); // the user has been told
    }
    catch (CException* e)
    {
        WCHAR szText[512] = {};
        if (e->GetErrorMessage(szText, static_cast<UINT>(std::size(szText))))
            AfxMessageBox(szText, MB_ICONSTOP);
        e->Delete();
    }
    catch (...)
    {
        state.hLockoutNotifyWindow = hFormer;
        throw;
    }
    state.hLockoutNotifyWindow = hFormer;
    return bDone;
}

HWND CDataExchange::PrepareCtrl(int nIDC)
{
    HWND hWndCtrl = nullptr;
    m_pDlgWnd->GetDlgItem(nIDC, &hWndCtrl);
    if (!hWndCtrl)
    {
        TRACE(L"The dialog has no control %d\n", nIDC);
        AfxThrowNotSupportedException();
    }
    m_hWndLastControl = hWndCtrl;
    m_idLastControl = nIDC;
    m_bEditLastControl = FALSE;
    return hWndCtrl;
}

HWND CDataExchange::PrepareEditCtrl(int nIDC)
{
    const HWND hWndCtrl = PrepareCtrl(nIDC);
    m_bEditLastControl = TRUE;
    return hWndCtrl;
}

void CDataExchange::Fail()
{
    if (m_bSaveAndValidate && m_hWndLastControl)
    {
        ::SetFocus(m_hWndLastControl);
        if (m_bEditLastControl)
            ::SendMessageW(m_hWndLastControl, EM_SETSEL, 0, -1);
    }
    AfxThrowUserException();
}

namespace
{
CString TextOf(HWND hWnd)
{
    CString strText;
    const int nLength = ::GetWindowTextLengthW(hWnd);
    const int nRead = ::GetWindowTextW(hWnd, strText.GetBuffer(nLength), nLength + 1);
    strText.ReleaseBuffer(nRead);
    return strText;
}

/// An unchanged text is not set again: it would flicker and move the caret.
void SetText(HWND hWnd, const CString& strText)
{
    if (TextOf(hWnd) != strText)
        ::SetWindowTextW(hWnd, strText);
}

[[noreturn]] void Refuse(CDataExchange* pDX, const CString& strPrompt)
{
    AfxMessageBox(strPrompt, MB_ICONEXCLAMATION);
    pDX->Fail();
}

bool OnlySpaceAt(LPCTSTR psz)
{
    while (::iswspace(*psz))
        ++psz;
    return *psz == 0;
}

bool ParseSigned(LPCTSTR psz, long long low, long long high, long long& value)
{
    LPTSTR pszEnd = nullptr;
    errno = 0;
    value = ::wcstoll(psz, &pszEnd, 10);
    return pszEnd != psz && OnlySpaceAt(pszEnd) && errno == 0 && value >= low && value <= high;
}

bool ParseReal(LPCTSTR psz, double& value)
{
    LPTSTR pszEnd = nullptr;
    value = ::wcstod(psz, &pszEnd);
    return pszEnd != psz && OnlySpaceAt(pszEnd) && std::isfinite(value);
}

template <class T>
void ExchangeInteger(CDataExchange* pDX, int nIDC, T& value, long long low, long long high, LPCTSTR pszPrompt)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString strText;
        strText.Format(L"%I64d", static_cast<long long>(value));
        SetText(hWnd, strText);
        return;
    }
    long long read = 0;
    if (!ParseSigned(TextOf(hWnd), low, high, read))
        Refuse(pDX, pszPrompt);
    value = static_cast<T>(read);
}

template <class T>
void ExchangeReal(CDataExchange* pDX, int nIDC, T& value, int nDigits)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        CString strText;
        strText.Format(L"%.*g", nDigits, static_cast<double>(value));
        SetText(hWnd, strText);
        return;
    }
    double read = 0;
    if (!ParseReal(TextOf(hWnd), read))
        Refuse(pDX, L"Please enter a number.");
    value = static_cast<T>(read);
}

constexpr LPCTSTR INTEGER_PROMPT = L"Please enter an integer.";
constexpr LPCTSTR POSITIVE_PROMPT = L"Please enter a positive integer.";
} // namespace

void DDX_Control(CDataExchange* pDX, int nIDC, CWnd& rControl)
{
    if (rControl.m_hWnd)
        return;
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (!rControl.SubclassWindow(hWnd)) // two members for one control
        AfxThrowNotSupportedException();
}

void DDX_Text(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND hWnd = pDX->PrepareEditCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = TextOf(hWnd);
    else
        SetText(hWnd, value);
}

void DDX_Text(CDataExchange* pDX, int nIDC, int& value)
{
    ExchangeInteger(pDX, nIDC, value, INT_MIN, INT_MAX, INTEGER_PROMPT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, UINT& value)
{
    ExchangeInteger(pDX, nIDC, value, 0, UINT_MAX, POSITIVE_PROMPT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, long& value)
{
    ExchangeInteger(pDX, nIDC, value, LONG_MIN, LONG_MAX, INTEGER_PROMPT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, DWORD& value)
{
    ExchangeInteger(pDX, nIDC, value, 0, ULONG_MAX, POSITIVE_PROMPT);
}
void DDX_Text(CDataExchange* pDX, int nIDC, double& value) { ExchangeReal(pDX, nIDC, value, DBL_DIG); }
void DDX_Text(CDataExchange* pDX, int nIDC, float& value) { ExchangeReal(pDX, nIDC, value, FLT_DIG); }

void DDX_Check(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = static_cast<int>(::SendMessageW(hWnd, BM_GETCHECK, 0, 0));
        return;
    }
    if (value < BST_UNCHECKED || value > BST_INDETERMINATE)
        value = BST_CHECKED;
    ::SendMessageW(hWnd, BM_SETCHECK, static_cast<WPARAM>(value), 0);
}

void DDX_Radio(CDataExchange* pDX, int nIDC, int& value)
{
    HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = -1;
    int iButton = 0;
    do // other controls may stand between the buttons of a group; the next WS_GROUP ends it
    {
        if (!(::SendMessageW(hWnd, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON))
            continue;
        if (!pDX->m_bSaveAndValidate)
            ::SendMessageW(hWnd, BM_SETCHECK, iButton == value, 0);
        else if (::SendMessageW(hWnd, BM_GETCHECK, 0, 0) != 0)
            value = iButton;
        ++iButton;
    } while ((hWnd = ::GetWindow(hWnd, GW_HWNDNEXT)) != nullptr &&
             !(::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_GROUP));
}

void DDX_CBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(hWnd, CB_GETCURSEL, 0, 0));
    else
        ::SendMessageW(hWnd, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

namespace
{
void ExchangeComboText(CDataExchange* pDX, int nIDC, CString& value, bool bExact)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
    {
        value = TextOf(hWnd); // of a list without edit part: the selected line
        return;
    }
    const auto text = reinterpret_cast<LPARAM>(value.GetString());
    LRESULT lFound = CB_ERR;
    if (bExact)
    {
        lFound = ::SendMessageW(hWnd, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), text);
        ::SendMessageW(hWnd, CB_SETCURSEL, static_cast<WPARAM>(lFound), 0);
    }
    else
        lFound = ::SendMessageW(hWnd, CB_SELECTSTRING, static_cast<WPARAM>(-1), text);
    if (lFound == CB_ERR)
        SetText(hWnd, value);
}
} // namespace

void DDX_CBString(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, false);
}
void DDX_CBStringExact(CDataExchange* pDX, int nIDC, CString& value)
{
    ExchangeComboText(pDX, nIDC, value, true);
}

void DDX_LBIndex(CDataExchange* pDX, int nIDC, int& index)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        index = static_cast<int>(::SendMessageW(hWnd, LB_GETCURSEL, 0, 0));
    else
        ::SendMessageW(hWnd, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void DDX_LBString(CDataExchange* pDX, int nIDC, CString& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (!pDX->m_bSaveAndValidate)
    {
        ::SendMessageW(hWnd, LB_SELECTSTRING, static_cast<WPARAM>(-1),
                       reinterpret_cast<LPARAM>(value.GetString()));
        return;
    }
    value.Empty();
    const LRESULT lSelected = ::SendMessageW(hWnd, LB_GETCURSEL, 0, 0);
    if (lSelected == LB_ERR)
        return;
    const LRESULT lLength = ::SendMessageW(hWnd, LB_GETTEXTLEN, static_cast<WPARAM>(lSelected), 0);
    ::SendMessageW(hWnd, LB_GETTEXT, static_cast<WPARAM>(lSelected),
                   reinterpret_cast<LPARAM>(value.GetBufferSetLength(static_cast<int>(lLength))));
    value.ReleaseBuffer();
}

void DDX_Scroll(CDataExchange* pDX, int nIDC, int& value)
{
    const HWND hWnd = pDX->PrepareCtrl(nIDC);
    if (pDX->m_bSaveAndValidate)
        value = ::GetScrollPos(hWnd, SB_CTL);
    else
        ::SetScrollPos(hWnd, SB_CTL, value, TRUE);
}

namespace
{
template <class T>
void CheckRange(CDataExchange* pDX, T value, T low, T high, LPCTSTR pszFormat)
{
    if (value >= low && value <= high)
        return;
    CString strPrompt;
    strPrompt.Format(pszFormat, low, high);
    if (!pDX->m_bSaveAndValidate)
    {
        TRACE(L"A value to show is out of range. %s\n", strPrompt.GetString());
        return;
    }
    Refuse(pDX, strPrompt);
}
} // namespace

void DDV_MinMaxInt(CDataExchange* pDX, int value, int minVal, int maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, L"Please enter an integer between %d and %d.");
}

void DDV_MinMaxUInt(CDataExchange* pDX, UINT value, UINT minVal, UINT maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, L"Please enter an integer between %u and %u.");
}

void DDV_MinMaxLong(CDataExchange* pDX, long value, long minVal, long maxVal)
{
    CheckRange(pDX, value, minVal, maxVal, L"Please enter an integer between %ld and %ld.");
}

void DDV_MinMaxDouble(CDataExchange* pDX, const double& value, double minVal, double maxVal, int precision)
{
    CString strFormat;
    strFormat.Format(L"Please enter a number between %%.%dg and %%.%dg.", precision, precision);
    CheckRange(pDX, value, minVal, maxVal, strFormat);
}

void DDV_MaxChars(CDataExchange* pDX, const CString& value, int nChars)
{
    if (pDX->m_bSaveAndValidate && value.GetLength() > nChars)
    {
        CString strPrompt;
        strPrompt.Format(L"Please enter no more than %d characters.", nChars);
        Refuse(pDX, strPrompt);
    }
    if (!pDX->m_bSaveAndValidate && pDX->m_hWndLastControl && pDX->m_bEditLastControl)
    {
        // A combo box limits its edit part.
        WCHAR szClass[16] = {};
        ::GetClassNameW(pDX->m_hWndLastControl, szClass, static_cast<int>(std::size(szClass)));
        const UINT message = ::lstrcmpiW(szClass, L"ComboBox") == 0 ? CB_LIMITTEXT : EM_LIMITTEXT;
        ::SendMessageW(pDX->m_hWndLastControl, message, static_cast<WPARAM>(nChars), 0);
    }
}
