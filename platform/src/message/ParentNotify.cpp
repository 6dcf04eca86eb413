#include "platform/src/message/ParentNotify.h"

#include "platform/src/message/Inner.h"

namespace platform {

void NotifyParents(const Window& window, UINT message, LONG_PTR id, POINT point)
{
    WindowPtr level = const_cast<Window&>(window).shared_from_this();
    while (level && level->IsChildStyle() && !level->IsTopLevel() && !(level->exStyle & WS_EX_NOPARENTNOTIFY)) {
        const WindowPtr parent = level->parent->shared_from_this();
        LPARAM parameter = reinterpret_cast<LPARAM>(window.handle);
        if (message != WM_CREATE && message != WM_DESTROY)
            parameter = MAKELPARAM(point.x - parent->client.left, point.y - parent->client.top);
        inner::SendMessage(parent->handle, WM_PARENTNOTIFY, MAKEWPARAM(message, id), parameter);
        level = WindowOf(parent->handle);
    }
}

}  // namespace platform
