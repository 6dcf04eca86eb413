// OleDrag: a surface's part in OLE drag and drop.
#pragma once

#include "host/OleDragEvents.h"

#include <windows.h>

#include <memory>
#include <optional>

namespace host {

/// OleInitialize on this thread, taken back at the end. False when OLE can't be had.
class OleSession {
public:
    OleSession();
    ~OleSession();
    OleSession(const OleSession&) = delete;
    OleSession& operator=(const OleSession&) = delete;
    [[nodiscard]] explicit operator bool() const { return isOpen_; }

private:
    bool isOpen_;
};

/// Takes drops on the control's window and begins drags there. Only while it has a window does the control hear of either.
class OleDrag {
public:
    explicit OleDrag(OleDragEvents& control) : control_(control) {}
    ~OleDrag() { Attach(nullptr); }
    OleDrag(const OleDrag&) = delete;
    OleDrag& operator=(const OleDrag&) = delete;

    /// NULL before the window goes: OLE would keep its hold on a window that is no more.
    void Attach(HWND window);
    /// Whether data may be dropped on the window. Where Windows refuses, nothing is ever dropped.
    /// https://learn.microsoft.com/windows/win32/api/ole2/nf-ole2-registerdragdrop
    void AcceptDrops(bool accept);
    /// OLEStartDrag, the drag, OLECompleteDrag. Returns when it is over; the control may be gone then. A drag does not begin in another.
    void Start();

private:
    OleDragEvents& control_;
    std::shared_ptr<OleDragLink> link_ = std::make_shared<OleDragLink>();
    HWND window_ = nullptr;
    bool accepts_ = false;
    // Lasts as long as the control: OLE must not be left while it is in the midst of a call to the target.
    std::optional<OleSession> session_;
};

}  // namespace host
