// PathParts: a path taken apart as the system does it before it looks for a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

struct PathParts {
    std::u16string root;                // "C:" or "\\server\share", without a trailing backslash
    std::vector<std::u16string> names;  // "." and ".." are gone, slashes count as backslashes, trailing dots and blanks are dropped
    bool trailingBackslash = false;

    [[nodiscard]] std::u16string Whole() const;
};

/// Empty when the path is empty or a name in it holds a character that no file name may hold. Relative paths start at `currentFolder`.
[[nodiscard]] std::optional<PathParts> TakeApart(std::u16string_view path, std::u16string_view currentFolder);

}  // namespace platform
