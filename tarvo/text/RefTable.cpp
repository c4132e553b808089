#include "tarvo/text/RefTable.h"

#include <algorithm>
#include <bit>

namespace
{
/// Of a slot: what is left tells one key from a thousand others, and 8 MB of records have their numbers.
constexpr unsigned kLeastRefBits = 22;
} // namespace

void CRefTable::Reset(std::size_t count, Ref most)
{
    const std::size_t groups = std::max<std::size_t>(count, 12) * 5 / 4 / kGroup + 1;
    if (groups == m_arrGroup.size())
        Clear();
    else
        std::vector<CSlotGroup>(groups).swap(m_arrGroup);
    m_nRoom = groups * kGroup * 4 / 5;
    const auto bits = static_cast<unsigned>(std::bit_width(std::uint64_t{most} + 1)) + 1;
    m_nRefBits = std::clamp(bits, kLeastRefBits, 32u);
}
