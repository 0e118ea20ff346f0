// Pictures of every window of the program, with a project open: for the manual, and to look at them.
// jorv-bilder EINSTELLUNGSDATEI ORDNER [NUMMER [BREITE HOEHE]]
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>
#include <cstdio>
#include <functional>

#include "app/start.h"
#include "modell/Gemeinsam.h"
#include "projekt/verfahren.h"
#include "ui/Anwendung.h"
#include "ui/Baumansicht.h"
#include "ui/Fensterschirm.h"
#include "ui/Fortschrittsfeld.h"
#include "ui/Kartenansicht.h"
#include "ui/frmBasisDialog.h"
#include "ui/frmHauptform.h"
#include "ui/frmImport.h"
#include "ui/frmLogo.h"
#include "ui/frmVerzeichnis.h"

namespace {

using jorv::frmHauptform;

class Fotograf {
public:
    Fotograf(frmHauptform& form, QDir ordner) : m_form(form), m_ordner(std::move(ordner)) {}

    void foto(QWidget& fenster, const QString& name)
    {
        QCoreApplication::processEvents();
        const QString pfad = m_ordner.filePath(name + QStringLiteral(".png"));
        if (!fenster.grab().save(pfad)) std::fprintf(stderr, "STOP %s\n", qPrintable(pfad));
        ++m_anzahl;
    }

    // Pictures of the windows that come up one above the other while `oeffnen` runs; each is taken, then closed.
    void fotos(const QString& name, const std::function<void()>& oeffnen, bool eines = true)
    {
        int n = 0;
        QTimer uhr;
        QWidget* zuletzt = nullptr;
        QObject::connect(&uhr, &QTimer::timeout, [&] {
            QWidget* fenster = QApplication::activePopupWidget();
            if (!fenster) fenster = QApplication::activeModalWidget();
            // One round to come up and one to be painted.
            if (!fenster || fenster != std::exchange(zuletzt, fenster)) return;
            foto(*fenster, ++n == 1 ? name : name + QString::number(n));
            zuletzt = nullptr;
            fenster->close();
        });
        uhr.start(150);
        oeffnen();
        // Windows that stand beside the main one hold nobody up.
        QList<QPointer<QWidget>> oben;
        for (QWidget* fenster : QApplication::topLevelWidgets()) oben.append(fenster);
        for (const auto& fenster : oben)
            if (fenster && fenster != &m_form && fenster->isVisible()) {
                foto(*fenster, ++n == 1 ? name : name + QString::number(n));
                fenster->close();
            }
        if (n == 0 && eines) std::fprintf(stderr, "WARNUNG kein Fenster: %s\n", qPrintable(name));
    }

    // Every entry that opens a window, by the name of its command.
    void befehle(std::initializer_list<const char*> namen)
    {
        for (const char* name : namen) {
            QAction* aktion = m_form.eintrag(QLatin1String(name));
            if (aktion && aktion->isEnabled() && aktion->isVisible())
                fotos(QString::fromLatin1(name), [=] { aktion->trigger(); });
            else
                std::fprintf(stderr, "WARNUNG ausgeschaltet: %s\n", name);
        }
    }

    void menues()
    {
        const auto leiste = m_form.menuBar()->actions();
        for (QAction* aktion : leiste) {
            if (!aktion->isEnabled() || !aktion->menu()) continue;
            const QString name = QStringLiteral("menue_") + aktion->text().remove(QLatin1Char('&'));
            fotos(name, [=] { aktion->menu()->exec(QPoint(50, 50)); });
        }
    }

    int anzahl() const { return m_anzahl; }

private:
    frmHauptform& m_form;
    QDir m_ordner;
    int m_anzahl = 0;
};

}  // namespace

