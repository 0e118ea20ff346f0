// Host paths as UTF-8 text and back, the same on every system.
#pragma once

#include <filesystem>
#include <string>

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

}  // namespace jorv
