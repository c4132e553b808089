#pragma once
#include <span>
#include <vector>

/// The bytes as a zlib stream (RFC 1950 and 1951): one block of the fixed Huffman code with matches of up
/// to 258 bytes within 32 KiB. Made for pictures of windows, whose flat areas and repeated letters it
/// reduces to a few per cent; it needs no library, so that the demonstration host stands alone.
std::vector<unsigned char> deflate_zlib(std::span<const unsigned char> bytes);
