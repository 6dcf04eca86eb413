#include "platform/src/file/PathParts.h"

#include <algorithm>

namespace platform {

namespace {

bool IsDrive(std::u16string_view path)
{
    return path.size() >= 2 && path[1] == u':';
}

/// Splits a root off the front: the drive, or server and share.
std::u16string_view TakeRoot(std::u16string_view& path)
{
    std::size_t length = 2;
    if (!IsDrive(path)) {
        const std::size_t share = path.find(u'\\', 2);
        length = share == std::u16string_view::npos ? path.size() : std::min(path.find(u'\\', share + 1), path.size());
    }
    const std::u16string_view root = path.substr(0, length);
    path.remove_prefix(length);
    return root;
}

}  // namespace

std::u16string PathParts::Whole() const
{
    std::u16string whole = root;
    for (const std::u16string& name : names)
        whole += u"\\" + name;
    return names.empty() ? whole + u"\\" : whole;
}

std::optional<PathParts> TakeApart(std::u16string_view path, std::u16string_view currentFolder)
{
    std::u16string given(path);
    std::replace(given.begin(), given.end(), u'/', u'\\');
    if (given.starts_with(u"\\\\?\\"))
        given.erase(0, 4);
    if (given.empty())
        return std::nullopt;
    const bool absolute = given.starts_with(u"\\\\") || (IsDrive(given) && given.size() > 2 && given[2] == u'\\');
    if (!absolute) {
        if (IsDrive(given))
            given.erase(0, 2);
        std::u16string_view base = currentFolder;
        const std::u16string_view root = TakeRoot(base);
        given = given.starts_with(u'\\') ? std::u16string(root) + given : std::u16string(currentFolder) + u"\\" + given;
    }

    std::u16string_view rest = given;
    PathParts parts;
    parts.root = TakeRoot(rest);
    parts.trailingBackslash = rest.ends_with(u'\\');
    while (!rest.empty()) {
        rest.remove_prefix(1);
        const std::size_t end = std::min(rest.find(u'\\'), rest.size());
        std::u16string_view name = rest.substr(0, end);
        rest.remove_prefix(end);
        if (name == u".." && !parts.names.empty())
            parts.names.pop_back();
        while (name.ends_with(u'.') || name.ends_with(u' '))
            name.remove_suffix(1);
        if (name.find_first_of(u"<>:\"|?*") != std::u16string_view::npos)
            return std::nullopt;
        if (!name.empty())
            parts.names.emplace_back(name);
    }
    return parts;
}

}  // namespace platform
