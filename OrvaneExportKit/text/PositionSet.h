#pragma once

#include <cstddef>
#include <vector>

namespace platform {

/// A set of positions below a fixed size that answers how many of them lie below a position, and which one is the
/// n-th. Each question and each change costs the logarithm of the size (a Fenwick tree of counts).
class PositionSet
{
public:
    /// An empty set of positions below `size`.
    explicit PositionSet(std::size_t size);

    /// The set of all positions below `size`; costs as much as the size.
    static PositionSet all(std::size_t size);

    std::size_t count() const { return m_count; }
    bool contains(std::size_t position) const { return m_members[position]; }
    void insert(std::size_t position);
    void erase(std::size_t position);

    /// How many members are smaller than `position`, which is at most the size.
    std::size_t countBelow(std::size_t position) const;

    /// The member with `rank` smaller ones; `rank` is below the count.
    std::size_t nth(std::size_t rank) const;

private:
    std::vector<bool> m_members;
    std::vector<std::size_t> m_counts; // m_counts[i] counts the members in a stretch that ends before position i
    std::size_t m_count = 0;
};

} // namespace platform
