#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "plattform/systemaufrufe.h"

namespace jorv {

namespace {

int oeffnen(const char* pfad, int art, unsigned rechte)
{
    return ::open(pfad, art | O_CLOEXEC, rechte);
}
long lesen(int nummer, void* bytes, std::size_t anzahl)
{
    return ::read(nummer, bytes, anzahl);
}
long schreiben(int nummer, const void* bytes, std::size_t anzahl)
{
    return ::write(nummer, bytes, anzahl);
}

int ordner_sichern(const char* pfad)
{
    const int nummer = ::open(pfad, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (nummer < 0) return -1;
    const int ergebnis = ::fsync(nummer);
    const int grund = errno;
    ::close(nummer);
    errno = grund;
    // Some network file systems can't flush a folder; the rename itself is then all that can be had.
    return ergebnis != 0 && grund == EINVAL ? 0 : ergebnis;
}

int ordner_anlegen(const char* pfad)
{
    return ::mkdir(pfad, 0777);
}
void* einblenden(int nummer, std::size_t laenge)
{
    void* const ort = ::mmap(nullptr, laenge, PROT_READ, MAP_PRIVATE, nummer, 0);
    return ort == MAP_FAILED ? nullptr : ort;
}

constexpr Systemaufrufe tabelle{oeffnen,  lesen,    schreiben,      ::fsync,        ::close,
                                ::rename, ::unlink, ordner_sichern, ordner_anlegen, einblenden};

}  // namespace

void ausschreiben_beginnen(int nummer)
{
    ::sync_file_range(nummer, 0, 0, SYNC_FILE_RANGE_WRITE);
}

const Systemaufrufe& Systemaufrufe::echte()
{
    return tabelle;
}

}  // namespace jorv
