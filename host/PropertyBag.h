// PropertyBag: where a control finds and leaves its stored properties.
#pragma once

#include "host/FormFile.h"

#include <concepts>
#include <memory>
#include <optional>
#include <type_traits>

namespace host {

template <class T>
concept BagValue = std::same_as<T, bool> || std::same_as<T, std::uint8_t> || std::same_as<T, std::int16_t> ||
    std::same_as<T, std::int32_t> || std::same_as<T, std::uint32_t> || std::same_as<T, base::String> ||
    std::same_as<T, std::shared_ptr<Font>> || std::same_as<T, std::shared_ptr<Picture>> || std::same_as<T, TextList>;

/// Ordered properties. Keys are case-sensitive. `std::uint32_t` is a colour and is written as 0x%08X, `bool` as True or False,
/// the other numbers in decimal. A byte may hold a truth value: True and -1 are read as 1, False as 0; and any number is read as a `bool`.
class PropertyBag {
public:
    PropertyBag() = default;
    explicit PropertyBag(std::vector<Property> properties) : properties_(std::move(properties)) {}

    /// The value under `key`, or `fallback` when there is none or it is of another type or does not fit into `T`. Of a key that
    /// was written twice `occurrence` 1 is the second. A picture that can't be made of its bytes is `fallback` too.
    template <BagValue T>
    [[nodiscard]] T Read(base::StringView key, std::type_identity_t<T> fallback, int occurrence = 0) const;
    /// Stores the value whatever it is.
    template <BagValue T>
    void Write(base::StringView key, const T& value);
    /// Stores the value only when it differs from `fallback`. Fonts and pictures differ by description.
    template <BagValue T>
    void Write(base::StringView key, const T& value, const std::type_identity_t<T>& fallback);

    [[nodiscard]] const PropertyValue* Find(base::StringView key, int occurrence = 0) const;
    [[nodiscard]] const std::vector<Property>& Properties() const { return properties_; }

private:
    std::vector<Property> properties_;
};

}  // namespace host
