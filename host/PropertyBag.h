// PropertyBag: where a control finds and leaves its stored properties.
#pragma once

#include "host/FormFile.h"

#include <concepts>
#include <memory>
#include <optional>
#include <type_traits>

namespace host {

template <class T>
concept BagValue =
    std::same_as<T, bool> || std::same_as<T, std::uint8_t> || std::same_as<T, std::int16_t> || std::same_as<T, std::int32_t> ||
    std::same_as<T, std::uint32_t> || std::same_as<T, base::String> || std::same_as<T, std::shared_ptr<Font>> || std::same_as<T, TextList>;

/// Ordered properties. Keys are case-sensitive. `std::uint32_t` is a colour and is written as 0x%08X, `bool` as True or False,
/// the other numbers in decimal.
class PropertyBag {
public:
    PropertyBag() = default;
    explicit PropertyBag(std::vector<Property> properties) : properties_(std::move(properties)) {}

    /// The value under `key`, or `fallback` when there is none or it is of another type or does not fit into `T`. Of a key that
    /// was written twice `occurrence` 1 is the second.
    template <BagValue T>
    [[nodiscard]] T Read(base::StringView key, std::type_identity_t<T> fallback, int occurrence = 0) const
    {
        const PropertyValue* value = Find(key, occurrence);
        if (value == nullptr)
            return fallback;
        std::optional<T> typed;
        Get(*value, typed);
        return typed ? *typed : fallback;
    }

    /// Stores the value whatever it is.
    template <BagValue T>
    void Write(base::StringView key, const T& value)
    {
        properties_.push_back({base::String(key), Make(value)});
    }
    /// Stores the value only when it differs from `fallback`. Fonts differ by description.
    template <BagValue T>
    void Write(base::StringView key, const T& value, const std::type_identity_t<T>& fallback)
    {
        PropertyValue made = Make(value);
        if (made != Make(fallback))
            properties_.push_back({base::String(key), std::move(made)});
    }

    [[nodiscard]] const PropertyValue* Find(base::StringView key, int occurrence = 0) const;
    [[nodiscard]] const std::vector<Property>& Properties() const { return properties_; }

private:
    static void Get(const PropertyValue& value, std::optional<bool>& typed);
    static void Get(const PropertyValue& value, std::optional<std::uint8_t>& typed);
    static void Get(const PropertyValue& value, std::optional<std::int16_t>& typed);
    static void Get(const PropertyValue& value, std::optional<std::int32_t>& typed);
    static void Get(const PropertyValue& value, std::optional<std::uint32_t>& typed);
    static void Get(const PropertyValue& value, std::optional<base::String>& typed);
    static void Get(const PropertyValue& value, std::optional<std::shared_ptr<Font>>& typed);
    static void Get(const PropertyValue& value, std::optional<TextList>& typed);

    static PropertyValue Make(bool value) { return value; }
    static PropertyValue Make(std::uint8_t value) { return Number{value}; }
    static PropertyValue Make(std::int16_t value) { return Number{value}; }
    static PropertyValue Make(std::int32_t value) { return Number{value}; }
    static PropertyValue Make(std::uint32_t value) { return Number{value, true}; }
    static PropertyValue Make(const base::String& value) { return value; }
    /// No font is stored as the default description.
    static PropertyValue Make(const std::shared_ptr<Font>& value) { return value ? value->Description() : FontDescription{}; }
    static PropertyValue Make(const TextList& value) { return value; }

    std::vector<Property> properties_;
};

}  // namespace host
