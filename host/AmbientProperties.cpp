// AmbientProperties: answered from the form and the container as they are now.
#include "host/AmbientProperties.h"

#include "host/Form.h"

namespace host {

bool AmbientProperties::UserMode() const
{
    return control_.ParentForm().UserMode();
}

const base::String& AmbientProperties::DisplayName() const
{
    return control_.GetExtender().Name();
}

std::shared_ptr<host::Font> AmbientProperties::Font() const
{
    return control_.ParentForm().Font()->Copy();
}

OleColor AmbientProperties::BackColor() const
{
    return control_.GetExtender().Container().ContainerBackColor();
}

OleColor AmbientProperties::ForeColor() const
{
    return control_.GetExtender().Container().ContainerForeColor();
}

bool AmbientProperties::RightToLeft() const
{
    return control_.ParentForm().RightToLeft();
}

bool AmbientProperties::DisplayAsDefault() const
{
    return control_.GetExtender().Default();
}

}  // namespace host
