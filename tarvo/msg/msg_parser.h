#pragma once

#include "tarvo/msg/MessageLines.h"
#include "tarvo/msg/msg_reader.h"

/// Reads message files as bytes, in lines of at most 1,023: the fallback catalogue.
class TARVO_API msg_parser : public msg_reader
{
protected:
    friend class CMSGFunction;

    /// The next line of \p stream as wide text, valid until the next call; false at the end.
    static bool getline(CByteLines& stream, units::view& line);

    std::size_t add_entries(const std::string& bytes) override;
    void read_font(const std::string& bytes) override;
};
