// Batches of rovers that run ahead of their turn, so that several are computed at once.
// Each runs in a folder of its own which stands in the project folder's place: the batch text stays as it is. The run
// still takes the rovers in the order of the tree; what a batch has left comes into the project folder at its turn, so
// the same bytes lie in the same files as when one is computed after the other.
#pragma once

#include <functional>
#include <list>
#include <memory>
#include <string>
#include <vector>

#include "auswertung/laufart.h"
#include "modell/Global.h"
#include "plattform/nebenordner.h"
#include "plattform/prozess.h"

namespace jorv {

class Vorauslauf {
public:
    /// `stuecke`: the items of the run in its order; `gleichzeitig`: how many batches may run, that of the item whose
    /// turn it is included.
    Vorauslauf(Global& g, const Laufart& art, std::vector<std::string> stuecke, int gleichzeitig);

    /// Before the batch of an item is written and run in the project folder itself: starts the next ones beside it.
    void daneben_starten(const std::string& stueck);
    /// The batch of this item runs ahead or has run.
    bool hat(const std::string& stueck) const;
    /// Waits for it, starting further ones, and brings what it left into the project folder. `atmen` is called about
    /// every 20 ms. False: that didn't succeed, and the project folder is as another batch must find it.
    bool abholen(const std::string& stueck, const std::function<void()>& atmen);

private:
    struct Platz {
        Platz(const Global& g, int nummer) : ordner(g.dateien, g.Arbeitsverzeichnis, nummer) {}
        Nebenordner ordner;
        std::unique_ptr<Batchlauf> lauf;
        std::string stueck;  // empty: the place is free
    };
    void nachlegen(int gleichzeitig);
    bool starten(const std::string& stueck);
    Platz* freier_platz();
    Platz* platz_von(const std::string& stueck);
    int laufende();
    void alte_ergebnisse_loeschen(const std::string& stueck);

    Global& g;
    const Laufart& m_art;
    std::vector<std::string> m_stuecke;
    std::size_t m_naechstes = 0;  // in m_stuecke
    int m_gleichzeitig;
    std::list<Platz> m_plaetze;
};

}  // namespace jorv
