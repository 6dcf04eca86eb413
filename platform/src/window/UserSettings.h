// UserSettings: what the user has chosen in the control panel.
#pragma once

#include "platform/sim/SimPc.h"

#include <string>

namespace platform {

class UserSettings : public Area {
public:
    using Area::Area;

    /// Keyboard cues (access key underlines, focus rectangles) are always shown.
    bool keyboardCues = false;
    /// Face name of the font of captions, menus and messages.
    std::u16string messageFont = u"Segoe UI";
};

}  // namespace platform
