// DataObject: what is dragged, as the handlers of OLE drag and drop see it.
#pragma once

#include "base/String.h"
#include "host/ComObject.h"
#include "host/OleDragFormats.h"

#include <cstdint>
#include <optional>
#include <variant>
#include <vector>

namespace host {

/// Formats are clipboard formats: CF_TEXT (1), CF_UNICODETEXT (13), CF_HDROP (15), or what RegisterClipboardFormatW gave. The two kinds of
/// text are one format here: whoever asks for either gets the text. Formats that are no memory block (CF_BITMAP) are never there.
///
/// One that a drag begins with is filled in OLEStartDrag and OLESetData; one that comes over a control can only be read.
class DataObject {
public:
    /// Text for the two text formats, bytes for all others; nothing when the data is not there.
    using Value = std::variant<std::monostate, base::String, Bytes>;

    /// Empty, to be filled.
    DataObject() = default;
    /// A view of what another program, or another part of this one, drags.
    explicit DataObject(IDataObject& received) : received_(&received) {}

    void Clear() { offers_.clear(); }
    [[nodiscard]] bool GetFormat(std::int16_t format) const;
    [[nodiscard]] Value GetData(std::int16_t format) const;
    /// Offers the format. Without a value the value is asked for, with OLESetData, when a target wants it. False, and nothing has changed,
    /// when the data can only be read or the value is of the wrong kind. Files are offered with a value through `Files` alone.
    bool SetData(Value value, std::int16_t format = CF_UNICODETEXT);
    /// Full paths; offering none takes nothing away.
    [[nodiscard]] std::vector<base::String> Files() const;
    bool Files(const std::vector<base::String>& paths);

    // For the object that hands this data to other programs.

    struct Offer {
        CLIPFORMAT format;
        std::int16_t offeredAs;  // which of the text formats the handler named
        std::optional<Bytes> bytes;
    };
    [[nodiscard]] const std::vector<Offer>& Offers() const { return offers_; }
    /// NULL when the format is not offered.
    [[nodiscard]] const Offer* FindOffer(CLIPFORMAT format) const;

private:
    [[nodiscard]] std::optional<Bytes> Fetch(CLIPFORMAT format) const;
    bool Put(std::int16_t offeredAs, std::optional<Bytes> bytes);

    ComPointer<IDataObject> received_;
    std::vector<Offer> offers_;
};

}  // namespace host
