// MessageLoop: the program's one message loop.
#pragma once

#include <windows.h>

namespace host {

class MessageLoop {
public:
    /// Handles messages until the last form has unloaded (WM_QUIT). Gives the exit code.
    static int Run();
    /// Handles all that waits, without waiting itself. False once WM_QUIT has come.
    static bool RunPending();
    /// One message: key routing, then TranslateMessage and DispatchMessageW.
    static void Dispatch(MSG& message);
};

}  // namespace host
