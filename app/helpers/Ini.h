// Ini: reads and writes values of settings files. Path, section, key and value are trimmed of blanks.
#pragma once

#include "base/String.h"

namespace helpers {

/// The value's text, trimmed; `fallback` when the path is not valid (see `IsValidPath`), the file is missing or it has no such value.
/// Values that Windows would cut at 255 characters are read whole, by `ReadIniStringEx`.
/// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-getprivateprofilestringw
base::String ReadIniString(base::StringView path, base::StringView section, base::StringView key, base::StringView fallback);

/// As `ReadIniString`, with a parser of its own: UTF-16LE behind the mark FF FE, else the system's ANSI code page; the key stands at the
/// line's start directly before "=".
base::String ReadIniStringEx(base::StringView path, base::StringView section, base::StringView key, base::StringView fallback);

/// Non-zero on success. Nothing is written, and the result is 0, when the path is not valid or its folder is missing. A missing file is
/// created. https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-writeprivateprofilestringw
int WriteIniString(base::StringView path, base::StringView section, base::StringView key, base::StringView value);

}  // namespace helpers
