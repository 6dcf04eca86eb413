// Gallery: its verbs.
//
//     gallery --draw STYLE STATE WIDTHxHEIGHT [name=value ...] FILE.png
//                         one face of a button; names are those of the properties (a picture's value is a .bmp or .ico file), and
//                         toggled, default, focus, own, theme, cut, caption
//     gallery --sheet FIRST LAST WIDTHxHEIGHT [name=value ...] FILE.png
//                         a row a style, a column a state
#pragma once

#include <optional>
#include <span>
#include <string_view>

namespace gallery {

/// The process's exit code; nothing when the words are not a drawing.
[[nodiscard]] std::optional<int> Draw(std::span<const std::string_view> words);

}  // namespace gallery
