// Dragging: a drag's course from window to window.
#include "platform/sim/Dragging.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Inner.h"
#include "platform/src/memory/Blocks.h"
#include "platform/src/message/MessageQueues.h"
#include "platform/src/ole/DropTargets.h"
#include "platform/src/ole/ForeignDrag.h"

using namespace platform;

namespace {

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

HRESULT Dragging::Run(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect, const Steps& steps)
{
    const DropTargets& targets = pc_.Get<DropTargets>();
    *effect = DROPEFFECT_NONE;
    feedback_.clear();
    std::shared_ptr<DropTarget> over;
    DWORD shown = DROPEFFECT_NONE;
    const auto leave = [&] {
        if (over && targets.Has(over->window))
            over->target->DragLeave();
        over.reset();
    };
    for (const Step& step : steps) {
        Queues().cursor = step.to;
        HoldButtons(step.keys);
        if (step.meanwhile)
            step.meanwhile();
        const HRESULT course = source->QueryContinueDrag(step.escape, step.keys);
        if (course == DRAGDROP_S_DROP && over && targets.Has(over->window) && shown != DROPEFFECT_NONE) {
            *effect = allowedEffects;
            const HRESULT result = over->target->Drop(data, step.keys, step.to, effect);
            return FAILED(result) ? result : course;
        }
        if (course != S_OK) {
            leave();
            return course;
        }
        const std::shared_ptr<DropTarget> under = targets.Under(step.to);
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

HRESULT WINAPI DoDragDrop(IDataObject* data, IDropSource* source, DWORD allowedEffects, DWORD* effect)
{
    SIM_CALL(E_OUTOFMEMORY, ERROR_NOT_ENOUGH_MEMORY, data, source, allowedEffects);
    SimPc& pc = SimPc::Current();
    if (!pc.Get<DropTargets>().IsInitialized()) {
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
