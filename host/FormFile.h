// FormFile: the readable text in which a form and its controls are kept.
//
//     Form Form1 {
//         Caption = "Setup"
//         Icon = None
//         Label Label1 {
//             Left = 240
//             Font = Font("MS Sans Serif", 8.25, Bold)
//             BackColor = 0x8000000F
//         }
//     }
//
// Values are decimal or 0x numbers, True and False, texts in double quotes (\" \\ \n \r \t escaped), fonts, lists of texts and
// pictures: None, or Bitmap("...") and Icon("...") with the bytes of a .bmp and an .ico file in Base64.
// Text that was written by `WriteForm` comes back unchanged from parsing and writing.
#pragma once

#include "base/String.h"
#include "host/Font.h"
#include "host/Picture.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace host {

struct Number {
    std::int64_t value = 0;
    bool hexadecimal = false;
    bool operator==(const Number&) const = default;
};

using TextList = std::vector<base::String>;
using PropertyValue = std::variant<bool, Number, base::String, FontDescription, TextList, PictureDescription>;

struct Property {
    base::String key;
    PropertyValue value;
    bool operator==(const Property&) const = default;
};

/// A form or a control: its kind, its name, its properties in their order, the controls in it.
struct FormNode {
    base::String kind;
    base::String name;
    std::vector<Property> properties;
    std::vector<FormNode> children;
    bool operator==(const FormNode&) const = default;
};

/// What parsing found. `line` counts from 1 and is 0 when the text is good; then `root` is the form.
struct ParsedForm {
    FormNode root;
    int line = 0;
    std::string message;
    [[nodiscard]] bool Ok() const { return line == 0; }
};

/// Reads UTF-8 text, with or without a byte order mark, with LF or CR LF.
[[nodiscard]] ParsedForm ParseForm(std::string_view utf8);
/// The canonical text, UTF-8 with LF.
[[nodiscard]] std::string WriteForm(const FormNode& form);

}  // namespace host
