#include "tarvo/intl/TextGuard_windows.h"

#include "tarvo/intl/WindowText_windows.h"

#include <map>

namespace
{
struct Guarded
{
    WNDPROC former;
    int guards = 0; ///< how many are active
};

std::map<HWND, Guarded>& AllGuarded()
{
    static std::map<HWND, Guarded> all;
    return all;
}

LRESULT CALLBACK GuardProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = AllGuarded().find(window);
    if (found == AllGuarded().end())
        return ::DefWindowProcW(window, message, wParam, lParam);
    const Guarded guarded = found->second;
    if (message == WM_SETTEXT && guarded.guards > 0)
        return TRUE;
    if (message == WM_NCDESTROY)
        AllGuarded().erase(found);
    return ::CallWindowProcW(guarded.former, window, message, wParam, lParam);
}

WNDPROC ProcOf(HWND window) { return reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(window, GWLP_WNDPROC)); }
} // namespace

CTextGuard::CTextGuard(const std::vector<HWND>& windows)
{
    for (const HWND window : windows)
    {
        const auto known = AllGuarded().find(window);
        if (known == AllGuarded().end())
        {
            const LONG_PTR former =
                ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(GuardProc));
            if (!former)
                continue; // it has just gone
            AllGuarded()[window] = {reinterpret_cast<WNDPROC>(former), 1};
        }
        else
            ++known->second.guards;
        m_windows.push_back(window);
    }
}

CTextGuard::~CTextGuard()
{
    for (const HWND window : m_windows)
    {
        const auto found = AllGuarded().find(window);
        if (found == AllGuarded().end() || --found->second.guards > 0)
            continue;
        // Whoever has taken the window's messages since still passes them on to GuardProc, which then stays.
        if (ProcOf(window) != GuardProc)
            continue;
        ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(found->second.former));
        AllGuarded().erase(found);
    }
}

CEntryKeeper::CEntryKeeper(const std::vector<HWND>& windows) : m_focus(::GetFocus())
{
    m_entries.reserve(windows.size());
    for (const HWND window : windows)
        m_entries.push_back(Take(window));
}

CEntryKeeper::~CEntryKeeper()
{
    for (const Entry& entry : m_entries)
        if (::IsWindow(entry.window))
            PutBack(entry);
    if (m_focus && ::GetFocus() != m_focus && ::IsWindow(m_focus) && ::IsWindowEnabled(m_focus))
        ::SetFocus(m_focus);
}

CEntryKeeper::Entry CEntryKeeper::Take(HWND window)
{
    Entry entry{};
    entry.window = window;
    wchar_t buffer[128];
    const CString name(ClassName(window, buffer).data());
    if (name.CompareNoCase(L"ComboBox") == 0)
    {
        entry.kind = Entry::Combo;
        entry.nChosen = static_cast<int>(::SendMessageW(window, CB_GETCURSEL, 0, 0));
        entry.strText = WindowText(window);
    }
    else if (name.CompareNoCase(L"ListBox") == 0)
    {
        entry.kind = Entry::List;
        entry.nChosen = static_cast<int>(::SendMessageW(window, LB_GETCURSEL, 0, 0));
        const auto count = static_cast<int>(::SendMessageW(window, LB_GETSELCOUNT, 0, 0));
        entry.arrChosen.resize(static_cast<std::size_t>(count > 0 ? count : 0));
        if (count > 0)
            ::SendMessageW(window, LB_GETSELITEMS, static_cast<WPARAM>(count),
                           reinterpret_cast<LPARAM>(entry.arrChosen.data()));
    }
    else
    {
        entry.kind = Entry::Text;
        ::SendMessageW(window, EM_GETSEL, reinterpret_cast<WPARAM>(&entry.nFrom),
                       reinterpret_cast<LPARAM>(&entry.nTo));
    }
    return entry;
}

void CEntryKeeper::PutBack(const Entry& entry)
{
    const Entry now = Take(entry.window);
    if (entry.kind == Entry::Text && (now.nFrom != entry.nFrom || now.nTo != entry.nTo))
        ::SendMessageW(entry.window, EM_SETSEL, entry.nFrom, static_cast<LPARAM>(entry.nTo));
    if (entry.kind == Entry::Combo && now.nChosen != entry.nChosen && entry.nChosen >= 0)
        ::SendMessageW(entry.window, CB_SETCURSEL, static_cast<WPARAM>(entry.nChosen), 0);
    // Typed text that is none of the lines; a chosen line may have another text now.
    if (entry.kind == Entry::Combo && entry.nChosen < 0 && now.strText != entry.strText)
        ::SetWindowTextW(entry.window, entry.strText);
    if (entry.kind != Entry::List)
        return;
    if (now.nChosen != entry.nChosen && entry.arrChosen.empty())
        ::SendMessageW(entry.window, LB_SETCURSEL, static_cast<WPARAM>(entry.nChosen), 0);
    if (now.arrChosen == entry.arrChosen)
        return;
    ::SendMessageW(entry.window, LB_SETSEL, FALSE, -1);
    for (const int line : entry.arrChosen)
        ::SendMessageW(entry.window, LB_SETSEL, TRUE, line);
}
