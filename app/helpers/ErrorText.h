// ErrorText: what Windows says of an error.
#pragma once

#include "base/String.h"

namespace helpers {

/// Windows' own text and the number below it; the number alone when Windows has no text.
/// https://learn.microsoft.com/windows/win32/api/winbase/nf-winbase-formatmessagew
[[nodiscard]] base::String ErrorText(DWORD error);

}  // namespace helpers
