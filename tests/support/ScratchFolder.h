// ScratchFolder: an empty folder among the temporary files, removed with everything in it at the end.
#pragma once

#include "base/String.h"

#include <string_view>
#include <vector>

namespace tests {

class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// Ends in a backslash.
    [[nodiscard]] const base::String& Path() const { return path_; }
    /// Writes a file of these bytes and gives its path.
    base::String Write(base::StringView name, std::string_view bytes);
    /// The path of a file that the program under test will make; it is removed as well.
    base::String Expect(base::StringView name);

private:
    base::String path_;
    std::vector<base::String> files_;
};

/// The whole file; empty for a missing one.
std::string BytesOf(const base::String& path);
/// UTF-16LE bytes of a text, without a mark.
std::string WideBytes(base::StringView text);

}  // namespace tests
