#pragma once

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

/// Memory for texts that stay where they are until all of them go at once. A large text has a block of
/// its own; small ones share blocks. Throws std::bad_alloc.
class CTextArena
{
public:
    /// Room for \p count units, not yet set.
    char16_t* Add(std::size_t count);
    std::u16string_view Copy(std::u16string_view text);
    /// Units taken from the system, used or not.
    std::size_t GetSize() const { return m_nSize; }

private:
    struct Free
    {
        void operator()(char16_t* p) const { std::free(p); }
    };
    using Block = std::unique_ptr<char16_t, Free>;

    void AddBlock(std::size_t count);

    std::vector<Block> m_arrBlock;
    std::size_t m_nBlock = 0; ///< units of the newest block
    std::size_t m_nUsed = 0;  ///< of these, units given out
    std::size_t m_nSize = 0;
};
