// TextPrinter: plain text on paper.
#pragma once

#include "base/String.h"
#include "host/Font.h"

namespace controls {

/// Prints the text on the default printer as one document of that name, in the font's size and face. Lines that are wider than the page go
/// on in the next line, from the last blank if there is one; tabs reach to every eighth character. False when there is no printer or it
/// refuses: nothing comes out then.
/// https://learn.microsoft.com/windows/win32/printdocs/how-to--print-using-the-gdi-print-api
[[nodiscard]] bool PrintOnDefaultPrinter(const base::String& text, const base::String& documentName, const host::Font& font);

}  // namespace controls
