#include "platform/src/input/Focus.h"

#include "platform/src/core/Gate.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/input/Inner.h"

namespace platform {

namespace {

LPARAM AsParameter(HWND window)
{
    return reinterpret_cast<LPARAM>(window);
}

bool IsIn(HWND candidate, const Window& window)
{
    const WindowPtr found = WindowOf(candidate);
    return found && (found.get() == &window || found->IsBelow(&window));
}

/// Tells every top-level window of a thread that its program came to the front or went from it.
void AnnounceProgram(Actor thread, bool active, DWORD otherThread)
{
    for (const WindowPtr& window : WindowTree::Children(Tree().Desktop()))
        if (window->actor == thread && WindowOf(window->handle))
            inner::SendMessage(window->handle, WM_ACTIVATEAPP, active, otherThread);
}

/// Takes activation and focus from the thread in the foreground, for one of another process or for nobody.
void LeaveForeground(HWND next, DWORD nextThread)
{
    const std::shared_ptr<InputState> input = std::exchange(Queues().Foreground(), nullptr);
    const WindowPtr active = input ? WindowOf(input->active) : nullptr;
    if (!active)
        return;
    const HWND handle = std::exchange(input->active, nullptr);
    const Actor thread = active->actor;
    inner::SendMessage(handle, WM_NCACTIVATE, FALSE, AsParameter(next));
    inner::SendMessage(handle, WM_ACTIVATE, WA_INACTIVE, AsParameter(next));
    AnnounceProgram(thread, false, nextThread);
    if (const HWND focus = std::exchange(input->focus, nullptr))
        inner::SendMessage(focus, WM_KILLFOCUS, 0, 0);
}

/// Gives the focus within one input state; nobody's permission is asked.
void MoveFocus(InputState& input, HWND to)
{
    const HWND from = std::exchange(input.focus, to);
    if (from == to)
        return;
    if (WindowOf(from))
        inner::SendMessage(from, WM_KILLFOCUS, reinterpret_cast<WPARAM>(to), 0);
    if (to && input.focus == to && WindowOf(to))
        inner::SendMessage(to, WM_SETFOCUS, reinterpret_cast<WPARAM>(from), 0);
}

}  // namespace

bool MayTakeForeground()
{
    const DWORD process = SimPc::Current().CurrentActor().process;
    const DWORD locker = Queues().foregroundLockedBy;
    if (locker == 0 || locker == process)
        return true;
    const WindowPtr front = WindowOf(Queues().Foreground() ? Queues().Foreground()->active : nullptr);
    return front && front->actor.process == process;
}

/// Keys that went down or up while another program, or nobody, was in front are known to the one that comes to the front.
void CatchUpWithKeys(InputState& input)
{
    const auto& now = Queues().asyncKeys;
    for (std::size_t key = 0; input.events.empty() && key < now.size(); ++key)
        input.keys[key] = static_cast<BYTE>((input.keys[key] & 0x01) | (now[key] & 0x80));
}

/// Who is told what, in which order: conformance test WindowFocus.SetFocus_ActivatesTheWindowAboveAndTellsBothSides.
bool Activate(Window& window, UINT how)
{
    const WindowPtr keep = window.shared_from_this();
    ThreadQueue& queue = Queues().Of(window);
    const std::shared_ptr<InputState> input = queue.input;
    HWND previous = nullptr;
    bool newProgram = Queues().Foreground() != input;
    if (newProgram) {
        LeaveForeground(window.handle, queue.actor.thread);
        Queues().Foreground() = input;
        CatchUpWithKeys(*input);
    } else {
        previous = input->active;
        if (previous == window.handle)
            return true;
        if (WindowOf(previous)) {
            const bool agrees = inner::SendMessage(previous, WM_NCACTIVATE, FALSE, AsParameter(window.handle)) != 0;
            if (!agrees && inner::IsWindowVisible(previous))
                return false;
            const Actor thread = WindowOf(previous)->actor;
            inner::SendMessage(previous, WM_ACTIVATE, WA_INACTIVE, AsParameter(window.handle));
            if (thread != queue.actor) {  // Threads of two programs that share their input.
                AnnounceProgram(thread, false, queue.actor.thread);
                newProgram = true;
            }
        }
        if (!WindowOf(window.handle))
            return false;
    }
    input->active = window.handle;
    Tree().Raise(window);
    if (newProgram)
        AnnounceProgram(window.actor, true, 0);
    const HWND handle = window.handle;
    if (input->active == handle)
        inner::SendMessage(handle, WM_NCACTIVATE, TRUE, AsParameter(previous));
    if (input->active == handle)
        inner::SendMessage(handle, WM_ACTIVATE, how, AsParameter(previous));
    // A window whose procedure keeps WM_ACTIVATE for itself without giving the focus to anybody gets it all the same.
    if (input->active == handle && !IsIn(input->focus, window))
        MoveFocus(*input, handle);
    return input->active == handle;
}

/// The owner comes first, then whatever stands next on the screen: tool windows and such as refuse activation are passed over, so that the
/// user does not lose the keyboard to a window that does not look as if it had it.
void ActivateNext(Window& leaving)
{
    ThreadQueue& queue = Queues().Of(leaving);
    if (queue.input->active != leaving.handle)
        return;
    if (!Queues().IsForeground(queue)) {
        queue.input->active = queue.input->focus = nullptr;
        return;
    }
    const auto takes = [&](const Window& candidate) {
        return &candidate != &leaving && !candidate.dying && (candidate.style & (WS_VISIBLE | WS_DISABLED | WS_MINIMIZE)) == WS_VISIBLE &&
               !(candidate.exStyle & (WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW));
    };
    if (leaving.owner && takes(*leaving.owner)) {
        Activate(*leaving.owner, WA_ACTIVE);
        return;
    }
    for (const WindowPtr& candidate : WindowTree::Children(Tree().Desktop())) {
        if (takes(*candidate)) {
            Activate(*candidate, WA_ACTIVE);
            return;
        }
    }
    LeaveForeground(nullptr, 0);
}

void GiveUpFocus(Window& window, HWND heir)
{
    InputState& input = *Queues().Of(window).input;
    if (IsIn(input.focus, window))
        MoveFocus(input, heir);
}

namespace inner {

HWND SetFocus(HWND handle)
{
    SimPc& pc = SimPc::Current();
    const std::shared_ptr<InputState> input = Queues().Current().input;
    if (!handle) {
        const HWND previous = input->focus;
        MoveFocus(*input, nullptr);
        return previous;
    }
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return nullptr;
    if (Queues().Of(*window).input != input)
        return pc.Fail<HWND>(ERROR_ACCESS_DENIED, nullptr);
    for (const Window* above = window.get(); above->parent; above = above->parent)
        if (above->style & (WS_DISABLED | WS_MINIMIZE))
            return pc.Fail<HWND>(ERROR_INVALID_PARAMETER, nullptr);
    Window& root = window->TopLevel();
    if (input->active != root.handle && (!Activate(root, WA_ACTIVE) || !WindowOf(handle)))
        return nullptr;
    // Activation moves the focus already; that window is what counts as the previous one.
    const HWND previous = input->focus;
    MoveFocus(*input, handle);
    return previous;
}

HWND GetFocus()
{
    return Queues().Current().input->focus;
}

HWND SetActiveWindow(HWND handle)
{
    const std::shared_ptr<InputState> input = Queues().Current().input;
    const HWND previous = input->active;
    const WindowPtr window = RequireWindow(handle);
    if (!window || !window->IsTopLevel() || Queues().Of(*window).input != input)
        return nullptr;
    return Activate(*window, WA_ACTIVE) ? previous : nullptr;
}

HWND GetActiveWindow()
{
    return Queues().Current().input->active;
}

HWND SetCapture(HWND handle)
{
    const WindowPtr window = handle ? RequireWindow(handle) : nullptr;
    const std::shared_ptr<InputState> input = Queues().Current().input;
    if (handle && (!window || Queues().Of(*window).input != input))
        return nullptr;
    const HWND previous = std::exchange(input->capture, handle);
    if (WindowOf(previous) && previous != handle)
        SendMessage(previous, WM_CAPTURECHANGED, 0, AsParameter(handle));
    if (!input->capture)
        MouseMayHaveLeft();
    return previous;
}

BOOL ReleaseCapture()
{
    SetCapture(nullptr);
    return TRUE;
}

HWND GetCapture()
{
    return Queues().Current().input->capture;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

HWND WINAPI SetFocus(HWND window)
{
    SIM_CALL(nullptr, ERROR_INVALID_PARAMETER, window);
    return inner::SetFocus(window);
}

HWND WINAPI GetFocus()
{
    SIM_NOTE();
    return inner::GetFocus();
}

HWND WINAPI GetActiveWindow()
{
    SIM_NOTE();
    return inner::GetActiveWindow();
}

HWND WINAPI SetCapture(HWND window)
{
    SIM_NOTE(window);
    return inner::SetCapture(window);
}

BOOL WINAPI ReleaseCapture()
{
    SIM_NOTE();
    return inner::ReleaseCapture();
}

HWND WINAPI GetCapture()
{
    SIM_NOTE();
    return inner::GetCapture();
}

HWND WINAPI GetForegroundWindow()
{
    SIM_NOTE();
    const auto& foreground = Queues().Foreground();
    return foreground ? foreground->active : nullptr;
}

BOOL WINAPI SetForegroundWindow(HWND window)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, window);
    const WindowPtr found = RequireWindow(window);
    if (!found || !MayTakeForeground())
        return FALSE;
    return Activate(found->TopLevel(), WA_ACTIVE);
}

BOOL WINAPI AllowSetForegroundWindow(DWORD process)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, process);
    return MayTakeForeground();
}

