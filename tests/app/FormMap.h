// FormMap: where every control of the utility's window is, as designed.
#pragma once

#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace tests {

struct Designed {
    const char *kind, *name, *container;
    /// In twips, relative to the container.
    LONG left, top, width, height;
    int tabIndex;  // -1: any
    const char *caption, *toolTip;
};

constexpr LONG kTwipsPerPixel = 15;
constexpr SIZE kClientSize = {4830 / kTwipsPerPixel, 8205 / kTwipsPerPixel};

constexpr Designed kFormMap[] = {
    {"Frame", "DFrame1", "", 120, 120, 4575, 1095, 12, "Set Password (need restart Velmora)", ""},
    {"TextBox", "TextPassword", "DFrame1", 1200, 480, 3135, 285, 0, "", "Password to send for shutdown this PC"},
    {"Label", "Label1", "DFrame1", 240, 495, 855, 255, -1, "Password:", ""},
    {"Frame", "FrameAutoStart", "", 120, 1320, 4575, 1575, 14, "Auto Start (optional)", ""},
    {"CheckBox", "CheckAutoStart", "FrameAutoStart", 240, 360, 2550, 255, 1, "Auto start when Windows starts",
     "Auto start ''Velmora.exe'' when Windows starts"},
    {"CheckBox", "CheckHideTrayIcon", "FrameAutoStart", 240, 720, 1365, 255, 2, "Hide Tray Icon", "Not show Velmora tray icon"},
    {"CheckBox", "CheckSoundStart", "FrameAutoStart", 240, 1080, 1365, 255, 3, "Starting Sound", "Play a sound advise at startup"},
    {"Frame", "FrameService", "", 120, 2880, 4575, 2535, 15, "Install as Service (optional)", ""},
    {"CommandButton", "cmdInstall", "FrameService", 240, 480, 1695, 495, 4, "Install Service", ""},
    {"CommandButton", "cmdStart", "FrameService", 2640, 480, 1695, 495, 5, "Start Service", ""},
    {"Label", "lblAccount", "FrameService", 240, 1200, 855, 255, -1, "Account:", ""},
    {"TextBox", "txtAccount", "FrameService", 1440, 1200, 2775, 285, 6, "", ""},
    {"Label", "lblPassword", "FrameService", 240, 1560, 855, 255, -1, "Password:", ""},
    {"TextBox", "txtPassword", "FrameService", 1440, 1560, 1215, 285, 7, "", ""},
    {"CheckBox", "chkSystem", "FrameService", 2760, 1560, 1470, 315, 20, "System Account", ""},
    {"Label", "lblStartup", "FrameService", 240, 1920, 1095, 255, -1, "Startup Type:", ""},
    {"ComboBox", "ComboStartup", "FrameService", 1440, 1920, 2895, 315, -1, "", ""},
    {"Timer", "tmrCheck", "FrameService", 0, 0, 0, 0, -1, "", ""},
    {"Frame", "FrameStartVelmora", "", 120, 5640, 4575, 1455, 19, "Start Velmora Now", ""},
    {"CommandButton", "CommandStartVelmora", "FrameStartVelmora", 240, 480, 1935, 615, 9, "Start Velmora", ""},
    {"CommandButton", "CommandCloseVelmora", "FrameStartVelmora", 2400, 480, 1935, 615, 10, "Close Velmora", ""},
    {"Timer", "TimerMonitorIfVelmoraRunning", "FrameStartVelmora", 0, 0, 0, 0, -1, "", ""},
    {"CommandButton", "CommandOk", "", 1080, 7320, 2655, 615, 11, "OK", ""},
};

constexpr const Designed& DesignOf(std::string_view name)
{
    const auto found = std::ranges::find(kFormMap, name, &Designed::name);
    return found != std::end(kFormMap) ? *found : throw std::out_of_range("no such control");
}

/// The designed rectangle in pixels of the window's client area.
constexpr RECT DesignedRect(const Designed& control)
{
    const RECT container = *control.container ? DesignedRect(DesignOf(control.container)) : RECT{};
    const LONG left = container.left + control.left / kTwipsPerPixel;
    const LONG top = container.top + control.top / kTwipsPerPixel;
    return {left, top, left + control.width / kTwipsPerPixel, top + control.height / kTwipsPerPixel};
}

}  // namespace tests
