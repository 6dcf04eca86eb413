// Machine: what kind of Windows the stand-in PC runs and on what hardware.
#pragma once

#include "platform/sim/SimPc.h"

#include <optional>
#include <string>
#include <string_view>

namespace platform {

class Machine : public Area {
public:
    using Area::Area;

    /// What GetVersionExA tells: 6.1.7601, an NT system.
    struct Version {
        DWORD major = 6, minor = 1, build = 7601, platformId = 2;
    };
    [[nodiscard]] const Version& GetVersion() const { return version_; }
    /// Makes it one of the old Windows systems that are not NT.
    void NotNt() { version_ = {4, 10, 2222, 1}; }

    /// Whether the program under test is a 32-bit process on a 64-bit Windows (false).
    [[nodiscard]] bool Wow64() const { return wow64_; }
    void Wow64(bool on) { wow64_ = on; }

    [[nodiscard]] BYTE Processors() const { return processors_; }
    void Processors(BYTE count) { processors_ = count; }

    /// Bytes.
    struct Memory {
        DWORD loadPercent = 40;
        ULONGLONG totalPhysical = 0x80000000, freePhysical = 0x4D000000, totalPageFile = 0x100000000, freePageFile = 0xC0000000,
                  totalVirtual = 0x7FFFFFE0000, freeVirtual = 0x7FFFF000000;
    };
    [[nodiscard]] const Memory& GetMemory() const { return memory_; }
    void SetMemory(const Memory& memory) { memory_ = memory; }

    /// The flags that SetProcessDEPPolicy was given last, empty when it never succeeded.
    [[nodiscard]] std::optional<DWORD> DepPolicy() const { return depPolicy_; }
    void DepPolicy(DWORD flags) { depPolicy_ = flags; }
    /// Whether LockWorkStation was called.
    [[nodiscard]] bool Locked() const { return locked_; }
    void Lock() { locked_ = true; }

private:
    Version version_;
    Memory memory_;
    BYTE processors_ = 4;
    bool wow64_ = false;
    bool locked_ = false;
    std::optional<DWORD> depPolicy_;
};

}  // namespace platform
