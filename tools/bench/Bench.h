// Bench: times the toolkit's members that enumerate windows beside the bare enumeration, with few windows and with ten times as many.
#pragma once

#include <string_view>

namespace bench {

/// Prints the tables, or with "faces" only those of the button's faces; the process's exit code.
int Run(std::string_view only);

}  // namespace bench
