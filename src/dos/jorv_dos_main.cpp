// jorv-dos: runs a DOS batch file. Exit status 0 when the batch was run, 1 when it can't be read, 2 for wrong usage.
#include <signal.h>

#include <cstring>
#include <optional>
#include <string>
#include <vector>

#include "dos/stapel.h"
#include "plattform/codepage_850.h"
#include "plattform/pfad.h"
#include "plattform/text.h"
#include "plattform/zahl.h"
#include "plattform/zeitgrenze.h"

namespace {

using namespace jorv;

constexpr std::string_view aufruf =
    u8"Aufruf: jorv-dos [--frist SEKUNDEN] [--statt ORDNER] DATEI.BAT [ARGUMENT...]\r\n"
    "Führt eine Batchdatei aus. DATEI.BAT ist ein Pfad dieses Rechners oder ein DOS-Pfad (Z:\\...).\r\n"
    "--frist  so lange darf ein gestartetes Programm laufen (JORV_FRIST, sonst 600)\r\n"
    "--statt  ein Ordner dieses Rechners, der an die Stelle des Ordners von DATEI.BAT tritt: Unter dessen Pfad\r\n"
    "         liest und schreibt die Batchdatei alles dort, auch sie selbst liegt dort\r\n"_w;

struct Auftrag {
    std::string datei;  // UTF-8
    std::string statt;  // ... empty: none
    std::vector<std::string> argumente;
    std::chrono::seconds frist = zeitgrenze();
};

bool option_lesen(Auftrag& auftrag, std::string_view option, const std::string& wert)
{
    if (option == "--statt") return !(auftrag.statt = wert).empty();
    const auto sekunden = option == "--frist" ? ganz_streng(wert) : std::nullopt;
    if (!sekunden || *sekunden < 1) return false;
    auftrag.frist = std::chrono::seconds(*sekunden);
    return true;
}

std::optional<Auftrag> auftrag_lesen(const std::vector<std::string>& worte)
{
    Auftrag auftrag;
    std::size_t i = 0;
    for (; i < worte.size() && worte[i].starts_with("--"); i += 2)
        if (i + 1 >= worte.size() || !option_lesen(auftrag, worte[i], worte[i + 1])) return std::nullopt;
    if (i >= worte.size()) return std::nullopt;
    auftrag.datei = worte[i++];
    for (; i < worte.size(); ++i) auftrag.argumente.push_back(text_aus_utf8_mit_ersatz(worte[i]));
    return auftrag;
}

// The DOS path of a file given in either form; a relative one counts from the current directory.
std::optional<std::string> dos_pfad(const Laufwerke& laufwerke, const std::string& utf8)
{
    const auto text = text_aus_utf8(utf8);
    const bool ist_dos = text && (ist_dos_pfad(*text) || text->find('\\') != std::string::npos);
    if (!ist_dos) return laufwerke.dos(utf8);
    std::error_code fehler;
    const auto hier = laufwerke.dos(std::filesystem::current_path(fehler));
    return fehler || !hier ? std::nullopt : std::optional(dos::Verzeichnisse(*hier).voll(*text));
}

// The drives as the batch sees them.
Laufwerke laufwerke_fuer(const Auftrag& auftrag)
{
    Laufwerke laufwerke = Laufwerke::aus_umgebung();
    const auto pfad = auftrag.statt.empty() ? std::nullopt : dos_pfad(laufwerke, auftrag.datei);
    std::error_code fehler;
    if (pfad) laufwerke.vertreten(pfad_ordner(*pfad), std::filesystem::canonical(auftrag.statt, fehler));
    return laufwerke;
}

}  // namespace

int main(int anzahl, char** worte)
{
    // Nobody need read the screen text: the batch goes on when its reader has gone.
    ::signal(SIGPIPE, SIG_IGN);
    const auto auftrag = auftrag_lesen({worte + 1, worte + anzahl});
    if (!auftrag) {
        dos::text_ausgeben(2, aufruf);
        return 2;
    }
    auto umfeld = dos::umfeld_des_prozesses(laufwerke_fuer(*auftrag));
    if (!umfeld) {
        dos::melden({}, u8"Das aktuelle Verzeichnis hat keinen DOS-Pfad."_w);
        return 1;
    }
    umfeld->frist = auftrag->frist;
    const auto pfad = dos_pfad(umfeld->dateien.laufwerke(), auftrag->datei);
    if (pfad && dos::Stapel(*umfeld).ausfuehren(*pfad, auftrag->argumente)) return 0;
    dos::melden({}, u8"Die Batchdatei kann nicht gelesen werden"_w, text_aus_utf8_mit_ersatz(auftrag->datei));
    return 1;
}
