// KnownGap: marks a fact of Windows that Wine does not share. Under Wine the test must fail from there on, natively and on Windows it must
// pass.
#pragma once

#include <memory>

namespace tests {

class KnownGap {
public:
    explicit KnownGap(const char* reason);
    /// Swallows the failures since the mark; when there was none, the gap has closed and the test fails for that.
    ~KnownGap();
    KnownGap(const KnownGap&) = delete;
    KnownGap& operator=(const KnownGap&) = delete;

private:
    struct Hold;
    std::unique_ptr<Hold> hold_;
};

}  // namespace tests

/// At the place in a test from where on Wine differs: `KNOWN_GAP("sends EN_CHANGE once too often");`
#define KNOWN_GAP(reason) const ::tests::KnownGap knownGap_(reason)
