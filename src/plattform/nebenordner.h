// A folder beside the files of another one: it shows them by links, and what is made in it moves over at the end.
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>

#include "plattform/datei.h"

namespace jorv {

/// Lies hidden in the folder that it stands beside; a folder that a killed program leaves is swept away as its temporary
/// files are. It goes with the object.
class Nebenordner {
public:
    /// `zaehler` tells apart the folders of one process. `ort` is empty when it can't be made.
    Nebenordner(const Dateisystem& dateien, std::string_view ordner, int zaehler);
    Nebenordner(const Nebenordner&) = delete;
    Nebenordner& operator=(const Nebenordner&) = delete;
    ~Nebenordner();

    /// Host path.
    const std::filesystem::path& ort() const { return m_ort; }
    /// Links to the visible files of the folder whose name (Windows-1252) counts.
    [[nodiscard]] std::error_code zeigen(const std::function<bool(std::string_view)>& zaehlt) const;
    /// Moves files and folders that are no links to the same places of the folder, replacing what is there. Stops at
    /// the first failure.
    [[nodiscard]] std::error_code abliefern() const;

private:
    const Dateisystem& m_dateien;
    std::string m_ordner;
    std::filesystem::path m_ort;
};

}  // namespace jorv
