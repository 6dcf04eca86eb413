#include "host/PropertyBag.h"

#include <limits>

namespace host {

namespace {

/// True in either of its forms: by its name, or as the number whose bits are all set.
bool IsTruth(const PropertyValue& value)
{
    const auto* number = std::get_if<Number>(&value);
    return value == PropertyValue(true) || (number && number->value == -1);
}

template <class T>
std::optional<T> Typed(const PropertyValue& value)
{
    if constexpr (std::same_as<T, std::shared_ptr<Font>>) {
        const auto* description = std::get_if<FontDescription>(&value);
        return description ? std::optional(std::make_shared<Font>(*description)) : std::nullopt;
    } else if constexpr (std::same_as<T, std::shared_ptr<Picture>>) {
        const auto* description = std::get_if<PictureDescription>(&value);
        if (!description || description->type == PictureType::None)
            return description ? std::optional(T{}) : std::nullopt;
        T picture = Picture::Of(*description);
        return picture ? std::optional(std::move(picture)) : std::nullopt;
    } else if constexpr (std::same_as<T, bool>) {
        if (const auto* number = std::get_if<Number>(&value))
            return number->value != 0;
        const bool* truth = std::get_if<bool>(&value);
        return truth ? std::optional(*truth) : std::nullopt;
    } else if constexpr (std::integral<T>) {
        const auto* number = std::get_if<Number>(&value);
        if (std::same_as<T, std::uint8_t> && IsTruth(value))
            return T{1};
        if (std::same_as<T, std::uint8_t> && value == PropertyValue(false))
            return T{0};
        const bool fits = number && number->value >= std::numeric_limits<T>::min() && number->value <= std::numeric_limits<T>::max();
        return fits ? std::optional(static_cast<T>(number->value)) : std::nullopt;
    } else {
        const T* same = std::get_if<T>(&value);
        return same ? std::optional(*same) : std::nullopt;
    }
}

template <class T>
PropertyValue Made(const T& value)
{
    if constexpr (std::same_as<T, std::shared_ptr<Font>>)
        return value ? value->Description() : FontDescription{};  // No font is stored as the default description.
    else if constexpr (std::same_as<T, std::shared_ptr<Picture>>)
        return value ? value->Description() : PictureDescription{};
    else if constexpr (std::integral<T> && !std::same_as<T, bool>)
        return Number{value, std::same_as<T, std::uint32_t>};
    else
        return value;
}

}  // namespace

const PropertyValue* PropertyBag::Find(base::StringView key, int occurrence) const
{
    for (const Property& property : properties_)
        if (property.key == key && occurrence-- == 0)
            return &property.value;
    return nullptr;
}

template <BagValue T>
T PropertyBag::Read(base::StringView key, std::type_identity_t<T> fallback, int occurrence) const
{
    const PropertyValue* value = Find(key, occurrence);
    return value ? Typed<T>(*value).value_or(fallback) : fallback;
}

template <BagValue T>
void PropertyBag::Write(base::StringView key, const T& value)
{
    properties_.push_back({base::String(key), Made(value)});
}

template <BagValue T>
void PropertyBag::Write(base::StringView key, const T& value, const std::type_identity_t<T>& fallback)
{
    if (Made(value) != Made(fallback))
        Write(key, value);
}

#define INSTANTIATE(Type)                                                     \
    template Type PropertyBag::Read<Type>(base::StringView, Type, int) const; \
    template void PropertyBag::Write<Type>(base::StringView, const Type&);    \
    template void PropertyBag::Write<Type>(base::StringView, const Type&, const Type&);
INSTANTIATE(bool)
INSTANTIATE(std::uint8_t)
INSTANTIATE(std::int16_t)
INSTANTIATE(std::int32_t)
INSTANTIATE(std::uint32_t)
INSTANTIATE(base::String)
INSTANTIATE(std::shared_ptr<Font>)
INSTANTIATE(std::shared_ptr<Picture>)
INSTANTIATE(TextList)
#undef INSTANTIATE

}  // namespace host
