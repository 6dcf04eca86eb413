// Arithmetic of rectangles.
#include "platform/src/core/Gate.h"

#include <windows.h>

BOOL WINAPI OffsetRect(LPRECT rectangle, int x, int y)
{
    SIM_NOTE(x, y);
    *rectangle = {rectangle->left + x, rectangle->top + y, rectangle->right + x, rectangle->bottom + y};
    return TRUE;
}
