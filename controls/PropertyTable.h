// PropertyTable: the stored properties of a control, each declared once.
#pragma once

#include "host/PropertyBag.h"

#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace controls {

/// Whether a value that equals its default is stored too.
enum class WhenDefault { LeftOut, Stored };

/// One stored property. What differs from row to row are pointers, not types: a control has some forty of them.
template <class Control>
class PropertyRow {
public:
    PropertyRow(const WCHAR* key, WhenDefault whenDefault) : key_(key), whenDefault_(whenDefault) {}
    virtual ~PropertyRow() = default;
    virtual void Read(Control& control, const host::PropertyBag& bag) const = 0;
    virtual void Write(Control& control, host::PropertyBag& bag) const = 0;
    [[nodiscard]] base::StringView Key() const { return key_; }

protected:
    const WCHAR* const key_;
    const WhenDefault whenDefault_;
};

/// A row's key, and the key of the row that it is written before; empty where it is written in its turn.
struct WrittenRow {
    base::StringView key;
    base::StringView before;
};
/// The places of the rows in the order of writing. Throws std::invalid_argument for a key that no row has which is written in its turn.
std::vector<std::size_t> WriteOrder(const std::vector<WrittenRow>& rows);

/// The rows stand in the order in which they are read. Most are written in the same order; a row may say which one it is written before.
template <class Control>
class PropertyTable {
public:
    struct Row {
        explicit Row(std::shared_ptr<const PropertyRow<Control>> row) : property(std::move(row)) {}
        Row WrittenBefore(base::StringView key) const
        {
            Row row = *this;
            row.before = key;
            return row;
        }

        std::shared_ptr<const PropertyRow<Control>> property;
        base::StringView before;
    };

    PropertyTable(std::initializer_list<Row> rows)
    {
        std::vector<WrittenRow> written;
        for (const Row& row : rows) {
            rows_.push_back(row.property);
            written.push_back({row.property->Key(), row.before});
        }
        writeOrder_ = WriteOrder(written);
    }

    void Read(Control& control, const host::PropertyBag& bag) const
    {
        for (const auto& row : rows_)
            row->Read(control, bag);
    }

    void Write(Control& control, host::PropertyBag& bag) const
    {
        for (const std::size_t index : writeOrder_)
            rows_[index]->Write(control, bag);
    }

private:
    std::vector<std::shared_ptr<const PropertyRow<Control>>> rows_;
    std::vector<std::size_t> writeOrder_;
};

/// A default: a value, or a function from the control to it.
template <class Control, class Stored>
class PropertyDefault {
public:
    template <class Default>
    PropertyDefault(Default standard)
    {
        if constexpr (std::is_invocable_v<Default, Control&>)
            of_ = std::move(standard);
        else
            value_ = static_cast<Stored>(std::move(standard));
    }
    Stored Of(Control& control) const { return of_ ? of_(control) : value_; }

private:
    Stored value_{};
    std::function<Stored(Control&)> of_;
};

/// A property that is got and set through functions.
template <class Control, class Stored>
class ThroughRow final : public PropertyRow<Control> {
public:
    using Get = Stored (*)(Control&);
    using Set = void (*)(Control&, const Stored&);

    ThroughRow(const WCHAR* key, Get get, Set set, PropertyDefault<Control, Stored> standard, WhenDefault whenDefault)
        : PropertyRow<Control>(key, whenDefault), get_(get), set_(set), standard_(std::move(standard))
    {
    }
    void Read(Control& control, const host::PropertyBag& bag) const override
    {
        set_(control, bag.Read<Stored>(this->key_, standard_.Of(control)));
    }
    void Write(Control& control, host::PropertyBag& bag) const override
    {
        if (this->whenDefault_ == WhenDefault::Stored)
            bag.Write(this->key_, get_(control));
        else
            bag.Write(this->key_, get_(control), standard_.Of(control));
    }

private:
    const Get get_;
    const Set set_;
    const PropertyDefault<Control, Stored> standard_;
};

