// OleDragTarget: what OLE tells when something is dragged over a user control's window.
#pragma once

#include "host/ComObject.h"
#include "host/OleDragEvents.h"

#include <memory>

namespace host {

/// https://learn.microsoft.com/windows/win32/api/oleidl/nn-oleidl-idroptarget
class OleDragTarget final : public ComObject<IDropTarget, &IID_IDropTarget> {
public:
    OleDragTarget(std::shared_ptr<const OleDragLink> link, HWND window) : link_(std::move(link)), window_(window) {}

    HRESULT STDMETHODCALLTYPE DragEnter(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) noexcept override;
    HRESULT STDMETHODCALLTYPE DragOver(DWORD keys, POINTL point, DWORD* effect) noexcept override;
    HRESULT STDMETHODCALLTYPE DragLeave() noexcept override;
    HRESULT STDMETHODCALLTYPE Drop(IDataObject* data, DWORD keys, POINTL point, DWORD* effect) noexcept override;

private:
    /// What the control hears besides data and effect.
    struct Where {
        std::int16_t button = 0, shift = 0;
        float x = 0, y = 0;
    };
    [[nodiscard]] Where WhereIs(DWORD keys, POINTL point) const;
    HRESULT Over(DWORD keys, POINTL point, DWORD* effect, std::int16_t state);

    std::shared_ptr<const OleDragLink> link_;
    HWND window_;
    std::shared_ptr<DataObject> data_;  // from entering to leaving or dropping
    Where last_;
};

}  // namespace host
