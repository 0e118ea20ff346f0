// Host paths: as UTF-8 text and back, and whether two lead to one file.
#pragma once

#include <filesystem>
#include <string>
#include <system_error>

namespace jorv {

inline std::string utf8(const std::filesystem::path& pfad)
{
    const auto text = pfad.u8string();
    return {reinterpret_cast<const char*>(text.data()), text.size()};
}

inline std::filesystem::path aus_utf8(const std::string& text)
{
    return {reinterpret_cast<const char8_t*>(text.c_str())};
}

/// False where one of them leads nowhere.
inline bool dieselbe_datei(const std::filesystem::path& a, const std::filesystem::path& b)
{
    std::error_code fehler;
    return std::filesystem::equivalent(a, b, fehler) && !fehler;
}

}  // namespace jorv
