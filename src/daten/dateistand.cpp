#include "daten/dateistand.h"

#include <algorithm>
#include <array>

namespace jorv {

namespace {

// What goes wrong with an open file; everything else keeps it from being opened.
constexpr std::array gestoert = {
    std::errc::io_error,          std::errc::no_space_on_device, std::errc::file_too_large,
    std::errc::not_enough_memory, std::errc::no_such_device,     std::errc::interrupted,
    std::errc::invalid_seek,      std::errc::broken_pipe,        std::errc::no_lock_available};
constexpr std::array verboten = {std::errc::permission_denied, std::errc::operation_not_permitted,
                                 std::errc::read_only_file_system};

}  // namespace

Dateistand dateistand(const std::error_code& fehler)
{
    if (!fehler) return Dateistand::gut;
    const bool offen = std::any_of(gestoert.begin(), gestoert.end(), [&](std::errc grund) { return fehler == grund; });
    return offen ? Dateistand::gestoert : Dateistand::nicht_offen;
}

bool schreiben_verboten(const std::error_code& fehler)
{
    return std::any_of(verboten.begin(), verboten.end(), [&](std::errc grund) { return fehler == grund; });
}

}  // namespace jorv
