// PropertyTable: the stored properties of a control, each declared once.
#pragma once

#include "host/PropertyBag.h"

#include <cstring>
#include <exception>
#include <initializer_list>
#include <type_traits>
#include <vector>

namespace controls {

/// Whether a value that equals its default is stored too.
enum class WhenDefault { LeftOut, Stored };

/// A pointer or a number whose type only its giver and its user know.
class Erased {
public:
    Erased() = default;
    template <class T>
    explicit Erased(T value)
    {
        static_assert(sizeof value <= sizeof bytes_ && std::is_trivially_copyable_v<T>);
        std::memcpy(bytes_, &value, sizeof value);
    }
    template <class T>
    [[nodiscard]] T As() const
    {
        T value;
        std::memcpy(&value, bytes_, sizeof value);
        return value;
    }

private:
    alignas(8) unsigned char bytes_[8]{};
};

/// A default: a number, or a function without state from the control to it. Of other types null stands for the empty value.
template <class Control, class Stored>
class PropertyDefault {
public:
    template <class Default>
    PropertyDefault(Default standard)
    {
        if constexpr (std::is_invocable_v<Default, Control&>) {
            isComputed_ = true;
            what_ = Erased(+[](Control& control) -> Stored { return Default()(control); });
        } else {
            static_assert(std::is_convertible_v<Default, std::int64_t>);
            what_ = Erased(static_cast<std::int64_t>(standard));
        }
    }
    PropertyDefault(std::nullptr_t) {}
    explicit PropertyDefault(Erased what, bool isComputed) : what_(what), isComputed_(isComputed) {}

    [[nodiscard]] Stored Of(Control& control) const
    {
        if (isComputed_)
            return what_.template As<Stored (*)(Control&)>()(control);
        if constexpr (std::is_arithmetic_v<Stored>)
            return static_cast<Stored>(what_.template As<std::int64_t>());
        else
            return {};
    }
    [[nodiscard]] Erased What() const { return what_; }
    [[nodiscard]] bool IsComputed() const { return isComputed_; }

private:
    Erased what_;
    bool isComputed_ = false;
};

/// One stored property. Rows are plain data, and what differs from row to row are pointers, not types: a control has some forty of them,
/// and every type of its own would cost a kilobyte of code.
template <class Control>
struct PropertyRow {
    const WCHAR* key = nullptr;
    void (*read)(const PropertyRow& row, Control& control, const host::PropertyBag& bag) = nullptr;
    void (*write)(const PropertyRow& row, Control& control, host::PropertyBag& bag) = nullptr;
    Erased get{}, set{};  // functions; a pointer to the member instead of `get`
    Erased standard{};
    bool isStandardComputed = false;
    WhenDefault whenDefault = WhenDefault::LeftOut;
    /// The key of the row that it is written before; null where it is written in its turn.
    const WCHAR* before = nullptr;

    [[nodiscard]] PropertyRow WrittenBefore(const WCHAR* other) const
    {
        PropertyRow row = *this;
        row.before = other;
        return row;
    }

    template <class Stored>
    [[nodiscard]] Stored Read(Control& control, const host::PropertyBag& bag) const
    {
        return bag.Read<Stored>(key, PropertyDefault<Control, Stored>(standard, isStandardComputed).Of(control));
    }
    template <class Stored>
    void Write(Control& control, host::PropertyBag& bag, const Stored& value) const
    {
        if (whenDefault == WhenDefault::Stored)
            bag.Write(key, value);
        else
            bag.Write(key, value, PropertyDefault<Control, Stored>(standard, isStandardComputed).Of(control));
    }
};

/// A row's key, and the key of the row that it is written before; null where it is written in its turn.
struct WrittenRow {
    const WCHAR* key;
    const WCHAR* before = nullptr;
};

/// A row is to be written before one that has no place of its own, or that there is not.
class NoSuchRow : public std::exception {
public:
    [[nodiscard]] const char* what() const noexcept override
    {
        return "a property is to be written before one that has no place of its own";
    }
};

/// The places of the rows in the order of writing. Throws `NoSuchRow`.
std::vector<std::size_t> WriteOrder(const std::vector<WrittenRow>& rows);

/// The rows stand in the order in which they are read. Most are written in the same order; a row may say which one it is written before.
template <class Control>
class PropertyTable {
public:
    PropertyTable(std::initializer_list<PropertyRow<Control>> rows) : rows_(rows)
    {
        std::vector<WrittenRow> written;
        for (const auto& row : rows)
            written.push_back({row.key, row.before});
        writeOrder_ = WriteOrder(written);
    }

