// Control: what the system's window classes have in common.
#include "platform/src/classes/Control.h"

#include "platform/src/theme/WindowThemes.h"

namespace platform {

namespace {

bool Contains(const RECT& rectangle, POINT point)
{
    return point.x >= rectangle.left && point.x < rectangle.right && point.y >= rectangle.top && point.y < rectangle.bottom;
}

}  // namespace

LRESULT Control::HandleShared(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_SETFONT:
            font_ = reinterpret_cast<HFONT>(wParam);
            FontChanged();
            if (LOWORD(lParam))
                Repaint();
            return 0;
        case WM_GETFONT:
            return reinterpret_cast<LRESULT>(font_);
        case WM_ENABLE:
        case WM_THEMECHANGED:
        case WM_SYSCOLORCHANGE:
            Repaint();
            return 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_PAINT:
        case WM_PRINTCLIENT:
            // A device context in wParam means: draw there instead of on the window.
            if (wParam) {
                Paint(reinterpret_cast<HDC>(wParam));
            } else {
                PAINTSTRUCT paint{};
                if (const HDC dc = inner::BeginPaint(window_, paint)) {
                    Paint(dc);
                    inner::EndPaint(window_, paint);
                }
            }
            return 0;
        default:
            return inner::DefWindowProc(window_, message, wParam, lParam);
    }
}

bool Control::Inside(LPARAM point) const
{
    return Contains(Client(), {GET_X_LPARAM(point), GET_Y_LPARAM(point)});
}

bool Control::Themed() const
{
    return DrawsThemed(window_);
}

void Control::Notify(int code) const
{
    if (const HWND parent = Parent())
        inner::SendMessage(parent, WM_COMMAND, MAKEWPARAM(inner::GetId(window_), code), reinterpret_cast<LPARAM>(window_));
}

HBRUSH Control::AskColors(UINT message, HDC dc) const
{
    const auto ask = [&](HWND whom, auto how) {
        return reinterpret_cast<HBRUSH>(how(whom, message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(window_)));
    };
    const HWND parent = Parent();
    if (const HBRUSH brush = parent ? ask(parent, inner::SendMessage) : nullptr)
        return brush;
    return ask(window_, inner::DefWindowProc);
}

std::shared_ptr<Control> ControlTable::Find(HWND window) const
{
    const auto found = controls_.find(window);
    return found == controls_.end() ? nullptr : found->second;
}

void ControlTable::Remove(HWND window)
{
    const auto found = controls_.find(window);
    if (found == controls_.end())
        return;
    found->second->alive_ = false;
    controls_.erase(found);
}

TextRuler::TextRuler(HFONT font) : canvas_(std::make_shared<Image>(1, 1), POINT{0, 0}, Region(RECT{0, 0, 1, 1}))
{
    canvas_.Font(font ? font : static_cast<HFONT>(SimPc::Current().Get<Graphics>().StockObject(SYSTEM_FONT)));
}

SIZE TextRuler::Box(std::u16string_view text, int width, UINT format)
{
    RECT box{0, 0, width, 0};
    canvas_.Text(text, box, format | DT_CALCRECT);
    return {box.right, box.bottom};
}

}  // namespace platform
