#pragma once

#include "tarvo/lang/XMultiLang.h"

#include <afxwin.h>

#include <functional>
#include <vector>

/// The texts that a window and its direct children have from their template, and which a translation
/// replaces. A change of language translates them anew from what the template said, so that a text without
/// an entry in the new language comes out as in a window that is opened in it.
///
/// A text that is no longer the one that the last translation left was set by the program and is the
/// program's; entries (TextOwner) are the user's. Both are left alone.
class CTemplateTexts
{
public:
    /// Notes the texts, before anything has set one.
    void Note(HWND window);
    /// Finds out which texts are still those that the last translation left. Comes before each translation.
    void Examine();
    /// Comes after it: takes the texts that it replaced for those that it left.
    void Settle();
    /// Translates the texts that Examine found by the message catalogue, as XMultiLang::SetDlgTexts does, but
    /// each from its original; only texts that change are set. 0 when the identifier names no dialog: the
    /// originals are shown.
    int Translate(XMultiLang& table, UINT dialog, const CString& project);
    /// The same by \p translated, which gets a window and its original.
    void TranslateBy(const std::function<CString(HWND window, const CString& original)>& translated);
    /// Shows the originals of the texts that Examine found.
    void Restore();

    /// The controls whose text the program has set, by the last Examine.
    std::vector<HWND> GetSetByProgram() const;
    /// The controls with entries: all, those that the user can type into, and the others.
    std::vector<HWND> GetEntries() const;
    std::vector<HWND> GetTypedEntries() const { return EntriesWhere(false); }
    std::vector<HWND> GetReadOnlyEntries() const { return EntriesWhere(true); }

private:
    struct Record
    {
        HWND window;
        int id; ///< tells the control from another one that got its handle later
        CString original;
        CString left;
        bool isLeft = true; ///< by the last Examine
    };
    struct Entry
    {
        HWND window;
        int id;
        bool readOnly;
    };
    std::vector<HWND> EntriesWhere(bool readOnly) const;
    bool IsThere(HWND window, int id) const;
    static void Show(const Record& record, const CString& text);

    HWND m_window = nullptr;
    std::vector<Record> m_records;
    std::vector<Entry> m_entries;
};