    void Read(Control& control, const host::PropertyBag& bag) const
    {
        for (const auto& row : rows_)
            row.read(row, control, bag);
    }

    void Write(Control& control, host::PropertyBag& bag) const
    {
        for (const std::size_t index : writeOrder_)
            rows_[index].write(rows_[index], control, bag);
    }

private:
    std::vector<PropertyRow<Control>> rows_;
    std::vector<std::size_t> writeOrder_;
};

/// A property that reads and writes itself, because its key holds more than its value.
template <class Control>
PropertyRow<Control> StoredInItsOwnWay(const WCHAR* key, void (*read)(Control&, const host::PropertyBag&, const WCHAR* key),
                                       void (*write)(Control&, host::PropertyBag&, const WCHAR* key))
{
    using Row = PropertyRow<Control>;
    Row row{key};
    row.get = Erased(write);
    row.set = Erased(read);
    row.read = [](const Row& own, Control& control, const host::PropertyBag& bag) {
        own.set.template As<decltype(read)>()(control, bag, own.key);
    };
    row.write = [](const Row& own, Control& control, host::PropertyBag& bag) {
        own.get.template As<decltype(write)>()(control, bag, own.key);
    };
    return row;
}

/// A row for a value that is got and set through functions without state: `Stored get(Control&)`, `void set(Control&, Stored)`.
template <class Control, class Stored, class Get, class Set>
PropertyRow<Control> StoredThrough(const WCHAR* key, Get, Set, PropertyDefault<Control, Stored> standard,
                                   WhenDefault whenDefault = WhenDefault::LeftOut)
{
    using Row = PropertyRow<Control>;
    Row row{key};
    row.get = Erased(+[](Control& control) -> Stored { return Get()(control); });
    row.set = Erased(+[](Control& control, const Stored& stored) { Set()(control, stored); });
    row.read = [](const Row& own, Control& control, const host::PropertyBag& bag) {
        own.set.template As<void (*)(Control&, const Stored&)>()(control, own.template Read<Stored>(control, bag));
    };
    row.write = [](const Row& own, Control& control, host::PropertyBag& bag) {
        own.Write(control, bag, own.get.template As<Stored (*)(Control&)>()(control));
    };
    row.standard = standard.What();
    row.isStandardComputed = standard.IsComputed();
    row.whenDefault = whenDefault;
    return row;
}

/// A row for a value that `reach`, a function without state from the control to a reference, gives. `Stored` is the type in the bag; a
/// truth value is kept there as a byte, 0 or 1, and counts as true whatever else than 0 is read.
template <class Control, class Stored, class Reach>
PropertyRow<Control> StoredAs(const WCHAR* key, Reach, PropertyDefault<Control, Stored> standard,
                              WhenDefault whenDefault = WhenDefault::LeftOut)
{
    return StoredThrough<Control, Stored>(
        key, [](Control& control) { return static_cast<Stored>(Reach()(control)); },
        [](Control& control, const Stored& stored) {
            auto& value = Reach()(control);
            value = static_cast<std::remove_reference_t<decltype(value)>>(stored);
        },
        standard, whenDefault);
}

/// The same for a member of the control or of a base of it.
template <class Control, class Stored, class Owner, class Value>
PropertyRow<Control> StoredAs(const WCHAR* key, Value Owner::*member, PropertyDefault<Control, Stored> standard,
                              WhenDefault whenDefault = WhenDefault::LeftOut)
{
    using Row = PropertyRow<Control>;
    using Member = Value Control::*;
    Row row{key};
    row.get = Erased(static_cast<Member>(member));
    row.read = [](const Row& own, Control& control, const host::PropertyBag& bag) {
        control.*own.get.template As<Member>() = static_cast<Value>(own.template Read<Stored>(control, bag));
    };
    row.write = [](const Row& own, Control& control, host::PropertyBag& bag) {
        own.Write(control, bag, static_cast<Stored>(control.*own.get.template As<Member>()));
    };
    row.standard = standard.What();
    row.isStandardComputed = standard.IsComputed();
    row.whenDefault = whenDefault;
    return row;
}

}  // namespace controls
