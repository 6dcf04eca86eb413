#include "app/helpers/Ini.h"

#include "app/helpers/LineInput.h"
#include "app/helpers/Paths.h"
#include "base/Handles.h"

#include <array>
#include <optional>

namespace helpers {

using base::String;
using base::StringView;

namespace {

/// A settings file that is read line by line.
class IniFile {
public:
    explicit IniFile(const String& path)
        : file_(CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                            nullptr))
    {
    }

    /// Tells the encoding and stands behind the mark; false when the file cannot be read.
    bool Begin()
    {
        std::array<BYTE, 2> mark{};
        DWORD read = 0;
        if (!file_ || !ReadFile(file_.Get(), mark.data(), static_cast<DWORD>(mark.size()), &read, nullptr))
            return false;
        wide_ = read == mark.size() && mark[0] == 0xFF && mark[1] == 0xFE;
        LARGE_INTEGER start{};
        return wide_ || SetFilePointerEx(file_.Get(), start, nullptr, FILE_BEGIN);
    }

    /// The next line, nothing at the end of the file.
    std::optional<String> NextLine()
    {
        using namespace std::string_literals;
        const std::string separator = wide_ ? "\r\0\n\0"s : "\r\n"s;
        const std::string line = LineInputEx(file_.Get(), separator, {.separatorAtEnd = true, .bytesPerCharacter = wide_ ? 2u : 1u});
        if (line == separator)
            return std::nullopt;
        return wide_ ? FromWide(line) : FromAnsi(line);
    }

private:
    static String FromWide(const std::string& bytes)
    {
        String text;
        for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
            text += static_cast<WCHAR>(static_cast<BYTE>(bytes[i]) | static_cast<BYTE>(bytes[i + 1]) << 8);
        return text;
    }
    static String FromAnsi(const std::string& bytes)
    {
        if (bytes.empty())
            return {};
        const int size = static_cast<int>(bytes.size());
        String text(static_cast<std::size_t>(MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, nullptr, 0)), TEXT('\0'));
        MultiByteToWideChar(CP_ACP, 0, bytes.data(), size, text.data(), static_cast<int>(text.size()));
        return text;
    }

    base::FileHandle file_;
    bool wide_ = false;
};

std::optional<String> FindValue(IniFile& file, const String& sectionLine, const String& keyPrefix)
{
    bool inSection = false;
    while (const std::optional<String> line = file.NextLine()) {
        if (!inSection)
            inSection = base::EqualsIgnoringCase(*line, sectionLine);
        else if (base::EqualsIgnoringCase(StringView(*line).substr(0, keyPrefix.size()), keyPrefix))
            return line->substr(keyPrefix.size());
        else if (line->starts_with(TEXT('[')))
            break;
    }
    return std::nullopt;
}

bool IsReadable(const String& path)
{
    return IsValidPath(path) && FileExists(path);
}

}  // namespace

String ReadIniString(StringView path, StringView section, StringView key, StringView fallback)
{
    const String file = base::Trim(path);
    if (!IsReadable(file))
        return String(fallback);
    constexpr DWORD asked = 255;
    std::array<WCHAR, 256> buffer{};
    const DWORD length = GetPrivateProfileStringW(base::Trim(section).c_str(), base::Trim(key).c_str(), String(fallback).c_str(),
                                                  buffer.data(), asked, file.c_str());
    String value = base::Trim(StringView(buffer.data(), length));
    SecureZeroMemory(buffer.data(), sizeof buffer);  // it may be a password
    // Windows tells a cut value only by a length of one less than asked for.
    return length < asked - 1 ? value : ReadIniStringEx(path, section, key, fallback);
}

String ReadIniStringEx(StringView path, StringView section, StringView key, StringView fallback)
{
    const String name = base::Trim(path);
    if (!IsReadable(name))
        return String(fallback);
    const String trimmedSection = base::Trim(section);
    const String sectionLine = trimmedSection.empty() ? String() : TEXT('[') + trimmedSection + TEXT(']');
    std::optional<String> value;
    if (IniFile file(name); file.Begin())
        value = FindValue(file, sectionLine, base::Trim(key) + TEXT('='));
    return base::Trim(value && !value->empty() ? StringView(*value) : fallback);
}

int WriteIniString(StringView path, StringView section, StringView key, StringView value)
{
    const String file = base::Trim(path);
    if (!IsValidPath(file) || !FolderExists(GetFolderFromPath(file)))
        return 0;
    return WritePrivateProfileStringW(base::Trim(section).c_str(), base::Trim(key).c_str(), base::Trim(value).c_str(), file.c_str());
}

}  // namespace helpers
