#include "platform/sim/CallTrace.h"

#include <algorithm>
#include <iterator>

namespace platform {

std::vector<CallRecord> CallTrace::Of(std::string_view name) const
{
    std::vector<CallRecord> found;
    std::copy_if(records_.begin(), records_.end(), std::back_inserter(found),
                 [&](const CallRecord& record) { return record.name == name; });
    return found;
}

}  // namespace platform
