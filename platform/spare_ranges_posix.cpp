#include "platform/spare_ranges_posix.h"

#include <algorithm>

namespace platform::memory
{
char* SpareRanges::take(std::size_t size)
{
    const std::lock_guard lock(m_mutex);
    Range* const range =
        std::find_if(m_range.data(), end(), [size](const Range& one) { return one.size >= size; });
    if (range == end())
        return nullptr;
    char* const first = range->first;
    *range = {first + size, range->size - size};
    if (range->size == 0)
        *range = m_range[--m_count];
    m_size -= size;
    return first;
}

bool SpareRanges::keep(char* first, std::size_t size)
{
    const std::lock_guard lock(m_mutex);
    if (m_count == m_range.size() || m_size + size > m_most)
        return false;
    m_size += size;
    Range whole = {first, size};
    const Range* const rest = std::remove_if(m_range.data(), end(), [&whole](const Range& range) {
        const bool isNext = range.end() == whole.first || whole.end() == range.first;
        if (isNext)
            whole = {std::min(range.first, whole.first), range.size + whole.size};
        return isNext;
    });
    m_count = static_cast<std::size_t>(rest - m_range.data());
    m_range[m_count++] = whole;
    return true;
}
} // namespace platform::memory
