// OleDragSource: what OLE asks the user control that a drag began at.
#pragma once

#include "host/ComObject.h"
#include "host/OleDragEvents.h"

#include <memory>

namespace host {

/// When the drag ends, and how the cursor looks meanwhile. The drag lasts as long as any mouse button is held; Esc and the end of the
/// control cancel it. https://learn.microsoft.com/windows/win32/api/oleidl/nn-oleidl-idropsource
class OleDragSource final : public ComObject<IDropSource, &IID_IDropSource> {
public:
    explicit OleDragSource(std::shared_ptr<const OleDragLink> link) : link_(std::move(link)) {}

    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escapePressed, DWORD keys) noexcept override;
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD effect) noexcept override;

private:
    std::shared_ptr<const OleDragLink> link_;
};

/// The data of such a drag. https://learn.microsoft.com/windows/win32/api/objidl/nn-objidl-idataobject
class OleDragData final : public ComObject<IDataObject, &IID_IDataObject> {
public:
    explicit OleDragData(std::shared_ptr<const OleDragLink> link) : link_(std::move(link)) {}

    [[nodiscard]] DataObject& Data() { return data_; }

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) noexcept override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) noexcept override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept override;
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) noexcept override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator) noexcept override;
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) noexcept override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) noexcept override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) noexcept override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    std::shared_ptr<const OleDragLink> link_;
    DataObject data_;
};

}  // namespace host
