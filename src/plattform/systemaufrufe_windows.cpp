#include <direct.h>
#include <fcntl.h>
#include <io.h>
#include <sys/stat.h>
#include <windows.h>

#include <cerrno>
#include <string>

#include "plattform/breit_windows.h"
#include "plattform/systemaufrufe.h"

namespace jorv {

namespace {

constexpr std::size_t hoechstens = 1u << 24;  // bytes of one call; the system takes an int

int oeffnen(const char* pfad, int art, unsigned)
{
    return _wopen(breit(pfad).c_str(), art | _O_BINARY | _O_NOINHERIT, _S_IREAD | _S_IWRITE);
}
long lesen(int nummer, void* bytes, std::size_t anzahl)
{
    return _read(nummer, bytes, static_cast<unsigned>(anzahl < hoechstens ? anzahl : hoechstens));
}
long schreiben(int nummer, const void* bytes, std::size_t anzahl)
{
    return _write(nummer, bytes, static_cast<unsigned>(anzahl < hoechstens ? anzahl : hoechstens));
}
// Scanners and indexers hold a file that has just changed for a moment.
int umbenennen(const char* alt, const char* neu)
{
    constexpr int versuche = 15, pause = 20;  // milliseconds
    constexpr DWORD art = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
    const std::wstring von = breit(alt), nach = breit(neu);
    DWORD grund = 0;
    for (int versuch = 0; versuch < versuche; ++versuch) {
        if (MoveFileExW(von.c_str(), nach.c_str(), art)) return 0;
        grund = GetLastError();
        if (grund != ERROR_SHARING_VIOLATION && grund != ERROR_ACCESS_DENIED) break;
        Sleep(pause);
    }
    errno = grund == ERROR_DISK_FULL ? ENOSPC : EACCES;
    return -1;
}
int loeschen(const char* pfad)
{
    return _wunlink(breit(pfad).c_str());
}
int ordner_sichern(const char*)
{
    return 0;
}

int ordner_anlegen(const char* pfad)
{
    return _wmkdir(breit(pfad).c_str());
}

// Files are mapped by their handles here.
constexpr Systemaufrufe tabelle{oeffnen,    lesen,    schreiben,      _commit,        _close,
                                umbenennen, loeschen, ordner_sichern, ordner_anlegen, nullptr};

}  // namespace

void ausschreiben_beginnen(int) {}

const Systemaufrufe& Systemaufrufe::echte()
{
    return tabelle;
}

}  // namespace jorv
