// Wipe: overwrites what was secret.
#pragma once

#include <windows.h>

namespace base {

/// Overwrites the characters or bytes with zeroes, in a way that the compiler keeps, and leaves the container empty.
/// https://learn.microsoft.com/windows/win32/memory/securezeromemory
template <class Container>
void Wipe(Container& secret)
{
    SecureZeroMemory(secret.data(), secret.size() * sizeof *secret.data());
    secret.clear();
}

/// Wipes at the end of its scope.
template <class Container>
class WipeAtEnd {
public:
    explicit WipeAtEnd(Container& secret) : secret_(secret) {}
    ~WipeAtEnd() { Wipe(secret_); }
    WipeAtEnd(const WipeAtEnd&) = delete;
    WipeAtEnd& operator=(const WipeAtEnd&) = delete;

private:
    Container& secret_;
};

}  // namespace base
