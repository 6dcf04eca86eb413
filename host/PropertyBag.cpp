// PropertyBag: finding a key and turning its value into the type that is asked for.
#include "host/PropertyBag.h"

#include <limits>

namespace host {

namespace {

template <class T>
void GetNumber(const PropertyValue& value, std::optional<T>& typed)
{
    const Number* number = std::get_if<Number>(&value);
    if (number != nullptr && number->value >= std::numeric_limits<T>::min() && number->value <= std::numeric_limits<T>::max())
        typed = static_cast<T>(number->value);
}

template <class T>
void GetSame(const PropertyValue& value, std::optional<T>& typed)
{
    if (const T* same = std::get_if<T>(&value))
        typed = *same;
}

}  // namespace

const PropertyValue* PropertyBag::Find(base::StringView key, int occurrence) const
{
    for (const Property& property : properties_)
        if (property.key == key && occurrence-- == 0)
            return &property.value;
    return nullptr;
}

void PropertyBag::Get(const PropertyValue& value, std::optional<bool>& typed)
{
    GetSame(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<std::uint8_t>& typed)
{
    GetNumber(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<std::int16_t>& typed)
{
    GetNumber(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<std::int32_t>& typed)
{
    GetNumber(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<std::uint32_t>& typed)
{
    GetNumber(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<base::String>& typed)
{
    GetSame(value, typed);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<std::shared_ptr<Font>>& typed)
{
    if (const FontDescription* description = std::get_if<FontDescription>(&value))
        typed = std::make_shared<Font>(*description);
}

void PropertyBag::Get(const PropertyValue& value, std::optional<TextList>& typed)
{
    GetSame(value, typed);
}

}  // namespace host
