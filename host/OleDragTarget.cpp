#include "host/OleDragTarget.h"

#include "host/Wall.h"

#include <initializer_list>

namespace host {

namespace {

constexpr std::int16_t entering = 0, leaving = 1, moving = 2;

/// OLE wants one effect of those that the source allows. An effect that moves makes the source delete what it offered, so a control
/// that chose nothing never moves unless nothing else is allowed.
DWORD OneEffect(std::int32_t chosen, DWORD allowed)
{
    const auto bits = static_cast<DWORD>(chosen);
    for (const DWORD effect : {DWORD{DROPEFFECT_COPY}, DWORD{DROPEFFECT_LINK}, DWORD{DROPEFFECT_MOVE}})
        if ((bits & allowed & effect) != 0)
            return effect | (bits & DWORD{DROPEFFECT_SCROLL});
    return DROPEFFECT_NONE;
}

/// An exception of the control refuses the data.
template <class Handle>
HRESULT Answer(DWORD* effect, Handle&& handle) noexcept
{
    if (!effect)
        return E_POINTER;
    return BehindWall(handle, [effect] {
        *effect = DROPEFFECT_NONE;
        return E_UNEXPECTED;
    });
}

}  // namespace

OleDragTarget::Where OleDragTarget::WhereIs(DWORD keys, POINTL point) const
{
    const auto bit = [keys](DWORD key, int value) { return (keys & key) != 0 ? value : 0; };
    POINT at{point.x, point.y};
    MapWindowPoints(nullptr, window_, &at, 1);
    return {static_cast<std::int16_t>(bit(MK_LBUTTON, 1) | bit(MK_RBUTTON, 2) | bit(MK_MBUTTON, 4)),
            static_cast<std::int16_t>(bit(MK_SHIFT, 1) | bit(MK_CONTROL, 2) | bit(MK_ALT, 4)), static_cast<float>(at.x),
            static_cast<float>(at.y)};
}

HRESULT OleDragTarget::Over(DWORD keys, POINTL point, DWORD* effect, std::int16_t state)
{
    const DWORD allowed = *effect;
    *effect = DROPEFFECT_NONE;
    // A handler may keep messages going, and with them the drag may leave or the target be given back.
    const std::shared_ptr<DataObject> data = data_;
    if (!data || !link_->control)
        return S_OK;
    last_ = WhereIs(keys, point);
    Where where = last_;
    auto chosen = static_cast<std::int32_t>(allowed);
    link_->control->UserControl_OLEDragOver(*data, chosen, where.button, where.shift, where.x, where.y, state);
    *effect = OneEffect(chosen, allowed);
    return S_OK;
}

HRESULT OleDragTarget::DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) noexcept
{
    return Answer(effect, [=, this]() -> HRESULT {
        if (!data)
            return E_POINTER;
        data_ = std::make_shared<DataObject>(*data);
        return Over(keys, point, effect, entering);
    });
}

HRESULT OleDragTarget::DragOver(DWORD keys, POINTL point, DWORD* effect) noexcept
{
    return Answer(effect, [=, this] { return Over(keys, point, effect, moving); });
}

HRESULT OleDragTarget::DragLeave() noexcept
{
    DWORD none = DROPEFFECT_NONE;
    return Answer(&none, [this] {
        const std::shared_ptr<DataObject> data = std::exchange(data_, nullptr);
        if (data && link_->control) {
            Where where = last_;
            std::int32_t effect = 0;
            std::int16_t state = leaving;
            link_->control->UserControl_OLEDragOver(*data, effect, where.button, where.shift, where.x, where.y, state);
        }
        return S_OK;
    });
}

HRESULT OleDragTarget::Drop(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) noexcept
{
    return Answer(effect, [=, this]() -> HRESULT {
        const DWORD allowed = *effect;
        *effect = DROPEFFECT_NONE;
        data_.reset();
        if (!data)
            return E_POINTER;
        if (!link_->control)
            return S_OK;
        Where where = WhereIs(keys, point);
        // The button that held the data is up by now.
        where.button = last_.button;
        DataObject dropped(*data);
        auto chosen = static_cast<std::int32_t>(allowed);
        link_->control->UserControl_OLEDragDrop(dropped, chosen, where.button, where.shift, where.x, where.y);
        *effect = OneEffect(chosen, allowed);
        return S_OK;
    });
}

}  // namespace host
