#include "host/AccessKey.h"

namespace host {

base::String AccessKeyOf(base::StringView caption)
{
    if (caption.empty())
        return {};
    for (std::size_t mark = caption.find(TEXT('&')); mark < caption.size() - 1; mark = caption.find(TEXT('&'), mark + 2)) {
        if (caption[mark + 1] != TEXT('&'))
            return base::String(1, caption[mark + 1]);
    }
    return {};
}

}  // namespace host
