#pragma once

#include "platform/codepage_utf8_blocks.h"

/// What the versions of decode_utf8_blocks() share, and the one for AVX-512.
namespace platform::codepage
{
inline bool another_block(const std::uint8_t* p, const std::uint8_t* stop, const std::uint8_t* end)
{
    return stop - p >= block_size && end - p >= block_size + 2;
}

/// Where the last character of a well-formed block ends that is in the block whole.
inline int whole_characters(std::uint64_t leads2, std::uint64_t leads3)
{
    return leads3 >> 62 & 1 ? block_size - 2 : (leads2 | leads3) >> 63 ? block_size - 1 : block_size;
}

#ifdef TARVO_HAS_SHUFFLE
bool has_avx512();

/// For processors that have_avx512().
template <class Unit>
Progress<std::uint8_t, Unit> decode_utf8_blocks_avx512(Progress<std::uint8_t, Unit> at,
                                                       const std::uint8_t* stop, const std::uint8_t* end);
#endif
} // namespace platform::codepage
