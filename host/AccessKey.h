// AccessKey: the "&" marks of captions.
#pragma once

#include "base/String.h"

namespace host {

/// The character behind the first single "&", as a text of one character; empty when there is none. "&&" stands for a literal "&".
[[nodiscard]] base::String AccessKeyOf(base::StringView caption);

}  // namespace host
