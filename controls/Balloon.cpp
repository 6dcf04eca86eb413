#include "controls/Balloon.h"

#include "host/Units.h"

#include <utility>

namespace controls {

using base::String;

namespace {

constexpr UINT_PTR timeIsUp = 0x42;  // beside the tip's own timers, which count from 1
constexpr UINT stays = 10'000;       // milliseconds
constexpr int widest = 300;          // pixels at 96 dots an inch

}  // namespace

void Balloon::Show(HWND at, Icon icon, const String& title, const String& text)
{
    Hide();
    if (!IsWindow(at))
        return;
    window_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX | TTS_BALLOON, CW_USEDEFAULT,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, at, nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window_)
        return;
    // The subclass hears the end of the window too, whoever ends it.
    subclass_ = std::make_unique<DSubclass>();
    subclass_->WndProc.Connect([this](HWND, UINT message, WPARAM wParam, LPARAM, LRESULT&, bool& handled) {
        if (message == WM_DESTROY) {
            window_ = nullptr;
        } else if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN || (message == WM_TIMER && wParam == timeIsUp)) {
            handled = true;
            Hide();
        }
    });
    subclass_->TryEnable(window_);

    String shown = text;
    TOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V2_SIZE;
    tool.uFlags = TTF_TRACK;
    tool.hwnd = at;
    tool.lpszText = shown.data();
    SendMessageW(window_, TTM_SETMAXTIPWIDTH, 0, MulDiv(widest, host::ScreenResolution::Get().x, 96));
    SendMessageW(window_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(window_, TTM_SETTITLEW, static_cast<WPARAM>(icon), reinterpret_cast<LPARAM>(title.c_str()));
    RECT place{};
    GetWindowRect(at, &place);
    SendMessageW(window_, TTM_TRACKPOSITION, 0, MAKELPARAM((place.left + place.right) / 2, place.bottom - (place.bottom - place.top) / 4));
    SendMessageW(window_, TTM_TRACKACTIVATE, TRUE, reinterpret_cast<LPARAM>(&tool));
    SetTimer(window_, timeIsUp, stays, nullptr);
    NotifyWinEvent(EVENT_SYSTEM_ALERT, window_, OBJID_CLIENT, CHILDID_SELF);
}

void Balloon::Hide()
{
    const HWND window = std::exchange(window_, nullptr);
    const auto subclass = std::move(subclass_);
    if (window)
        DestroyWindow(window);
}

}  // namespace controls
