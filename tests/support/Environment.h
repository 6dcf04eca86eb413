// What surrounds every test: natively a fresh stand-in PC each, with its leak report; on Windows nothing.
#pragma once

namespace tests {

void PrepareEnvironment();

/// Whether the screen has so many dots per inch now; the stand-in PC is given them, Windows has them from its start.
[[nodiscard]] bool AtDotsPerInch(int dots);

}  // namespace tests
