// Place: rectangles in a form that can be compared and that a failure prints.
#pragma once

#include <windows.h>

#include <array>

namespace tests {

/// Left, top, right and bottom.
using Place = std::array<LONG, 4>;

inline Place PlaceOf(const RECT& rectangle)
{
    return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
}

/// A window's place in the client area of another one, or on the screen.
inline Place PlaceIn(HWND window, HWND container = nullptr)
{
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, container, reinterpret_cast<POINT*>(&place), 2);
    return PlaceOf(place);
}

}  // namespace tests
