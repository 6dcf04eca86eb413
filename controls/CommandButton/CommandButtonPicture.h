// CommandButtonPicture: the picture on a button.
#pragma once

#include "controls/Canvas.h"
#include "controls/CommandButton/CommandButtonLook.h"
#include "controls/CommandButton/CommandButtonStyles.h"
#include "host/Picture.h"

#include <array>
#include <memory>

namespace controls {

enum ButtonPicture : std::uint8_t { NormalPicture, OverPicture, DownPicture, DisabledPicture };

/// One for each `ButtonPicture`; null where there is none.
using ButtonPictures = std::array<std::shared_ptr<host::Picture>, 4>;

struct PictureLook {
    const ButtonPictures& pictures;
    std::int32_t align = AlignCentre;                       // a ContentAlignValue
    std::int32_t disabledStyle = DisabledPictureUnchanged;  // how the normal picture stands in for that of a disabled button
    bool hasMask = false;                                   // pixels of the mask colour are open
    COLORREF mask = 0;
};

/// The picture of the state, or the normal one where the state has none. A style that lifts hot pictures draws a grey shadow where the
/// picture would lie, and the picture one pixel further up and left; the caption still comes on top.
void PaintButtonPicture(Canvas& canvas, const ButtonStyle& style, const ButtonLook& look, const PictureLook& picture);

}  // namespace controls
