// Control: what the system's window classes have in common. One object stands behind each of their windows.
#pragma once

#include "platform/sim/Graphics.h"
#include "platform/sim/SimPc.h"
#include "platform/src/behaviour/Inner.h"
#include "platform/src/gdi/Canvas.h"

#include <windows.h>

#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

class Control {
public:
    explicit Control(HWND window) : window_(window) {}
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// What the class does with a message.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;

protected:
    /// Fonts, painting, enabling and the default window procedure: what is left when a class has no answer of its own.
    LRESULT HandleShared(UINT message, WPARAM wParam, LPARAM lParam);
    virtual void Paint(HDC dc) = 0;
    virtual void FontChanged() {}

    [[nodiscard]] HWND Parent() const { return inner::GetParent(window_); }
    [[nodiscard]] DWORD Style() const { return inner::GetStyle(window_); }
    [[nodiscard]] bool Has(DWORD styleBits) const { return (Style() & styleBits) == styleBits; }
    [[nodiscard]] bool Enabled() const { return inner::IsWindowEnabled(window_) != FALSE; }
    [[nodiscard]] bool Focused() const { return inner::GetFocus() == window_; }
    [[nodiscard]] RECT Client() const { return inner::GetClientRect(window_); }
    [[nodiscard]] bool Inside(LPARAM point) const;
    [[nodiscard]] std::u16string Text() const { return inner::GetText(window_); }
    /// Whether the system draws this window with visual styles.
    [[nodiscard]] bool Themed() const;
    void Repaint() const { inner::InvalidateRect(window_, nullptr, true); }

    /// WM_COMMAND with this code to the parent. The window may be gone afterwards.
    void Notify(int code) const;
    /// False once the window has been destroyed, for instance by a parent that was notified.
    [[nodiscard]] bool Alive() const { return alive_; }
    /// Asks the parent for colours with a WM_CTLCOLOR message. The answer is a brush that the parent keeps.
    HBRUSH AskColors(UINT message, HDC dc) const;

    HWND window_;
    HFONT font_ = nullptr;

private:
    friend class ControlTable;
    bool alive_ = true;
};

/// The objects behind the windows of the system's classes.
class ControlTable : public Area {
public:
    using Area::Area;
    /// The object behind a window, made when the window is being created.
    template <class T>
    std::shared_ptr<Control> Of(HWND window, UINT message)
    {
        const auto found = controls_.find(window);
        if (found != controls_.end())
            return found->second;
        return message == WM_NCCREATE ? controls_[window] = std::make_shared<T>(window) : nullptr;
    }
    [[nodiscard]] std::shared_ptr<Control> Find(HWND window) const;
    void Remove(HWND window);

private:
    std::map<HWND, std::shared_ptr<Control>> controls_;
};

/// The window procedure of the class `T`. The object outlives its window for as long as it still handles a message.
template <class T>
LRESULT ControlProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto& table = SimPc::Current().Get<ControlTable>();
    const std::shared_ptr<Control> control = table.Of<T>(window, message);
    if (!control)
        return inner::DefWindowProc(window, message, wParam, lParam);
    const LRESULT result = control->Handle(message, wParam, lParam);
    if (message == WM_NCDESTROY)
        table.Remove(window);
    return result;
}

/// Measures text in a font without a window.
class TextRuler {
public:
    explicit TextRuler(HFONT font);
    [[nodiscard]] int Width(std::u16string_view text) const { return canvas_.Measure(text).cx; }
    [[nodiscard]] int LineHeight() const { return canvas_.Measure(u"Ag").cy; }
    /// As DrawTextW with DT_CALCRECT.
    [[nodiscard]] SIZE Box(std::u16string_view text, int width, UINT format);

private:
    Canvas canvas_;
};

}  // namespace platform
