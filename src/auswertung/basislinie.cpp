#include "auswertung/basislinie.h"

#include "modell/Gemeinsam.h"
#include "plattform/text.h"

namespace jorv {

Basislinie basislinie_teilen(std::string_view text)
{
    const auto strich = text.find('-');
    if (strich == std::string_view::npos) return {text, {}};
    return {text.substr(0, strich), text.substr(strich + 1)};
}

std::string extraktionsdatei_basis(const Global& g, std::string_view)
{
    return Verfahrens_Datei(g, ".ext");
}

void basislinien_namen(Batchtext& batch, const Basislinie& basislinie)
{
    batch.setzen("FROM", basislinie.von);
    batch.setzen("TO", basislinie.nach);
    batch.setzen("FR4", ohne_ende(basislinie.von, 4));
    batch.setzen("TO4", ohne_ende(basislinie.nach, 4));
    batch.setzen("FR3", ohne_ende(basislinie.von, 3));
    batch.setzen("TO3", ohne_ende(basislinie.nach, 3));
}

}  // namespace jorv
