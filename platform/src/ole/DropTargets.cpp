#include "platform/src/ole/DropTargets.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"

namespace platform {

namespace {

/// Stands for one OleInitialize in the leak report.
struct OleSession : Object {};

}  // namespace

void DropTargets::Enter()
{
    sessions_.push_back(pc_.Handles().Open(std::make_shared<OleSession>()));
}

bool DropTargets::Leave()
{
    if (sessions_.empty())
        return false;
    pc_.Handles().CloseAny(sessions_.back());
    sessions_.pop_back();
    return true;
}

HRESULT DropTargets::Register(HWND window, IDropTarget* target)
{
    if (!target)
        return E_INVALIDARG;
    if (!WindowOf(window))
        return DRAGDROP_E_INVALIDHWND;
    if (sessions_.empty())
        return E_OUTOFMEMORY;  // What Windows says when COM was not made ready by OleInitialize.
    if (Has(window))
        return DRAGDROP_E_ALREADYREGISTERED;
    targets_[window] = pc_.Handles().Open(std::make_shared<DropTarget>(window, target));
    return S_OK;
}

HRESULT DropTargets::Revoke(HWND window)
{
    if (!WindowOf(window))
        return DRAGDROP_E_INVALIDHWND;
    const auto found = targets_.find(window);
    if (found == targets_.end())
        return DRAGDROP_E_NOTREGISTERED;
    const std::uintptr_t handle = found->second;
    targets_.erase(found);
    pc_.Handles().CloseAny(handle);
    return S_OK;
}

std::shared_ptr<DropTarget> DropTargets::Under(POINT point) const
{
    for (const Window* window = WindowUnder(point); window; window = window->parent)
        if (const auto found = targets_.find(window->handle); found != targets_.end())
            return pc_.Handles().Find<DropTarget>(found->second);
    return nullptr;
}

}  // namespace platform

using namespace platform;

HRESULT WINAPI OleInitialize(LPVOID reserved)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, reserved);
    DropTargets& targets = SimPc::Current().Get<DropTargets>();
    const HRESULT result = targets.IsInitialized() ? S_FALSE : S_OK;
    targets.Enter();
    return result;
}

VOID WINAPI OleUninitialize()
{
    SIM_NOTE();
    if (!SimPc::Current().Get<DropTargets>().Leave())
        SimPc::Current().Unsupported("OleUninitialize without OleInitialize");
}

HRESULT WINAPI RegisterDragDrop(HWND window, IDropTarget* target)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, window, target);
    return SimPc::Current().Get<DropTargets>().Register(window, target);
}

HRESULT WINAPI RevokeDragDrop(HWND window)
{
    SIM_NOTE(window);
    return SimPc::Current().Get<DropTargets>().Revoke(window);
}
