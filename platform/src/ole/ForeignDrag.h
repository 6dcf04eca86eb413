// ForeignDrag: the other program in a drag that comes from outside.
#pragma once

#include "platform/sim/Dragging.h"
#include "platform/src/ole/Counted.h"

#include <cstddef>
#include <map>
#include <vector>

namespace platform {

/// Data that never changes.
class ForeignData final : public Counted<IDataObject, &IID_IDataObject> {
public:
    explicit ForeignData(const Dragging::Foreign& data);

    HRESULT STDMETHODCALLTYPE GetData(FORMATETC* format, STGMEDIUM* medium) override;
    HRESULT STDMETHODCALLTYPE GetDataHere(FORMATETC*, STGMEDIUM*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE QueryGetData(FORMATETC* format) override;
    HRESULT STDMETHODCALLTYPE GetCanonicalFormatEtc(FORMATETC*, FORMATETC*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE EnumFormatEtc(DWORD, IEnumFORMATETC**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    HRESULT STDMETHODCALLTYPE EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    void Add(CLIPFORMAT format, const void* bytes, std::size_t size);

    std::map<CLIPFORMAT, std::vector<std::byte>> blocks_;
};

/// Goes on while a button is held.
class ForeignSource final : public Counted<IDropSource, &IID_IDropSource> {
public:
    HRESULT STDMETHODCALLTYPE QueryContinueDrag(BOOL escapePressed, DWORD keys) override
    {
        if (escapePressed)
            return DRAGDROP_S_CANCEL;
        return (keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) != 0 ? S_OK : DRAGDROP_S_DROP;
    }
    HRESULT STDMETHODCALLTYPE GiveFeedback(DWORD) override { return DRAGDROP_S_USEDEFAULTCURSORS; }
};

}  // namespace platform
