#include "simulator/simulator.h"

#include <algorithm>
#include <fstream>
#include <system_error>

#include "simulator/datei.h"
#include "simulator/rinex.h"
#include "simulator/text.h"
#include "simulator/zeit.h"

namespace jorv::simulator {

bool datei_schreiben(const std::filesystem::path& datei, std::initializer_list<std::string_view> stuecke,
                     std::string& meldung)
{
    std::ofstream f(datei, std::ios::binary);
    for (const std::string_view stueck : stuecke) f.write(stueck.data(), static_cast<std::streamsize>(stueck.size()));
    f.close();
    const bool gut = f.good();
    if (!gut) {
        // Half a file would look like a short session.
        std::error_code fehler;
        if (std::filesystem::is_regular_file(datei, fehler)) std::filesystem::remove(datei, fehler);
        meldung = "Die Datei " + datei.string() + " konnte nicht geschrieben werden!";
    }
    return gut;
}

bool ordner_anlegen(const std::filesystem::path& ordner, std::string& meldung)
{
    std::error_code fehler;
    std::filesystem::create_directories(ordner, fehler);
    if (fehler) meldung = "Der Ordner " + ordner.string() + " konnte nicht angelegt werden!";
    return !fehler;
}

std::string dateiname(const Szenario& szenario, const Punkt& punkt, char art)
{
    std::string name = punkt.pkz;
    const Kalendertag tag = zerlegen(szenario.tag, punkt.von).tag;
    ganz(name, tag_im_jahr(tag), 3, '0');
    name += punkt.sitzung;
    name += '.';
    ganz(name, tag.jahr % 100, 2, '0');
    return name + art;
}

namespace {

/// What the file format can't hold or the model can't compute, as a sentence; empty when all is well.
std::string mangel(const Szenario& s)
{
    // 30 February comes back as another day; two digits of the year reach from 1980 to 2079.
    const Kalendertag tag = spaeter(s.tag, 0);
    if (tag.tag != s.tag.tag || tag.monat != s.tag.monat || gps_tag(s.tag) < 7 || s.tag.jahr > 2079) {
        return "Der Tag ist ungültig!";
    }
    if (s.satelliten < 24 || s.satelliten > 32) return "Die Zahl der Satelliten muss zwischen 24 und 32 liegen!";
    for (const Punkt& p : s.punkte) {
        const std::string wer = "Der Punkt " + p.pkz;
        if (p.pkz.size() != 4) return wer + " hat kein Kennzeichen aus vier Zeichen!";
        if (p.takt <= 0 || p.bis < p.von) return wer + " hat keine Zeitspanne!";
        if (betrag(p.ort) < 6.3e6 || betrag(p.ort) > 6.5e6) return wer + " liegt nicht auf der Erde!";
        const bool bekannt = p.antenne.empty() || std::any_of(s.antennen.begin(), s.antennen.end(),
                                                              [&](const Antenne& a) { return a.nummer == p.antenne; });
        if (!bekannt) return wer + " hat eine unbekannte Antenne!";
    }
    return {};
}

bool punkt_schreiben(const Szenario& szenario, const Punkt& punkt, const Bahnen& bahnen,
                     const std::filesystem::path& ordner, std::string& meldung)
{
    const Beobachtungstext text = beobachtungen(szenario, punkt, bahnen);
    if (text.koerper.empty()) {
        meldung = "Der Punkt " + punkt.pkz + " hat keine einzige Epoche!";
        return false;
    }
    if (!datei_schreiben(ordner / dateiname(szenario, punkt, 'o'), {text.kopf, text.koerper}, meldung)) return false;
    if (!punkt.navigation) return true;
    const std::string gps = navigation_gps(szenario, punkt, bahnen, text.gesehen);
    if (!datei_schreiben(ordner / dateiname(szenario, punkt, 'n'), {gps}, meldung)) return false;
    if (!szenario.glonass) return true;
    const std::string glonass = navigation_glonass(szenario, punkt, bahnen, text.gesehen);
    return datei_schreiben(ordner / dateiname(szenario, punkt, 'g'), {glonass}, meldung);
}

}  // namespace

bool schreiben(const Szenario& szenario, const std::filesystem::path& ordner, std::string& meldung)
{
    meldung = mangel(szenario);
    if (!meldung.empty() || !ordner_anlegen(ordner, meldung)) return false;
    const Bahnen bahnen(szenario);
    return std::all_of(szenario.punkte.begin(), szenario.punkte.end(),
                       [&](const Punkt& punkt) { return punkt_schreiben(szenario, punkt, bahnen, ordner, meldung); });
}

}  // namespace jorv::simulator
