// AccessibleWindows: a form's answers to WM_GETOBJECT, by which screen readers come to its controls.
#pragma once

#include "base/Handles.h"
#include "host/OleDrag.h"

#include <windows.h>

#include <optional>

namespace host {

/// OLE and oleacc.dll are made ready by the first answer: most runs of a program meet no screen reader.
class AccessibleWindows {
public:
    /// The message's result; 0 when the window has nothing to say and the message goes on to its default procedure.
    /// https://learn.microsoft.com/windows/win32/winauto/wm-getobject
    LRESULT Answer(HWND window, WPARAM wParam, LPARAM lParam);

private:
    // Held, whoever else has loaded it: objects of its making are with readers.
    base::ModuleHandle library_;
    // Ends before the library goes: references that others still hold are taken back here.
    std::optional<OleSession> session_;
};

}  // namespace host
