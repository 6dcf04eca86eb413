#include "host/DataObject.h"

#include <algorithm>

namespace host {

using base::String;

namespace {

bool IsText(CLIPFORMAT format)
{
    return format == CF_TEXT || format == CF_UNICODETEXT;
}

/// A block of data that its giver, or nobody, wants to have back.
struct Medium : STGMEDIUM {
    Medium() : STGMEDIUM{} {}
    ~Medium()
    {
        if (tymed != TYMED_NULL)
            ReleaseStgMedium(this);
    }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;
};

}  // namespace

const DataObject::Offer* DataObject::FindOffer(CLIPFORMAT format) const
{
    const CLIPFORMAT wanted = IsText(format) ? CF_UNICODETEXT : format;
    const auto found = std::ranges::find(offers_, wanted, &Offer::format);
    return found == offers_.end() ? nullptr : &*found;
}

std::optional<Bytes> DataObject::Fetch(CLIPFORMAT format) const
{
    if (!received_) {
        const Offer* const offer = FindOffer(format);
        return offer ? offer->bytes : std::nullopt;
    }
    FORMATETC wanted = InMemory(format);
    Medium medium;
    if (FAILED(received_->GetData(&wanted, &medium)) || medium.tymed != TYMED_HGLOBAL)
        return std::nullopt;
    return CopyFromGlobal(medium.hGlobal);
}

bool DataObject::GetFormat(std::int16_t format) const
{
    const auto wanted = static_cast<CLIPFORMAT>(format);
    if (!received_)
        return FindOffer(wanted) != nullptr;
    const auto offers = [this](CLIPFORMAT one) {
        FORMATETC asked = InMemory(one);
        return received_->QueryGetData(&asked) == S_OK;
    };
    return IsText(wanted) ? offers(CF_UNICODETEXT) || offers(CF_TEXT) : offers(wanted);
}

DataObject::Value DataObject::GetData(std::int16_t format) const
{
    const auto wanted = static_cast<CLIPFORMAT>(format);
    if (IsText(wanted)) {
        if (const auto bytes = Fetch(CF_UNICODETEXT))
            return DecodeText(*bytes);
        const auto narrow = received_ ? Fetch(CF_TEXT) : std::nullopt;
        return narrow ? Value(DecodeNarrowText(*narrow)) : Value();
    }
    auto bytes = Fetch(wanted);
    return bytes ? Value(std::move(*bytes)) : Value();
}

bool DataObject::Put(std::int16_t offeredAs, std::optional<Bytes> bytes)
{
    if (received_)
        return false;
    const auto named = static_cast<CLIPFORMAT>(offeredAs);
    const CLIPFORMAT format = IsText(named) ? CF_UNICODETEXT : named;
    std::erase_if(offers_, [format](const Offer& offer) { return offer.format == format; });
    offers_.push_back({format, offeredAs, std::move(bytes)});
    return true;
}

bool DataObject::SetData(Value value, std::int16_t format)
{
    const auto named = static_cast<CLIPFORMAT>(format);
    if (std::holds_alternative<std::monostate>(value))
        return Put(format, std::nullopt);
    if (const String* const text = std::get_if<String>(&value))
        return IsText(named) && Put(format, EncodeText(*text));
    return !IsText(named) && named != CF_HDROP && Put(format, std::get<Bytes>(std::move(value)));
}

std::vector<String> DataObject::Files() const
{
    const auto bytes = Fetch(CF_HDROP);
    return bytes ? DecodeFiles(*bytes) : std::vector<String>();
}

bool DataObject::Files(const std::vector<String>& paths)
{
    return !paths.empty() && Put(CF_HDROP, EncodeFiles(paths));
}

}  // namespace host
