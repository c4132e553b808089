#pragma once

#include <cstddef>
#include <memory>

/// Memory for large things that are made and dropped as a whole, such as the texts of a language file.
namespace platform::memory
{
/// Pieces of this size, which is what most of it should be taken in, are cheap to take again.
inline constexpr std::size_t kBlock = std::size_t{256} << 10;

/// \p bytes that nothing was written to, aligned for any type. Pieces of 64 KB and more lie in large pages
/// where the system has them, instead of being mapped page by page as they are touched. Throws
/// std::bad_alloc.
char* take(std::size_t bytes);
/// Ends the use of what take gave for \p bytes.
void give_back(char* memory, std::size_t bytes) noexcept;
/// Bytes in use that the C library's heap does not know of.
std::size_t taken_outside_heap() noexcept;

struct GiveBack
{
    std::size_t size = 0; ///< bytes
    void operator()(char* memory) const { give_back(memory, size); }
};
using Piece = std::unique_ptr<char, GiveBack>;

inline Piece take_piece(std::size_t bytes) { return Piece(take(bytes), GiveBack{bytes}); }
} // namespace platform::memory
