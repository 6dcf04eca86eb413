// Faults: makes chosen Windows calls of the stand-in PC fail.
#pragma once

#include <windef.h>

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace platform {

class Faults {
public:
    /// The `nth` call from now of `function` (1 = the next) fails with `error`.
    void FailCall(std::string_view function, DWORD error, int nth = 1);
    /// Every call of `function` fails with `error` until `Clear`.
    void FailAlways(std::string_view function, DWORD error);
    /// The `n`-th fallible call from now fails, whatever its name, with the error that its own gate names. 0 switches this off.
    void FailNth(std::uint64_t n);
    /// Nothing fails any more; what was counted and struck stays.
    void Clear();

    /// Fallible calls between the last `FailNth` and `Clear`.
    [[nodiscard]] std::uint64_t Counted() const { return counted_; }
    /// Name of the call that `FailNth` made fail, empty while none has.
    [[nodiscard]] const std::string& Struck() const { return struck_; }

    /// Asked by the gate: does this call fail now? `error` comes in as the gate's own and leaves as the one to report.
    [[nodiscard]] bool Strikes(const char* function, DWORD& error);

private:
    struct Order {
        int remaining = 0;
        DWORD error = 0;
        bool always = false;
    };
    std::map<std::string, Order, std::less<>> orders_;
    std::uint64_t counted_ = 0;
    std::uint64_t failNth_ = 0;
    std::string struck_;
};

}  // namespace platform
