// Typeface: scaling and measuring.
#include "platform/src/gdi/Typeface.h"

#include "platform/src/gdi/Screen.h"

#include <algorithm>

namespace platform {

namespace {

constexpr int kCellHeight = 13;
constexpr int kCellAscent = 11;
constexpr int kAverageColumns = 6;
constexpr int kFixedColumns = 8;

int Rounded(int numerator, int denominator)
{
    return (2 * numerator + denominator) / (2 * denominator);
}

char16_t Lower(char16_t character)
{
    return character >= u'A' && character <= u'Z' ? static_cast<char16_t>(character + 32) : character;
}

}  // namespace

std::vector<Graphics::Family> InstalledFamilies()
{
    return {{u"System", false, false, ANSI_CHARSET},       {u"Terminal", false, true, OEM_CHARSET},
            {u"Fixedsys", false, true, ANSI_CHARSET},      {u"MS Sans Serif", false, false, ANSI_CHARSET},
            {u"Arial", true, false, ANSI_CHARSET},         {u"Courier New", true, true, ANSI_CHARSET},
            {u"Lucida Console", true, true, ANSI_CHARSET}, {u"Microsoft Sans Serif", true, false, ANSI_CHARSET},
            {u"Segoe UI", true, false, ANSI_CHARSET},      {u"Symbol", true, false, SYMBOL_CHARSET},
            {u"Tahoma", true, false, ANSI_CHARSET},        {u"Times New Roman", true, false, ANSI_CHARSET},
            {u"Verdana", true, false, ANSI_CHARSET},       {u"Wingdings", true, false, SYMBOL_CHARSET}};
}

const Graphics::Family* FindFamily(std::u16string_view name)
{
    // The logical face of dialogs stands for the one that is installed.
    if (name == u"MS Shell Dlg" || name == u"MS Shell Dlg 2")
        name = u"Microsoft Sans Serif";
    const auto& families = SimPc::Current().Get<Graphics>().Families();
    const auto found = std::find_if(families.begin(), families.end(), [name](const Graphics::Family& family) {
        return std::equal(family.name.begin(), family.name.end(), name.begin(), name.end(),
                          [](char16_t a, char16_t b) { return Lower(a) == Lower(b); });
    });
    return found == families.end() ? nullptr : &*found;
}

Typeface::Typeface(const LOGFONTW& font)
    : bold_(font.lfWeight > 550),
      italic_(font.lfItalic != 0),
      underlined_(font.lfUnderline != 0),
      struckOut_(font.lfStrikeOut != 0),
      weight_(font.lfWeight ? font.lfWeight : FW_NORMAL)
{
    // A negative height is that of the characters, a positive one that of the cell; 0 asks for the default of 12 points.
    const int wanted = font.lfHeight ? font.lfHeight : -Rounded(12 * SimPc::Current().Get<Screen>().Dpi(), 72);
    height_ = wanted < 0 ? Rounded(-wanted * kCellHeight, kCellAscent) : wanted;
    height_ = std::max(height_, 1);
    emHeight_ = wanted < 0 ? -wanted : Rounded(height_ * kCellAscent, kCellHeight);
    ascent_ = Rounded(height_ * kCellAscent, kCellHeight);
    averageWidth_ = font.lfWidth ? std::max(std::abs(font.lfWidth), 1) : Rounded(kAverageColumns * height_, kCellHeight);
    if (const Graphics::Family* const family = FindFamily(font.lfFaceName)) {
        fixedPitch_ = family->fixedPitch;
        trueType_ = family->trueType;
        charSet_ = family->charSet;
    } else {
        fixedPitch_ = (font.lfPitchAndFamily & 3) == FIXED_PITCH;
    }
}

int Typeface::CellColumns(const Glyph& glyph) const
{
    return fixedPitch_ ? kFixedColumns : glyph.width + 1;
}

int Typeface::ScaledWidth(int columns) const
{
    // With the width that goes with its height a face keeps its proportions; another width stretches all characters alike.
    const int natural = Rounded(kAverageColumns * height_, kCellHeight);
    const int width =
        averageWidth_ == natural ? Rounded(columns * height_, kCellHeight) : Rounded(columns * averageWidth_, kAverageColumns);
    return std::max(width, 1);
}

int Typeface::Advance(char16_t character) const
{
    return ScaledWidth(CellColumns(GlyphOf(character))) + (bold_ ? 1 : 0);
}

int Typeface::Width(std::u16string_view text) const
{
    int width = 0;
    for (const char16_t character : text)
        width += Advance(character);
    return width;
}

bool Typeface::Inked(const Glyph& glyph, int x, int y) const
{
    const int columns = CellColumns(glyph);
    const int column =
        (2 * x + 1) * columns / (2 * ScaledWidth(columns)) - (fixedPitch_ ? std::max(kFixedColumns - glyph.width, 0) / 2 : 0);
    return glyph.Inked(column, (2 * y + 1) * kCellHeight / (2 * height_));
}

TEXTMETRICW Typeface::Metrics() const
{
    TEXTMETRICW metrics{};
    metrics.tmHeight = height_;
    metrics.tmAscent = ascent_;
    metrics.tmDescent = height_ - ascent_;
    metrics.tmInternalLeading = std::max(height_ - emHeight_, 0);
    metrics.tmAveCharWidth = fixedPitch_ ? Advance(u'x') : averageWidth_;
    metrics.tmMaxCharWidth = fixedPitch_ ? Advance(u'x') : Advance(u'@');
    metrics.tmWeight = weight_;
    metrics.tmDigitizedAspectX = metrics.tmDigitizedAspectY = SimPc::Current().Get<Screen>().Dpi();
    metrics.tmFirstChar = u' ';
    metrics.tmLastChar = u'\u20AC';
    metrics.tmDefaultChar = u'\u25A1';
    metrics.tmBreakChar = u' ';
    metrics.tmItalic = italic_;
    metrics.tmUnderlined = underlined_;
    metrics.tmStruckOut = struckOut_;
    // In this record the pitch bit is set when the pitch varies.
    metrics.tmPitchAndFamily =
        static_cast<BYTE>((fixedPitch_ ? FF_MODERN : FF_SWISS | TMPF_FIXED_PITCH) | (trueType_ ? TMPF_TRUETYPE | TMPF_VECTOR : 0));
    metrics.tmCharSet = charSet_;
    return metrics;
}

}  // namespace platform
