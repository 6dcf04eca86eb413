#include "host/MessageLoop.h"

#include "host/KeyRouting.h"
#include "host/Wall.h"

namespace host {

int MessageLoop::Run()
{
    MSG message{};
    // GetMessageW answers 0 for WM_QUIT and -1 for an error; neither leaves anything to wait for.
    while (GetMessageW(&message, nullptr, 0, 0) > 0)
        Dispatch(message);
    return message.message == WM_QUIT ? static_cast<int>(message.wParam) : 1;
}

bool MessageLoop::RunPending()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT)
            return false;
        Dispatch(message);
    }
    return true;
}

void MessageLoop::Dispatch(MSG& message)
{
    // Routing runs handlers of forms and controls outside of any window procedure. One that ends with an exception has used its key up.
    if (BehindWall([&] { return RouteMessage(message) ? LRESULT{1} : 0; }, [] { return LRESULT{1}; }) != 0)
        return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace host
