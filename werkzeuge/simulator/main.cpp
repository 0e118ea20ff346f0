// jorv-simulator: writes simulated observation files. See `jorv-simulator hilfe`.
#include <cstdio>
#include <fstream>
#include <iterator>
#include <span>
#include <string>

#include "simulator/beispiel.h"
#include "simulator/simulator.h"
#include "simulator/szenario_text.h"

namespace {

using namespace jorv::simulator;

constexpr int gut = 0, misslungen = 1, falscher_aufruf = 2;

int melden(bool erfolg, const std::string& meldung)
{
    if (!erfolg) std::fprintf(stderr, "STOP %s\n", meldung.c_str());
    return erfolg ? gut : misslungen;
}

int aus_datei(const std::string& name, const std::string& ordner)
{
    std::ifstream datei(name, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(datei), std::istreambuf_iterator<char>()};
    Szenario szenario;
    std::string meldung = "Die Datei " + name + " konnte nicht gelesen werden!";
    const bool erfolg = datei.good() && szenario_lesen(text, szenario, meldung) &&
                        schreiben(szenario, ordner, meldung) &&
                        (szenario.antennen.empty() ||
                         antex_schreiben(szenario, std::filesystem::path(ordner) / "antennen.atx", meldung));
    return melden(erfolg, meldung);
}

int hilfe(std::FILE* wohin)
{
    std::fprintf(wohin,
                 "jorv-simulator szenario DATEI ORDNER   Beobachtungen nach einer Szenariodatei\n"
                 "jorv-simulator beispiel ORDNER         das mitgelieferte Beispielnetz\n"
                 "jorv-simulator gross ORDNER            eine Datei von etwa 100 MB, 24 h zu 1 s\n"
                 "jorv-simulator hilfe\n\n"
                 "Szenariodatei, Zeilen `Schluessel = Werte`, # leitet Bemerkungen ein:\n%s",
                 hilfe_szenario().c_str());
    return wohin == stdout ? gut : falscher_aufruf;
}

}  // namespace

int main(int anzahl, char** werte)
{
    const std::span<char*> worte(werte, static_cast<std::size_t>(anzahl));
    const std::string befehl = anzahl > 1 ? worte[1] : "";
    std::string meldung;
    if (befehl == "szenario" && anzahl == 4) return aus_datei(worte[2], worte[3]);
    if (befehl == "beispiel" && anzahl == 3) return melden(beispiel_schreiben(worte[2], meldung), meldung);
    if (befehl == "gross" && anzahl == 3) return melden(schreiben(grosses_szenario(), worte[2], meldung), meldung);
    return hilfe(befehl == "hilfe" ? stdout : stderr);
}
