// FailingMemory: lets one allocation of C++ memory fail.
#pragma once

#include <cstdint>

namespace tests {

/// The `n`-th allocation (from 1) while it lives raises std::bad_alloc, also one inside of the stand-in PC.
class FailingMemory {
public:
    explicit FailingMemory(std::int64_t n);
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;
    ~FailingMemory();
    /// False when there were not so many.
    [[nodiscard]] static bool HasStruck();
};

}  // namespace tests
