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

    /// The position of the name's occurrence number \p rank, from 0, or -1.
    int Find(std::u16string_view name, std::size_t rank) const;
    /// Which occurrence of its name the one at \p position is, from 0.
    std::size_t RankOf(std::size_t position) const { return m_ranks[position]; }

private:
    void BuildFrom(std::vector<std::u16string_view> names);
    std::size_t SlotOf(std::u16string_view name) const;

    static constexpr std::uint32_t none = 0xFFFFFFFFu;

    std::vector<std::u16string_view> m_names;
    std::vector<std::uint32_t> m_slots;     ///< open addressing, position of a name's first occurrence
    std::vector<std::uint32_t> m_ranks;     ///< by position
    std::vector<std::uint32_t> m_groupOf;   ///< by first occurrence: where its positions begin
    std::vector<std::uint32_t> m_positions; ///< positions of equal names side by side, in order
    bool m_built = false;
};
