#include "host/OleDragSource.h"

#include "host/Wall.h"

#include <shlobj.h>

namespace host {

HRESULT OleDragSource::QueryContinueDrag(BOOL escapePressed, DWORD keys) noexcept
{
    if (escapePressed || !link_->control)
        return DRAGDROP_S_CANCEL;
    return (keys & (MK_LBUTTON | MK_RBUTTON | MK_MBUTTON)) == 0 ? DRAGDROP_S_DROP : S_OK;
}

HRESULT OleDragSource::GiveFeedback(DWORD effect) noexcept
{
    bool defaultCursors = true;
    if (!link_->control)
        return DRAGDROP_S_USEDEFAULTCURSORS;
    return BehindWall(
        [&] {
            auto shown = static_cast<std::int32_t>(effect);
            link_->control->UserControl_OLEGiveFeedback(shown, defaultCursors);
            return defaultCursors ? DRAGDROP_S_USEDEFAULTCURSORS : S_OK;
        },
        [] { return DRAGDROP_S_USEDEFAULTCURSORS; });
}

HRESULT OleDragData::GetData(FORMATETC* format, STGMEDIUM* medium) noexcept
{
    if (!medium)
        return E_POINTER;
    *medium = {};
    if (const HRESULT result = QueryGetData(format); result != S_OK)
        return result;
    return BehindWall(
        [&]() -> HRESULT {
            if (const DataObject::Offer* const offer = data_.FindOffer(format->cfFormat); !offer->bytes && link_->control) {
                std::int16_t offeredAs = offer->offeredAs;
                link_->control->UserControl_OLESetData(data_, offeredAs);
            }
            // The handler may have set it, or taken it back.
            const DataObject::Offer* const offer = data_.FindOffer(format->cfFormat);
            if (!offer || !offer->bytes)
                return DV_E_FORMATETC;
            medium->hGlobal = CopyToGlobal(format->cfFormat == CF_TEXT ? EncodeNarrowText(DecodeText(*offer->bytes)) : *offer->bytes);
            if (!medium->hGlobal)
                return E_OUTOFMEMORY;
            medium->tymed = TYMED_HGLOBAL;
            return S_OK;
        },
        [] { return E_UNEXPECTED; });
}

HRESULT OleDragData::QueryGetData(FORMATETC* format) noexcept
{
    if (!format)
        return E_POINTER;
    if (format->dwAspect != DVASPECT_CONTENT || !data_.FindOffer(format->cfFormat))
        return DV_E_FORMATETC;
    return (format->tymed & TYMED_HGLOBAL) != 0 ? S_OK : DV_E_TYMED;
}

HRESULT OleDragData::GetCanonicalFormatEtc(FORMATETC* format, FORMATETC* canonical) noexcept
{
    if (!format || !canonical)
        return E_POINTER;
    *canonical = *format;
    canonical->ptd = nullptr;
    return DATA_S_SAMEFORMATETC;
}

HRESULT OleDragData::EnumFormatEtc(DWORD direction, IEnumFORMATETC** enumerator) noexcept
{
    if (!enumerator)
        return E_POINTER;
    *enumerator = nullptr;
    if (direction != DATADIR_GET)
        return E_NOTIMPL;
    return BehindWall(
        [&]() -> HRESULT {
            std::vector<FORMATETC> formats;
            for (const DataObject::Offer& offer : data_.Offers()) {
                formats.push_back(InMemory(offer.format));
                if (offer.format == CF_UNICODETEXT)
                    formats.push_back(InMemory(CF_TEXT));
            }
            return SHCreateStdEnumFmtEtc(static_cast<UINT>(formats.size()), formats.data(), enumerator);
        },
        [] { return E_OUTOFMEMORY; });
}

}  // namespace host
