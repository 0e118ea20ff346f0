#include "suite/programm.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <cstdio>

#include "plattform/text.h"
#include "plattform/umgebung.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace jorv::suite {

void speicher_behalten()
{
#ifdef __GLIBC__
    constexpr int viel = 64 << 20;
    ::mallopt(M_MMAP_THRESHOLD, viel);
    ::mallopt(M_TRIM_THRESHOLD, viel);
    ::mallopt(M_TOP_PAD, 1 << 20);
#endif
}

std::optional<Worte> worte(int anzahl, const char* const* argumente)
{
    Worte liste;
    for (int i = 1; i < anzahl; ++i) {
#ifdef _WIN32
        liste.emplace_back(argumente[i]);  // the system hands them over in its own 8-bit code page
#else
        auto wort = text_aus_utf8(argumente[i]);
        if (!wort) return {};
        liste.push_back(std::move(*wort));
#endif
    }
    return liste;
}

std::filesystem::path loeserprogramm()
{
#ifdef _WIN32
    return programm_finden("rnx2rtkp.exe");
#else
    return programm_finden("rnx2rtkp");
#endif
}

void ausgeben(std::string_view bytes)
{
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
}

}  // namespace jorv::suite