int main(int anzahl, char** werte)
{
    jorv::anwendung_vorbereiten();
    QApplication app(anzahl, werte);
    jorv::anwendung_einrichten();
    const QStringList worte = QApplication::arguments();
    if (worte.size() < 3 || !QDir().mkpath(worte[2])) {
        std::fputs("jorv-bilder EINSTELLUNGSDATEI ORDNER [NUMMER [BREITE HOEHE]]\n", stderr);
        return 2;
    }
    jorv::Fensterschirm schirm;
    const jorv::Systemuhr uhr;
    jorv::Global g(schirm, uhr, jorv::Dateisystem());
    const auto einstellungen = g.dateien.laufwerke().dos(worte[1].toStdString());
    if (!einstellungen || ist_fehler(jorv::start(g, {*einstellungen, {}}))) return 1;
    g.Hinweis1.assign(1, '0');
    if (worte.size() > 5) {
        g.Form_zustand.assign(1, '0');
        g.Form_left = g.Form_top = 0;
        g.Form_width = worte[4].toInt();
        g.Form_height = worte[5].toInt();
    }
    frmHauptform form(g, schirm);
    Fotograf fotograf(form, QDir(worte[2]));
    form.show();
    fotograf.fotos(
        QStringLiteral("start"), [&] { form.erste_aktivierung(); }, false);
    fotograf.foto(form, QStringLiteral("hauptform_leer"));
    const std::string name = Name_zu_Nummer(g, worte.size() > 3 ? worte[3].toStdString() : "001");
    fotograf.fotos(
        QStringLiteral("oeffnen"), [&] { static_cast<void>(Verfahren_oeffnen(g, name)); }, false);
    if (!g.Verfahren_offen()) return 1;
    form.menue_erneuern();
    fotograf.foto(form, QStringLiteral("hauptform"));
    form.fortschritt().zeigen(QStringLiteral("Auswertung (2/6) - bitte warten"));
    form.fortschritt().setzen(16.7);
    fotograf.foto(form, QStringLiteral("fortschritt"));
    form.fortschritt().verbergen();
    fotograf.menues();
    fotograf.befehle({"m_datei_neu", "m_datei_laden", "m_datei_rinex", "m_datei_antenne", "m_datei_importieren",
                      "m_datei_loeschen", "m_grund_EinstellungenAlle", "m_grafik_zeiten", "m_protkoll_kurz",
                      "m_protkoll_einsehen", "m_hilfe_handbuch", "m_hilfe_neuerungen"});
    if (const auto* rover = g.baum.finden("R_Datei"); rover && !rover->Kinder.empty())
        fotograf.fotos(QStringLiteral("frmEinstellungen"), [&] {
            form.baumbefehl("mnu_tree_settings", std::string(rover->Kinder.front().Text), rover->Text);
        });
    fotograf.fotos(QStringLiteral("frmImport"),
                   [&] { jorv::frmImport(g, jorv::import_laden(g, g.Verfahrensdatei), &form).exec(); });
    fotograf.fotos(QStringLiteral("frmVerzeichnis"),
                   [&] { jorv::frmVerzeichnis(g, g.Arbeitsverzeichnis, &form).exec(); });
    fotograf.fotos(QStringLiteral("frmLogo"), [&] { jorv::frmLogo(g).exec(); });
    fotograf.fotos(QStringLiteral("frmBasisDialog"), [&] { jorv::frmBasisDialog(g, &form).exec(); });
    for (const auto& gruppe : g.baum.Knoten) {
        if (gruppe.Kinder.empty()) continue;
        const std::string knoten = gruppe.Kinder.front().Text, eltern = gruppe.Text;
        fotograf.fotos(QStringLiteral("kontext_") + QString::fromStdString(gruppe.Schluessel),
                       [&] { form.baum().bei_kontext(knoten, eltern, form.mapToGlobal(QPoint(80, 120))); });
        fotograf.fotos(
            QStringLiteral("klick_") + QString::fromStdString(gruppe.Schluessel),
            [&] { form.baum().bei_klick(knoten, eltern); }, false);
        fotograf.fotos(
            QStringLiteral("warum_") + QString::fromStdString(gruppe.Schluessel),
            [&] { form.baumbefehl("mnu_tree_warum", knoten, eltern); }, false);
    }
    std::printf("%d Bilder in %s\n", fotograf.anzahl(), qPrintable(worte[2]));
    return 0;
}
