#include <filesystem>
#include <system_error>

#include "dos/befehle.h"
#include "dos/zeile.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kein_laufwerk = u8"Das Laufwerk ist nicht vorhanden"_w;
constexpr std::string_view kein_ordner = u8"Das Verzeichnis ist nicht vorhanden"_w;
constexpr std::string_view name_fehlt = u8"Es fehlt ein Name."_w;

bool gewechselt(const Stroeme& stroeme, Wechsel ergebnis, std::string_view name)
{
    if (ergebnis == Wechsel::gut) return true;
    return melden(stroeme, ergebnis == Wechsel::kein_laufwerk ? kein_laufwerk : kein_ordner, name);
}

// The switch /d of cd, which makes another drive current too.
bool schalter_d_nehmen(std::string_view& text)
{
    const bool da = text.size() >= 2 && text[0] == '/' && klein(text[1]) == 'd' &&
                    (text.size() == 2 || ist_trenner(text[2]) || text[2] == '"');
    if (da) text = trimmen(text.substr(2));
    return da;
}

// A name is a folder that the current directory lies in or is.
bool ist_gerade_benutzt(const Umfeld& umfeld, std::string_view voll)
{
    const std::string& hier = umfeld.verzeichnisse.aktuell();
    return gleich_ohne_gross(links(hier, voll.size()), voll) &&
           (hier.size() == voll.size() || hier[voll.size()] == '\\');
}

bool ordner_entfernen(const Umfeld& umfeld, const Stroeme& stroeme, const std::string& name, bool mit_inhalt,
                      bool ohne_frage)
{
    const std::string voll = umfeld.voll(name);
    if (!umfeld.dateien.vorhanden(voll)) return melden(stroeme, kein_ordner, name);
    if (!umfeld.dateien.ist_ordner(voll)) return melden(stroeme, u8"Der Name ist kein Verzeichnis"_w, name);
    if (ist_wurzel(voll) || ist_gerade_benutzt(umfeld, voll))
        return melden(stroeme, u8"Das Verzeichnis wird gerade benutzt"_w, name);
    if (mit_inhalt && !ohne_frage && !bestaetigt(stroeme, verkettet(u8"Alles entfernen in "_w, name))) return false;
    std::error_code fehler;
    const fs::path ort = umfeld.dateien.host(voll);
    const auto anzahl = mit_inhalt ? fs::remove_all(ort, fehler) : std::uintmax_t{fs::remove(ort, fehler)};
    if (!fehler && anzahl > 0) return true;
    return melden(stroeme, u8"Das Verzeichnis konnte nicht entfernt werden"_w, name);
}

}  // namespace

bool laufwerk_wechseln(Umfeld& umfeld, const Stroeme& stroeme, std::string_view laufwerk)
{
    return gewechselt(stroeme, umfeld.verzeichnisse.laufwerk(umfeld.dateien, laufwerk), laufwerk);
}

bool befehl_cd(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    text = trimmen(ohne_trenner(text));
    const bool mit_laufwerk = schalter_d_nehmen(text);
    const std::string name(trimmen(ersetzt(text, "\"", "")));
    if (name.empty()) return text_ausgeben(stroeme.aus, umfeld.verzeichnisse.aktuell() + "\r\n");
    if (ist_unc(name)) return melden(stroeme, u8"Ein Netzpfad kann kein aktuelles Verzeichnis werden"_w, name);
    if (name.size() == 2 && name[1] == ':' && !mit_laufwerk)
        return text_ausgeben(stroeme.aus, umfeld.verzeichnisse.aktuell_auf(name) + "\r\n");
    return gewechselt(stroeme, umfeld.verzeichnisse.ordner(umfeld.dateien, name, mit_laufwerk), name);
}

bool befehl_mkdir(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.empty()) return melden(stroeme, name_fehlt);
    bool gut = true;
    for (const auto& name : angaben.namen) {
        const std::string voll = umfeld.voll(name);
        if (umfeld.dateien.vorhanden(voll))
            gut = melden(stroeme, u8"Ein Verzeichnis oder eine Datei dieses Namens ist schon vorhanden"_w, name);
        else if (umfeld.dateien.ordner_anlegen(voll))
            gut = melden(stroeme, u8"Das Verzeichnis konnte nicht angelegt werden"_w, name);
    }
    return gut;
}

bool befehl_rmdir(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.empty()) return melden(stroeme, name_fehlt);
    bool gut = true;
    for (const auto& name : angaben.namen)
        gut = ordner_entfernen(umfeld, stroeme, name, angaben.hat("s"), angaben.hat("q")) && gut;
    return gut;
}

}  // namespace jorv::dos
