// The texts that Windows has for its errors, of those that scenes lead to.
// https://learn.microsoft.com/windows/win32/debug/system-error-codes
#include "platform/src/core/Gate.h"
#include "platform/src/text/Buffers.h"

#include <windows.h>

#include <algorithm>
#include <iterator>
#include <string_view>

using namespace platform;

namespace {

constexpr struct {
    DWORD error;
    std::u16string_view text;
} kTexts[] = {
    {ERROR_FILE_NOT_FOUND, u"The system cannot find the file specified.\r\n"},
    {ERROR_ACCESS_DENIED, u"Access is denied.\r\n"},
    {ERROR_INVALID_SERVICE_ACCOUNT,
     u"The account name is invalid or does not exist, or the password is invalid for the account name "
     u"specified.\r\n"},
    {ERROR_SERVICE_DISABLED,
     u"The service cannot be started, either because it is disabled or because it has no enabled devices "
     u"associated with it.\r\n"},
    {ERROR_SERVICE_EXISTS, u"The specified service already exists.\r\n"},
    {ERROR_DUPLICATE_SERVICE_NAME, u"The name is already in use as either a service name or a service display name.\r\n"},
};

}  // namespace

DWORD WINAPI FormatMessageW(DWORD flags, LPCVOID source, DWORD message, DWORD language, LPWSTR buffer, DWORD size, va_list* arguments)
{
    SIM_CALL(0, ERROR_MR_MID_NOT_FOUND, flags, source, message, language, size);
    SimPc& pc = SimPc::Current();
    if (flags != (FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS) || arguments) {
        pc.Unsupported("FormatMessageW: flags " + std::to_string(flags));
        return 0;
    }
    const auto* const found = std::ranges::find(kTexts, message, [](const auto& entry) { return entry.error; });
    if (found == std::end(kTexts))
        return pc.Fail(ERROR_MR_MID_NOT_FOUND, DWORD{0});
    if (found->text.size() >= size)
        return pc.Fail(ERROR_INSUFFICIENT_BUFFER, DWORD{0});
    return CopyCut(found->text, buffer, size);
}
