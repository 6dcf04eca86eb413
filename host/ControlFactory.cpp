#include "host/ControlFactory.h"

#include "host/ComboBox.h"
#include "host/Label.h"
#include "host/Timer.h"

namespace host {

ControlFactory::ControlFactory()
{
    Register<Label>(TEXT("Label"));
    Register<ComboBox>(TEXT("ComboBox"));
    Register<Timer>(TEXT("Timer"));
}

void ControlFactory::Register(base::StringView kind, Maker maker)
{
    makers_.insert_or_assign(base::String(kind), std::move(maker));
}

std::unique_ptr<Control> ControlFactory::Make(base::StringView kind) const
{
    const auto found = makers_.find(kind);
    return found == makers_.end() ? nullptr : found->second();
}

}  // namespace host
