// DropTargets: the windows that take drops, and whether OLE was made ready.
#pragma once

#include "platform/sim/SimPc.h"

#include <ole2.h>
#include <windows.h>

#include <map>
#include <memory>
#include <vector>

namespace platform {

/// A window that takes drops; it holds a reference to its target, as Windows does.
struct DropTarget : Object {
    DropTarget(HWND which, IDropTarget* drops) : window(which), target(drops) { target->AddRef(); }
    ~DropTarget() override { target->Release(); }

    HWND window;
    IDropTarget* target;
};

class DropTargets : public Area {
public:
    using Area::Area;

    void Enter();
    bool Leave();
    [[nodiscard]] bool IsInitialized() const { return !sessions_.empty(); }
    HRESULT Register(HWND window, IDropTarget* target);
    HRESULT Revoke(HWND window);
    [[nodiscard]] bool Has(HWND window) const { return targets_.count(window) != 0; }
    /// The one of the window below the point or of the nearest above it that takes drops.
    [[nodiscard]] std::shared_ptr<DropTarget> Under(POINT point) const;

private:
    std::vector<std::uintptr_t> sessions_;
    std::map<HWND, std::uintptr_t> targets_;
};

}  // namespace platform
