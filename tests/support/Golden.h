// Golden: pictures of the stand-in PC that must stay as they are, to the pixel.
#pragma once

#include <windows.h>

#include <map>
#include <string>

namespace tests {

/// A set of pictures. Their hashes lie in tests/golden/<set>.txt, a line each: hash, name.
///
/// A picture that differs from its hash fails the test and is saved as build/golden/<set>/<name>.png. With VELMORA_WRITE_GOLDEN=1 in the
/// environment the file is renewed instead, all pictures of the set are saved, to be looked at before the file is kept, and the test fails.
class Golden {
public:
    explicit Golden(std::string set);
    /// A line of the file that no picture was shown for fails the test too.
    ~Golden();
    Golden(const Golden&) = delete;
    Golden& operator=(const Golden&) = delete;

    /// Holds all that stands on the bitmap of a device context against the hash of this name.
    void Expect(const std::string& name, HDC dc);

private:
    std::string set_;
    bool isWriting_;
    std::map<std::string, std::string> kept_;   // name to hash
    std::map<std::string, std::string> shown_;  // the same, of the pictures that this test has shown
};

}  // namespace tests
