#include "app/helpers/ErrorText.h"

#include <iterator>

namespace helpers {

using base::String;
using base::StringView;

String ErrorText(DWORD error)
{
    WCHAR buffer[512];
    const DWORD length = FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, buffer,
                                        static_cast<DWORD>(std::size(buffer)), nullptr);
    StringView text(buffer, length);
    text = text.substr(0, text.find_last_not_of(TEXT("\r\n ")) + 1);
    return (text.empty() ? String() : String(text) + TEXT("\r\n")) + TEXT("Error ") + base::ToDecimal(error);
}

}  // namespace helpers
