// DOS paths as text ("Z:\home\a.ini", "\\server\share\a.ini"), Windows-1252. Nothing here touches the disk.
#pragma once

#include <string>
#include <string_view>

namespace jorv {

/// Folder and name joined by one "\".
std::string pfad_verbinden(std::string_view ordner, std::string_view name);

/// What stands behind the last "\" (or behind the drive's colon).
std::string_view pfad_name(std::string_view pfad);

/// The folder of a path, without the "\" at its end except behind a drive ("Z:\").
std::string_view pfad_ordner(std::string_view pfad);

/// Begins with "\\".
constexpr bool ist_unc(std::string_view pfad)
{
    return pfad.starts_with("\\\\");
}

/// Begins with a drive or "\\".
constexpr bool ist_dos_pfad(std::string_view pfad)
{
    const auto buchstabe = [](char z) { return (z >= 'a' && z <= 'z') || (z >= 'A' && z <= 'Z'); };
    return ist_unc(pfad) || (pfad.size() >= 2 && buchstabe(pfad[0]) && pfad[1] == ':');
}

/// Where the root of a path ends: for "\\server\..." the place (from 1) of the "\" behind the server, else 3.
std::size_t pfad_wurzel_laenge(std::string_view pfad);

}  // namespace jorv
