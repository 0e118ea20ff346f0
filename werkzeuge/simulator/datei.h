// Writing of whole files.
#pragma once

#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>

namespace jorv::simulator {

/// Writes the pieces one behind the other as a new file. Returns false with a German sentence in `meldung`.
[[nodiscard]] bool datei_schreiben(const std::filesystem::path& datei, std::initializer_list<std::string_view> stuecke,
                                   std::string& meldung);
/// Creates a folder with its parents. Failure as above.
[[nodiscard]] bool ordner_anlegen(const std::filesystem::path& ordner, std::string& meldung);

}  // namespace jorv::simulator
