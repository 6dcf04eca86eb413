#include "host/InputOptions.h"

namespace host {

void InputOptions::Attach(HWND window)
{
    window_ = window;
    oleDrag_.Attach(window);
    oleDrag_.AcceptDrops(oleDropMode_ == 1);
}

void InputOptions::Enabled(bool enabled)
{
    enabled_ = enabled;
    if (window_)
        EnableWindow(window_, enabled);
}

void InputOptions::OleDropMode(std::int16_t mode)
{
    oleDropMode_ = mode;
    oleDrag_.AcceptDrops(mode == 1);
}

LPCWSTR InputOptions::CursorName() const
{
    switch (mousePointer_) {
        case 2:
            return IDC_CROSS;
        case 3:
            return IDC_IBEAM;
        case 5:
        case 15:
            return IDC_SIZEALL;
        case 6:
            return IDC_SIZENESW;
        case 7:
            return IDC_SIZENS;
        case 8:
            return IDC_SIZENWSE;
        case 9:
            return IDC_SIZEWE;
        case 10:
            return IDC_UPARROW;
        case 11:
            return IDC_WAIT;
        case 12:
            return IDC_NO;
        case 13:
            return IDC_APPSTARTING;
        case 14:
            return IDC_HELP;
        default:
            return nullptr;
    }
}

}  // namespace host
