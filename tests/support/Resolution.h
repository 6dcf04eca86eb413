// Resolution: the screen's dots per inch, which the stand-in PC can change and Windows has from its start.
#pragma once

namespace tests {

/// Whether the screen has so many dots per inch now; natively it is given them.
[[nodiscard]] bool AtDotsPerInch(int dots);

}  // namespace tests
