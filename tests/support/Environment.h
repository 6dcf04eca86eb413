// What surrounds every test: natively a fresh stand-in PC each, with its leak report; on Windows nothing.
#pragma once

namespace tests {

void PrepareEnvironment();

}  // namespace tests
