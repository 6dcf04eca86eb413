// Bench: times the toolkit's members that enumerate windows beside the bare enumeration, with few windows and with ten times as many.
#pragma once

namespace bench {

/// Prints the table; the process's exit code.
int Run();

}  // namespace bench
