#pragma once

#include "cli/command.h"
#include "tarvo/msg/MessageStore.h"

#include <afxstr.h>

#include <cstddef>
#include <memory>
#include <string>

/// What the messages commands share: message files as a host's readers take them in.
namespace cli
{
class Catalogue
{
public:
    /// With the reader and the code page that the call names.
    static std::unique_ptr<Catalogue> open(const Call& call);

    Catalogue() = default;
    Catalogue(const Catalogue&) = delete;
    Catalogue& operator=(const Catalogue&) = delete;
    virtual ~Catalogue() = default;

    struct Added
    {
        std::size_t bytes;
        std::size_t entries; ///< those included whose key was there already
    };
    /// Adds the entries of a file; "-" is standard input. Throws Failure when it cannot be read.
    virtual Added add(const std::string& file) = 0;
    virtual void read_font(const std::string& file) = 0;
    virtual const CMessageStore& store() const = 0;
    virtual CString font() const = 0;
    virtual int font_size() const = 0;
};
} // namespace cli
