// IniText: the text of a private profile, read and changed line by line; what is not asked for stays as it is.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

class IniText {
public:
    /// The file's bytes: UTF-16LE when they start with its mark, else code page 1252.
    explicit IniText(std::string_view bytes);
    [[nodiscard]] std::string Bytes() const;

    /// Value of a key: trimmed, without one pair of quotes. Empty optional when the section or the key is missing.
    [[nodiscard]] std::optional<std::u16string> Get(std::u16string_view section, std::u16string_view key) const;
    /// Replaces the value of a key, or adds it at the end of its section, or both at the end of the file.
    void Set(std::u16string_view section, std::u16string_view key, std::u16string_view value);
    /// False when there was nothing to remove.
    bool RemoveKey(std::u16string_view section, std::u16string_view key);
    bool RemoveSection(std::u16string_view section);

private:
    struct Range {  // lines after the section's own line, up to the next section
        std::size_t first, last;
    };
    [[nodiscard]] std::optional<Range> FindSection(std::u16string_view section) const;
    [[nodiscard]] std::optional<std::size_t> FindKey(const Range& range, std::u16string_view key) const;

    bool wide_ = false;
    std::vector<std::u16string> lines_;
};

}  // namespace platform
