#pragma once

#include <cstddef>

/// Memory for large things that are made and dropped as a whole, such as the texts of a language file.
namespace platform::memory
{
/// Pieces of this size, which is what most of it should be taken in, are cheap to take again.
inline constexpr std::size_t kBlock = std::size_t{256} << 10;

/// \p bytes that nothing was written to, aligned for any type. Throws std::bad_alloc.
char* take(std::size_t bytes);
/// Ends the use of what take gave for \p bytes.
void give_back(char* memory, std::size_t bytes) noexcept;

/// Says that all of a block much larger than that will soon be written to, so that the system may give it in
/// large pages instead of one by one as they are touched. It changes nothing else.
void expect_use(void* block, std::size_t size);
} // namespace platform::memory
