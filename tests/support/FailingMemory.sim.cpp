#include "tests/support/FailingMemory.h"

#include <cstdlib>
#include <new>

namespace {

/// Allocations that still succeed; negative while none is to fail.
std::int64_t left = -1;
bool struck = false;

}  // namespace

// Every form for a single object is replaced, so that what one gives another can take, also under the sanitizers, which bring their own.
// Those for arrays are a pair by themselves.

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    if (left > 0 && --left == 0) {
        struck = true;
        return nullptr;
    }
    return std::malloc(size != 0 ? size : 1);
}

void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept
{
    std::free(memory);
}

namespace tests {

FailingMemory::FailingMemory(std::int64_t n)
{
    struck = false;
    left = n;
}

FailingMemory::~FailingMemory()
{
    left = -1;
}

bool FailingMemory::HasStruck()
{
    return struck;
}

}  // namespace tests
