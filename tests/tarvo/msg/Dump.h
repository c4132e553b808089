#pragma once

#include "tarvo/msg/msg_parser.h"
#include "tarvo/msg/msg_parser2.h"
#include "tests/support/print.h"

#include <string>

/// "key=text;" for every message in the order of the keys.
inline CString dump(const CMessageStore& store)
{
    CString text;
    for (const CMessageStore::Message& message : store.Sorted())
        text += units::to_string(message.key) + L"=" + units::to_string(message.value) + L";";
    return text;
}

/// A reader whose operations tests may call.
template <class Reader>
class Opened : public Reader
{
public:
    using Reader::add_path;
    using Reader::clear;
    using Reader::get_font;
    using Reader::get_fontsize;
    using Reader::get_value;
    using Reader::load;
    using Reader::load_font;
    using Reader::set_fontpath;
    using Reader::store;

    /// What the reader holds after a file of these bytes in this page.
    CString messages(const std::string& bytes, int codePage = 0)
    {
        this->m_nCodePage = codePage;
        this->add_entries(bytes);
        return dump(store());
    }
    /// "name/size" after a font file of these bytes.
    CString font(const std::string& bytes, int codePage = 0)
    {
        this->m_nCodePage = codePage;
        this->read_font(bytes);
        CString text;
        text.Format(L"%s/%d", get_font().GetString(), get_fontsize());
        return text;
    }
    int code_page() const { return this->m_nCodePage; }
};

using CPrimary = Opened<msg_parser2>;
using CFallback = Opened<msg_parser>;
