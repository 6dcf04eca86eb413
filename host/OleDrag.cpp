#include "host/OleDrag.h"

#include "host/OleDragSource.h"
#include "host/OleDragTarget.h"

namespace host {

OleSession::OleSession() : isOpen_(SUCCEEDED(OleInitialize(nullptr))) {}

OleSession::~OleSession()
{
    if (isOpen_)
        OleUninitialize();
}

void OleDrag::Attach(HWND window)
{
    AcceptDrops(false);
    window_ = window;
    link_->control = window ? &control_ : nullptr;
}

void OleDrag::AcceptDrops(bool accept)
{
    if (accept == accepts_ || !window_)
        return;
    if (!accept) {
        accepts_ = false;
        RevokeDragDrop(window_);
        return;
    }
    if (!session_ || !*session_)
        session_.emplace();
    accepts_ = *session_ && SUCCEEDED(RegisterDragDrop(window_, MakeCom<OleDragTarget>(link_, window_).Get()));
}

void OleDrag::Start()
{
    // The control may die in a handler, and this object with it.
    const std::shared_ptr<OleDragLink> link = link_;
    if (!link->control || std::exchange(link->dragging, true))
        return;
    const std::unique_ptr<bool, void (*)(bool*)> dragging(&link->dragging, [](bool* flag) { *flag = false; });
    const OleSession session;
    if (!session)
        return;
    const auto data = MakeCom<OleDragData>(link);
    std::int32_t allowed = 0;
    link->control->UserControl_OLEStartDrag(data->Data(), allowed);
    DWORD effect = DROPEFFECT_NONE;
    if (link->control && allowed != 0 &&
        DoDragDrop(data.Get(), MakeCom<OleDragSource>(link).Get(), static_cast<DWORD>(allowed), &effect) != DRAGDROP_S_DROP)
        effect = DROPEFFECT_NONE;
    auto done = static_cast<std::int32_t>(effect);
    if (link->control)
        link->control->UserControl_OLECompleteDrag(done);
}

}  // namespace host
