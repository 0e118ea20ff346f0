#include "suite/stationen.h"

#include <algorithm>

#include "plattform/text.h"

namespace jorv::suite {

namespace {

constexpr double TAG = 86400.0;
constexpr double RAND = 900.0;   // s; longer intervals between two epochs don't occur
constexpr double UNGENAU = 0.1;  // s by which time tags may lie beside the full second

std::string zweistellig(int zahl)
{
    return verkettet(zahl < 10 ? "0" : "", zahl);
}

std::string dreistellig(int zahl)
{
    return verkettet(zahl < 100 ? "0" : "", zweistellig(zahl));
}

// Appends the epochs that lie behind the last one of the target.
void anfuegen(RinexBeobachtung& ziel, const RinexBeobachtung& teil)
{
    for (const Epoche& e : teil.epochen) {
        if (!ziel.epochen.empty() && e.zeit <= ziel.epochen.back().zeit) continue;
        Epoche neu = e;
        neu.erste = ziel.messungen.size();
        const auto erste = teil.messungen.begin() + static_cast<std::ptrdiff_t>(e.erste);
        ziel.messungen.insert(ziel.messungen.end(), erste, erste + static_cast<std::ptrdiff_t>(e.anzahl));
        ziel.epochen.push_back(std::move(neu));
    }
    for (std::size_t i = 0; i < ARTEN; ++i) ziel.kopf.arten[i] = ziel.kopf.arten[i] || teil.kopf.arten[i];
}

void beschneiden(RinexBeobachtung& b, const Zeitspanne& spanne)
{
    const double rand = std::max(1.0, b.intervall()) + UNGENAU;
    std::erase_if(b.epochen, [&](const Epoche& e) {
        return abstand(e.zeit, spanne.von) < -rand || abstand(e.zeit, spanne.bis) > rand;
    });
}

bool deckt(const RinexBeobachtung& b, const Zeitspanne& spanne)
{
    const double rand = std::max(1.0, b.intervall()) + UNGENAU;
    return !b.epochen.empty() && abstand(b.epochen.front().zeit, spanne.von) <= rand &&
           abstand(spanne.bis, b.epochen.back().zeit) <= rand;
}

}  // namespace

bool ist_erdort(const Xyz& ort)
{
    const double radius = laenge(ort);
    return radius > 6.30e6 && radius < 6.45e6;
}

std::string mit_art(std::string_view dateiname, char art)
{
    return verkettet(ohne_ende(dateiname, 1), art);
}

std::optional<Beobachtungsdatei> datei_lesen(const Arbeitsordner& ordner, std::string_view name, Umfang umfang,
                                             Protokoll& protokoll, const std::optional<Zeitspanne>& fenster,
                                             Systeme systeme)
{
    std::error_code fehler;
    Beobachtungsstrom strom{ordner.stroemen(name, fehler), ordner.groesse(name)};
    if (fehler) {
        protokoll.fehler(verkettet("Die Datei ", name, u8" konnte nicht geöffnet werden!"_w));
        return {};
    }
    std::string grund;
    auto daten = beobachtung_lesen(std::move(strom), umfang, grund, fenster, systeme);
    if (!daten) {
        protokoll.fehler(verkettet("Die Datei ", name, " ", grund, "!"));
        return {};
    }
    for (const std::string& hinweis : daten->hinweise) protokoll.zeile(verkettet(name, ": ", hinweis));
    return Beobachtungsdatei{std::string(name), std::move(*daten)};
}

std::vector<std::string> stationsdateien(const std::vector<std::string>& alle, std::string_view station,
                                         std::string_view rover, const Zeitspanne& spanne)
{
    std::vector<std::string> namen;
    for (GpsZeit tag = spanne.von;; tag = verschoben(tag, TAG)) {
        const int jahr = kalenderzeit(tag).jahr % 100;
        const auto gefunden =
            passende(alle, verkettet(station, dreistellig(tag_im_jahr(tag)), "?.", zweistellig(jahr), "o"));
        namen.insert(namen.end(), gefunden.begin(), gefunden.end());
        if (tag.sekunde / 86400 >= spanne.bis.sekunde / 86400) break;
    }
    const auto sitzung = mitte(rover, 8, 1);
    std::stable_partition(namen.begin(), namen.end(),
                          [&](const std::string& name) { return gleich_ohne_gross(mitte(name, 8, 1), sitzung); });
    return namen;
}

std::optional<Beobachtungsdatei> station_lesen(const Arbeitsordner& ordner, const std::vector<std::string>& dateien,
                                               const Zeitspanne& spanne, Protokoll& protokoll, Systeme systeme)
{
    const Zeitspanne fenster{verschoben(spanne.von, -RAND), verschoben(spanne.bis, RAND)};
    std::vector<Beobachtungsdatei> teile;
    for (const std::string& name : dateien) {
        auto teil = datei_lesen(ordner, name, Umfang::alles, protokoll, fenster, systeme);
        if (!teil) continue;
        beschneiden(teil->daten, spanne);
        if (teil->daten.epochen.empty()) continue;
        const bool fertig = deckt(teil->daten, spanne);
        if (fertig) teile.clear();
        teile.push_back(std::move(*teil));
        if (fertig) break;
    }
    if (teile.empty()) return {};
    if (teile.size() == 1) return std::move(teile.front());
    std::sort(teile.begin(), teile.end(), [](const Beobachtungsdatei& a, const Beobachtungsdatei& b) {
        return a.daten.epochen.front().zeit < b.daten.epochen.front().zeit;
    });
    Beobachtungsdatei ganz{teile.front().name, {}};
    ganz.daten.kopf = teile.front().daten.kopf;
    for (const Beobachtungsdatei& teil : teile) anfuegen(ganz.daten, teil.daten);
    return ganz;
}

Navigation navigation_suchen(const Arbeitsordner& ordner, const std::vector<std::string>& beobachtungsdateien,
                             bool alle, Protokoll& protokoll)
{
    Navigation navigation;
    const auto lesen = [&](const std::string& name) {
        std::error_code fehler;
        const Abbild abbild = ordner.lesen(name, fehler);
        const int saetze = fehler ? -1 : navigation_lesen(abbild.text(), navigation);
        protokoll.zeile(saetze < 0 ? verkettet("Navigationsdatei ", name, " ist nicht lesbar")
                                   : verkettet("Navigationsdatei ", name, ": ", saetze, u8" GPS-Sätze"_w));
    };
    for (const std::string& datei : beobachtungsdateien) {
        if (!alle && !navigation.saetze.empty()) break;
        const std::string name = mit_art(datei, 'n');
        if (ordner.vorhanden(name)) lesen(name);
    }
    if (!navigation.saetze.empty() || beobachtungsdateien.empty()) return navigation;
    const std::string jahr(rechts(ohne_ende(beobachtungsdateien.back(), 1), 2));
    for (const std::string& name : passende(ordner.namen(), verkettet("*.", jahr, "n"))) lesen(name);
    return navigation;
}

Glonassnavigation glonass_suchen(const Arbeitsordner& ordner, const std::vector<std::string>& beobachtungsdateien,
                                 Protokoll& protokoll)
{
    Glonassnavigation navigation;
    for (const std::string& datei : beobachtungsdateien) {
        const std::string name = mit_art(datei, 'g');
        if (!ordner.vorhanden(name)) continue;
        std::error_code fehler;
        const Abbild abbild = ordner.lesen(name, fehler);
        const int saetze = fehler ? -1 : glonass_lesen(abbild.text(), navigation);
        protokoll.zeile(saetze < 0 ? verkettet("Navigationsdatei ", name, " ist nicht lesbar")
                                   : verkettet("Navigationsdatei ", name, ": ", saetze, u8" GLONASS-Sätze"_w));
    }
    return navigation;
}

}  // namespace jorv::suite
