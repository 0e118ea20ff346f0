// What a run of one kind of project consists of, and the steps that the run and the whole-project way share.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "modell/Global.h"
#include "plattform/fehler.h"

namespace jorv {

struct Laufart {
    std::string_view modi;
    std::string_view knoten;  ///< tree node of the items
    std::string_view keine_stuecke, keines_zaehlt;
    std::string_view protokoll;                                 ///< folder of the merged protocol below the project's
    Fehler (*vorbereiten)(Global&);                             ///< once before the walk
    Fehler (*stueck_vorbereiten)(Global&, const std::string&);  ///< before the batch of each item
    bool (*zaehlt)(const Global&, std::string_view);            ///< whether an item is computed
    Fehler (*batch)(Global&, const std::string&);
    std::string (*extraktion)(const Global&, std::string_view);
    void (*auswerten)(Global&, const std::string&, int& status);
    bool (*ablegen)(Global&, const std::string&);  ///< true: the item left an error protocol
    void (*zusammenfassen)(Global&);               ///< reports over all items
    bool voraus;                                   ///< batches may run ahead of their turn, in folders of their own
};

/// The kind of the open project; nullptr, told on the screen, when projects of its mode can't be computed.
const Laufart* laufart(Global& g);

struct Auswahl {
    std::vector<std::string> stuecke;  ///< all items, in the order of the tree
    int wahl = 0;                      ///< how many of them count
};

/// Takes the items from the tree. Failure, told on the screen: there are none, or none counts.
Fehler auswaehlen(Global& g, const Laufart& art, Auswahl& auswahl);

/// Whether batch and call file are there; a missing one is told.
Fehler batch_vorhanden(Global& g);

/// Finishes the short report (baselines have none) and tells float and missing solutions. `fertig`: batches that have
/// run, what counts when the report can't be read; `bereit`: rovers that were ready before the run.
void lauf_abschliessen(Global& g, int wahl, int fertig, int bereit);

}  // namespace jorv
