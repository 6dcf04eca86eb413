#include "platform/sim/Desktop.h"

#include "platform/src/behaviour/Inner.h"
#include "platform/src/gdi/Screen.h"
#include "platform/src/input/Cursors.h"
#include "platform/src/input/Hardware.h"
#include "platform/src/window/Frame.h"
#include "platform/src/window/UserSettings.h"

#include <algorithm>

namespace platform {

namespace {

UINT ButtonMessage(MouseButton button, bool up)
{
    const UINT down = button == MouseButton::Left ? WM_LBUTTONDOWN : button == MouseButton::Right ? WM_RBUTTONDOWN : WM_MBUTTONDOWN;
    return up ? down + 1 : down;
}

void InjectButton(MouseButton button, bool up)
{
    HardwareEvent event;
    event.kind = HardwareEvent::Kind::Button;
    event.message = ButtonMessage(button, up);
    Inject(event);
}

/// The arrow keys and their neighbours are extended keys: the number pad has the plain ones.
bool IsExtended(int key)
{
    return (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT || key == VK_DELETE || key == VK_APPS;
}

std::vector<HWND> Handles(const std::vector<WindowPtr>& windows)
{
    std::vector<HWND> handles;
    for (const WindowPtr& window : windows)
        handles.push_back(window->handle);
    return handles;
}

/// Each window hears it, the topmost first and a parent before its children, and paints itself anew.
void Announce(UINT message)
{
    for (const WindowPtr& window : Tree().All())
        if (WindowOf(window->handle))
            inner::SendMessage(window->handle, message, 0, 0);
    inner::RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

}  // namespace

int Desktop::Dpi() const
{
    return pc_.Get<Screen>().Dpi();
}

void Desktop::Dpi(int dotsPerInch)
{
    pc_.Get<Screen>().Dpi(dotsPerInch);
}

void Desktop::Resolution(int width, int height)
{
    pc_.Get<Screen>().Size({width, height});
    Window& root = Tree().Desktop();
    root.frame = root.client = {0, 0, width, height};
    for (const WindowPtr& window : WindowTree::Children(root)) {
        inner::SendMessage(window->handle, WM_DISPLAYCHANGE, 32, MAKELPARAM(width, height));
        inner::SendMessage(window->handle, WM_SETTINGCHANGE, SPI_SETWORKAREA, 0);
    }
    Settle();
}

void Desktop::Settle()
{
    pc_.Settle();
}

void Desktop::MouseMove(int x, int y)
{
    HardwareEvent event;
    event.point = {x, y};
    Inject(event);
    Settle();
}

void Desktop::MouseDown(MouseButton button)
{
    InjectButton(button, false);
    Settle();
}

void Desktop::MouseUp(MouseButton button)
{
    InjectButton(button, true);
    Settle();
}

void Desktop::MouseWheel(int delta)
{
    HardwareEvent event;
    event.kind = HardwareEvent::Kind::Wheel;
    event.wheel = delta;
    Inject(event);
    Settle();
}

void Desktop::Hover(HWND window, int x, int y)
{
    const POINT point = inner::MapPoint(window, nullptr, {x, y});
    MouseMove(point.x, point.y);
}

void Desktop::Click(HWND window, int x, int y, MouseButton button)
{
    Hover(window, x, y);
    MouseDown(button);
    MouseUp(button);
}

void Desktop::DoubleClick(HWND window, int x, int y, MouseButton button)
{
    Click(window, x, y, button);
    MouseDown(button);
    MouseUp(button);
}

void Desktop::KeyDown(int virtualKey)
{
    InjectKey(static_cast<WORD>(virtualKey), false, ScanCode(static_cast<WORD>(virtualKey)), IsExtended(virtualKey));
    Settle();
}

void Desktop::KeyUp(int virtualKey)
{
    InjectKey(static_cast<WORD>(virtualKey), true, ScanCode(static_cast<WORD>(virtualKey)), IsExtended(virtualKey));
    Settle();
}

void Desktop::Press(int virtualKey, int shift)
{
    static constexpr struct {
        int bit;
        int key;
    } shiftKeys[] = {{kShift, VK_SHIFT}, {kControl, VK_CONTROL}, {kAlt, VK_MENU}};
    for (const auto& [bit, key] : shiftKeys)
        if (shift & bit)
            KeyDown(key);
    KeyDown(virtualKey);
    KeyUp(virtualKey);
    for (const auto& [bit, key] : shiftKeys)
        if (shift & bit)
            KeyUp(key);
}

void Desktop::Type(std::u16string_view text)
{
    for (const char16_t character : text) {
        if (const auto key = KeyFor(character)) {
            Press(key->virtualKey, key->shift ? kShift : kNoShift);
            continue;
        }
        for (const bool up : {false, true})
            InjectKey(VK_PACKET, up, character);
        Settle();
    }
}

void Desktop::ClickCloseBox(HWND window)
{
    const WindowPtr found = WindowOf(window);
    const RECT box = found ? CaptionBox(*found, HTCLOSE) : RECT{};
    if (box.right <= box.left)
        return pc_.Unsupported("a click on the close box of a window that has none");
    MouseMove((box.left + box.right) / 2, (box.top + box.bottom) / 2);
    MouseDown();
    MouseUp();
}

Image Desktop::Snapshot(HWND window) const
{
    const WindowPtr found = WindowOf(window);
    if (!found || !found->TopLevel().pixels)
        return {};
    const Window& top = found->TopLevel();
    return top.pixels->Part(Shifted(found->frame, -top.frame.left, -top.frame.top));
}

std::vector<HWND> Desktop::Windows() const
{
    return Handles(WindowTree::Children(Tree().Desktop()));
}

std::u16string Desktop::Text(HWND window) const
{
    return inner::GetText(window);
}

HWND Desktop::FindByText(std::u16string_view text) const
{
    for (const Window* window : Tree().Desktop().children)
        if (window->text == text)
            return window->handle;
    return nullptr;
}

HWND Desktop::Focus() const
{
    const auto& foreground = Queues().Foreground();
    return foreground ? foreground->focus : nullptr;
}

HWND Desktop::WindowAt(POINT screen) const
{
    const Window* window = WindowUnder(screen);
    return window ? window->handle : nullptr;
}

std::size_t Desktop::TimersOf(DWORD process) const
{
    std::size_t count = 0;
    for (const ThreadQueue& queue : Queues().All())
        if (queue.actor.process == process)
            count += queue.timers.size();
    return count;
}

void Desktop::AnnounceThemeChange()
{
    Announce(WM_THEMECHANGED);
    Settle();
}

void Desktop::AnnounceColorChange()
{
    for (const WindowPtr& window : WindowTree::Children(Tree().Desktop()))
        if (WindowOf(window->handle))
            inner::SendMessage(window->handle, WM_SYSCOLORCHANGE, 0, 0);
    inner::RedrawWindow(nullptr, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
    Settle();
}

void Desktop::Hang(Actor thread, bool hangs)
{
    Queues().Of(thread).hangs = hangs;
}

void Desktop::OnQuit(std::function<void(Actor thread, int exitCode)> action)
{
    Queues().onQuit = std::move(action);
}

void Desktop::KeyboardCues(bool shown)
{
    pc_.Get<UserSettings>().keyboardCues = shown;
}

void Desktop::MessageFont(std::u16string faceName)
{
    pc_.Get<UserSettings>().messageFont = std::move(faceName);
}

void Desktop::AddIconResource(std::u16string name)
{
    pc_.Get<ProgramIcons>().Add(std::move(name));
}

}  // namespace platform
