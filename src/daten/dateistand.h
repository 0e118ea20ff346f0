// Sorts the reasons of the system into the two that the messages know: the file could not be opened, or it was open and
// a read or write went wrong.
#pragma once

#include <system_error>

namespace jorv {

enum class Dateistand { gut, nicht_offen, gestoert };

/// Of an error code that reading, mapping or writing a file gave.
Dateistand dateistand(const std::error_code& fehler);

/// The user may not write there (as against a full or failing disk).
bool schreiben_verboten(const std::error_code& fehler);

}  // namespace jorv
