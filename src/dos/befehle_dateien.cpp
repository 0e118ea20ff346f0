#include <filesystem>
#include <system_error>

#include "dos/befehle.h"
#include "dos/platzhalter.h"
#include "dos/zeile.h"
#include "plattform/hostpfad.h"
#include "plattform/pfad.h"
#include "plattform/text.h"

namespace jorv::dos {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view nicht_gefunden = u8"Die Datei ist nicht vorhanden"_w;
constexpr std::string_view falsche_anzahl = u8"Es fehlen Namen, oder es sind zu viele."_w;
constexpr std::string_view auf_sich_selbst = u8"Eine Datei kann nicht auf sich selbst kopiert werden"_w;
constexpr char textende = '\x1A';

bool schreibgeschuetzt(const fs::path& ort)
{
    std::error_code fehler;
    return (fs::status(ort, fehler).permissions() & fs::perms::owner_write) == fs::perms::none;
}

// A name with a wildcard is no folder's, so none is looked for.
bool ist_ordner(const Umfeld& umfeld, std::string_view pfad)
{
    return !hat_platzhalter(pfad_name(pfad)) && umfeld.dateien.ist_ordner(pfad);
}

bool eine_kopieren(const Umfeld& umfeld, const Stroeme& stroeme, const Fund& quelle, std::string_view ziel)
{
    const fs::path von = umfeld.dateien.host(quelle.pfad), nach = umfeld.dateien.host(ziel);
    if (dieselbe_datei(von, nach)) return melden(stroeme, auf_sich_selbst, quelle.name);
    if (umfeld.dateien.host_kopieren(von, nach, Dauer::fluechtig))
        return melden(stroeme, u8"Die Datei konnte nicht kopiert werden"_w, quelle.name);
    std::error_code fehler;
    const auto zeit = fs::last_write_time(von, fehler);
    if (!fehler) fs::last_write_time(nach, zeit, fehler);
    return true;
}

// Text mode: a source ends at its first end sign, the target gets one at its end.
bool zusammenfuegen(const Umfeld& umfeld, const Stroeme& stroeme, const std::vector<Fund>& quellen,
                    std::string_view ziel)
{
    const fs::path nach = umfeld.dateien.host(ziel);
    const auto ist_ziel = [&](const Fund& quelle) { return dieselbe_datei(umfeld.dateien.host(quelle.pfad), nach); };
    if (quellen.size() == 1 && ist_ziel(quellen[0])) return melden(stroeme, auf_sich_selbst, quellen[0].name);
    std::string text;
    for (const auto& quelle : quellen) {
        if (ist_ziel(quelle)) continue;
        const auto inhalt = umfeld.dateien.lesen(quelle.pfad);
        if (!inhalt) return melden(stroeme, u8"Die Datei konnte nicht gelesen werden"_w, quelle.name);
        text += std::string_view(*inhalt).substr(0, inhalt->find(textende));
    }
    if (!umfeld.dateien.schreiben(ziel, text + textende, Dauer::fluechtig)) return true;
    return melden(stroeme, u8"Die Datei konnte nicht geschrieben werden"_w, ziel);
}

bool ist_alles(std::string_view muster)
{
    return muster == "*" || muster == "*.*";
}

bool eine_loeschen(const Umfeld& umfeld, const Stroeme& stroeme, const Fund& fund, bool auch_geschuetzte)
{
    if (!auch_geschuetzte && schreibgeschuetzt(umfeld.dateien.host(fund.pfad)))
        return melden(stroeme, u8"Die Datei ist schreibgeschützt"_w, fund.name);
    if (!umfeld.dateien.loeschen(fund.pfad)) return true;
    return melden(stroeme, u8"Die Datei konnte nicht gelöscht werden"_w, fund.name);
}

bool muster_loeschen(const Umfeld& umfeld, const Stroeme& stroeme, const std::string& name, const Parameter& angaben)
{
    std::string pfad = umfeld.voll(name);
    if (ist_ordner(umfeld, pfad)) pfad = pfad_verbinden(pfad, "*");
    const auto funde = dateien_finden(umfeld.dateien, pfad);
    if (funde.empty()) return melden(stroeme, nicht_gefunden, name);
    const bool fragen = ist_alles(pfad_name(pfad)) && !angaben.hat("q");
    if (fragen && !bestaetigt(stroeme, verkettet(u8"Alle Dateien löschen: "_w, pfad))) return false;
    bool gut = true;
    for (const auto& fund : funde) gut = eine_loeschen(umfeld, stroeme, fund, angaben.hat("f")) && gut;
    return gut;
}

// What `rename` works on: a folder only by its plain name.
std::vector<Fund> umzubenennende(const Umfeld& umfeld, const std::string& name)
{
    const std::string pfad = umfeld.voll(name);
    if (ist_ordner(umfeld, pfad) && !ist_wurzel(pfad)) return {{pfad, std::string(pfad_name(pfad))}};
    return dateien_finden(umfeld.dateien, pfad);
}

bool eine_umbenennen(const Umfeld& umfeld, const Stroeme& stroeme, const Fund& fund, const std::string& name)
{
    const std::string ziel = pfad_verbinden(pfad_ordner(fund.pfad), name);
    const fs::path alt = umfeld.dateien.host(fund.pfad);
    fs::path neu = umfeld.dateien.host(ziel);
    std::error_code fehler;
    if (fs::exists(fs::symlink_status(neu, fehler))) {
        // The entry found may be the source itself: then only the case of its name changes.
        if (neu != alt) return melden(stroeme, u8"Es gibt schon eine Datei dieses Namens"_w, name);
        std::string kahl = name;
        while (!kahl.empty() && (kahl.back() == '.' || kahl.back() == ' ')) kahl.pop_back();
        neu = alt.parent_path() / utf8_aus_1252(kahl);
    }
    fs::rename(alt, neu, fehler);
    return !fehler || melden(stroeme, u8"Die Datei konnte nicht umbenannt werden"_w, fund.name);
}

}  // namespace

