// Dragging: OLE drag and drop on the stand-in PC, and the user's hand in it.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <ole2.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace platform {

class Dragging : public Area {
public:
    using Area::Area;

    /// One thing that the user does while something is dragged.
    struct Step {
        POINT to{};               // where the mouse goes, screen pixels
        DWORD keys = MK_LBUTTON;  // MK_ bits from then on; without a button the user has let go
        bool escape = false;
        std::function<void()> meanwhile = nullptr;  // what happens on the PC before the source is asked
    };
    using Steps = std::vector<Step>;

    /// What the user does in the next drag that the program begins; a drag that is still on after the last step fails the test.
    void Plan(Steps steps) { plan_ = std::move(steps); }
    /// Effects that the source of the last drag was told, and its answers.
    [[nodiscard]] const std::vector<std::pair<DWORD, HRESULT>>& Feedback() const { return feedback_; }

    /// What another program drags: each part that is not empty is a format.
    struct Foreign {
        std::u16string text;
        std::string narrowText;
        std::vector<std::u16string> files;
    };
    /// The user drags something of another program. Returns what the target says that it did.
    DWORD DragIn(const Foreign& data, DWORD allowedEffects, const Steps& steps);

    /// The program drags something: the user does what was planned.
    HRESULT Play(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect);

private:
    HRESULT Run(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect, const Steps& steps);

    Steps plan_;
    std::vector<std::pair<DWORD, HRESULT>> feedback_;
};

}  // namespace platform
