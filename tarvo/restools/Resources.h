#pragma once

#include "tarvo/export.h"
#include "tarvo/restools/NameIndex.h"
#include "tarvo/restools/ScriptArena.h"
#include "tarvo/restools/ScriptText.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include <afxcoll.h>
#include <afxstr.h>

/// The model of one resource script: its menus, toolbars, dialogs, strings and file resources, in the
/// order of the script. It evaluates nothing: identifiers, types and style expressions stay the texts
/// that the script writes.

/// A text of a script, in UTF-16 units: a view into the `CResources` that holds it, valid as long as
/// that object lives.
using CResText = std::u16string_view;

/// A bitmap, PNG, icon or cursor.
struct CResSimple
{
    CResText m_strName;
    CResText m_strFile; ///< as written, without its quotes
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strName; }
};

struct CResString
{
    CResText m_strID;
    CResText m_strText; ///< the source's literal without its outer quotes; an empty literal keeps both
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strID; }
};

/// An ordered list with look-up by key in constant time.
template <class T>
class CResBaseclass
{
public:
    void Append(T item)
    {
        m_arr.push_back(std::move(item));
        m_index.Forget();
    }
    /// Copies \p items into \p arena in place of those that are there.
    void Assign(const std::vector<T>& items, CScriptArena& arena)
    {
        m_arr = Items(items.begin(), items.end(), CScriptAllocator<T>(&arena));
        m_index.Forget();
    }
    std::size_t GetCount() const { return m_arr.size(); }
    const T& GetAt(std::size_t position) const { return m_arr[position]; }
    auto begin() const { return m_arr.begin(); }
    auto end() const { return m_arr.end(); }

    /// Bytes that the list takes, without its index and without what its items own.
    std::size_t GetMemory() const { return m_arr.capacity() * sizeof(T); }

    /// The position of the first item with this key, or -1.
    int Find(CResText key) const { return Find(key, 0); }
    /// The position of the item that is number \p rank, from 0, among those with this key, or -1.
    int Find(CResText key, std::size_t rank) const { return Index().Find(key, rank); }
    /// The rank of the item at \p position among those with its key.
    std::size_t RankOf(std::size_t position) const { return Index().RankOf(position); }
    /// True when no key is there twice.
    bool IsUnique() const { return Index().IsUnique(); }

private:
    // Made at the first look-up: many lists are never looked up in.
    const CNameIndex& Index() const
    {
        if (!m_index.IsBuilt())
            m_index.Build(m_arr.size(), [this](std::size_t i) { return m_arr[i].Key(); });
        return m_index;
    }

    using Items = std::vector<T, CScriptAllocator<T>>;

    Items m_arr;
    mutable CNameIndex m_index;
};

struct CResToolbarItem
{
    CResText m_strKeyword; ///< "BUTTON" or "SEPARATOR"
    CResText m_strID;      ///< of a separator "SEPARATOR%d", numbered from 0 within the toolbar
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strID; }
};

struct CResMenuItem
{
    CResText m_strText;
    CResText m_strID;    ///< "SEPARATOR%d" and "POPUP%d" where the script gives none, each numbered from 0
    CResText m_strStyle; ///< the options behind the ID, joined with "|"
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strID; }
};

struct CResDialogControl
{
    CResText m_strType; ///< the statement's keyword; of a "CONTROL" its window class
    CResText m_strID;
    CResText m_strText;
    CResText m_strStyle;
    CResText m_strExStyle;
    CResText m_strHelpID;
    int m_nNumber = 0; ///< the value of a "CONTROL" text of digits alone
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strID; }
};

template <class Item>
struct CResNamed
{
    CResText m_strName;
    CResBaseclass<Item> m_items;
    std::size_t m_nLine = 0;

    CResText Key() const { return m_strName; }
};

using CResMenu = CResNamed<CResMenuItem>;
using CResToolbar = CResNamed<CResToolbarItem>;

struct CResDialog : CResNamed<CResDialogControl>
{
    CResText m_strType; ///< "DIALOG" or "DIALOGEX"
    CResText m_strStyle;
    CResText m_strExStyle;
    CResText m_strCaption;
};

/// A script's resources and the text that they are views into.
class TARVO_API CResources
{
public:
    CResources();
    ~CResources();
    CResources(CResources&&) noexcept;
    CResources& operator=(CResources&&) noexcept;

    /// The largest script that is read, in bytes. A larger one is refused before memory is asked for.
    static constexpr std::uint64_t MaxFileSize = std::uint64_t{64} * 1024 * 1024;

    /// Reads a script into this object, which is emptied first. Progress and problems are appended to
    /// \p strLog, one line each ending with "\r\n"; each LANGUAGE statement's language to
    /// \p arrLanguages. With a non-empty \p pszLanguage only resources behind a LANGUAGE statement with
    /// that word (in any letter case) are read. False when the name is empty, and with a line in the log
    /// when the file cannot be read or is too large.
    bool Read(const wchar_t* pszFileName, CString& strLog, const wchar_t* pszLanguage,
              CStringArray& arrLanguages);
    /// The same from the bytes of a script; they are decoded by their mark. The log has no line with a
    /// file's name.
    bool ReadMemory(std::string_view bytes, CString& strLog, const wchar_t* pszLanguage,
                    CStringArray& arrLanguages);

    const CResBaseclass<CResMenu>& Menus() const { return m_menus; }
    const CResBaseclass<CResToolbar>& Toolbars() const { return m_toolbars; }
    const CResBaseclass<CResDialog>& Dialogs() const { return m_dialogs; }
    const CResBaseclass<CResString>& Strings() const { return m_strings; }
    const CResBaseclass<CResSimple>& Bitmaps() const { return m_bitmaps; }
    const CResBaseclass<CResSimple>& PNGs() const { return m_pngs; }
    const CResBaseclass<CResSimple>& Icons() const { return m_icons; }
    const CResBaseclass<CResSimple>& Cursors() const { return m_cursors; }

    /// Bytes of the decoded text alone.
    std::size_t TextBytes() const { return m_text.GetLength() * sizeof(char16_t); }
    /// Bytes that everything read takes, the decoded text included; look-ups add to it.
    std::size_t MemoryBytes() const;

private:
    friend class CScriptReader;

    bool ReadBytes(CScriptBytes& bytes, CString& strLog, const wchar_t* pszLanguage,
                   CStringArray& arrLanguages);

    CScriptText m_text;
    /// The dialogs' controls, and what had to be put together: words with quotes replaced, styles without
    /// spaces.
    std::unique_ptr<CScriptArena> m_keep = std::make_unique<CScriptArena>();
    CResBaseclass<CResMenu> m_menus;
    CResBaseclass<CResToolbar> m_toolbars;
    CResBaseclass<CResDialog> m_dialogs;
    CResBaseclass<CResString> m_strings;
    CResBaseclass<CResSimple> m_bitmaps;
    CResBaseclass<CResSimple> m_pngs;
    CResBaseclass<CResSimple> m_icons;
    CResBaseclass<CResSimple> m_cursors;
};
