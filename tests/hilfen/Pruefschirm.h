// The double of the port: records every message word for word, answers questions and dialogs from queues.
#pragma once

#include <cstdlib>
#include <deque>
#include <fstream>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plattform/fensterstart.h"
#include "plattform/oberflaeche.h"
#include "plattform/text.h"
#include "plattform/umgebung.h"

namespace jorv::hilfen {

struct Gezeigtes {
    Symbol symbol = Symbol::keins;
    std::string text;  ///< Windows-1252
    std::string titel;
    bool frage = false;
};

class Pruefschirm final : public Oberflaeche {
public:
    Pruefschirm() = default;
    Pruefschirm(const Pruefschirm&) = delete;
    Pruefschirm& operator=(const Pruefschirm&) = delete;
    using Oberflaeche::frage;
    using Oberflaeche::meldung;
    void meldung(Symbol symbol, std::string_view text, std::string_view titel) override
    {
        aufheben(text);
        gezeigt.push_back({symbol, std::string(text), std::string(titel), false});
    }
    Antwort frage(Symbol symbol, std::string_view text, Antwort vorgabe, std::string_view titel) override
    {
        aufheben(text);
        gezeigt.push_back({symbol, std::string(text), std::string(titel), true});
        if (antworten.empty()) return vorgabe;
        const Antwort antwort = antworten.front();
        antworten.pop_front();
        return antwort;
    }
    void fortschritt_zeigen(std::string_view text) override
    {
        aufheben(text);
        fortschritt.emplace_back(text);
    }
    void fortschritt_setzen(double prozent) override { prozente.push_back(prozent); }
    void fortschritt_verbergen() override { fortschritt.emplace_back("(verborgen)"); }
    bool ereignisse() override
    {
        ++ereignisse_zahl;
        if (bei_ereignissen) bei_ereignissen();
        return abbruch_nach > 0 && ereignisse_zahl >= abbruch_nach;
    }
    void baum_erneuern() override { ++baum_erneuert; }
    void karte_zeichnen(bool) override { ++karte_gezeichnet; }
    void menue_erneuern() override { ++menue_erneuert; }
    void liste_erneuern() override { ++liste_erneuert; }
    void titel_setzen(std::string_view neu) override { fenstertitel = neu; }
    void piepen() override { ++gepiept; }
    bool im_editor_oeffnen(std::string_view pfad) override
    {
        geoeffnet.emplace_back(pfad);
        return editor_startet;
    }
    std::error_code im_fenster_starten(const Fensterstart& start) override
    {
        gestartet.push_back(start);
        return start.programm.empty() ? std::make_error_code(std::errc::no_such_file_or_directory) : std::error_code();
    }
    std::optional<Dateiwahl> dateien_waehlen(Dateiart, std::string_view) override
    {
        if (dateiwahlen.empty()) return std::nullopt;
        auto wahl = dateiwahlen.front();
        dateiwahlen.pop_front();
        return wahl;
    }
    void neues_verfahren(const Verfahrenswahl& vorschlag, std::string_view, const Verfahrensanlage& ok) override
    {
        vorschlaege.push_back(vorschlag);
        while (!verfahrenswahlen.empty()) {
            const auto wahl = verfahrenswahlen.front();
            verfahrenswahlen.pop_front();
            const auto feld = ok(wahl);
            if (!feld) return;
            nachgefragt.push_back(*feld);
        }
    }

    /// The texts of all messages and questions, as UTF-8, in order.
    std::vector<std::string> texte() const
    {
        std::vector<std::string> alle;
        for (const auto& g : gezeigt) alle.push_back(utf8_aus_1252(g.text));
        return alle;
    }
    /// The only message shown (UTF-8); tells how many there were otherwise.
    std::string einzige() const
    {
        if (gezeigt.size() == 1) return utf8_aus_1252(gezeigt[0].text);
        std::string alle = std::to_string(gezeigt.size()) + " messages:";
        for (const auto& t : texte()) alle += "\n---\n" + t;
        return alle;
    }

    std::vector<Gezeigtes> gezeigt;
    std::deque<Antwort> antworten;  ///< used up in order, then the question's default
    std::deque<std::optional<Dateiwahl>> dateiwahlen;
    std::deque<Verfahrenswahl> verfahrenswahlen;  ///< used up until one is taken, then cancelled
    std::vector<Verfahrensfeld> nachgefragt;
    std::vector<Verfahrenswahl> vorschlaege;
    std::vector<std::string> fortschritt, geoeffnet;
    std::vector<double> prozente;
    std::vector<Fensterstart> gestartet;  ///< programs in windows of their own; none is really started
    std::string fenstertitel;
    int baum_erneuert = 0, karte_gezeichnet = 0, menue_erneuert = 0, liste_erneuert = 0, gepiept = 0;
    int ereignisse_zahl = 0;
    bool editor_startet = true;
    int abbruch_nach = 0;  ///< the abort button counts as pressed from this event on; 0 never
    std::function<void()> bei_ereignissen;

private:
    // With JORV_MELDUNGEN set, what was shown is kept there for the closing check that every message text has been
    // shown once; at once, since a test may clear what it has looked at.
    static void aufheben(std::string_view text)
    {
        if (const char* ordner = std::getenv("JORV_MELDUNGEN"))
            std::ofstream(std::string(ordner) + "/" + std::to_string(prozess_kennung()),
                          std::ios::app | std::ios::binary)
                << text << '\n';
    }
};

}  // namespace jorv::hilfen
