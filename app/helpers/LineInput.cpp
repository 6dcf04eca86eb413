#include "app/helpers/LineInput.h"

namespace helpers {

namespace {

bool IsAtEnd(HANDLE file)
{
    LARGE_INTEGER size{};
    LARGE_INTEGER position{};
    return !GetFileSizeEx(file, &size) || !SetFilePointerEx(file, LARGE_INTEGER(), &position, FILE_CURRENT) ||
           position.QuadPart >= size.QuadPart;
}

std::size_t FindSeparator(std::string_view text, std::string_view separator, std::size_t from, std::size_t bytesPerCharacter)
{
    std::size_t found = text.find(separator, from);
    while (found != std::string_view::npos && found % bytesPerCharacter != 0)
        found = text.find(separator, found + 1);
    return found;
}

}  // namespace

std::string LineInputEx(HANDLE file, std::string_view separator, const LineInputOptions& options)
{
    std::string end(options.separatorAtEnd ? separator : std::string_view());
    if (IsAtEnd(file))
        return end;
    std::string line;
    for (std::size_t chunk = 1024;; chunk *= 2) {
        const std::size_t before = line.size();
        line.resize(before + chunk);
        DWORD read = 0;
        // A line that was read in part would pass for a whole one.
        if (!ReadFile(file, line.data() + before, static_cast<DWORD>(chunk), &read, nullptr))
            return end;
        line.resize(before + read);
        const std::size_t from = before < separator.size() ? 0 : before - separator.size() + 1;
        const std::size_t found = FindSeparator(line, separator, from, options.bytesPerCharacter);
        if (found != std::string::npos) {
            LARGE_INTEGER back{};
            back.QuadPart = static_cast<LONGLONG>(found + separator.size()) - static_cast<LONGLONG>(line.size());
            if (!SetFilePointerEx(file, back, nullptr, FILE_CURRENT))
                return end;
            line.resize(found);
            return line;
        }
        if (read < chunk)
            return line;
    }
}

}  // namespace helpers
