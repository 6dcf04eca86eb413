#include "host/Extender.h"

#include "host/Form.h"
#include "host/PropertyBag.h"

#include <algorithm>
#include <cmath>

namespace host {

namespace {

constexpr const WCHAR* leftKey = TEXT("Left");
constexpr const WCHAR* topKey = TEXT("Top");
constexpr const WCHAR* widthKey = TEXT("Width");
constexpr const WCHAR* heightKey = TEXT("Height");
constexpr const WCHAR* tabIndexKey = TEXT("TabIndex");
constexpr const WCHAR* visibleKey = TEXT("Visible");
constexpr const WCHAR* tabStopKey = TEXT("TabStop");
constexpr const WCHAR* toolTipTextKey = TEXT("ToolTipText");
constexpr const WCHAR* defaultKey = TEXT("Default");
constexpr const WCHAR* cancelKey = TEXT("Cancel");
constexpr const WCHAR* tagKey = TEXT("Tag");
constexpr const WCHAR* indexKey = TEXT("Index");

std::int32_t Whole(float value)
{
    return static_cast<std::int32_t>(std::lround(value));
}

}  // namespace

Extender::Extender(Control& control, Form& form, host::Container& container, base::String name)
    : control_(control), form_(form), container_(&container), name_(std::move(name))
{
}

void Extender::Container(host::Container& container)
{
    const HWND window = container.ContainerHandle(), own = control_.OwnHandle();
    if (&container == container_ || (own && (window == own || IsChild(own, window))))
        return;
    form_.MoveTo(control_, *container_, container);
    container_ = &container;
    control_.ContainerChanged();
}

void Extender::Left(float left)
{
    Move(left, top_, width_, height_);
}

void Extender::Top(float top)
{
    Move(left_, top, width_, height_);
}

void Extender::Width(float width)
{
    Move(left_, top_, width, height_);
}

void Extender::Height(float height)
{
    Move(left_, top_, width_, height);
}

void Extender::Move(float left, float top, float width, float height)
{
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    control_.Placed();
}

RECT Extender::PixelRect() const
{
    const ScaleMode mode = container_->ContainerScaleMode();
    const POINT origin = container_->ContainerOrigin();
    const LONG left = origin.x + ToPixelsX(left_, mode), top = origin.y + ToPixelsY(top_, mode);
    return {left, top, left + ToPixelsX(width_, mode), top + ToPixelsY(height_, mode)};
}

void Extender::Visible(bool visible)
{
    if (std::exchange(visible_, visible) == visible)
        return;
    if (control_.OwnHandle())
        ShowWindow(control_.OwnHandle(), visible ? SW_SHOWNA : SW_HIDE);
    if (visible && form_.IsShown())
        control_.Shown();
    if (!visible) {
        control_.Hidden();
        form_.PassFocusOn(control_);
    }
}

void Extender::Default(bool isDefault)
{
    if (std::exchange(default_, isDefault) == isDefault)
        return;
    if (isDefault)
        for (Control* const other : form_.Controls())
            if (other != &control_)
                other->GetExtender().Default(false);
    control_.AmbientChanged(TEXT("DisplayAsDefault"));
}

void Extender::Cancel(bool cancel)
{
    if (cancel)
        for (Control* const other : form_.Controls())
            other->GetExtender().cancel_ = false;
    cancel_ = cancel;
}

void Extender::ZOrder(int position)
{
    const HWND own = control_.OwnHandle(), shown = control_.hWnd();
    const auto place = [=](HWND window) {
        if (window)
            SetWindowPos(window, position == 0 ? HWND_TOP : HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    };
    // A hosted system window stays above the control's own window.
    place(position == 0 ? own : shown);
    if (shown != own)
        place(position == 0 ? shown : own);
}

void Extender::ReadProperties(const PropertyBag& bag)
{
    left_ = static_cast<float>(bag.Read<std::int32_t>(leftKey, 0));
    top_ = static_cast<float>(bag.Read<std::int32_t>(topKey, 0));
    width_ = static_cast<float>(bag.Read<std::int32_t>(widthKey, 0));
    height_ = static_cast<float>(bag.Read<std::int32_t>(heightKey, 0));
    tabIndex_ = bag.Read<std::int32_t>(tabIndexKey, 0);
    visible_ = bag.Read<bool>(visibleKey, true);
    tabStop_ = bag.Read<bool>(tabStopKey, true);
    toolTipText_ = bag.Read<base::String>(toolTipTextKey, {});
    default_ = bag.Read<bool>(defaultKey, false);
    cancel_ = bag.Read<bool>(cancelKey, false);
    tag_ = bag.Read<base::String>(tagKey, {});
    index_ = bag.Read<std::int16_t>(indexKey, -1);
}

void Extender::WriteProperties(PropertyBag& bag, bool hasPlace) const
{
    if (hasPlace) {
        bag.Write(leftKey, Whole(left_));
        bag.Write(topKey, Whole(top_));
        bag.Write(widthKey, Whole(width_));
        bag.Write(heightKey, Whole(height_));
        bag.Write(tabIndexKey, std::int32_t{tabIndex_});
    }
    bag.Write(visibleKey, visible_, true);
    bag.Write(tabStopKey, tabStop_, true);
    bag.Write(toolTipTextKey, toolTipText_, {});
    bag.Write(defaultKey, default_, false);
    bag.Write(cancelKey, cancel_, false);
    bag.Write(tagKey, tag_, {});
    bag.Write(indexKey, index_, std::int16_t{-1});
}

bool Extender::OwnsKey(base::StringView key)
{
    static constexpr base::StringView keys[] = {leftKey,    topKey,         widthKey,   heightKey, tabIndexKey, visibleKey,
                                                tabStopKey, toolTipTextKey, defaultKey, cancelKey, tagKey,      indexKey};
    return std::ranges::find(keys, key) != std::end(keys);
}

}  // namespace host
