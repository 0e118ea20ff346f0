// The wide text that the calls of Windows take.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace jorv {

/// UTF-8 as wide text.
inline std::wstring breit(std::string_view utf8)
{
    const int laenge = static_cast<int>(utf8.size());
    std::wstring text(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), laenge, nullptr, 0)),
                      L'\0');
    MultiByteToWideChar(CP_UTF8, 0, utf8.data(), laenge, text.data(), static_cast<int>(text.size()));
    return text;
}

}  // namespace jorv
