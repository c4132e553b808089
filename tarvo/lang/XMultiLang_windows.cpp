#include "tarvo/lang/XMultiLang.h"

#include "platform/module.h"
#include "tarvo/lang/MenuText_windows.h"
#include "tarvo/lang/PaintingPause_windows.h"

#include "qlx/qlx_lib.h"

#include <afxwin.h>

#include <vector>

namespace
{
/// The most characters of a text that the message catalogue's texts replace.
constexpr int kMostText = 260;

CString TextOf(HWND window)
{
    wchar_t text[kMostText + 1] = {};
    ::GetWindowTextW(window, text, kMostText + 1);
    return text;
}

/// The direct children of a dialog as they are now. Setting a text runs handlers that may destroy any of
/// them, or the dialog, so each is to be looked at again before it is used.
std::vector<HWND> ChildrenOf(HWND dialog)
{
    std::vector<HWND> children;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

bool IsChildOf(HWND child, HWND dialog) { return ::IsWindow(child) && ::GetParent(child) == dialog; }
} // namespace

int XMultiLang::LoadResourceHeader(int id, const wchar_t* type)
{
    return LoadResourceHeaderByDLL(id, type, AfxGetResourceHandle());
}

CString XMultiLang::__TranslateCtrlID(CWnd* window, int id)
{
    if (!window || !window->m_hWnd)
        return {};
    CTranslateCount ignored;
    return TranslateWindow(window->m_hWnd, NamesOf(id), ignored);
}

/// Sets the text that the language files have for a window and returns it; empty when they have none.
CString XMultiLang::TranslateWindow(HWND window, const CString& names, CTranslateCount& count)
{
    CString text;
    switch (FindControlText(names, text))
    {
    case SOURCE_DIALOG:
        ++count.nTranslated;
        break;
    case SOURCE_FALLBACK:
        ++count.nFallback;
        break;
    case SOURCE_NONE:
        if (::GetWindowTextLengthW(window) > 0)
        {
            ++count.nMissing;
            NoteMissingControl(names);
        }
        return {};
    }
    ::SetWindowTextW(window, text);
    return text;
}

CTranslateCount XMultiLang::TranslateDialog(HWND dialog, unsigned int id)
{
    CTranslateCount count;
    if (!SelectDialog(id) || !::IsWindow(dialog))
        return count;
    const std::vector<HWND> children = ChildrenOf(dialog);
    const CPaintingPause pause(dialog);
    TranslateWindow(dialog, m_strDialog, count);
    for (const HWND child : children)
    {
        if (!IsChildOf(child, dialog))
            continue;
        const CString names = NamesOf(::GetDlgCtrlID(child));
        if (!names.IsEmpty())
            TranslateWindow(child, names, count);
    }
    return count;
}

void XMultiLang::SetDlgTexts(HWND dialog, unsigned int id, CString project)
{
    m_hDialog = dialog;
    CString text;
    if (!SelectDlgTexts(id, project))
        return;
    const CPaintingPause pause(dialog);
    if (GetDlgCaptionText(TextOf(dialog), text))
        ::SetWindowTextW(dialog, text);
    ::EnumChildWindows(dialog, EnumProc, reinterpret_cast<LPARAM>(this));
}

int XMultiLang::EnumProc(HWND child, LPARAM table)
{
    XMultiLang& self = *reinterpret_cast<XMultiLang*>(table);
    CString text;
    if (IsChildOf(child, self.m_hDialog) &&
        self.GetDlgControlText(::GetDlgCtrlID(child), TextOf(child), text))
        ::SetWindowTextW(child, text);
    return 1;
}

CString MenuItemText(HMENU menu, UINT position)
{
    const int length = ::GetMenuStringW(menu, position, nullptr, 0, MF_BYPOSITION);
    CString text;
    if (length > 0)
    {
        ::GetMenuStringW(menu, position, text.GetBuffer(length), length + 1, MF_BYPOSITION);
        text.ReleaseBuffer();
    }
    return text;
}

int XMultiLang::TranslateMenuStringSub(HMENU menu)
{
    int count = 0;
    ForEachMenuText(menu, [&](HMENU owner, UINT position, UINT id, bool isPopup) {
        CString translated;
        if (!FindMenuText(id, isPopup, MenuItemText(owner, position), translated))
            return;
        MENUITEMINFOW item = {};
        item.cbSize = sizeof item;
        item.fMask = MIIM_STRING;
        item.dwTypeData = translated.GetBuffer();
        count += ::SetMenuItemInfoW(owner, position, TRUE, &item) ? 1 : 0;
    });
    return count;
}

namespace
{
struct Preview
{
    XMultiLang* pTable;
    unsigned int nDialog;
};

INT_PTR CALLBACK PreviewProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message)
    {
    case WM_INITDIALOG: {
        const Preview& preview = *reinterpret_cast<const Preview*>(lParam);
        preview.pTable->TranslateDialog(dialog, preview.nDialog);
        return TRUE;
    }
    case WM_COMMAND:
        if (LOWORD(wParam) >= IDOK && LOWORD(wParam) <= IDCLOSE)
            ::EndDialog(dialog, LOWORD(wParam));
        return TRUE;
    default:
        return FALSE;
    }
}
} // namespace

int XMultiLang::OnMyModalDialogIndirect(HINSTANCE module, unsigned int id, HWND owner)
{
    const auto resource = platform::module::resource(module, static_cast<int>(id), RT_DIALOG);
    if (!resource)
        return -1;
    const Preview preview{this, id};
    return static_cast<int>(
        ::DialogBoxIndirectParamW(module, reinterpret_cast<LPCDLGTEMPLATEW>(resource->data()), owner,
                                  PreviewProc, reinterpret_cast<LPARAM>(&preview)));
}
