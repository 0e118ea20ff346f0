// What a failed read or write of a whole file meant: the messages tell a file that can't be opened or created from one
// that breaks off while its bytes move.
#pragma once

#include <cerrno>
#include <system_error>

namespace jorv {

/// True when the file was there and open and the device failed: bad block, full disk, quota.
inline bool beim_uebertragen(std::error_code fehler)
{
#ifdef EDQUOT
    if (fehler.value() == EDQUOT) return true;
#endif
    return fehler == std::errc::io_error || fehler == std::errc::no_space_on_device ||
           fehler == std::errc::file_too_large;
}

}  // namespace jorv
