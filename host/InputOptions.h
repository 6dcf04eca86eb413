// InputOptions: what a user control's window lets in, and how it looks to the mouse.
#pragma once

#include "base/String.h"
#include "host/OleDrag.h"

#include <cstdint>

namespace host {

class InputOptions {
public:
    explicit InputOptions(OleDragEvents& control) : oleDrag_(control) {}
    InputOptions(const InputOptions&) = delete;
    InputOptions& operator=(const InputOptions&) = delete;

    /// Without it the window is disabled and gets no input.
    [[nodiscard]] bool Enabled() const { return enabled_; }
    void Enabled(bool enabled);
    /// Letters that Alt brings to the control, empty for none.
    [[nodiscard]] const base::String& AccessKey() const { return accessKey_; }
    void AccessKey(base::StringView keys) { accessKey_ = keys; }
    /// 0 and 1 arrow, 2 cross, 3 I-beam, 5 and 15 move, 6 to 9 sizing, 10 up arrow, 11 hourglass, 12 no drop, 13 arrow and hourglass,
    /// 14 help; others are the arrow.
    [[nodiscard]] std::int16_t MousePointer() const { return mousePointer_; }
    void MousePointer(std::int16_t pointer) { mousePointer_ = pointer; }
    /// 0 none; 1 manual: the control hears of data that is dragged over it and dropped on it. Other values are kept and mean none.
    [[nodiscard]] std::int16_t OleDropMode() const { return oleDropMode_; }
    void OleDropMode(std::int16_t mode);
    /// Drags data from here until the user lets go of it: OLEStartDrag, OLEGiveFeedback, OLESetData, OLECompleteDrag.
    void OLEDrag() { oleDrag_.Start(); }

    // The user control does these.

    /// Binds the options to its window (NULL unbinds).
    void Attach(HWND window);
    /// The cursor that `MousePointer` stands for; NULL for the ordinary arrow.
    [[nodiscard]] LPCWSTR CursorName() const;

private:
    HWND window_ = nullptr;
    bool enabled_ = true;
    base::String accessKey_;
    std::int16_t mousePointer_ = 0;
    std::int16_t oleDropMode_ = 0;
    OleDrag oleDrag_;
};

}  // namespace host
