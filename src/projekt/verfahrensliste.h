// The two lists of projects: all that this user knows, in the settings file, and the eight that were open last.
// Several programs may share one settings file: who changes the project list there holds the file's lock, and an
// entry whose number another program has given out meanwhile is left alone.
#pragma once

#include <string>
#include <string_view>

#include "modell/Global.h"
#include "plattform/fehler.h"
#include "plattform/profil.h"
#include "plattform/sperre.h"

namespace jorv {

/// "001" to "999": the list holds three digits only, any other number would be lost at the next start.
bool ist_Nummer(std::string_view text);
/// Reads the project list anew: numbers 001 to 999 in order, gaps allowed. Absent values leave the field empty.
void AlleVerfahernLaden(Global& g, const Profil& einstellungen);

/// Takes the entries of the project list into the image of the settings file.
void Verfahrensliste_eintragen(const Global& g, Profil& einstellungen);

/// Writes the project list into the settings file under its lock; all other sections stay. Failure shows its message.
Fehler Verfahrensliste_sichern(Global& g);

/// Takes entries that another program has added to the settings file into the list. The caller holds the lock.
void Verfahrensliste_auffrischen(Global& g, const Profil& einstellungen);

/// The settings file locked and read, for a change that reads, decides and writes again.
class Einstellungen_gesperrt {
public:
    explicit Einstellungen_gesperrt(Global& g);
    Profil& profil() { return m_profil; }
    bool gelesen() const { return !m_fehler; }
    /// Writes the image; a failure, also of the reading before, shows its message and leaves the file as it was.
    Fehler schreiben();

private:
    Global& m_g;
    Sperre m_sperre;
    std::error_code m_fehler;
    Profil m_profil;
};

/// Removes an entry from the settings file and from the list. An unknown number does nothing.
void Verfahren_loeschen(Global& g, std::string_view nummer);

/// Puts the open project at the head of the recent list; with eight in use the last one falls out.
void Liste_aufnehmen(Global& g);

/// Takes a name out of the recent list; the later ones move up.
void Liste_entfernen(Global& g, std::string_view name);

/// The menu text of slot n (1 to 8), mode letter from the project list, "?" for a name that it doesn't hold. Empty for
/// a slot that is not in use.
std::string Liste_Eintrag(const Global& g, int n);

}  // namespace jorv
