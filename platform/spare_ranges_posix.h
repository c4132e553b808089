#pragma once

#include <array>
#include <cstddef>
#include <mutex>

namespace platform::memory
{
/// Ranges of memory that nobody uses, kept for those who ask next. Any thread may take and give. Nothing in
/// them is touched.
class SpareRanges
{
public:
    /// Keeps up to \p most bytes.
    explicit constexpr SpareRanges(std::size_t most) : m_most(most) {}

    /// Null when there are not \p size bytes side by side.
    char* take(std::size_t size);
    /// False, and the range stays the caller's, when there would be too many bytes or pieces.
    bool keep(char* first, std::size_t size);

private:
    struct Range
    {
        char* first;
        std::size_t size;
        char* end() const { return first + size; }
    };
    Range* end() { return m_range.data() + m_count; }

    std::mutex m_mutex;
    std::array<Range, 64> m_range = {}; ///< in no order, none next to another
    std::size_t m_count = 0;
    std::size_t m_size = 0; ///< bytes of all ranges
    std::size_t m_most;
};
} // namespace platform::memory