/// A property that is a member of the control.
template <class Control, class Stored, class Value>
class MemberRow final : public PropertyRow<Control> {
public:
    MemberRow(const WCHAR* key, Value Control::*member, PropertyDefault<Control, Stored> standard, WhenDefault whenDefault)
        : PropertyRow<Control>(key, whenDefault), member_(member), standard_(std::move(standard))
    {
    }
    void Read(Control& control, const host::PropertyBag& bag) const override
    {
        control.*member_ = static_cast<Value>(bag.Read<Stored>(this->key_, standard_.Of(control)));
    }
    void Write(Control& control, host::PropertyBag& bag) const override
    {
        const auto value = static_cast<Stored>(control.*member_);
        if (this->whenDefault_ == WhenDefault::Stored)
            bag.Write(this->key_, value);
        else
            bag.Write(this->key_, value, standard_.Of(control));
    }

private:
    Value Control::*const member_;
    const PropertyDefault<Control, Stored> standard_;
};

/// A property that reads and writes itself, because its key holds more than its value.
template <class Control>
class OwnWayRow final : public PropertyRow<Control> {
public:
    using Reader = void (*)(Control&, const host::PropertyBag&, const WCHAR* key);
    using Writer = void (*)(Control&, host::PropertyBag&, const WCHAR* key);

    OwnWayRow(const WCHAR* key, Reader read, Writer write) : PropertyRow<Control>(key, WhenDefault::LeftOut), read_(read), write_(write) {}
    void Read(Control& control, const host::PropertyBag& bag) const override { read_(control, bag, this->key_); }
    void Write(Control& control, host::PropertyBag& bag) const override { write_(control, bag, this->key_); }

private:
    const Reader read_;
    const Writer write_;
};

template <class Control>
typename PropertyTable<Control>::Row StoredInItsOwnWay(const WCHAR* key, typename OwnWayRow<Control>::Reader read,
                                                       typename OwnWayRow<Control>::Writer write)
{
    return typename PropertyTable<Control>::Row(std::make_shared<OwnWayRow<Control>>(key, read, write));
}

/// A row for a value that is got and set through functions without state: `Stored get(Control&)`, `void set(Control&, Stored)`.
template <class Control, class Stored, class Get, class Set>
typename PropertyTable<Control>::Row StoredThrough(const WCHAR* key, Get, Set, PropertyDefault<Control, Stored> standard,
                                                   WhenDefault whenDefault = WhenDefault::LeftOut)
{
    return typename PropertyTable<Control>::Row(std::make_shared<ThroughRow<Control, Stored>>(
        key, [](Control& control) -> Stored { return Get()(control); },
        [](Control& control, const Stored& stored) { Set()(control, stored); }, std::move(standard), whenDefault));
}

/// A row for a value that `reach`, a function without state from the control to a reference, gives. `Stored` is the type in the bag; a
/// truth value is kept there as a byte, 0 or 1, and counts as true whatever else than 0 is read.
template <class Control, class Stored, class Reach>
typename PropertyTable<Control>::Row StoredAs(const WCHAR* key, Reach, PropertyDefault<Control, Stored> standard,
                                              WhenDefault whenDefault = WhenDefault::LeftOut)
{
    return StoredThrough<Control, Stored>(
        key, [](Control& control) { return static_cast<Stored>(Reach()(control)); },
        [](Control& control, const Stored& stored) {
            auto& value = Reach()(control);
            value = static_cast<std::remove_reference_t<decltype(value)>>(stored);
        },
        std::move(standard), whenDefault);
}

/// The same for a member of the control or of a base of it.
template <class Control, class Stored, class Owner, class Value>
typename PropertyTable<Control>::Row StoredAs(const WCHAR* key, Value Owner::*member, PropertyDefault<Control, Stored> standard,
                                              WhenDefault whenDefault = WhenDefault::LeftOut)
{
    return typename PropertyTable<Control>::Row(
        std::make_shared<MemberRow<Control, Stored, Value>>(key, member, std::move(standard), whenDefault));
}

}  // namespace controls
