#include "PeakMemory.h"

#include <tests/support/LibraryAllocation.h>

#include <malloc.h>

#include <algorithm>
#include <cstdlib>

namespace {

std::size_t held = 0;
std::size_t peak = 0;

void *counted(void *block)
{
    held += malloc_usable_size(block);
    peak = std::max(peak, held);
    return block;
}

} // namespace

extern "C" {

void *malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

void *calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

void *realloc(void *block, std::size_t size)
{
    const std::size_t before = malloc_usable_size(block);
    void *const moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0) {
        held -= before;
        return counted(moved);
    }
    return nullptr;
}

void free(void *block)
{
    held -= malloc_usable_size(block);
    __libc_free(block);
}
}

PeakMemory::PeakMemory() : m_start(held)
{
    peak = held;
}

std::size_t PeakMemory::withResult() const
{
    return peak - m_start;
}

std::size_t PeakMemory::beyondResult() const
{
    return peak - std::max(m_start, held);
}
