// OutOfMemory: the one error that the controls raise as an exception.
#pragma once

#include <exception>

namespace controls {

/// Raised by `DSubclass::Enable` when there is no memory for the heap, its block or its published name.
class OutOfMemory : public std::exception {
public:
    static constexpr int number = 7;
    [[nodiscard]] const char* what() const noexcept override { return "out of memory"; }
};

}  // namespace controls
