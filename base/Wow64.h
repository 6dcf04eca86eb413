// Wow64: whether this program is a 32-bit one on 64-bit Windows.
#pragma once

namespace base {

/// True in a 32-bit process on 64-bit Windows. Windows is asked once; without IsWow64Process, which old systems lack, the answer is no.
/// https://learn.microsoft.com/windows/win32/api/wow64apiset/nf-wow64apiset-iswow64process
bool IsWow64();

/// Forgets the answer.
void ForgetWow64();

}  // namespace base
