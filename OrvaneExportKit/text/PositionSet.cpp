#include <OrvaneExportKit/text/PositionSet.h>

#include <bit>

namespace platform {

namespace {

/// The length of the stretch that the count at index `i` of a Fenwick tree covers: its lowest set bit.
std::size_t stretch(std::size_t i)
{
    return i & (~i + 1);
}

} // namespace

PositionSet::PositionSet(std::size_t size) : m_members(size, false), m_counts(size + 1, 0)
{
}

PositionSet PositionSet::all(std::size_t size)
{
    PositionSet set(size);
    set.m_members.assign(size, true);
    set.m_count = size;
    for (std::size_t i = 1; i <= size; ++i) {
        set.m_counts[i] = stretch(i);
    }
    return set;
}

void PositionSet::insert(std::size_t position)
{
    if (m_members[position]) {
        return;
    }
    m_members[position] = true;
    ++m_count;
    for (std::size_t i = position + 1; i < m_counts.size(); i += stretch(i)) {
        ++m_counts[i];
    }
}

void PositionSet::erase(std::size_t position)
{
    if (!m_members[position]) {
        return;
    }
    m_members[position] = false;
    --m_count;
    for (std::size_t i = position + 1; i < m_counts.size(); i += stretch(i)) {
        --m_counts[i];
    }
}

std::size_t PositionSet::countBelow(std::size_t position) const
{
    std::size_t count = 0;
    for (std::size_t i = position; i > 0; i -= stretch(i)) {
        count += m_counts[i];
    }
    return count;
}

std::size_t PositionSet::nth(std::size_t rank) const
{
    std::size_t position = 0;
    for (std::size_t step = std::bit_floor(m_members.size()); step > 0; step /= 2) {
        if (position + step < m_counts.size() && m_counts[position + step] <= rank) {
            position += step;
            rank -= m_counts[position];
        }
    }
    return position;
}

} // namespace platform
