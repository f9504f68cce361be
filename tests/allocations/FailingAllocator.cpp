#include <tests/allocations/FailingAllocator.h>
#include <tests/support/LibraryAllocation.h>

#include <cerrno>
#include <limits>

namespace {

constexpr auto never = std::numeric_limits<std::size_t>::max();

std::size_t allocationsLeft = never;
bool failsForGood = false;
bool hasFailed = false;
std::ptrdiff_t blocks = 0;

bool fails()
{
    if (allocationsLeft == never) {
        return false;
    }
    if (allocationsLeft > 1) {
        --allocationsLeft;
        return false;
    }
    if (!failsForGood) {
        allocationsLeft = never;
    }
    hasFailed = true;
    errno = ENOMEM;
    return true;
}

void *counted(void *block)
{
    blocks += block != nullptr ? 1 : 0;
    return block;
}

} // namespace

extern "C" __attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    return fails() ? nullptr : counted(__libc_malloc(size));
}

extern "C" __attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    return fails() ? nullptr : counted(__libc_calloc(count, size));
}

extern "C" __attribute__((visibility("default"))) void *realloc(void *block, std::size_t size)
{
    if (fails()) {
        return nullptr;
    }
    return block == nullptr ? counted(__libc_realloc(block, size)) : __libc_realloc(block, size);
}

extern "C" __attribute__((visibility("default"))) void free(void *block)
{
    blocks -= block != nullptr ? 1 : 0;
    __libc_free(block);
}

namespace allocations {

void failAt(std::size_t number, Failure failure)
{
    hasFailed = false;
    failsForGood = failure == Failure::ForGood;
    allocationsLeft = number;
}

bool endFailures()
{
    allocationsLeft = never;
    return hasFailed;
}

std::ptrdiff_t liveBlocks()
{
    return blocks;
}

} // namespace allocations
