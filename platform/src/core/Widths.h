// Widths: what differs between 64-bit and 32-bit Windows in the records that hold addresses.
#pragma once

#include <cstddef>

namespace platform {

/// A size or an offset of the Windows that this build stands in for.
constexpr std::size_t Wide(std::size_t bits64, std::size_t bits32)
{
    return sizeof(void*) == 8 ? bits64 : bits32;
}

}  // namespace platform
