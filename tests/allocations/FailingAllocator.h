#pragma once

#include <cstddef>

/// \file
/// The memory of the whole program, Qt's included, with allocations that fail when a test wants it.

namespace allocations {

/// Whether one allocation fails or all from it on.
enum class Failure {
    Once,
    ForGood,
};

/// From now on the allocation of this number fails, counted from 1.
void failAt(std::size_t number, Failure failure);

/// Ends the failures. Whether there was one.
bool endFailures();

/// How many blocks are allocated.
std::ptrdiff_t liveBlocks();

} // namespace allocations
