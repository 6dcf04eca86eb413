// PropertyTable: the order of writing.
#include "controls/PropertyTable.h"

#include <algorithm>

namespace controls {

std::vector<std::size_t> OrderOfShifts(const std::vector<double>& shifts)
{
    std::vector<std::size_t> order(shifts.size());
    for (std::size_t index = 0; index < order.size(); ++index)
        order[index] = index;
    std::ranges::stable_sort(order, {}, [&](std::size_t index) { return static_cast<double>(index) + shifts[index]; });
    return order;
}

}  // namespace controls
