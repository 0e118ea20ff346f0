// A lock between programs on one file, for changes that read, decide and write again.
#pragma once

#include <cstdint>
#include <string_view>

#include "plattform/datei.h"

namespace jorv {

/// Holds a lock beside a file until it is destroyed; a crash does not leave it behind.
class Sperre {
public:
    /// Waits at most `millisekunden` for the lock of the file; look at `gehalten`.
    Sperre(const Dateisystem& dateien, std::string_view pfad, int millisekunden);
    Sperre(const Sperre&) = delete;
    Sperre& operator=(const Sperre&) = delete;
    ~Sperre();
    bool gehalten() const { return m_nummer >= 0; }

private:
    std::intptr_t m_nummer = -1;
};

}  // namespace jorv
