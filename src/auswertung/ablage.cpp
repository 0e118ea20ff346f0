#include "auswertung/ablage.h"

#include <array>

#include "modell/Gemeinsam.h"
#include "modell/Meldungen.h"
#include "plattform/text.h"

namespace jorv {

namespace {

struct Ablage {
    std::string_view endung, ordner;
    std::string_view kopieren;  // subject of the message about the copy
    std::string_view loeschen;  // ... and about the removal
};

constexpr Ablage protokoll = {".LIS", "lis_rov", "Berechnungsprotokoll der Datei: ", "Berechnungsprotokoll: "};
constexpr Ablage ergebnis = {".UTM", "dat_rov", "Ergebnisprotokoll der Datei: ", "Ergebnisprotokoll: "};
constexpr Ablage fehlerprotokoll = {".ERR", "error_rov", "Fehlerprotokoll der Datei: ", "Fehlerprotokoll: "};
constexpr std::string_view leeres_fehlerprotokoll = "Leeres Fehlerprotokoll: ";

void achtung(Global& g, std::string_view text)
{
    stop_melden(g, verkettet("Achtung!\n\n", text));
}

void quelle_loeschen(Global& g, std::string_view endung, std::string_view gegenstand)
{
    if (g.dateien.loeschen(Verfahrens_Datei(g, endung)))
        achtung(g, verkettet(gegenstand, g.Verfahrensnummer, endung, u8" konnte nicht gelöscht werden!"_w));
}

void verschieben(Global& g, const Ablage& art, const std::string& rover)
{
    const std::string quelle = Verfahrens_Datei(g, art.endung);
    if (!g.dateien.vorhanden(quelle)) return;
    if (g.dateien.kopieren(quelle, im_Verfahren(g, verkettet("jorv_out\\", art.ordner, "\\", rover, art.endung))))
        achtung(g, datei_meldung(art.kopieren, quelle, "konnte nicht kopiert werden!"));
    else
        quelle_loeschen(g, art.endung, art.loeschen);
}

void veraltetes_loeschen(Global& g, std::string_view gegenstand, const std::string& datei)
{
    if (g.dateien.vorhanden(datei) && g.dateien.loeschen(datei))
        achtung(g, datei_meldung(gegenstand, datei, u8"konnte nicht gelöscht werden!"_w));
}

}  // namespace

bool ausgaben_ablegen(Global& g, const std::string& rover)
{
    verschieben(g, protokoll, rover);
    verschieben(g, ergebnis, rover);
    const std::string fehlerdatei = Verfahrens_Datei(g, fehlerprotokoll.endung);
    if (!g.dateien.vorhanden(fehlerdatei)) return false;
    if (g.dateien.groesse(fehlerdatei) == 0) {
        quelle_loeschen(g, fehlerprotokoll.endung, leeres_fehlerprotokoll);
        return false;
    }
    // No batch makes this folder. Where it can't be made the copy fails and says so.
    (void)g.dateien.ordner_anlegen(im_Verfahren(g, verkettet("jorv_out\\", fehlerprotokoll.ordner)));
    verschieben(g, fehlerprotokoll, rover);
    return true;
}

void alte_berichte_loeschen(Global& g, const std::string& protokolldatei)
{
    veraltetes_loeschen(g, "Das veraltete Kurzprotokoll: ", Verfahrens_Datei(g, ".KRZ"));
    veraltetes_loeschen(g, "Das veraltete Kurzprotokoll aller ROVER: ", Verfahrens_Datei(g, ".ALL"));
    veraltetes_loeschen(g, "Das veraltete Berechnungsprotokoll aller ROVER/Basislinien: ", protokolldatei);
}

}  // namespace jorv
