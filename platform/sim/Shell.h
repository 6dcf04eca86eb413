// Shell: documents that the program opened, files that the user drops on its windows.
#pragma once

#include "platform/sim/SimPc.h"

#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

namespace platform {

class Shell : public Area {
public:
    using Area::Area;

    /// A call of ShellExecuteA.
    struct Opened {
        HWND window = nullptr;
        std::string verb, file, parameters, folder;
        INT show = 0;
    };
    [[nodiscard]] const std::vector<Opened>& AllOpened() const { return opened_; }
    void Add(Opened opened) { opened_.push_back(std::move(opened)); }
    /// What ShellExecuteA answers: more than 32 is success (42).
    [[nodiscard]] INT_PTR Answer() const { return answer_; }
    void Answer(INT_PTR answer) { answer_ = answer; }

    /// What the user drops, for a WM_DROPFILES message; whoever handles it gives it back with DragFinish.
    [[nodiscard]] HDROP MakeDrop(const std::vector<std::u16string>& files);

private:
    std::vector<Opened> opened_;
    INT_PTR answer_ = 42;
};

}  // namespace platform
