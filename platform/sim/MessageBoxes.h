// MessageBoxes: the message boxes that the program showed, and the user's answers to the next ones.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <deque>
#include <string>
#include <vector>

namespace platform {

class MessageBoxes : public Area {
public:
    using Area::Area;

    struct Shown {
        std::u16string caption;
        std::u16string text;
        DWORD style = 0;
        HWND owner = nullptr;
        /// The icon's name when the style says MB_USERICON: text, or "#" and a number. Else empty.
        std::u16string icon;
        HINSTANCE iconModule = nullptr;
        DWORD languageId = 0;
    };
    /// Every box so far, oldest first. None waits for anybody: an answer is there at once.
    [[nodiscard]] const std::vector<Shown>& All() const { return shown_; }
    /// The box that came last; the test must know that there was one.
    [[nodiscard]] const Shown& Last() const { return shown_.back(); }
    void Forget() { shown_.clear(); }

    /// The answer to the next box that has none yet, for instance IDYES. Boxes without one are answered with IDOK.
    void Answer(int id) { answers_.push_back(id); }

    /// Records a box and gives the answer; what the Windows functions call.
    int Show(Shown box);

private:
    std::vector<Shown> shown_;
    std::deque<int> answers_;
};

}  // namespace platform
