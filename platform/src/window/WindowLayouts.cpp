// The records of windows, messages and input have the sizes and the places of fields that they have on Windows.
#include "platform/src/core/Widths.h"

#include <windows.h>

#include <cstddef>

using platform::Wide;

static_assert(sizeof(MSG) == Wide(48, 28) && offsetof(MSG, lParam) == Wide(24, 12) && offsetof(MSG, pt) == Wide(36, 20));
static_assert(sizeof(WNDCLASSEXW) == Wide(80, 48) && offsetof(WNDCLASSEXW, lpfnWndProc) == 8 &&
              offsetof(WNDCLASSEXW, lpszClassName) == Wide(64, 40));
static_assert(sizeof(CREATESTRUCTW) == Wide(80, 48) && offsetof(CREATESTRUCTW, cy) == Wide(32, 16) &&
              offsetof(CREATESTRUCTW, lpszName) == Wide(56, 36));
static_assert(sizeof(WINDOWPOS) == Wide(40, 28) && offsetof(WINDOWPOS, flags) == Wide(32, 24));
static_assert(sizeof(NCCALCSIZE_PARAMS) == Wide(56, 52));
static_assert(sizeof(MINMAXINFO) == 40);
static_assert(sizeof(STYLESTRUCT) == 8);
static_assert(sizeof(NMHDR) == Wide(24, 12) && offsetof(NMHDR, code) == Wide(16, 8));
static_assert(sizeof(PAINTSTRUCT) == Wide(72, 64) && offsetof(PAINTSTRUCT, rcPaint) == Wide(12, 8));
static_assert(sizeof(TRACKMOUSEEVENT) == Wide(24, 16) && offsetof(TRACKMOUSEEVENT, hwndTrack) == 8);
static_assert(sizeof(MOUSEINPUT) == Wide(32, 24) && sizeof(KEYBDINPUT) == Wide(24, 16) && sizeof(INPUT) == Wide(40, 28) &&
              offsetof(INPUT, mi) == Wide(8, 4));
static_assert(sizeof(NONCLIENTMETRICSW) == 504 && offsetof(NONCLIENTMETRICSW, lfMessageFont) == 408);
static_assert(sizeof(HELPINFO) == Wide(40, 28));
static_assert(sizeof(MSGBOXPARAMSW) == Wide(80, 40) && offsetof(MSGBOXPARAMSW, lpszIcon) == Wide(48, 24) &&
              offsetof(MSGBOXPARAMSW, dwLanguageId) == Wide(72, 36));
