// Wall: the one place where exceptions end before Windows would meet them.
#pragma once

#include <windows.h>

#include <utility>

namespace host {

/// Runs `handle` and gives its result. Windows' own code lies between a window procedure, or a COM object, and its caller and knows
/// nothing of C++ exceptions, so none may leave: after an exception `fallback`, the message's default treatment or an error, answers.
template <class Handle, class Fallback>
auto BehindWall(Handle&& handle, Fallback&& fallback) noexcept -> decltype(handle())
{
    try {
        return std::forward<Handle>(handle)();
    } catch (...) {
        return std::forward<Fallback>(fallback)();
    }
}

}  // namespace host
