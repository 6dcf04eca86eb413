// Glyphs: reads the pictures of the face and puts accents on letters.
#include "platform/src/gdi/Typeface.h"
#include "platform/src/gdi/TypefacePictures.h"

#include <algorithm>
#include <map>
#include <string>

namespace platform {

namespace {

constexpr int kFirstRow = 3;

enum class Accent { Grave, Acute, Circumflex, Tilde, Diaeresis, Ring, Cedilla };

struct AccentPicture {
    int width;
    std::uint16_t rows[2];
};

constexpr AccentPicture kAccents[]{{2, {0b01, 0b10}},   {2, {0b10, 0b01}}, {3, {0b010, 0b101}}, {4, {0b1010, 0b0101}},
                                   {3, {0b000, 0b101}}, {2, {0b11, 0b11}}, {2, {0b10, 0b11}}};

struct Accented {
    std::u16string_view characters;
    std::u16string_view letters;
    Accent accent;
};

constexpr Accented kAccented[]{{u"ÀÈÌÒÙàèìòù", u"AEIOUaeiou", Accent::Grave},
                               {u"ÁÉÍÓÚÝáéíóúý", u"AEIOUYaeiouy", Accent::Acute},
                               {u"ÂÊÎÔÛâêîôû", u"AEIOUaeiou", Accent::Circumflex},
                               {u"ÃÑÕãñõ", u"ANOano", Accent::Tilde},
                               {u"ÄËÏÖÜäëïöüÿ", u"AEIOUaeiouy", Accent::Diaeresis},
                               {u"Åå", u"Aa", Accent::Ring},
                               {u"Çç", u"Cc", Accent::Cedilla}};

Glyph WithAccent(Glyph letter, bool small, bool dotted, Accent accent)
{
    const AccentPicture& picture = kAccents[static_cast<int>(accent)];
    if (dotted)
        letter.rows[kFirstRow] = letter.rows[kFirstRow + 1] = 0;
    if (picture.width > letter.width) {
        for (std::uint16_t& row : letter.rows)
            row = static_cast<std::uint16_t>(row << (picture.width - letter.width) / 2);
        letter.width = picture.width;
    }
    const std::size_t top = accent == Accent::Cedilla ? 11 : small ? 2 : 0;
    for (std::size_t row = 0; row < 2; ++row)
        letter.rows[top + row] =
            static_cast<std::uint16_t>(letter.rows[top + row] | picture.rows[row] << (letter.width - picture.width + 1) / 2);
    return letter;
}

std::map<char16_t, Glyph> ReadFace()
{
    std::map<char16_t, Glyph> face;
    for (const FaceBlock& block : FaceBlocks()) {
        const std::u16string_view characters = block.characters;
        for (std::size_t row = 0; row < std::size(block.rows); ++row) {
            std::size_t index = 0;
            int column = 0;
            for (const char mark : std::string_view(block.rows[row])) {
                if (mark == ' ') {
                    ++index;
                    column = 0;
                    continue;
                }
                Glyph& glyph = face[characters[index]];
                if (mark == '#')
                    glyph.rows[kFirstRow + row] = static_cast<std::uint16_t>(glyph.rows[kFirstRow + row] | 1 << column);
                glyph.width = std::max(glyph.width, ++column);
            }
        }
    }
    for (const Accented& group : kAccented)
        for (std::size_t index = 0; index < group.characters.size(); ++index) {
            const char16_t letter = group.letters[index];
            face[group.characters[index]] = WithAccent(face[letter], letter >= u'a', letter == u'i', group.accent);
        }
    face[u'\u00A0'] = face[u' '];
    face[u'\u00AD'] = face[u'-'];
    return face;
}

}  // namespace

const Glyph& GlyphOf(char16_t character)
{
    static const std::map<char16_t, Glyph> face = ReadFace();
    static const Glyph box{5, {0, 0, 0, 0x1F, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x1F, 0, 0}};
    const auto found = face.find(character);
    return found == face.end() ? box : found->second;
}

}  // namespace platform
