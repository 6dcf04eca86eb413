// StockControl: a control that is one of Windows' own windows.
#pragma once

#include "host/Control.h"
#include "host/Event.h"
#include "host/KeyRouting.h"
#include "host/OwnWindow.h"
#include "host/PropertyBag.h"

#include <memory>

namespace host {

/// Common to Label and ComboBox: the window, its font, Enabled, focus and keys. The window is a child of the container's window.
class StockControl : public Control {
public:
    ~StockControl() override;

    [[nodiscard]] HWND hWnd() const final { return window_.Get(); }
    [[nodiscard]] bool Enabled() const final { return enabled_; }
    void Enabled(bool enabled) final;
    void SetFocus() final;
    [[nodiscard]] const std::shared_ptr<host::Font>& Font() const { return font_; }
    void Font(std::shared_ptr<host::Font> font);

protected:
    /// The system class and style of the window, without WS_CHILD, WS_VISIBLE and WS_DISABLED.
    struct SystemWindow {
        const WCHAR* className;
        DWORD style;
        base::String text;
    };
    [[nodiscard]] virtual SystemWindow Describe() const = 0;
    /// The window is there: fill it.
    virtual void Made() {}
    /// The window's rectangle for this place.
    [[nodiscard]] virtual RECT WindowRect(RECT place) const { return place; }
    virtual void ReadProperties(const PropertyBag&) {}
    virtual void WriteProperties(PropertyBag&) {}
    /// A key for the window, which may be changed; false when it is done with.
    [[nodiscard]] virtual bool OnKey(KeyEvent /*event*/, WPARAM& /*key*/) { return true; }

private:
    void LoadNew() final;
    void LoadStored(const PropertyBag& bag) final;
    void Placed() final;
    void ContainerChanged() final;
    void Store(PropertyBag& bag) final;
    void Unload() final { window_.Reset(); }
    void MakeWindow();
    static LRESULT CALLBACK Procedure(HWND, UINT, WPARAM, LPARAM, UINT_PTR, DWORD_PTR) noexcept;
    LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    bool enabled_ = true;
    std::shared_ptr<host::Font> font_;
    WindowHandle window_;
};

}  // namespace host
