#include "tarvo/intl/TemplateTexts_windows.h"

#include "tarvo/intl/TextOwner.h"
#include "tarvo/intl/WindowText_windows.h"

void CTemplateTexts::Note(HWND window)
{
    m_window = window;
    m_entries.clear();
    m_records.assign(1, {window, ::GetDlgCtrlID(window), WindowText(window), {}});
    for (const HWND child : ChildrenOf(window))
    {
        wchar_t buffer[128];
        const int id = ::GetDlgCtrlID(child);
        const TextOwner::Control control{ClassName(child, buffer),
                                         (::SendMessageW(child, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0,
                                         static_cast<unsigned>(::GetWindowLongPtrW(child, GWL_STYLE))};
        if (TextOwner::IsEntry(control))
            m_entries.push_back({child, id, TextOwner::IsReadOnlyEntry(control)});
        else
            m_records.push_back({child, id, WindowText(child), {}});
    }
    for (Record& record : m_records)
        record.left = record.original;
}

bool CTemplateTexts::IsThere(HWND window, int id) const
{
    if (window == m_window)
        return ::IsWindow(window) != FALSE;
    return ::IsWindow(window) && ::GetAncestor(window, GA_PARENT) == m_window && ::GetDlgCtrlID(window) == id;
}

void CTemplateTexts::Examine()
{
    for (Record& record : m_records)
        record.isLeft = IsThere(record.window, record.id) && WindowText(record.window) == record.left;
}

void CTemplateTexts::Settle()
{
    for (Record& record : m_records)
        if (record.isLeft && IsThere(record.window, record.id))
            record.left = WindowText(record.window);
}

void CTemplateTexts::Show(const Record& record, const CString& text)
{
    if (text != record.left)
        ::SetWindowTextW(record.window, text);
}

void CTemplateTexts::TranslateBy(const std::function<CString(HWND, const CString&)>& translated)
{
    // Setting a text runs handlers that may destroy any of the windows.
    for (const Record& record : m_records)
        if (record.isLeft && IsThere(record.window, record.id))
            Show(record, translated(record.window, record.original));
}

int CTemplateTexts::Translate(XMultiLang& table, UINT dialog, const CString& project)
{
    if (!table.SelectDlgTexts(dialog, project))
    {
        Restore();
        return 0;
    }
    TranslateBy([&](HWND window, const CString& original) {
        CString text = original;
        if (window == m_window)
            table.GetDlgCaptionText(original, text);
        else
            table.GetDlgControlText(::GetDlgCtrlID(window), original, text);
        return text;
    });
    return 1;
}

void CTemplateTexts::Restore()
{
    TranslateBy([](HWND, const CString& original) { return original; });
}

std::vector<HWND> CTemplateTexts::GetSetByProgram() const
{
    std::vector<HWND> found;
    for (const Record& record : m_records)
        if (!record.isLeft && IsThere(record.window, record.id))
            found.push_back(record.window);
    return found;
}

std::vector<HWND> CTemplateTexts::EntriesWhere(bool readOnly) const
{
    std::vector<HWND> found;
    for (const Entry& entry : m_entries)
        if (entry.readOnly == readOnly && IsThere(entry.window, entry.id))
            found.push_back(entry.window);
    return found;
}

std::vector<HWND> CTemplateTexts::GetEntries() const
{
    std::vector<HWND> all = GetTypedEntries();
    const std::vector<HWND> others = GetReadOnlyEntries();
    all.insert(all.end(), others.begin(), others.end());
    return all;
}
