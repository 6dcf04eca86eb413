// PropertyTable: the stored properties of a control, each declared once.
#pragma once

#include "host/PropertyBag.h"

#include <algorithm>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace controls {

/// Whether a value that equals its default is stored too.
enum class WhenDefault { LeftOut, Stored };

/// The rows stand in the order in which they are read. Most are written in the same order; a row may say that it is written some
/// rows earlier or later.
template <class Control>
class PropertyTable {
public:
    class Row {
    public:
        using Reader = std::function<void(Control&, const host::PropertyBag&)>;
        using Writer = std::function<void(Control&, host::PropertyBag&)>;

        Row(Reader reader, Writer writer) : read(std::move(reader)), write(std::move(writer)) {}
        Row WrittenEarlier(int rows) const { return Moved(-rows - 0.5); }
        Row WrittenLater(int rows) const { return Moved(rows + 0.5); }

        Reader read;
        Writer write;
        double shift = 0;

    private:
        Row Moved(double rows) const
        {
            Row row = *this;
            row.shift = rows;
            return row;
        }
    };

    PropertyTable(std::initializer_list<Row> rows) : readOrder_(rows)
    {
        std::vector<std::pair<double, std::size_t>> places;
        for (std::size_t index = 0; index < readOrder_.size(); ++index)
            places.emplace_back(static_cast<double>(index) + readOrder_[index].shift, index);
        std::ranges::stable_sort(places);
        for (const auto& [place, index] : places)
            writeOrder_.push_back(index);
    }

    void Read(Control& control, const host::PropertyBag& bag) const
    {
        for (const Row& row : readOrder_)
            row.read(control, bag);
    }

    void Write(Control& control, host::PropertyBag& bag) const
    {
        for (const std::size_t index : writeOrder_)
            readOrder_[index].write(control, bag);
    }

private:
    std::vector<Row> readOrder_;
    std::vector<std::size_t> writeOrder_;
};

/// A row for a value that is got and set through functions: `Stored get(Control&)`, `void set(Control&, Stored)`. `standard` is the
/// default, or a function from the control to it.
template <class Control, class Stored, class Get, class Set, class Default>
typename PropertyTable<Control>::Row StoredThrough(const WCHAR* key, Get get, Set set, Default standard,
                                                   WhenDefault whenDefault = WhenDefault::LeftOut)
{
    const auto defaultOf = [=](Control& control) -> Stored {
        if constexpr (std::is_invocable_v<Default, Control&>)
            return standard(control);
        else
            return static_cast<Stored>(standard);
    };
    return {[=](Control& control, const host::PropertyBag& bag) { set(control, bag.Read<Stored>(key, defaultOf(control))); },
            [=](Control& control, host::PropertyBag& bag) {
                const Stored value = get(control);
                if (whenDefault == WhenDefault::Stored)
                    bag.Write(key, value);
                else
                    bag.Write(key, value, defaultOf(control));
            }};
}

/// A row for a value that `member` reaches: a pointer to a member, or a function from the control to a reference. `Stored` is the type
/// in the bag; a truth value is kept there as a byte, 0 or 1, and counts as true whatever else than 0 is read.
template <class Control, class Stored, class Member, class Default = Stored>
typename PropertyTable<Control>::Row StoredAs(const WCHAR* key, Member member, Default standard,
                                              WhenDefault whenDefault = WhenDefault::LeftOut)
{
    return StoredThrough<Control, Stored>(
        key, [=](Control& control) { return static_cast<Stored>(std::invoke(member, control)); },
        [=](Control& control, const Stored& stored) {
            auto& value = std::invoke(member, control);
            value = static_cast<std::remove_reference_t<decltype(value)>>(stored);
        },
        standard, whenDefault);
}

}  // namespace controls
