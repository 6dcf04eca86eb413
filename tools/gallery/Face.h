// Face: one picture of a button, drawn by its painters without a window.
#pragma once

#include "base/String.h"
#include "controls/CommandButton/CommandButtonLook.h"
#include "controls/CommandButton/CommandButtonPicture.h"
#include "platform/sim/Image.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace gallery {

struct Face {
    std::int32_t style = 0;
    SIZE size{};
    controls::ButtonLook look;  // what does not come from the colours
    controls::ButtonColors colors;
    base::String caption;
    std::int32_t captionAlign = controls::AlignCentre;
    bool rightToLeft = false;
    std::int32_t captionFx = controls::CaptionFxNone;
    host::OleColor fontColor = host::SystemColor(COLOR_BTNTEXT);
    host::OleColor fontHighlightColor = host::SystemColor(COLOR_BTNTEXT);
    controls::ButtonPictures pictures;
    std::int32_t pictureAlign = controls::AlignCentre;
    std::int32_t pictureDisabledStyle = controls::DisabledPictureUnchanged;
    bool maskColorEnabled = false;
    COLORREF maskColor = 0;
    std::int32_t nonThemeStyle = controls::ClassicStyle;
    bool themed = true;
    /// What shows beside the window's shape. Without it the corners are shown as they are drawn, uncut.
    std::optional<COLORREF> backdrop;
};

/// The names of the states, from normal to defaulted.
extern const std::string_view stateNames[5];

/// Reads STYLE STATE WIDTHxHEIGHT [name=value ...]. On a mistake `mistake` says which.
[[nodiscard]] std::optional<Face> ReadFace(std::span<const std::string_view> words, std::string& mistake);

/// Pictures lie on a bitmap of their own; empty without memory.
[[nodiscard]] std::optional<platform::Image> DrawFace(const Face& face);

}  // namespace gallery