BOOL WINAPI LockSetForegroundWindow(UINT lock)
{
    SIM_CALL(FALSE, ERROR_ACCESS_DENIED, lock);
    if (!MayTakeForeground())
        return SimPc::Current().Fail(ERROR_ACCESS_DENIED, FALSE);
    Queues().foregroundLockedBy = lock == LSFW_LOCK ? SimPc::Current().CurrentActor().process : 0;
    return TRUE;
}

BOOL WINAPI AttachThreadInput(DWORD attach, DWORD attachTo, BOOL doAttach)
{
    SIM_CALL(FALSE, ERROR_INVALID_PARAMETER, attach, attachTo, doAttach);
    const auto find = [](DWORD thread) -> ThreadQueue* {
        for (ThreadQueue& queue : Queues().All())
            if (queue.actor.thread == thread)
                return &queue;
        return nullptr;
    };
    (void)Queues().Current();  // A thread that asks has a queue.
    ThreadQueue* one = find(attach);
    ThreadQueue* other = find(attachTo);
    if (!one || !other || one == other)
        return SimPc::Current().Fail(ERROR_INVALID_PARAMETER, FALSE);
    const std::shared_ptr<InputState> before = one->input;
    if (doAttach) {
        one->input = other->input;
        for (HWND InputState::*state : {&InputState::focus, &InputState::active, &InputState::capture})
            if (!((*one->input).*state))
                (*one->input).*state = (*before).*state;
        if (Queues().Foreground() == before)
            Queues().Foreground() = one->input;
    } else {
        one->input = std::make_shared<InputState>();
    }
    return TRUE;
}
