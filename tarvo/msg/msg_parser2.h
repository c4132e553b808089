#pragma once

#include "tarvo/msg/msg_reader.h"

/// Reads message files as CStdioFileEx does, in UTF-16LE or 8-bit text: the primary catalogue.
class TARVO_API msg_parser2 : public msg_reader
{
protected:
    friend class CMSGFunction;

    /// Gives \p key the text \p value, whether it is there or not. True.
    bool set_value(const wchar_t* key, const wchar_t* value);

    std::size_t add_entries(const std::string& bytes) override;
    void read_font(const std::string& bytes) override;
};
