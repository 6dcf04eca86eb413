// MessageQueues: the message queue of every thread, its timers, and the input state that threads may share.
#pragma once

#include "platform/src/window/Window.h"

#include <array>
#include <deque>
#include <functional>
#include <list>

namespace platform {

/// One movement of the hardware, as it waits for a thread to look at it. Who gets it is found out then, not before.
struct HardwareEvent {
    enum class Kind { Move, Button, Wheel, Key } kind = Kind::Move;
    POINT point{};     // of the cursor, screen pixels
    UINT message = 0;  // Button: WM_LBUTTONDOWN ... WM_MBUTTONUP
    int wheel = 0;
    WORD virtualKey = 0;
    WORD scanCode = 0;  // Key: for VK_PACKET the UTF-16 unit
    bool extended = false;
    bool up = false;
    DWORD time = 0;
    HWND target = nullptr;  // Move, Button, Wheel: the window below the cursor when it happened
};

/// Focus, activation, capture and keys of one thread, or of several that were attached to each other.
struct InputState {
    HWND focus = nullptr;
    HWND active = nullptr;
    HWND capture = nullptr;
    HWND tracked = nullptr;  // the window that wants to hear that the mouse left it
    bool trackedNonClient = false;
    HCURSOR cursor = nullptr;
    std::array<BYTE, 256> keys{};  // 0x80 down, 0x01 toggled
    std::deque<HardwareEvent> events;
    bool menuKeyAlone = false;  // Alt went down and no other key since

    // The last press of a mouse button, for double clicks.
    HWND clickWindow = nullptr;
    UINT clickMessage = 0;
    DWORD clickTime = 0;
    POINT clickPoint{};
};

struct MessageTimer {
    HWND window = nullptr;
    UINT_PTR id = 0;
    UINT period = 0;
    TIMERPROC procedure = nullptr;
    SimClock::Ticket ticket = 0;
    bool due = false;
};

struct ThreadQueue {
    Actor actor;
    std::deque<MSG> posted;
    std::deque<MSG> ready;  // input that has found its window and waits to be taken
    bool quits = false;
    int exitCode = 0;
    bool hangs = false;
    std::shared_ptr<InputState> input = std::make_shared<InputState>();
    std::list<MessageTimer> timers;
    DWORD messageTime = 0;
    POINT messagePoint{};
    UINT fresh = 0;        // QS_ bits of what came since somebody last looked
    int handlingSent = 0;  // messages of other threads that are being handled
    bool ended = false;    // its process has; it goes when nobody works with it
};

class MessageQueues : public Area {
public:
    using Area::Area;

    [[nodiscard]] ThreadQueue& Of(Actor actor);
    [[nodiscard]] ThreadQueue& Of(const Window& window) { return Of(window.actor); }
    [[nodiscard]] ThreadQueue& Current();
    /// Whether a message that the running thread sent to the window would find nobody who handles it.
    [[nodiscard]] bool Hangs(const Window& window);
    [[nodiscard]] std::list<ThreadQueue>& All() { return queues_; }

    /// The input state of the process in the foreground.
    [[nodiscard]] std::shared_ptr<InputState>& Foreground() { return foreground_; }
    [[nodiscard]] bool IsForeground(const ThreadQueue& queue) const { return queue.input == foreground_; }

    /// The process that keeps others from taking the foreground (LockSetForegroundWindow), 0 for none.
    DWORD foregroundLockedBy = 0;
    /// Screen pixels.
    POINT cursor{};
    /// Keys and buttons as the hardware has them now: 0x80 down, 0x01 pressed since somebody last asked.
    std::array<BYTE, 256> asyncKeys{};

    void Post(ThreadQueue& queue, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    /// A window has gone: nothing that waits for it is delivered.
    void Forget(const Window& window);
    /// A process has ended: its queues go too.
    void Forget(DWORD process);
    /// Called when a thread of another process takes WM_QUIT from its queue: its message loop has ended.
    std::function<void(Actor thread, int exitCode)> onQuit;

private:
    std::list<ThreadQueue> queues_;
    std::shared_ptr<InputState> foreground_;
};

[[nodiscard]] MessageQueues& Queues();

}  // namespace platform
