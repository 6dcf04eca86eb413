// PropertyTable: the order of writing.
#include "controls/PropertyTable.h"

#include <algorithm>
#include <stdexcept>

namespace controls {

std::vector<std::size_t> WriteOrder(const std::vector<WrittenRow>& rows)
{
    std::vector<std::size_t> order;
    for (std::size_t row = 0; row < rows.size(); ++row)
        if (rows[row].before.empty())
            order.push_back(row);
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (rows[row].before.empty())
            continue;
        const auto next = std::ranges::find_if(order, [&](std::size_t other) { return rows[other].key == rows[row].before; });
        if (next == order.end())
            throw std::invalid_argument("a property is to be written before one that has no place of its own");
        order.insert(next, row);
    }
    return order;
}

}  // namespace controls
