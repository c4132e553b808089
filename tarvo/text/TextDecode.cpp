#include "tarvo/text/TextDecode.h"

#include "platform/codepage.h"
#include "platform/codepage_block.h"
#include "tarvo/text/UnitBlock.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <span>
#include <utility>

namespace
{
constexpr char16_t replacement = 0xFFFD;

using platform::codepage::Block;
using platform::codepage::block_size;

const std::uint8_t* First(std::string_view bytes)
{
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

std::size_t DecodeUtf16(std::string_view& bytes, bool bigEndian, char16_t* out)
{
    static_assert(std::endian::native == std::endian::little, "a unit's low byte comes first in memory");
    const std::size_t units = bytes.size() / 2;
    if (units != 0)
        std::memcpy(out, bytes.data(), units * 2);
    if (bigEndian)
        for (std::size_t i = 0; i < units; ++i)
            out[i] = static_cast<char16_t>(out[i] << 8 | out[i] >> 8);
    bytes.remove_prefix(2 * units);
    return units;
}

/// Where the first piece of \p bytes ends: behind a line feed, so that a well-formed text is cut between
/// characters.
std::size_t PieceLength(std::string_view bytes)
{
    constexpr std::size_t least = 8192;
    const std::size_t end = bytes.size() > least ? bytes.find('\n', least) : std::string_view::npos;
    return end == std::string_view::npos ? bytes.size() : end + 1;
}

bool HasLongLead(std::string_view bytes)
{
    constexpr platform::codepage::ByteSet leads = {0, 0xF0, 0x0F};
    const std::uint8_t* at = First(bytes);
    const std::uint8_t* const end = at + bytes.size();
    for (; end - at >= block_size; at += block_size)
        if (Block(at).in(leads) != 0)
            return true;
    return std::any_of(at, end, [&](std::uint8_t byte) { return leads.holds(byte); });
}

/// The units of a piece in which every character has its one right form and none has four bytes: then the
/// system's rules give the same, and they have the quicker decoder. 0 for every other piece, and for one
/// that says U+FFFD itself.
std::size_t DecodeWellFormed(std::string_view bytes, char16_t* out)
{
    if (HasLongLead(bytes))
        return 0;
    const std::size_t count = platform::codepage::decode(platform::codepage::utf8, bytes, out).value_or(0);
    return units::find(out, out + count, replacement) == out + count ? count : 0;
}

/// Decodes by the lenient rules the characters that begin in the first \p length bytes, and takes them off
/// \p bytes. False when the last is cut off by the end of the text; it is left.
bool DecodePiece(std::string_view& bytes, std::size_t length, char16_t*& out)
{
    const std::uint8_t* const in = First(bytes);
    std::size_t at = 0;
    while (at < length)
    {
        const std::uint8_t first = in[at];
        const int ones = std::countl_one(first);
        const std::size_t taken = ones == 2 || ones == 3 ? static_cast<std::size_t>(ones) : 1;
        if (taken > bytes.size() - at)
            break;
        unsigned value = ones == 0 ? first : replacement;
        if (taken > 1)
            value = (first & 0x1F) << 6 | (in[at + 1] & 0x3F);
        if (taken > 2)
            value = value << 6 | (in[at + 2] & 0x3F);
        *out++ = static_cast<char16_t>(value);
        at += taken;
    }
    bytes.remove_prefix(at);
    return at >= length;
}

/// Bytes at the end of \p bytes that begin a character whose rest is not there.
std::size_t CutTail(std::string_view bytes)
{
    for (std::size_t back = 1; back <= 2 && back <= bytes.size(); ++back)
    {
        const int ones = std::countl_one(First(bytes)[bytes.size() - back]);
        if (ones == 2 || ones == 3)
            return static_cast<std::size_t>(ones) > back ? back : 0;
        if (ones != 1)
            return 0;
    }
    return 0;
}

bool MayDiffer(char16_t unit) { return (unit >= 0xD800 && unit <= 0xDFFF) || unit == 0xFFFD; }

/// Both decoders give the same units unless the text is malformed, which the system's one answers with
/// U+FFFD, or holds characters of four bytes, which become surrogates there.
bool MayDiffer(const char16_t* units, std::size_t count)
{
    std::size_t i = 0;
    for (; i + CUnitBlock::kCount <= count; i += CUnitBlock::kCount)
    {
        // One question rules most blocks out.
        const CUnitBlock block(units + i);
        if (block.Between(0xD800, 0xFFFD) != 0 && (block.Between(0xD800, 0xDFFF) | block.Equal(0xFFFD)) != 0)
            return true;
    }
    return std::any_of(units + i, units + count, [](char16_t unit) { return MayDiffer(unit); });
}

std::size_t DecodeUtf8Slowly(std::string_view& bytes, char16_t* out)
{
    char16_t* const begin = out;
    for (bool isWhole = true; isWhole && !bytes.empty();)
    {
        const std::size_t length = PieceLength(bytes);
        if (const std::size_t count = DecodeWellFormed(bytes.substr(0, length), out))
        {
            out += count;
            bytes.remove_prefix(length);
        }
        else
            isWhole = DecodePiece(bytes, length, out);
    }
    return static_cast<std::size_t>(out - begin);
}

/// In pieces that stay in the cache, each by the system's rules where they come to the same, which is many
/// characters in a step.
std::size_t DecodeUtf8(std::string_view& bytes, char16_t* out)
{
    constexpr std::size_t kPiece = 8192;
    char16_t* const begin = out;
    for (;;)
    {
        std::string_view piece = bytes.substr(0, kPiece);
        const std::size_t whole = piece.size() - CutTail(piece);
        const auto count = platform::codepage::decode(platform::codepage::utf8, piece.substr(0, whole), out);
        if (count && !MayDiffer(out, *count))
        {
            out += *count;
            bytes.remove_prefix(whole);
        }
        else
        {
            out += DecodeUtf8Slowly(piece, out);
            bytes.remove_prefix(std::min(kPiece, bytes.size()) - piece.size());
        }
        if (bytes.size() <= 2)
            break;
    }
    return static_cast<std::size_t>(out - begin) + DecodeUtf8Slowly(bytes, out);
}

/// The least byte that, so many places before a line break (from 1), takes the break for a part of its
/// character.
using Leads = std::span<const std::uint8_t>;

Leads LeadsOfPage()
{
    static constexpr std::uint8_t ofUtf8[] = {0xC0, 0xE0, 0xF0}, ofTwoBytes[] = {0x80};
    return platform::codepage::ansi_page() == platform::codepage::utf8 ? Leads(ofUtf8) : Leads(ofTwoBytes);
}

bool IsDoubtful(std::string_view bytes, std::size_t lineBreak, Leads leads)
{
    for (std::size_t i = 0; i < leads.size() && i < lineBreak; ++i)
        if (First(bytes)[lineBreak - i - 1] >= leads[i])
            return true;
    return false;
}

/// The first \p lineBreak behind a byte that may be the start of a character, or the end.
std::size_t FindDoubtful(std::string_view bytes, char lineBreak, Leads leads)
{
    std::size_t at = 0;
    while ((at = bytes.find(lineBreak, at)) != std::string_view::npos && !IsDoubtful(bytes, at, leads))
        ++at;
    return std::min(at, bytes.size());
}

/// Cuts \p bytes at every doubtful \p lineBreak and hands the pieces without it to \p decode, which gives
/// the units it wrote.
template <class Decode>
std::size_t DecodePieces(std::string_view bytes, char lineBreak, Leads leads, char16_t* out, Decode decode)
{
    char16_t* const begin = out;
    while (!bytes.empty())
    {
        const std::string_view piece = bytes.substr(0, FindDoubtful(bytes, lineBreak, leads));
        out += decode(piece, out);
        bytes.remove_prefix(piece.size());
        for (; !bytes.empty() && bytes.front() == lineBreak; bytes.remove_prefix(1))
            *out++ = static_cast<char16_t>(lineBreak);
    }
    return static_cast<std::size_t>(out - begin);
}

/// What a text is to a conversion that goes line by line.
enum class Lines
{
    Ascii, ///< the same in every page
    Clear, ///< no line break can be a part of a character
    Doubtful
};

Lines LinesOf(std::string_view bytes, Leads leads)
{
    constexpr platform::codepage::ByteSet feed = {0, '\n', 0}, carriage = {0, '\r', 0};
    const std::uint8_t* at = First(bytes);
    const std::uint8_t* const end = at + bytes.size();
    std::array<std::uint64_t, 3> before = {}; // by place the leads of the last block
    bool isAscii = true, areAllAscii = true;  // it was, they were
    for (; end - at >= block_size; at += block_size)
    {
        const Block block(at);
        const bool wasAscii = std::exchange(isAscii, block.ascii());
        if (wasAscii && isAscii)
            continue;
        areAllAscii = false;
        std::uint64_t reached = 0;
        for (std::size_t i = 0; i < leads.size(); ++i)
        {
            const std::uint64_t now = block.in({0, leads[i], static_cast<std::uint8_t>(0xFF - leads[i])});
            reached |= now << (i + 1) | before[i] >> (block_size - 1 - static_cast<std::ptrdiff_t>(i));
            before[i] = now;
        }
        if (reached != 0 && (reached & (block.in(feed) | block.in(carriage))) != 0)
            return Lines::Doubtful;
    }
    const std::string_view rest = bytes.substr(
        bytes.size() - std::min(bytes.size(), static_cast<std::size_t>(end - at) + leads.size()));
    if (FindDoubtful(rest, '\n', leads) != rest.size() || FindDoubtful(rest, '\r', leads) != rest.size())
        return Lines::Doubtful;
    const bool isAsciiToTheEnd = std::none_of(at, end, [](std::uint8_t byte) { return byte >= 0x80; });
    return areAllAscii && isAsciiToTheEnd ? Lines::Ascii : Lines::Clear;
}

std::size_t DecodeWhole(std::string_view bytes, char16_t* out, int page = platform::codepage::ansi)
{
    return platform::codepage::decode(page, bytes, out).value_or(0);
}

/// Line by line as far as the result goes, but in pieces as long as they can be: conversion is quickest
/// over many lines, and hardly a line ends in half a character.
std::size_t DecodeAnsi(std::string_view bytes, char16_t* out)
{
    const Leads leads = LeadsOfPage();
    const Lines lines = LinesOf(bytes, leads);
    if (lines == Lines::Ascii) // UTF-8 has the quickest decoder
        return DecodeWhole(bytes, out, platform::codepage::utf8);
    if (lines == Lines::Clear)
        return DecodeWhole(bytes, out);
    const auto decode = [](std::string_view piece, char16_t* to) { return DecodeWhole(piece, to); };
    return DecodePieces(bytes, '\n', leads, out, [&](std::string_view piece, char16_t* to) {
        return DecodePieces(piece, '\r', leads, to, decode);
    });
}

} // namespace

CTextMark FindTextMark(std::string_view bytes)
{
    if (bytes.starts_with("\xFF\xFE"))
        return {TextEncoding::Utf16LittleEndian, 2};
    if (bytes.starts_with("\xFE\xFF"))
        return {TextEncoding::Utf16BigEndian, 2};
    if (bytes.starts_with("\xEF\xBB\xBF"))
        return {TextEncoding::Utf8, 3};
    return {};
}

std::size_t DecodeLenientUtf8(std::string_view bytes, char16_t* out) { return DecodeUtf8(bytes, out); }

std::size_t DecodeTextPart(TextEncoding encoding, std::string_view& bytes, char16_t* out)
{
    switch (encoding)
    {
    case TextEncoding::Utf16BigEndian:
        return DecodeUtf16(bytes, true, out);
    case TextEncoding::Utf16LittleEndian:
        return DecodeUtf16(bytes, false, out);
    case TextEncoding::Utf8:
        return DecodeUtf8(bytes, out);
    case TextEncoding::Ansi:
        break;
    }
    return DecodeAnsi(std::exchange(bytes, {}), out);
}
