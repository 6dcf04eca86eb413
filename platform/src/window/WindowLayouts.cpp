// The records of windows, messages and input have the sizes and the places of fields that they have on 64-bit Windows.
#include <windows.h>

#include <cstddef>

namespace {

template <std::size_t PointerSize>
constexpr bool LayoutsFit()
{
    if constexpr (PointerSize == 8) {
        static_assert(sizeof(MSG) == 48 && offsetof(MSG, lParam) == 24 && offsetof(MSG, pt) == 36);
        static_assert(sizeof(WNDCLASSEXW) == 80 && offsetof(WNDCLASSEXW, lpfnWndProc) == 8 && offsetof(WNDCLASSEXW, lpszClassName) == 64);
        static_assert(sizeof(CREATESTRUCTW) == 80 && offsetof(CREATESTRUCTW, cy) == 32 && offsetof(CREATESTRUCTW, lpszName) == 56);
        static_assert(sizeof(WINDOWPOS) == 40 && offsetof(WINDOWPOS, flags) == 32);
        static_assert(sizeof(NCCALCSIZE_PARAMS) == 56);
        static_assert(sizeof(MINMAXINFO) == 40);
        static_assert(sizeof(STYLESTRUCT) == 8);
        static_assert(sizeof(NMHDR) == 24 && offsetof(NMHDR, code) == 16);
        static_assert(sizeof(PAINTSTRUCT) == 72 && offsetof(PAINTSTRUCT, rcPaint) == 12);
        static_assert(sizeof(TRACKMOUSEEVENT) == 24 && offsetof(TRACKMOUSEEVENT, hwndTrack) == 8);
        static_assert(sizeof(MOUSEINPUT) == 32 && sizeof(KEYBDINPUT) == 24 && sizeof(INPUT) == 40 && offsetof(INPUT, mi) == 8);
        static_assert(sizeof(NONCLIENTMETRICSW) == 504 && offsetof(NONCLIENTMETRICSW, lfMessageFont) == 408);
        static_assert(sizeof(HELPINFO) == 40 && sizeof(MSGBOXPARAMSW) == 80);
    }
    return true;
}
static_assert(LayoutsFit<sizeof(void*)>());

}  // namespace
