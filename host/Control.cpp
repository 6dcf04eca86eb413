// Control: where its class lives; everything else is virtual.
#include "host/Control.h"

namespace host {

Control::Control() = default;
Control::~Control() = default;

}  // namespace host
