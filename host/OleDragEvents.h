// OleDragEvents: what a user control hears of OLE drag and drop.
#pragma once

#include "host/DataObject.h"

#include <cstdint>

namespace host {

/// Effects: 0 none, 1 copy, 2 move, 4 link, and the bit 0x80000000 while the target scrolls. Button, shift, x and y as for the mouse.
/// In any of these the control may change its drop mode, unload the form or die.
class OleDragEvents {
public:
    /// This control's drag is over, after each OLEStartDrag; effect is what the target did, 0 when there was no drop.
    virtual void UserControl_OLECompleteDrag(std::int32_t& /*effect*/) {}
    /// Data is dropped here. The effect comes in as all that the source allows and leaves as what was done. Of several that are left,
    /// the most harmless counts: copy, link, move. The button is the one that held the data.
    virtual void UserControl_OLEDragDrop(DataObject& /*data*/, std::int32_t& effect, std::int16_t& /*button*/, std::int16_t& /*shift*/,
                                         float& /*x*/, float& /*y*/)
    {
        effect = 0;
    }
    /// Data is dragged over the control; state: 0 it enters, 1 it leaves, 2 it moves or keys change. The effect as for the drop: what
    /// would be done here.
    virtual void UserControl_OLEDragOver(DataObject& /*data*/, std::int32_t& effect, std::int16_t& /*button*/, std::int16_t& /*shift*/,
                                         float& /*x*/, float& /*y*/, std::int16_t& /*state*/)
    {
        effect = 0;
    }
    /// After each of the target's answers to this control's drag. With defaultCursors false the handler shows a cursor of its own.
    virtual void UserControl_OLEGiveFeedback(std::int32_t& /*effect*/, bool& /*defaultCursors*/) {}
    /// A target wants data that was offered without a value; the handler sets it.
    virtual void UserControl_OLESetData(DataObject& /*data*/, std::int16_t& /*dataFormat*/) {}
    /// This control's drag begins: the handler fills the data and says which effects are allowed. It begins with none allowed.
    virtual void UserControl_OLEStartDrag(DataObject& /*data*/, std::int32_t& /*allowedEffects*/) {}

protected:
    OleDragEvents() = default;
    ~OleDragEvents() = default;
};

/// The way from COM's objects to the control. Other programs may keep those longer than the control lives; afterwards it does nothing.
struct OleDragLink {
    OleDragEvents* control = nullptr;
    bool dragging = false;
};

}  // namespace host
