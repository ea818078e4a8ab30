#include "support/AllocationCounter.h"

#include <cstddef>

// The names under which glibc offers its own allocator to a program that replaces the public ones. What comes from here
// is released by glibc's free, which stays.
// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace {

thread_local std::uint64_t count = 0;

} // namespace

std::uint64_t tarvin::allocationCount() noexcept
{
    return count;
}

extern "C" {

void* malloc(std::size_t size)
{
    ++count;
    return __libc_malloc(size);
}

void* calloc(std::size_t elements, std::size_t size)
{
    ++count;
    return __libc_calloc(elements, size);
}

void* realloc(void* block, std::size_t size)
{
    ++count;
    return __libc_realloc(block, size);
}
}
