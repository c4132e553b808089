#pragma once

#include "tarvo/export.h"
#include "tarvo/msg/MessageStore.h"

#include <afxstr.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

/// Files larger than this count as unreadable.
inline constexpr std::uint64_t msg_most_bytes = std::uint64_t{1} << 30;

/// What the two message-file readers have in common: the texts, the lists of files, the font. An object is
/// filled and asked by CMSGFunction or by a class derived from it; copies are independent of each other.
class TARVO_API msg_reader
{
public:
    msg_reader() = default;
    msg_reader(const msg_reader&) = default;
    msg_reader& operator=(const msg_reader&) = default;
    virtual ~msg_reader() = default;

protected:
    friend class CMSGFunction;

    void add_path(const wchar_t* path);
    /// Empties the texts and the list of message files; font file, name and size stay.
    void clear();
    void set_fontpath(const wchar_t* path);
    /// Reads the font file, then the message files in the order of their list. Texts that are there stay.
    /// Files that cannot be read are passed over. Always true.
    bool load();
    /// Reads the font file. False, and the font stays what it was, when it cannot be read.
    bool load_font();

    /// The text of \p key, else the key followed by " :".
    CString get_value(const wchar_t* key) const;
    /// True and the text of \p key; false, with \p value as it was, for an unknown one.
    bool find_value(const wchar_t* key, CString& value) const;
    CString get_font() const { return m_strFont; }
    int get_fontsize() const { return m_nFontSize; }
    const CMessageStore& store() const { return m_store; }

    /// Adds the entries of one message file; the first text of a key counts. False when the file cannot be
    /// read.
    bool read_messages(const CString& path);

    /// Adds the entries of a message file's bytes, taken apart into lines as this reader does it. Gives how
    /// many there are, those included whose key was there already.
    virtual std::size_t add_entries(const std::string& bytes) = 0;
    virtual void read_font(const std::string& bytes) = 0;

    CMessageStore m_store;
    std::vector<CString> m_arrPath;
    CString m_strFontPath;
    CString m_strFont;
    std::int32_t m_nFontSize = 0;
    std::int32_t m_nCodePage = 0; ///< of 8-bit files; 0 is the system's ANSI page
};
