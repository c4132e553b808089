#include "platform/codepage.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>

// Tests hold one- and two-byte inputs and single units against the tables of what Windows answers. Here any
// input must be what its characters are one by one, must stay inside its room, and must be stable: what was
// decoded and encoded once, is the same after another round.
namespace codepage = platform::codepage;

namespace
{
constexpr int pages[] = {949,  932,  936,  950,  65001, 1251, 1252, 1250,
                         1253, 1254, 1255, 1256, 1257,  1258, 874,  437};

void require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}

std::wstring decode(int page, std::string_view bytes)
{
    // A block of exactly the room that the call asks for, so that a write past it meets the sanitizer.
    const auto out = std::make_unique<char16_t[]>(bytes.size());
    const std::size_t size = codepage::decode(page, bytes, out.get()).value();
    require(size <= bytes.size(), "no page gives more units than bytes");
    const std::wstring text(out.get(), out.get() + size);
    require(codepage::decode(page, bytes) == text, "both forms of decode agree");
    return text;
}

std::string encode(int page, std::wstring_view text)
{
    const auto units = std::make_unique<char16_t[]>(text.size());
    std::copy(text.begin(), text.end(), units.get());
    const auto out = std::make_unique<char[]>(codepage::encoded_bound(text.size()));
    const std::size_t size = codepage::encode(page, {units.get(), text.size()}, out.get()).value();
    require(size <= codepage::encoded_bound(text.size()), "the bound holds");
    const std::string bytes(out.get(), size);
    require(codepage::encode(page, text) == bytes, "both forms of encode agree");
    return bytes;
}

/// How many bytes the first character of \p bytes has, or what becomes one U+FFFD.
std::size_t utf8_length(std::string_view bytes)
{
    const auto at = [&](std::size_t i) { return static_cast<std::uint8_t>(bytes[i]); };
    const std::size_t wanted = at(0) < 0xC2 || at(0) > 0xF4 ? 1 : at(0) < 0xE0 ? 2 : at(0) < 0xF0 ? 3 : 4;
    if (bytes.size() < wanted)
        return bytes.size();
    for (std::size_t i = 1; i < wanted; ++i)
    {
        if (at(i) < 0x80 || at(i) > 0xBF)
            return i;
        if (i == 1 && ((at(0) == 0xE0 && at(1) < 0xA0) || (at(0) == 0xED && at(1) > 0x9F) ||
                       (at(0) == 0xF0 && at(1) < 0x90) || (at(0) == 0xF4 && at(1) > 0x8F)))
            return 2;
    }
    return wanted;
}

std::wstring one_by_one(int page, std::string_view bytes)
{
    std::wstring text;
    char16_t units[4];
    while (!bytes.empty())
    {
        std::size_t length = 1;
        if (page == codepage::utf8)
            length = utf8_length(bytes);
        else if (bytes.size() > 1 && codepage::decode(page, bytes.substr(0, 2), units) == 1u)
            length = 2;
        text.append(units, units + codepage::decode(page, bytes.substr(0, length), units).value());
        bytes.remove_prefix(length);
    }
    return text;
}

std::string one_by_one(int page, std::wstring_view text)
{
    std::string bytes;
    char out[codepage::encoded_bound(2)];
    while (!text.empty())
    {
        const bool pair = page == codepage::utf8 && text.size() > 1 && (text[0] & 0xFC00) == 0xD800 &&
                          (text[1] & 0xFC00) == 0xDC00;
        const char16_t units[] = {static_cast<char16_t>(text[0]), static_cast<char16_t>(pair ? text[1] : 0)};
        bytes.append(out, codepage::encode(page, std::u16string_view(units, pair ? 2 : 1), out).value());
        text.remove_prefix(pair ? 2 : 1);
    }
    return bytes;
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const int page = pages[data[0] % std::size(pages)];
    const std::string_view bytes(reinterpret_cast<const char*>(data) + 1, size - 1);

    const std::wstring decoded = decode(page, bytes);
    require(decoded == one_by_one(page, bytes), "a text is its characters one by one");
    const std::string encoded = encode(page, decoded);
    require(encode(page, decode(page, encoded)) == encoded, "a second round changes nothing");

    const std::wstring text = codepage::from_utf16le(bytes);
    require(encode(page, text) == one_by_one(page, text), "bytes are their units' bytes one by one");
    require(codepage::to_utf16le(text) == bytes.substr(0, bytes.size() & ~std::size_t{1}),
            "UTF-16 stays as it is");
    return 0;
}
