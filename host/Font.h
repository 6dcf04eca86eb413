// Font: the font object that controls share, store and change.
#pragma once

#include "base/Handles.h"
#include "base/String.h"
#include "host/Event.h"

#include <cstdint>
#include <memory>

namespace host {

/// What a font is, without a handle. `size` is in points.
struct FontDescription {
    base::String name = TEXT("MS Sans Serif");
    float size = 8.25F;
    std::int16_t weight = FW_NORMAL;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    std::int16_t charset = DEFAULT_CHARSET;

    bool operator==(const FontDescription&) const = default;
};

/// A font object, held by `std::shared_ptr<Font>`. Every setter that changes something raises `FontChanged`.
class Font {
public:
    Font() = default;
    explicit Font(FontDescription description) : description_(std::move(description)) {}
    Font(const Font&) = delete;
    Font& operator=(const Font&) = delete;

    [[nodiscard]] const base::String& Name() const { return description_.name; }
    void Name(base::StringView name);
    /// In points.
    [[nodiscard]] float Size() const { return description_.size; }
    void Size(float points);
    /// Bold is a weight above the middle between 400 and 700; setting it stores 700 or 400.
    [[nodiscard]] bool Bold() const { return description_.weight > 550; }
    void Bold(bool bold);
    [[nodiscard]] std::int16_t Weight() const { return description_.weight; }
    void Weight(std::int16_t weight);
    [[nodiscard]] bool Italic() const { return description_.italic; }
    void Italic(bool italic);
    [[nodiscard]] bool Underline() const { return description_.underline; }
    void Underline(bool underline);
    [[nodiscard]] bool Strikethrough() const { return description_.strikethrough; }
    void Strikethrough(bool strikethrough);
    /// A character set as LOGFONTW knows it, 0 to 255.
    [[nodiscard]] std::int16_t Charset() const { return description_.charset; }
    void Charset(std::int16_t charset);

    [[nodiscard]] const FontDescription& Description() const { return description_; }
    /// An independent font of the same description, with nothing connected.
    [[nodiscard]] std::shared_ptr<Font> Copy() const { return std::make_shared<Font>(description_); }

    /// The GDI font for the screen's resolution: height -MulDiv(points, LOGPIXELSY, 72), width 0. Owned by this object and made
    /// anew after a change, so ask again instead of keeping it. NULL when the system has no font left to give.
    [[nodiscard]] HFONT Handle();
    /// The same GDI font for somebody who keeps it selected: it lives until the last holder lets go.
    [[nodiscard]] std::shared_ptr<const base::FontHandle> Share();
    /// The logical font that `Handle` realises.
    [[nodiscard]] LOGFONTW LogicalFont() const;

    Event<1> FontChanged;

private:
    void Changed();

    FontDescription description_;
    std::shared_ptr<const base::FontHandle> realised_;
};

}  // namespace host
