// The menu bar from the program's table of entries: built once for a set of entries, then only its states change.
#pragma once

#include <QHash>
#include <QMenuBar>
#include <functional>
#include <vector>

#include "modell/Menue.h"

namespace jorv {

class Menueleiste final {
public:
    /// `ausfuehren` gets the name of the entry that the user chose.
    Menueleiste(QMenuBar& leiste, std::function<void(const std::string&)> ausfuehren)
        : m_leiste(leiste), m_ausfuehren(std::move(ausfuehren))
    {
    }

    /// Shows these entries with their states. Entries of a later menu with the same names keep their actions.
    void setzen(const std::vector<Menueeintrag>& menue);

    /// The action of an entry, for toolbar and tests; nullptr when there is none of that name.
    QAction* eintrag(const QString& name) const { return m_eintraege.value(name); }

private:
    void aufbauen(const std::vector<Menueeintrag>& menue);
    QMenu* untermenue(const Menueeintrag& e, QMenu* gruppe);

    QMenuBar& m_leiste;
    std::function<void(const std::string&)> m_ausfuehren;
    std::vector<std::string> m_namen;  // what the bar was built from
    QHash<QString, QAction*> m_eintraege;
};

/// The access key of a caption: the letter behind a single "&", in lower case; null when it has none.
QChar zugriffstaste(const QString& text);

/// The captions of one menu without two equal access keys: the first entry keeps its own, a later one takes the first
/// free letter of its caption, or none.
QStringList eindeutige_tasten(QStringList texte);

}  // namespace jorv
