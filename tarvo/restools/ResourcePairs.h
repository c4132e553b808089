#pragma once

#include "tarvo/restools/Resources.h"
#include "tarvo/text/Units.h"

#include <algorithm>
#include <cstddef>

/// Two lists held against each other. As far as both have the same keys in the same places, which mostly is
/// all the way, partners are told without a look-up.
template <class T>
class CResPairs
{
public:
    CResPairs(const CResBaseclass<T>& list1, const CResBaseclass<T>& list2) : m_list1(list1), m_list2(list2)
    {
        const std::size_t shorter = std::min(list1.GetCount(), list2.GetCount());
        while (m_same < shorter && units::equal(list1.GetAt(m_same).Key(), list2.GetAt(m_same).Key()))
            ++m_same;
    }

    /// The first position where the keys differ, or where a list ends.
    std::size_t GetSame() const { return m_same; }

    /// Of the item at \p position of list 1 the one with its key and rank in list 2; null when there is none.
    const T* PartnerOf(std::size_t position) const
    {
        if (position < m_same)
            return &m_list2.GetAt(position);
        return At(m_list2.Find(m_list1.GetAt(position).Key(), m_list1.RankOf(position)));
    }
    /// The first with its key.
    const T* FirstOf(std::size_t position) const
    {
        if (position < m_same && m_list2.IsUnique())
            return &m_list2.GetAt(position);
        return At(m_list2.Find(m_list1.GetAt(position).Key()));
    }

private:
    const T* At(int position) const
    {
        return position < 0 ? nullptr : &m_list2.GetAt(static_cast<std::size_t>(position));
    }

    const CResBaseclass<T>& m_list1;
    const CResBaseclass<T>& m_list2;
    std::size_t m_same = 0;
};
