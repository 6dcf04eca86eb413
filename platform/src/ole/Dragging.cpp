// Dragging: who takes drops, and a drag's course from window to window.
#include "platform/sim/Dragging.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/input/Inner.h"
#include "platform/src/memory/Blocks.h"
#include "platform/src/ole/ForeignDrag.h"

using namespace platform;

namespace {

/// Stands for one OleInitialize in the leak report.
struct OleSession : Object {};

/// The mouse buttons as the drag leaves them: nobody else hears of them while it lasts.
void HoldButtons(DWORD keys)
{
    static constexpr struct {
        DWORD bit;
        int key;
    } buttons[] = {{MK_LBUTTON, VK_LBUTTON}, {MK_RBUTTON, VK_RBUTTON}, {MK_MBUTTON, VK_MBUTTON}};
    for (const auto& button : buttons) {
        const BYTE state = (keys & button.bit) != 0 ? 0x80 : 0;
        Queues().asyncKeys[button.key] = state;
        Queues().Current().input->keys[button.key] = state;
    }
}

}  // namespace

namespace platform {

/// A window that takes drops; it holds a reference to its target, as Windows does.
struct Dragging::Target : Object {
    Target(HWND which, IDropTarget* drops) : window(which), target(drops) { target->AddRef(); }
    ~Target() override { target->Release(); }

    HWND window;
    IDropTarget* target;
};

void Dragging::Enter()
{
    sessions_.push_back(pc_.Handles().Open(std::make_shared<OleSession>()));
}

bool Dragging::Leave()
{
    if (sessions_.empty())
        return false;
    pc_.Handles().CloseAny(sessions_.back());
    sessions_.pop_back();
    return true;
}

HRESULT Dragging::Register(HWND window, IDropTarget* target)
{
    if (!target)
        return E_INVALIDARG;
    if (!WindowOf(window))
        return DRAGDROP_E_INVALIDHWND;
    if (sessions_.empty())
        return E_OUTOFMEMORY;  // What Windows says when COM was not made ready by OleInitialize.
    if (IsTarget(window))
        return DRAGDROP_E_ALREADYREGISTERED;
    targets_[window] = pc_.Handles().Open(std::make_shared<Target>(window, target));
    return S_OK;
}

HRESULT Dragging::Revoke(HWND window)
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

/// The window below the point or the nearest above it that takes drops.
std::shared_ptr<Dragging::Target> Dragging::TargetUnder(POINT point) const
{
    for (const Window* window = WindowUnder(point); window; window = window->parent)
        if (const auto found = targets_.find(window->handle); found != targets_.end())
            return pc_.Handles().Find<Target>(found->second);
    return nullptr;
}

HRESULT Dragging::Run(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect, const Steps& steps)
{
    *effect = DROPEFFECT_NONE;
    feedback_.clear();
    std::shared_ptr<Target> over;
    DWORD shown = DROPEFFECT_NONE;
    const auto leave = [&] {
        if (over && IsTarget(over->window))
            over->target->DragLeave();
        over.reset();
    };
    for (const Step& step : steps) {
        Queues().cursor = step.to;
        HoldButtons(step.keys);
        if (step.meanwhile)
            step.meanwhile();
        const HRESULT course = source->QueryContinueDrag(step.escape, step.keys);
        if (course == DRAGDROP_S_DROP && over && IsTarget(over->window) && shown != DROPEFFECT_NONE) {
            *effect = allowedEffects;
            const HRESULT result = over->target->Drop(data, step.keys, step.to, effect);
            return FAILED(result) ? result : course;
        }
        if (course != S_OK) {
            leave();
            return course;
        }
        const std::shared_ptr<Target> under = TargetUnder(step.to);
        shown = allowedEffects;
        if (under != over)
            leave();
        if (!under)
            shown = DROPEFFECT_NONE;
        else if (std::exchange(over, under) == under)
            under->target->DragOver(step.keys, step.to, &shown);
        else
            under->target->DragEnter(data, step.keys, step.to, &shown);
        feedback_.emplace_back(shown, source->GiveFeedback(shown));
    }
    pc_.Unsupported("a drag that the user never ends");
    leave();
    return DRAGDROP_S_CANCEL;
}

HRESULT Dragging::Play(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect)
{
    // A window of OLE's own has the mouse while the drag lasts.
    inner::ReleaseCapture();
    return Run(data, source, allowedEffects, effect, std::exchange(plan_, {}));
}

DWORD Dragging::DragIn(const Foreign& data, DWORD allowedEffects, const Steps& steps)
{
    auto* const dragged = new ForeignData(data);
    auto* const source = new ForeignSource;
    DWORD effect = DROPEFFECT_NONE;
    Run(dragged, source, allowedEffects, &effect, steps);
    source->Release();
    dragged->Release();
    return effect;
}

}  // namespace platform

HRESULT WINAPI OleInitialize(LPVOID reserved)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, reserved);
    Dragging& dragging = SimPc::Current().Get<Dragging>();
    const HRESULT result = dragging.IsInitialized() ? S_FALSE : S_OK;
    dragging.Enter();
    return result;
}

VOID WINAPI OleUninitialize()
{
    SIM_NOTE();
    if (!SimPc::Current().Get<Dragging>().Leave())
        SimPc::Current().Unsupported("OleUninitialize without OleInitialize");
}

HRESULT WINAPI RegisterDragDrop(HWND window, IDropTarget* target)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, window, target);
    return SimPc::Current().Get<Dragging>().Register(window, target);
}

HRESULT WINAPI RevokeDragDrop(HWND window)
{
    SIM_NOTE(window);
    return SimPc::Current().Get<Dragging>().Revoke(window);
}

HRESULT WINAPI DoDragDrop(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, data, source, allowedEffects);
    SimPc& pc = SimPc::Current();
    if (!pc.Get<Dragging>().IsInitialized()) {
        pc.Unsupported("DoDragDrop before OleInitialize");
        return E_UNEXPECTED;
    }
    return pc.Get<Dragging>().Play(data, source, allowedEffects, effect);
}

VOID WINAPI ReleaseStgMedium(STGMEDIUM* medium)
{
    SIM_NOTE(medium);
    if (medium->pUnkForRelease)
        medium->pUnkForRelease->Release();
    else if (medium->tymed == TYMED_HGLOBAL)
        FreeGlobal(medium->hGlobal);
    else if (medium->tymed != TYMED_NULL)
        SimPc::Current().Unsupported("ReleaseStgMedium: this kind of medium");
    *medium = {};
}
