// WindowClasses: the window classes that are registered, the system's and those of each process.
#pragma once

#include "platform/src/window/Window.h"

namespace platform {

class WindowClasses : public Area {
public:
    using Area::Area;

    /// Registers a class for a process (0: the system's own, known to all). False when the process has it already.
    bool Register(WindowClass windowClass);
    /// Looks in the process's own classes first, then in the system's. `name` may be an atom.
    [[nodiscard]] std::shared_ptr<WindowClass> Find(LPCWSTR name, DWORD process) const;
    void Forget(const WindowClass& windowClass);

private:
    std::vector<std::shared_ptr<WindowClass>> classes_;
    ATOM lastAtom_ = 0xC000;
};

}  // namespace platform
