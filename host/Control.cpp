#include "host/Control.h"

#include "host/AccessibleFacts.h"

#include <oleacc.h>

namespace host {

Control::Control() = default;
Control::~Control() = default;

AccessibleFacts Control::Accessibility()
{
    return {.role = ROLE_SYSTEM_CLIENT};
}

}  // namespace host
