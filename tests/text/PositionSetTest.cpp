#include <OrvaneExportKit/text/PositionSet.h>

#include <gtest/gtest.h>

#include <random>
#include <set>

using platform::PositionSet;

namespace {

/// Requires of a set below `size` all that it can be asked for.
void expectMembers(const PositionSet &set, const std::set<std::size_t> &members, std::size_t size)
{
    ASSERT_EQ(set.count(), members.size());
    std::size_t rank = 0;
    for (std::size_t position = 0; position < size; ++position) {
        ASSERT_EQ(set.countBelow(position), rank) << position;
        ASSERT_EQ(set.contains(position), members.contains(position)) << position;
        if (members.contains(position)) {
            ASSERT_EQ(set.nth(rank), position);
            ++rank;
        }
    }
    ASSERT_EQ(set.countBelow(size), members.size());
}

} // namespace

TEST(PositionSet, BeginsWithoutOrWithAllMembers)
{
    for (std::size_t size = 0; size < 70; ++size) {
        expectMembers(PositionSet(size), {}, size);
        std::set<std::size_t> all;
        for (std::size_t position = 0; position < size; ++position) {
            all.insert(position);
        }
        expectMembers(PositionSet::all(size), all, size);
    }
}

TEST(PositionSet, AnswersLikeASortedSetAfterEveryChange)
{
    std::mt19937 random(1);
    for (const std::size_t size : {1U, 2U, 3U, 7U, 8U, 9U, 31U, 64U, 100U}) {
        PositionSet set(size);
        std::set<std::size_t> members;
        for (int change = 0; change < 200; ++change) {
            const std::size_t position = random() % size;
            if (random() % 2 == 0) {
                set.insert(position);
                members.insert(position);
            } else {
                set.erase(position);
                members.erase(position);
            }
            expectMembers(set, members, size);
        }
    }
}

TEST(PositionSet, InsertingAMemberOrErasingNoneChangesNothing)
{
    PositionSet set(10);
    set.insert(4);
    set.insert(4);
    set.erase(5);
    expectMembers(set, {4}, 10);
}

TEST(PositionSet, CopiesAreIndependent)
{
    PositionSet set = PositionSet::all(3);
    const PositionSet copy = set;
    set.erase(1);
    expectMembers(set, {0, 2}, 3);
    expectMembers(copy, {0, 1, 2}, 3);
}
