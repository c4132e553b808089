#pragma once

#include "tarvo/export.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

/// Finds the positions of a list by name in constant time, repeated names by rank. Names are compared
/// exactly. The names stay where they are: the index only looks at them again.
class TARVO_API CNameIndex
{
public:
    /// Indexes \p count names; \p nameAt gives the name at a position and must do so until Forget.
    template <class NameAt>
    void Build(std::size_t count, NameAt nameAt)
    {
        std::vector<std::u16string_view> names;
        names.reserve(count);
        for (std::size_t i = 0; i < count; ++i)
            names.push_back(nameAt(i));
        BuildFrom(std::move(names));
    }
    void Forget() { m_built = false; }
    bool IsBuilt() const { return m_built; }
    /// True when no name is there twice.
    bool IsUnique() const { return m_ranks.empty(); }

    /// The position of the name's occurrence number \p rank, from 0, or -1.
    int Find(std::u16string_view name, std::size_t rank) const;
    /// Which occurrence of its name the one at \p position is, from 0.
    std::size_t RankOf(std::size_t position) const { return IsUnique() ? 0 : m_ranks[position]; }

private:
    void BuildFrom(std::vector<std::u16string_view> names);
    void GroupBy(const std::vector<std::uint32_t>& firsts);
    std::size_t SlotOf(std::u16string_view name, std::uint32_t hash) const;

    static constexpr std::uint64_t none = ~std::uint64_t{0};

    std::vector<std::u16string_view> m_names;
    /// Open addressing, by a name's hash: that in the upper half, the position of the first occurrence below.
    std::vector<std::uint64_t> m_slots;
    // Of repeated names; empty when there are none.
    std::vector<std::uint32_t> m_ranks;     ///< by position
    std::vector<std::uint32_t> m_groupOf;   ///< by first occurrence: where its positions begin
    std::vector<std::uint32_t> m_positions; ///< positions of equal names side by side, in order
    bool m_built = false;
};
