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

namespace {

using namespace jorv;

constexpr std::string_view aufruf =
    u8"Aufruf: jorv-dos [--frist SEKUNDEN] DATEI.BAT [ARGUMENT...]\r\n"
    "Führt eine Batchdatei aus. DATEI.BAT ist ein Pfad dieses Rechners oder ein DOS-Pfad (Z:\\...).\r\n"
    "--frist  so lange darf ein gestartetes Programm laufen (600)\r\n"_w;

struct Auftrag {
    std::string datei;  // UTF-8
    std::vector<std::string> argumente;
    std::chrono::seconds frist{600};
};

std::optional<Auftrag> auftrag_lesen(const std::vector<std::string>& worte)
{
    Auftrag auftrag;
    std::size_t i = 0;
    if (i < worte.size() && worte[i] == "--frist") {
        const auto sekunden = i + 1 < worte.size() ? ganz_streng(worte[i + 1]) : std::nullopt;
        if (!sekunden || *sekunden < 1) return std::nullopt;
        auftrag.frist = std::chrono::seconds(*sekunden);
        i += 2;
    }
    if (i >= worte.size() || worte[i].starts_with("--")) return std::nullopt;
    auftrag.datei = worte[i++];
    for (; i < worte.size(); ++i) auftrag.argumente.push_back(text_aus_utf8_mit_ersatz(worte[i]));
    return auftrag;
}

// The DOS path of a file given in either form.
std::optional<std::string> dos_pfad(const dos::Umfeld& umfeld, const std::string& utf8)
{
    const auto text = text_aus_utf8(utf8);
    if (text && (ist_dos_pfad(*text) || text->find('\\') != std::string::npos)) return umfeld.voll(*text);
    return umfeld.dateien.laufwerke().dos(utf8);
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
    auto umfeld = dos::umfeld_des_prozesses();
    if (!umfeld) {
        dos::melden({}, u8"Das aktuelle Verzeichnis hat keinen DOS-Pfad."_w);
        return 1;
    }
    umfeld->frist = auftrag->frist;
    const auto pfad = dos_pfad(*umfeld, auftrag->datei);
    if (pfad && dos::Stapel(*umfeld).ausfuehren(*pfad, auftrag->argumente)) return 0;
    dos::melden({}, u8"Die Batchdatei kann nicht gelesen werden"_w, text_aus_utf8_mit_ersatz(auftrag->datei));
    return 1;
}
