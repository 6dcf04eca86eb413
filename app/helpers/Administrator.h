// Administrator: what the user may do to this PC.
#pragma once

namespace helpers {

/// True when the user belongs to the administrators and runs with their rights.
bool IsUserAdmin();

}  // namespace helpers
