#pragma once

#include "platform/codepage_block.h"

#include <span>

#if defined(__x86_64__) && defined(__SSE2__)
#define TARVO_HAS_SHUFFLE 1 ///< the compiler knows SSSE3 and AVX-512; the processor is asked at run time
#endif

namespace platform::codepage
{
/// Decodes blocks as long as they are well-formed, none of their characters is above U+FFFF, and two bytes
/// of the text follow them. Stops at the first that is not so, or when less than a block is left before
/// \p stop; what it has decoded ends with a whole character.
template <class Unit>
Progress<std::uint8_t, Unit> decode_utf8_blocks(Progress<std::uint8_t, Unit> at, const std::uint8_t* stop,
                                                const std::uint8_t* end);

template <class Unit>
using Utf8BlockDecoder = Progress<std::uint8_t, Unit> (*)(Progress<std::uint8_t, Unit> at,
                                                          const std::uint8_t* stop, const std::uint8_t* end);

/// The versions of decode_utf8_blocks that this processor can run, the fastest first. The last one takes
/// plain ASCII alone.
template <class Unit>
std::span<const Utf8BlockDecoder<Unit>> utf8_block_decoders();

/// Encodes 16 units at a time as long as none of them is a surrogate. Stops at the first that is one, or
/// when less is left before \p stop or too little behind it.
template <class Unit>
Progress<Unit, char> encode_utf8_blocks(Progress<Unit, char> at, const Unit* stop, const Unit* end);
} // namespace platform::codepage
