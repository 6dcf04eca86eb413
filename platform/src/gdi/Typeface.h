// Typeface: the built-in bitmap face in the size and style that a font asks for. It is the same on every machine.
#pragma once

#include "platform/sim/Graphics.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace platform {

/// A picture of the face at its own size: cells of 13 rows, the baseline below the eleventh.
struct Glyph {
    int width = 0;
    std::array<std::uint16_t, 13> rows{};  // bit n is column n

    [[nodiscard]] bool Inked(int column, int row) const
    {
        return column >= 0 && column < width && rows[static_cast<std::size_t>(row)] >> column & 1;
    }
};

/// ASCII, Latin-1 and the euro sign have pictures of their own; all else is a box.
[[nodiscard]] const Glyph& GlyphOf(char16_t character);

/// The families that a fresh PC has, in the order of their enumeration.
[[nodiscard]] std::vector<Graphics::Family> InstalledFamilies();
/// The family of this name without regard to case, or null.
[[nodiscard]] const Graphics::Family* FindFamily(std::u16string_view name);

class Typeface {
public:
    /// `font` as CreateFontIndirectW takes it.
    explicit Typeface(const LOGFONTW& font);

    [[nodiscard]] int Height() const { return height_; }
    [[nodiscard]] int Ascent() const { return ascent_; }
    [[nodiscard]] int Advance(char16_t character) const;
    [[nodiscard]] int Width(std::u16string_view text) const;
    [[nodiscard]] TEXTMETRICW Metrics() const;

    /// Calls `put(x, y)` for each inked pixel of a character, from its cell's top left corner.
    template <class Put>
    void Draw(char16_t character, Put put) const
    {
        const Glyph& glyph = GlyphOf(character);
        const int advance = Advance(character);
        for (int y = 0; y < height_; ++y)
            for (int x = 0; x < advance; ++x)
                if (Inked(glyph, x, y) || (bold_ && x > 0 && Inked(glyph, x - 1, y)))
                    put(x + (italic_ ? (ascent_ - y) / 4 : 0), y);
    }
    [[nodiscard]] bool Underlined() const { return underlined_; }
    [[nodiscard]] bool StruckOut() const { return struckOut_; }

private:
    /// Whether the pixel of the scaled cell shows ink of the picture.
    [[nodiscard]] bool Inked(const Glyph& glyph, int x, int y) const;
    /// Columns of the picture's cell, the gap to the next character included.
    [[nodiscard]] int CellColumns(const Glyph& glyph) const;
    [[nodiscard]] int ScaledWidth(int columns) const;

    int height_ = 13;
    int ascent_ = 11;
    int emHeight_ = 11;
    int averageWidth_ = 6;  // at this height; 6 columns of the picture
    bool bold_ = false;
    bool italic_ = false;
    bool underlined_ = false;
    bool struckOut_ = false;
    bool fixedPitch_ = false;
    bool trueType_ = true;
    LONG weight_ = FW_NORMAL;
    BYTE charSet_ = ANSI_CHARSET;
};

}  // namespace platform
