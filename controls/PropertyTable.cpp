#include "controls/PropertyTable.h"

#include <algorithm>

namespace controls {

std::vector<std::size_t> WriteOrder(const std::vector<WrittenRow>& rows)
{
    std::vector<std::size_t> order;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (!rows[row].before)
            order.push_back(row);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (!rows[row].before)
            continue;
        const auto next =
            std::ranges::find_if(order, [&](std::size_t other) { return base::StringView(rows[other].key) == rows[row].before; });
        if (next == order.end())
            throw NoSuchRow();
        order.insert(next, row);
    }
    return order;
}

}  // namespace controls
