// Arithmetic of rectangles.
#include "platform/src/core/Gate.h"

#include <windows.h>

BOOL WINAPI OffsetRect(LPRECT rectangle, int x, int y)
{
    SIM_NOTE(x, y);
    *rectangle = {rectangle->left + x, rectangle->top + y, rectangle->right + x, rectangle->bottom + y};
    return TRUE;
}

BOOL WINAPI EqualRect(const RECT* first, const RECT* second)
{
    SIM_NOTE();
    return first->left == second->left && first->top == second->top && first->right == second->right && first->bottom == second->bottom;
}
