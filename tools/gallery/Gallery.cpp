// Gallery: pictures from words.
#include "tools/gallery/Gallery.h"

#include "tests/support/Png.h"
#include "tools/gallery/Face.h"
#include "tools/gallery/Sheet.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace gallery {

namespace {

int Complain(const std::string& what)
{
    std::fprintf(stderr, "gallery: %s\n", what.c_str());
    return 2;
}

int Save(const platform::Image& picture, std::string_view file)
{
    return tests::WritePng(picture, std::string(file)) ? 0 : Complain("cannot write " + std::string(file));
}

int DrawOne(std::span<const std::string_view> words, std::string_view file)
{
    std::string mistake;
    const std::optional<Face> face = ReadFace(words, mistake);
    if (!face)
        return Complain(mistake);
    const std::optional<platform::Image> picture = DrawFace(*face);
    return picture ? Save(*picture, file) : Complain("no memory for the picture");
}

}  // namespace

std::optional<int> Draw(std::span<const std::string_view> words)
{
    if (words.empty() || (words[0] != "--draw" && words[0] != "--sheet"))
        return std::nullopt;
    if (words.size() < 5)
        return Complain("too few words");
    const std::string_view file = words.back();
    const std::span<const std::string_view> description = words.subspan(1, words.size() - 2);
    if (words[0] == "--draw")
        return DrawOne(description, file);
    const int first = std::atoi(std::string(description[0]).c_str()), last = std::atoi(std::string(description[1]).c_str());
    const platform::Image sheet = DrawSheet(first, last, description[2], description.subspan(3));
    return sheet.pixels.empty() ? Complain("nothing to draw") : Save(sheet, file);
}

}  // namespace gallery