bool befehl_copy(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.empty() || angaben.namen.size() > 2) return melden(stroeme, falsche_anzahl);
    std::string muster = umfeld.voll(angaben.namen[0]);
    if (ist_ordner(umfeld, muster)) muster = pfad_verbinden(muster, "*");
    const auto quellen = dateien_finden(umfeld.dateien, muster);
    if (quellen.empty()) return melden(stroeme, nicht_gefunden, angaben.namen[0]);

    const std::string ziel_name = angaben.namen.size() == 2 ? angaben.namen[1] : ".";
    const std::string ziel = umfeld.voll(ziel_name);
    const bool in_ordner = umfeld.dateien.ist_ordner(ziel);
    if (!in_ordner && (hat_platzhalter(ziel_name) || ziel_name.ends_with('\\')))
        return melden(stroeme, u8"Das Ziel der Kopie ist nicht möglich"_w, ziel_name);
    int kopiert = 0;
    bool gut = true;
    if (!in_ordner && hat_platzhalter(pfad_name(muster))) {
        gut = zusammenfuegen(umfeld, stroeme, quellen, ziel);
        kopiert = gut ? 1 : 0;
    } else {
        for (const auto& quelle : quellen) {
            const bool eine =
                eine_kopieren(umfeld, stroeme, quelle, in_ordner ? pfad_verbinden(ziel, quelle.name) : ziel);
            kopiert += eine ? 1 : 0;
            gut = gut && eine;
        }
    }
    text_ausgeben(stroeme.aus, verkettet("        ", kopiert, " Datei(en) kopiert.\r\n"));
    return gut;
}

bool befehl_del(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.empty()) return melden(stroeme, falsche_anzahl);
    bool gut = true;
    for (const auto& name : angaben.namen) gut = muster_loeschen(umfeld, stroeme, name, angaben) && gut;
    return gut;
}

bool befehl_rename(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.size() != 2) return melden(stroeme, falsche_anzahl);
    const std::string& name = angaben.namen[1];
    if (name.find_first_of("\\:*?<>|\"") != std::string::npos)
        return melden(stroeme, u8"Der neue Name ist nicht möglich"_w, name);
    const auto funde = umzubenennende(umfeld, angaben.namen[0]);
    if (funde.empty()) return melden(stroeme, nicht_gefunden, angaben.namen[0]);
    bool gut = true;
    for (const auto& fund : funde) gut = eine_umbenennen(umfeld, stroeme, fund, name) && gut;
    return gut;
}

bool befehl_type(Umfeld& umfeld, const Stroeme& stroeme, std::string_view text)
{
    const Parameter angaben = parameter(text);
    if (angaben.namen.empty()) return melden(stroeme, falsche_anzahl);
    bool gut = true;
    for (const auto& name : angaben.namen) {
        const auto funde = dateien_finden(umfeld.dateien, umfeld.voll(name));
        if (funde.empty()) gut = melden(stroeme, nicht_gefunden, name);
        for (const auto& fund : funde) {
            const auto inhalt = umfeld.dateien.lesen(fund.pfad);
            if (!inhalt || !ausgeben(stroeme.aus, *inhalt))
                gut = melden(stroeme, u8"Die Datei konnte nicht ausgegeben werden"_w, fund.name);
        }
    }
    return gut;
}

}  // namespace jorv::dos
