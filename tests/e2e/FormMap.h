// FormMap: where every control of the window is, as designed. The tests find the controls by their place.
#pragma once

#include <windows.h>

namespace e2e {

enum class Kind { frame, button, checkBox, textBox, comboBox, label };

enum class Place {
    DFrame1,
    TextPassword,
    Label1,
    FrameAutoStart,
    CheckAutoStart,
    CheckHideTrayIcon,
    CheckSoundStart,
    FrameService,
    cmdInstall,
    cmdStart,
    lblAccount,
    txtAccount,
    lblPassword,
    txtPassword,
    chkSystem,
    lblStartup,
    ComboStartup,
    FrameStartVelmora,
    CommandStartVelmora,
    CommandCloseVelmora,
    CommandOk,
    window,
};

struct Designed {
    Place place;
    const char* name;
    Kind kind;
    Place container;
    /// In twips, relative to the container.
    int left, top, width, height;
    /// The caption by which a check box sets its own width; else NULL.
    const WCHAR* caption;
    const WCHAR* font;
};

constexpr int TWIPS_PER_PIXEL = 15;
constexpr int CLIENT_WIDTH = 4830 / TWIPS_PER_PIXEL;
constexpr int CLIENT_HEIGHT = 8205 / TWIPS_PER_PIXEL;

// In the order of Place.
constexpr Designed FORM_MAP[] = {
    {Place::DFrame1, "DFrame1", Kind::frame, Place::window, 120, 120, 4575, 1095, nullptr, nullptr},
    {Place::TextPassword, "TextPassword", Kind::textBox, Place::DFrame1, 1200, 480, 3135, 285, nullptr, nullptr},
    {Place::Label1, "Label1", Kind::label, Place::DFrame1, 240, 495, 855, 255, nullptr, nullptr},
    {Place::FrameAutoStart, "FrameAutoStart", Kind::frame, Place::window, 120, 1320, 4575, 1575, nullptr, nullptr},
    {Place::CheckAutoStart, "CheckAutoStart", Kind::checkBox, Place::FrameAutoStart, 240, 360, 2550, 255,
     TEXT("Auto start when Windows starts"), TEXT("MS Sans Serif")},
    {Place::CheckHideTrayIcon, "CheckHideTrayIcon", Kind::checkBox, Place::FrameAutoStart, 240, 720, 1365, 255, TEXT("Hide Tray Icon"),
     TEXT("MS Sans Serif")},
    {Place::CheckSoundStart, "CheckSoundStart", Kind::checkBox, Place::FrameAutoStart, 240, 1080, 1365, 255, TEXT("Starting Sound"),
     TEXT("MS Sans Serif")},
    {Place::FrameService, "FrameService", Kind::frame, Place::window, 120, 2880, 4575, 2535, nullptr, nullptr},
    {Place::cmdInstall, "cmdInstall", Kind::button, Place::FrameService, 240, 480, 1695, 495, nullptr, nullptr},
    {Place::cmdStart, "cmdStart", Kind::button, Place::FrameService, 2640, 480, 1695, 495, nullptr, nullptr},
    {Place::lblAccount, "lblAccount", Kind::label, Place::FrameService, 240, 1200, 855, 255, nullptr, nullptr},
    {Place::txtAccount, "txtAccount", Kind::textBox, Place::FrameService, 1440, 1200, 2775, 285, nullptr, nullptr},
    {Place::lblPassword, "lblPassword", Kind::label, Place::FrameService, 240, 1560, 855, 255, nullptr, nullptr},
    {Place::txtPassword, "txtPassword", Kind::textBox, Place::FrameService, 1440, 1560, 1215, 285, nullptr, nullptr},
    {Place::chkSystem, "chkSystem", Kind::checkBox, Place::FrameService, 2760, 1560, 1470, 315, TEXT("System Account"),
     TEXT("Microsoft Sans Serif")},
    {Place::lblStartup, "lblStartup", Kind::label, Place::FrameService, 240, 1920, 1095, 255, nullptr, nullptr},
    {Place::ComboStartup, "ComboStartup", Kind::comboBox, Place::FrameService, 1440, 1920, 2895, 315, nullptr, nullptr},
    {Place::FrameStartVelmora, "FrameStartVelmora", Kind::frame, Place::window, 120, 5640, 4575, 1455, nullptr, nullptr},
    {Place::CommandStartVelmora, "CommandStartVelmora", Kind::button, Place::FrameStartVelmora, 240, 480, 1935, 615, nullptr, nullptr},
    {Place::CommandCloseVelmora, "CommandCloseVelmora", Kind::button, Place::FrameStartVelmora, 2400, 480, 1935, 615, nullptr, nullptr},
    {Place::CommandOk, "CommandOk", Kind::button, Place::window, 1080, 7320, 2655, 615, nullptr, nullptr},
};

static_assert([] {
    for (int index = 0; index < static_cast<int>(Place::window); ++index) {
        if (FORM_MAP[index].place != static_cast<Place>(index))
            return false;
    }
    return true;
}());

/// The designed rectangle in pixels of the window's client area.
constexpr RECT DesignedRect(Place place)
{
    const Designed& control = FORM_MAP[static_cast<int>(place)];
    const RECT container = control.container == Place::window ? RECT{} : DesignedRect(control.container);
    const LONG left = container.left + control.left / TWIPS_PER_PIXEL;
    const LONG top = container.top + control.top / TWIPS_PER_PIXEL;
    return {left, top, left + control.width / TWIPS_PER_PIXEL, top + control.height / TWIPS_PER_PIXEL};
}

}  // namespace e2e
