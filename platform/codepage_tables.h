#pragma once

#include <array>
#include <cstdint>
#include <span>

/// The tables of the native code pages as they stand in the program file. The source is generated; see
/// scripts/gen-codepages.py.
namespace platform::codepage
{
/// Empty when first is above last.
struct ByteRange
{
    std::uint8_t first, last;
};

/// Packed numbers are runs: a word with the kind in its top two bits and the count in the others, then
/// all numbers of a literal run, or the first number of any other.
enum class Run : std::uint16_t
{
    literal = 0x0000,
    same = 0x4000,
    rising = 0x8000,
    kind_bits = 0xC000
};

struct PackedPage
{
    int page;
    /// Lead bytes of two-byte characters. Such a byte takes any next byte but NUL with it.
    std::array<ByteRange, 2> leads;
    /// Packed: the units of the 256 bytes alone, then for each lead byte the units of it with each of 256
    /// second bytes.
    std::span<const std::uint16_t> decode;
    /// Where the encoder is not the decoder turned round (first bytes first, '?' for what is in neither):
    /// first unit, count of units, and their bytes packed, the first byte of two in the high half.
    std::span<const std::uint16_t> encode;
};

extern const std::span<const PackedPage> packed_pages;
} // namespace platform::codepage
