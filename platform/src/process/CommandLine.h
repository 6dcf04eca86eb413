// CommandLine: which file a command line starts, found as CreateProcessW finds it.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace platform {

/// The executable that `commandLine` names, or empty. A quoted name stands as it is; of an unquoted one each blank may be its end, and
/// the shortest existing file wins. ".exe" is added to a name without an extension.
[[nodiscard]] std::u16string ExecutableOf(std::u16string_view commandLine, const std::function<bool(std::u16string_view)>& exists);

}  // namespace platform
