// The system calls that reading and writing of files go through, as a table that a test can replace call by call.
#pragma once

#include <cstddef>

namespace jorv {

/// Same arguments, results and errno as the POSIX calls of those meanings; paths are UTF-8.
struct Systemaufrufe {
    int (*oeffnen)(const char* pfad, int art, unsigned rechte);            ///< open
    long (*lesen)(int nummer, void* bytes, std::size_t anzahl);            ///< read
    long (*schreiben)(int nummer, const void* bytes, std::size_t anzahl);  ///< write
    int (*sichern)(int nummer);                                            ///< fsync
    int (*schliessen)(int nummer);                                         ///< close
    int (*umbenennen)(const char* alt, const char* neu);                   ///< rename, replacing
    int (*loeschen)(const char* pfad);                                     ///< unlink
    int (*ordner_sichern)(const char* pfad);                               ///< fsync of a folder
    int (*ordner_anlegen)(const char* pfad);                               ///< mkdir
    void* (*einblenden)(int nummer, std::size_t laenge);                   ///< mmap for reading; nullptr when it fails

    /// The calls of the system at hand.
    static const Systemaufrufe& echte();
};

/// Has the system begin to write out what the open file got so far, so that a later `sichern` waits less: a hint, no
/// promise.
void ausschreiben_beginnen(int nummer);

}  // namespace jorv
