#pragma once

#include <afxwin.h>

#include <vector>

/// Keeps the texts of some windows as they are while it lives, whoever sets others: the code that sets a
/// dialog's texts need not know which of its controls hold entries.
class CTextGuard
{
public:
    explicit CTextGuard(const std::vector<HWND>& windows);
    ~CTextGuard();
    CTextGuard(const CTextGuard&) = delete;
    CTextGuard& operator=(const CTextGuard&) = delete;

private:
    std::vector<HWND> m_windows;
};

/// What the user has entered and chosen in some windows, and where the focus is; the destructor puts back
/// what has changed since. No notification is sent for it.
class CEntryKeeper
{
public:
    explicit CEntryKeeper(const std::vector<HWND>& windows);
    ~CEntryKeeper();
    CEntryKeeper(const CEntryKeeper&) = delete;
    CEntryKeeper& operator=(const CEntryKeeper&) = delete;

private:
    struct Entry
    {
        HWND window;
        enum KIND
        {
            Text,
            Combo,
            List
        } kind;
        DWORD nFrom = 0; ///< of the selected characters
        DWORD nTo = 0;
        int nChosen = -1;           ///< a combo box's or a list's line
        CString strText;            ///< of a combo box with an edit field
        std::vector<int> arrChosen; ///< of a list in which many lines can be
    };
    static Entry Take(HWND window);
    static void PutBack(const Entry& entry);

    HWND m_focus;
    std::vector<Entry> m_entries;
};
