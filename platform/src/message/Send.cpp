// Sending messages: to windows of the own process at once, to those of others as that process.
#include "platform/src/core/Gate.h"
#include "platform/src/message/Inner.h"
#include "platform/src/message/MessageQueues.h"

namespace platform {

namespace {

LRESULT Call(const WindowPtr& window, WNDPROC procedure, UINT message, WPARAM wParam, LPARAM lParam)
{
    SimPc& pc = SimPc::Current();
    if (window->actor == pc.CurrentActor())
        return procedure(window->handle, message, wParam, lParam);
    LRESULT result = 0;
    ThreadQueue& queue = Queues().Of(*window);
    ++queue.handlingSent;
    pc.ActAs(window->actor, [&] { result = procedure(window->handle, message, wParam, lParam); });
    --queue.handlingSent;
    return result;
}

}  // namespace

namespace inner {

LRESULT SendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = RequireWindow(handle);
    if (!window || !window->procedure)
        return 0;
    if (Queues().Hangs(*window)) {
        SimPc::Current().Unsupported("a message sent without a time limit to a thread that hangs");
        return 0;
    }
    return Call(window, window->procedure, message, wParam, lParam);
}

LRESULT CallWindowProc(WNDPROC procedure, HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = WindowOf(handle);
    return window && procedure ? Call(window, procedure, message, wParam, lParam) : 0;
}

BOOL PostMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!handle) {
        Queues().Post(Queues().Current(), nullptr, message, wParam, lParam);
        return TRUE;
    }
    const WindowPtr window = RequireWindow(handle);
    if (!window)
        return FALSE;
    Queues().Post(Queues().Of(*window), handle, message, wParam, lParam);
    return TRUE;
}

void PostQuitMessage(int exitCode)
{
    ThreadQueue& queue = Queues().Current();
    queue.quits = true;
    queue.exitCode = exitCode;
    queue.fresh |= QS_POSTMESSAGE;
}

}  // namespace inner

}  // namespace platform

using namespace platform;

LRESULT WINAPI SendMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    SIM_NOTE(window, message, wParam, lParam);
    return inner::SendMessage(window, message, wParam, lParam);
}

BOOL WINAPI PostMessageW(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    SIM_CALL(FALSE, ERROR_INVALID_WINDOW_HANDLE, window, message, wParam, lParam);
    return inner::PostMessage(window, message, wParam, lParam);
}

void WINAPI PostQuitMessage(int exitCode)
{
    SIM_NOTE(exitCode);
    inner::PostQuitMessage(exitCode);
}

LRESULT WINAPI CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    SIM_NOTE(window, message, wParam, lParam);
    return inner::CallWindowProc(procedure, window, message, wParam, lParam);
}
