#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A converter's answers for one code page, written out whole. tests/data/codepage holds what Windows'
/// own calls answer (flags 0); the library's report must be the same text on every platform.
namespace codepage_report
{
/// The pages that work on every platform.
extern const std::vector<int> pages;

struct Converter
{
    std::function<std::u16string(int page, std::string_view bytes)> decode;
    std::function<std::string(int page, std::u16string_view text)> encode;
};

/// Every one-byte and every two-byte input decoded, every unit encoded, and a seeded set of longer byte
/// strings and texts, of which the first are shown and all are in the digest.
std::string of(int page, const Converter& converter);
} // namespace codepage_report
