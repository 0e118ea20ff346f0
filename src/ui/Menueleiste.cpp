#include "ui/Menueleiste.h"

#include <QSet>
#include <algorithm>
#include <array>

#include "ui/Bilder.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

struct Tastenkuerzel {
    const char* name;
    const char* taste;
};
constexpr std::array tastenkuerzel = {Tastenkuerzel{"m_datei_neu", "Ctrl+N"},
                                      Tastenkuerzel{"m_datei_laden", "Ctrl+O"},
                                      Tastenkuerzel{"m_datei_sichern", "Ctrl+S"},
                                      Tastenkuerzel{"m_datei_importieren", "Ctrl+I"},
                                      Tastenkuerzel{"m_datei_rinex", "Ctrl+R"},
                                      Tastenkuerzel{"m_datei_antenne", "Ctrl+Shift+A"},
                                      Tastenkuerzel{"m_datei_ende", "Ctrl+Q"},
                                      Tastenkuerzel{"m_grund_EinstellungenAlle", "Ctrl+Shift+E"},
                                      Tastenkuerzel{"m_grafik_orginal", "Ctrl+0"},
                                      Tastenkuerzel{"m_grafik_verkleinern", "Ctrl+-"},
                                      Tastenkuerzel{"m_grafik_vergroessern", "Ctrl++"},
                                      Tastenkuerzel{"m_grafik_ablage", "Ctrl+Shift+C"},
                                      Tastenkuerzel{"m_grafik_grenzen", "Ctrl+G"},
                                      Tastenkuerzel{"m_grafik_pkz", "Ctrl+K"},
                                      Tastenkuerzel{"m_grafik_zeiten", "Ctrl+T"},
                                      Tastenkuerzel{"m_grafik_alles", "Ctrl+9"},
                                      Tastenkuerzel{"m_wasoft_run_n", "F5"},
                                      Tastenkuerzel{"m_protkoll_einsehen", "F6"},
                                      Tastenkuerzel{"m_protkoll_kurz", "F7"},
                                      Tastenkuerzel{"m_protkoll_kurz_aller", "F8"},
                                      Tastenkuerzel{"m_hilfe_handbuch", "F1"}};

// Entries that a line sets off from those above them.
constexpr std::array trenner = {
    "m_datei_rinex",      "m_datei_basis",     "m_datei_ende",    "m_dateien_verfahren(1)", "m_grund_editor",
    "m_grafik_grenzen",   "m_grafik_ablage",   "m_grafik_leiste", "m_grafik_zeiten",        "m_wasoft_runa",
    "m_wasoft_erstellen", "m_basis_erstellen", "m_basis_esa",     "m_protkoll_editieren"};

constexpr std::array mit_haken = {"m_grund_zeitfenster_1h", "m_grafik_grenzen", "m_grafik_pkz", "m_grafik_leiste",
                                  "m_geo_definieren"};

template <typename Tabelle>
bool enthaelt(const Tabelle& tabelle, const QString& name)
{
    return std::any_of(tabelle.begin(), tabelle.end(), [&](const char* e) { return name == QLatin1String(e); });
}

}  // namespace

QChar zugriffstaste(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i)
        if (text[i] == QLatin1Char('&')) {
            if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toLower();
            ++i;
        }
    return {};
}

QStringList eindeutige_tasten(QStringList texte)
{
    QSet<QChar> vergeben;
    for (auto& text : texte) {
        const QChar taste = zugriffstaste(text);
        if (taste.isNull()) continue;
        if (!vergeben.contains(taste)) {
            vergeben.insert(taste);
            continue;
        }
        text.remove(QLatin1Char('&'));
        for (qsizetype i = 0; i < text.size(); ++i)
            if (text[i].isLetter() && !vergeben.contains(text[i].toLower())) {
                vergeben.insert(text[i].toLower());
                text.insert(i, QLatin1Char('&'));
                break;
            }
    }
    return texte;
}

void Menueleiste::setzen(const std::vector<Menueeintrag>& menue)
{
    const bool gleich = std::equal(menue.begin(), menue.end(), m_namen.begin(), m_namen.end(),
                                   [](const auto& e, const auto& name) { return e.Name == name; });
    if (!gleich) aufbauen(menue);
    // Captions by menu, so that no access key stands twice among the visible ones.
    QHash<QString, QStringList> texte;
    const auto ort = [](const Menueeintrag& e) { return anzeige(e.Eltern.empty() ? e.Gruppe : e.Eltern); };
    for (const auto& e : menue)
        if (e.sichtbar) texte[ort(e)] << anzeige(e.Text);
    for (auto& liste : texte) liste = eindeutige_tasten(liste);
    for (const auto& e : menue) {
        QAction* aktion = eintrag(anzeige(e.Name));
        aktion->setVisible(e.sichtbar);
        aktion->setEnabled(e.an);
        if (aktion->isCheckable()) aktion->setChecked(e.Haken);
        QString text = e.sichtbar ? texte[ort(e)].takeFirst() : anzeige(e.Text);
        if (!aktion->menu() || e.Gruppe != e.Text) aktion->setText(text.trimmed());
    }
}

QMenu* Menueleiste::untermenue(const Menueeintrag& e, QMenu* gruppe)
{
    // An entry that bears its menu's own caption is that menu.
    QMenu* menue = e.Text == e.Gruppe ? gruppe : gruppe->addMenu(anzeige(e.Text));
    m_eintraege.insert(anzeige(e.Name), menue->menuAction());
    return menue;
}

void Menueleiste::aufbauen(const std::vector<Menueeintrag>& menue)
{
    m_leiste.clear();
    m_namen.clear();
    // Actions are kept, since toolbar and shortcuts hang on them.
    QHash<QString, QAction*> alte;
    alte.swap(m_eintraege);
    QHash<QString, QMenu*> gruppen, untermenues;
    for (const auto& e : menue) {
        m_namen.push_back(e.Name);
        const QString name = anzeige(e.Name);
        QMenu*& gruppe = gruppen[anzeige(e.Gruppe)];
        if (!gruppe) gruppe = m_leiste.addMenu(anzeige(e.Gruppe));
        const bool hat_kinder =
            std::any_of(menue.begin(), menue.end(), [&](const auto& k) { return k.Eltern == e.Name; });
        if (hat_kinder) {
            if (enthaelt(trenner, name)) gruppe->addSeparator();
            untermenues[name] = untermenue(e, gruppe);
            continue;
        }
        QMenu* ort = e.Eltern.empty() ? gruppe : untermenues.value(anzeige(e.Eltern), gruppe);
        if (enthaelt(trenner, name)) ort->addSeparator();
        QAction*& aktion = m_eintraege[name];
        aktion = alte.take(name);
        if (!aktion) {
            aktion = new QAction(&m_leiste);
            aktion->setObjectName(name);
            aktion->setIcon(befehlsbild(name));
            for (const auto& k : tastenkuerzel)
                if (name == QLatin1String(k.name)) aktion->setShortcut(QKeySequence(QLatin1String(k.taste)));
            aktion->setCheckable(enthaelt(mit_haken, name));
            QObject::connect(aktion, &QAction::triggered, &m_leiste, [this, text = e.Name] { m_ausfuehren(text); });
        }
        ort->addAction(aktion);
    }
    for (QAction* aktion : alte)
        if (!aktion->menu()) aktion->deleteLater();
}

}  // namespace jorv
