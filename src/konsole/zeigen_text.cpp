#include <array>
#include <utility>

#include "konsole/Tabelle.h"
#include "konsole/zeigen.h"
#include "modell/Gemeinsam.h"
#include "modell/Menue.h"
#include "planung/begruendung.h"
#include "plattform/text.h"
#include "plattform/zahl.h"

namespace jorv {

namespace {

constexpr std::pair<std::string_view, Teil> teile[] = {
    {"kopf", Teil::kopf},         {"rover", Teil::rover},     {"stationen", Teil::stationen},
    {"antennen", Teil::antennen}, {"figuren", Teil::figuren}, {"basislinien", Teil::basislinien},
    {"baum", Teil::baum},         {"menue", Teil::menue},     {"katalog", Teil::katalog},
};

std::string mm(double wert)
{
    return fest(wert, 3);
}

std::string spanne(const OBS& o)
{
    const bool ein_tag = tag_text(o.Startzeit()) == tag_text(o.Endzeit());
    return verkettet(tag_text(o.Startzeit()), " ", uhrzeit_text(o.Startzeit()), " - ",
                     ein_tag ? uhrzeit_text(o.Endzeit()) : datum_text(o.Endzeit()));
}

std::string kopf_text(const Global& g)
{
    Tabelle t({"Verfahren", verkettet(g.Verfahrensname, " (", g.Verfahrensnummer, ")")});
    t.zeile({"Modus", std::string(Modus_Buchstabe(g.Verfahrensmodus))});
    t.zeile({"Arbeitsverzeichnis", g.Arbeitsverzeichnis});
    if (const Verfahren_Satz* v = aktuelles_Verfahren(g)) {
        t.zeile({"angelegt", v->ErstDatum});
        t.zeile({"letzte Bearbeitung", v->LetztDatum});
        t.zeile({"Antennenformat", v->Antenne});
    }
    t.zeile({"Zeitfenster 1h", g.Zeitfenster_1h == "1" ? "an" : "aus"});
    t.zeile({"ROVER bereit", verkettet(g.berechnete_ROVER)});
    return t.text("");
}

// Only the hour and minute of a window field HHMMSS.
std::string zeitfenster(const ROVER_TOREL_Satz& s)
{
    if (s.Zeitfenster_Startzeit == "0" && s.Zeitfenster_Endzeit == "0") return "-";
    return verkettet(s.Zeitfenster_Startzeit, "-", s.Zeitfenster_Endzeit);
}

std::string rover_text(const Global& g)
{
    Tabelle t({"ROVER-Datei", "Ampel", "Beobachtung", "Zeitfenster", "zugeordnet", "Grund"});
    for (int i = 1; i <= g.OBS_R.anzahl(); ++i) {
        std::vector<std::string> zeile = {g.OBS_R[i].Dateiname, "-", spanne(g.OBS_R[i]), "-", "-", ""};
        if (i <= g.ROVER_Settings.anzahl() && g.ROVER_Settings[i].Ein_Ausschalterkennung != 1) zeile[5] = "aus";
        if (ist_E_oder_S(g) && i <= g.ROVER_TOREL.anzahl()) {
            const auto& s = g.ROVER_TOREL[i];
            zeile[1] = ampel_text(s.Status);
            zeile[3] = zeitfenster(s);
            std::string stationen;
            for (int k = 0; k < s.Anzahl_Namen(); ++k)
                stationen += verkettet(k == 0 ? "" : " ", s.TOREL_Dateiname[static_cast<std::size_t>(k)]);
            if (!stationen.empty()) zeile[4] = stationen;
            if (zeile[5].empty() && s.Status > 1) zeile[5] = grund_text(s.Status, s.Grund);
        }
        if (ist_F(g) && i <= g.ROVER_VIRT.anzahl()) {
            const auto& s = g.ROVER_VIRT[i];
            zeile[1] = ampel_text(g, i);
            if (s.VIRT_Index != 0) zeile[4] = verkettet(s.VIRT_Dateiname, " (", fest(s.Strecke, 0), " m)");
            if (zeile[5].empty()) zeile[5] = grund_fremd(g, i);
        }
        t.zeile(std::move(zeile));
    }
    return "ROVER\n" + t.text();
}

void stationen_anfuegen(Tabelle& t, const Feld<OBS>& obs, const Feld<Punkt>& punkte)
{
    for (int i = 1; i <= obs.anzahl(); ++i) {
        std::vector<std::string> zeile = {obs[i].Dateiname, spanne(obs[i]), "", "",
                                          std::string(trimmen(obs[i].Antenne))};
        if (i <= punkte.anzahl()) {
            zeile[2] = mm(punkte[i].Rechtswert);
            zeile[3] = mm(punkte[i].Hochwert);
        }
        t.zeile(std::move(zeile));
    }
}

std::string stationen_text(const Global& g)
{
    Tabelle t({"Stationsdatei", "Beobachtung", "Rechtswert", "Hochwert", "Antenne"});
    stationen_anfuegen(t, g.OBS_S, g.S_Punkt);
    stationen_anfuegen(t, g.OBS_V, g.V_Punkt);
    return "Stationen\n" + t.text();
}

std::string antennen_text(const Global& g)
{
    std::string text = verkettet("Antennen-Dateien (Format ", Antennenformat(g), ")\n");
    for (const auto& datei : g.Antennen_Dateien) text += verkettet("  ", datei, "\n");
    return text;
}

std::string figuren_text(const Global& g)
{
    std::string text = "Figuren\n";
    for (int i = 1; i <= g.GEO_Punkt.anzahl(); ++i) {
        text += verkettet("  ", i, ":");
        for (int k = 0; k < g.GEO_Punkt[i].Anzahl; ++k)
            text += verkettet(" ", g.GEO_Punkt[i].Punkt[static_cast<std::size_t>(k)]);
        text += "\n";
    }
    return text;
}

std::string basislinien_text(const Global& g)
{
    Tabelle t({"von", "nach", "Datei von", "Datei nach"});
    for (const auto& b : g.BASISLINIE) t.zeile({b.PKK_von, b.PKK_nach, b.Datei_von, b.Datei_nach});
    return "Basislinien\n" + t.text();
}

std::string_view bild_text(int bild)
{
    switch (bild) {
        case 1:
            return u8"grün"_w;
        case 2:
            return "gelb";
        case 3:
            return "rot";
        case 9:
            return "aus oder ohne Kennzeichen";
        case 11:
            return "berechnet";
        default:
            return "";
    }
}

std::string baum_text(const Global& g)
{
    std::string text;
    for (const auto& haupt : g.baum.Knoten) {
        text += verkettet(haupt.offen ? "- " : "+ ", haupt.Text, " (", static_cast<int>(haupt.Kinder.size()), ")\n");
        Tabelle t({});
        for (const auto& kind : haupt.Kinder) t.zeile({kind.Text, std::string(bild_text(kind.Bild))});
        const std::string kinder = t.text("    ");
        text += kinder.substr(kinder.find('\n') + 1);
    }
    return text;
}

std::string menue_text(const Global& g)
{
    Tabelle t({"Befehl", "Zustand", std::string(u8"Menü"_w), "Eintrag"});
    for (const auto& e : menue_setzen(g)) {
        std::string zustand = !e.sichtbar ? "verborgen" : e.an ? "an" : "aus";
        if (e.Haken) zustand += ", Haken";
        t.zeile({e.Name, zustand, ersetzt(e.Gruppe, "&", ""), ersetzt(e.Text, "&", "")});
    }
    return t.text("");
}

std::string katalog_text(const Global& g)
{
    Tabelle t({"PKZ", "X", "Y", "Z", "Rechtswert", "Hochwert", "Name"});
    for (const auto& p : g.TOREL_Punkt)
        t.zeile({p.PKZ, mm(p.X), mm(p.Y), mm(p.Z), mm(p.Rechtswert), mm(p.Hochwert), p.Name});
    return t.text("");
}

}  // namespace

std::optional<Teil> teil_aus_wort(std::string_view wort)
{
    for (const auto& [name, teil] : teile)
        if (name == wort) return teil;
    return std::nullopt;
}

std::string teil_text(const Global& g, Teil teil)
{
    switch (teil) {
        case Teil::kopf:
            return kopf_text(g);
        case Teil::rover:
            return rover_text(g);
        case Teil::stationen:
            return stationen_text(g);
        case Teil::antennen:
            return antennen_text(g);
        case Teil::figuren:
            return figuren_text(g);
        case Teil::basislinien:
            return basislinien_text(g);
        case Teil::baum:
            return baum_text(g);
        case Teil::menue:
            return menue_text(g);
        case Teil::katalog:
            return katalog_text(g);
    }
    return {};
}

std::string verfahren_text(const Global& g)
{
    std::string text = kopf_text(g);
    for (const Teil teil : {Teil::rover, Teil::stationen, Teil::antennen, ist_B(g) ? Teil::basislinien : Teil::figuren})
        text += "\n" + teil_text(g, teil);
    return text;
}

std::string einstellungen_text(const Global& g, int i)
{
    Tabelle t({"ROVER-Datei", "Ein", "Elevation", "DelFirstMinutes", "DelLastMinutes", "Solution", "Satelliten aus"});
    for (const auto& s : g.ROVER_Settings) {
        if (i != 0 && s.ROVER_Dateiname != g.OBS_R[i].Dateiname) continue;
        std::string aus;
        for (std::size_t k = 1; k <= static_cast<std::size_t>(s.AnzahlDelSatellite); ++k)
            if (s.DelSatellite[k] != 1) aus += verkettet(aus.empty() ? "" : " ", s.DelSatelliteName[k]);
        t.zeile({s.ROVER_Dateiname, verkettet(s.Ein_Ausschalterkennung), verkettet(s.Elevation),
                 verkettet(s.DelFirstMinutes), verkettet(s.DelLastMinutes), verkettet(s.Solution), aus});
    }
    return t.text("");
}

std::string verfahrensliste_text(const Global& g)
{
    Tabelle t(
        {"Nummer", "Verfahrensname", "Modus", "Pfad des Verfahrens", "Anlegedatum", "letzte Bearbeitung", "Antennen"});
    for (const auto& v : g.Verfahren)
        t.zeile(
            {v.Nummer, v.Name, std::string(Modus_Buchstabe(v.Modus)), v.Pfad, v.ErstDatum, v.LetztDatum, v.Antenne});
    return t.text("");
}

}  // namespace jorv
