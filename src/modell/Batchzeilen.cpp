#include "modell/Batchzeilen.h"

#include "modell/Gemeinsam.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv {

std::string batch_laufwerk(std::string_view verzeichnis)
{
    return std::string(ohne_ende(links(verzeichnis, pfad_wurzel_laenge(verzeichnis)), 1));
}

std::string batch_cd(std::string_view verzeichnis)
{
    return dos_text(verkettet("cd ", mitte(verzeichnis, pfad_wurzel_laenge(verzeichnis))));
}

std::string batch_path(std::string_view exe_verzeichnis)
{
    return dos_text(verkettet("path %path%;", exe_verzeichnis));
}

}  // namespace jorv
