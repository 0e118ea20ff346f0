// What the last pass over an observation file found, kept for the routine that asks for the same file next.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace jorv {

/// Tells one state of a file from another.
struct Dateikennung {
    std::string Pfad;
    std::uint64_t Groesse = 0;
    std::filesystem::file_time_type Zeit;

    bool operator==(const Dateikennung&) const = default;
};

struct Abtastung {
    Dateikennung Datei;
    std::vector<std::string> Satelliten;  ///< distinct, in the order of their appearance
};

}  // namespace jorv
