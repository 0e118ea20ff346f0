// A lock between programs on one file, for changes that read, decide and write again.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "plattform/datei.h"

namespace jorv {

/// Holds a lock beside a file until it is destroyed: a hidden file that is gone when nobody holds or waits for it. What
/// a crash leaves of it locks nothing, and goes with the next lock.
class Sperre {
public:
    /// Waits at most `millisekunden` for the lock of the file; look at `gehalten`.
    Sperre(const Dateisystem& dateien, std::string_view pfad, int millisekunden);
    Sperre(const Sperre&) = delete;
    Sperre& operator=(const Sperre&) = delete;
    ~Sperre();
    bool gehalten() const { return m_nummer >= 0; }
    /// Not held since another holds it; otherwise nobody can make a lock there, as in a folder that is only to be read.
    bool besetzt() const { return m_besetzt; }

private:
    std::filesystem::path m_datei;
    std::intptr_t m_nummer = -1;
    bool m_besetzt = false;
};

}  // namespace jorv
