#include "platform/src/process/CommandLine.h"

namespace platform {

namespace {

std::u16string WithExtension(std::u16string_view name)
{
    const std::size_t fileName = name.find_last_of(u"\\/:") + 1;  // npos + 1 is 0.
    std::u16string whole(name);
    if (name.find(u'.', fileName) == std::u16string_view::npos)
        whole += u".exe";
    return whole;
}

}  // namespace

std::u16string ExecutableOf(std::u16string_view commandLine, const std::function<bool(std::u16string_view)>& exists)
{
    if (commandLine.starts_with(u'"')) {
        const std::u16string_view rest = commandLine.substr(1);
        std::u16string name = WithExtension(rest.substr(0, rest.find(u'"')));
        return exists(name) ? name : std::u16string();
    }
    for (std::size_t end = 0; end != std::u16string_view::npos;) {
        end = commandLine.find_first_of(u" \t", end == 0 ? 0 : end + 1);
        std::u16string name = WithExtension(commandLine.substr(0, end));
        if (exists(name))
            return name;
        if (end == 0)
            ++end;
    }
    return {};
}

}  // namespace platform
