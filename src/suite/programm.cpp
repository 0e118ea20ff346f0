#include "suite/programm.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include <string>

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
    for (const std::string& utf8 : programmworte(anzahl, argumente)) {
        auto wort = text_aus_utf8(utf8);
        if (!wort) return {};
        liste.push_back(std::move(*wort));
    }
    return liste;
}

std::filesystem::path loeserprogramm()
{
    return programm_finden("rnx2rtkp");
}

void ausgeben(std::string_view bytes, std::FILE* wohin)
{
#ifdef _WIN32
    _setmode(_fileno(wohin), _O_BINARY);
#endif
    std::fwrite(bytes.data(), 1, bytes.size(), wohin);
}

}  // namespace jorv::suite
