#include "ui/frmDateien.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QListWidget>
#include <QProgressBar>
#include <array>

#include "daten/einfuegen.h"
#include "ui/Dialogbau.h"
#include "ui/Verzeichnisliste.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

// The window answers at least this often while a directory is searched.
constexpr int atempause_ms = 40;

QString titel(Dateiart art)
{
    return art == Dateiart::rinex ? QStringLiteral("RINEX-Dateien in das Verfahren einfügen")
                                  : QStringLiteral("Antennen-Dateien in das Verfahren einfügen");
}

}  // namespace

frmDateien::frmDateien(Global& g, Dateiart art, std::string_view verzeichnis, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      m_art(art),
      m_beginn(verzeichnis),
      Dir1(new Verzeichnisliste(g, this)),
      Check1(benannt(new QCheckBox(QStringLiteral("mit &Unterverzeichnissen"), this), "Check1")),
      List1(benannt(new QListWidget(this), "List1")),
      cmd_alle(benannt(new QPushButton(QStringLiteral("&Alle"), this), "cmd_alle")),
      cmd_keine(benannt(new QPushButton(QStringLiteral("&Keine"), this), "cmd_keine")),
      Command1(benannt(new QPushButton(QStringLiteral("zu &Projekt kopieren"), this), "Command1")),
      Command2(benannt(new QPushButton(QStringLiteral("Über&nehmen"), this), "Command2")),
      prg_fortschritt(benannt(new QProgressBar(this), "prg_fortschritt")),
      lbl_fortschritt(benannt(new QLabel(QStringLiteral("Bitte warten"), this), "lbl_fortschritt")),
      m_stand(benannt(new QLabel(this), "lbl_stand"))
{
    setObjectName(QStringLiteral("Dateien"));
    setWindowTitle(titel(art));
    auto* spalten = new QHBoxLayout;
    spalten->setSpacing(abstand_gruppen);
    spalten->addLayout(linke_seite(), 2);
    spalten->addLayout(rechte_seite(), 3);
    auto* unten = new QHBoxLayout;
    unten->addWidget(lbl_fortschritt);
    unten->addWidget(prg_fortschritt, 1);
    unten->addWidget(m_stand, 1);
    unten->addWidget(Command1);
    unten->addWidget(Command2);
    auto* ganz = new QVBoxLayout(this);
    ganz->setSpacing(abstand_gruppen);
    ganz->addLayout(spalten, 1);
    ganz->addLayout(unten);
    Command1->setDefault(true);
    for (QPushButton* knopf : {cmd_alle, cmd_keine, Command2}) knopf->setAutoDefault(false);
    warten({}, false);
    verbinden();
    Dir1->setFocus();
    resize(860, 520);
}

QLayout* frmDateien::linke_seite()
{
    auto* raster = new QGridLayout;
    raster->setVerticalSpacing(abstand_gruppe);
    Dir1->einbauen(*raster, 0);
    raster->addWidget(Check1, 2, 1);
    return raster;
}

QLayout* frmDateien::rechte_seite()
{
    List1->setSelectionMode(QAbstractItemView::ExtendedSelection);
    List1->setTextElideMode(Qt::ElideMiddle);
    List1->setUniformItemSizes(true);
    QLabel* label = beschriftung(QStringLiteral("&Dateien:"), List1);
    label->setAlignment(Qt::AlignLeft);
    auto* rahmen = benannt(new QGroupBox(QStringLiteral("Dateien markieren"), this), "fra_markieren");
    auto* reihe = new QHBoxLayout(rahmen);
    reihe->addWidget(cmd_alle);
    reihe->addWidget(cmd_keine);
    reihe->addStretch();
    auto* spalte = new QVBoxLayout;
    spalte->setSpacing(abstand_gruppe);
    spalte->addWidget(label);
    spalte->addWidget(List1, 1);
    spalte->addWidget(rahmen);
    return spalte;
}

void frmDateien::verbinden()
{
    Dir1->bei_wechsel = [this] { liste_fuellen(); };
    connect(Check1, &QCheckBox::toggled, this, [this] { liste_fuellen(); });
    connect(cmd_alle, &QPushButton::clicked, List1, &QListWidget::selectAll);
    connect(cmd_keine, &QPushButton::clicked, List1, &QListWidget::clearSelection);
    connect(List1, &QListWidget::itemSelectionChanged, this, [this] { stand_zeigen(); });
    connect(Command1, &QPushButton::clicked, this, [this] { kopieren(); });
    connect(Command2, &QPushButton::clicked, this, &QDialog::accept);
}

std::optional<Dateiwahl> frmDateien::waehlen()
{
    const bool uebernommen = exec() == QDialog::Accepted;
    m_neu_fuellen = false;
    if (uebernommen) return Dateiwahl{{}, Dir1->verzeichnis()};
    if (m_g.dateien_liste.anzahl() == 0) return std::nullopt;
    return Dateiwahl{{}, m_g.Datei_Verzeichnis};
}

void frmDateien::showEvent(QShowEvent* ereignis)
{
    QDialog::showEvent(ereignis);
    if (std::exchange(m_gezeigt, true)) return;
    // Behind the first paint, since the search may take its time.
    QMetaObject::invokeMethod(
        this, [this] { Dir1->oeffnen(m_beginn); }, Qt::QueuedConnection);
}

// ---- the list

// A change while the search is still on ends that one and begins another.
void frmDateien::liste_fuellen()
{
    m_neu_fuellen = true;
    if (std::exchange(m_fuellt, true)) return;
    while (std::exchange(m_neu_fuellen, false)) liste_einmal_fuellen();
    m_fuellt = false;
    warten({}, false);
    stand_zeigen();
}

void frmDateien::liste_einmal_fuellen()
{
    List1->clear();
    stand_zeigen();
    QElapsedTimer uhr;
    uhr.start();
    const auto weiter = [&] {
        if (uhr.elapsed() < atempause_ms) return true;
        warten(QStringLiteral("Bitte warten"), false);
        QCoreApplication::processEvents();
        uhr.restart();
        return !m_neu_fuellen && isVisible();
    };
    const auto dateien = einfuegbare_Dateien(m_g, m_art, Dir1->verzeichnis(), Check1->isChecked(), weiter);
    if (m_neu_fuellen || !isVisible()) return;
    QStringList texte;
    for (const auto& pfad : dateien) texte.append(anzeige(pfad));
    List1->addItems(texte);
    for (int i = 0; i < List1->count(); ++i) List1->item(i)->setToolTip(texte[i]);
    if (List1->count() > 0) List1->setCurrentRow(0, QItemSelectionModel::NoUpdate);
}

void frmDateien::stand_zeigen()
{
    m_stand->setText(QStringLiteral("%1 von %2 markiert").arg(List1->selectedItems().size()).arg(List1->count()));
}

// ---- copying

void frmDateien::kopieren()
{
    std::vector<std::string> pfade;
    std::vector<int> zeilen;
    for (int i = 0; i < List1->count(); ++i)
        if (List1->item(i)->isSelected()) {
            pfade.push_back(eingabe(List1->item(i)->text()));
            zeilen.push_back(i);
        }
    bedienbar(false);
    prg_fortschritt->setValue(0);
    warten(anzeige(kopieren_text), m_art == Dateiart::rinex);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    dateien_kopieren(m_g, m_art, pfade, [&](std::size_t i) {
        List1->item(zeilen[i])->setSelected(false);
        prg_fortschritt->setValue((zeilen[i] + 1) * 100 / List1->count());
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    warten({}, false);
    bedienbar(true);
    List1->setFocus();
}

void frmDateien::warten(const QString& text, bool mit_balken)
{
    lbl_fortschritt->setText(text);
    lbl_fortschritt->setVisible(!text.isEmpty());
    prg_fortschritt->setVisible(mit_balken);
    m_stand->setVisible(text.isEmpty());
}

void frmDateien::bedienbar(bool an)
{
    m_kopiert_gerade = !an;
    const std::array<QWidget*, 7> elemente = {Dir1, Check1, List1, cmd_alle, cmd_keine, Command1, Command2};
    for (QWidget* element : elemente) element->setEnabled(an);
    if (auto* laufwerke = findChild<QWidget*>(QStringLiteral("Drive1"))) laufwerke->setEnabled(an);
}

void frmDateien::reject()
{
    if (!m_kopiert_gerade) QDialog::reject();
}

void frmDateien::closeEvent(QCloseEvent* ereignis)
{
    if (m_kopiert_gerade) return ereignis->ignore();
    QDialog::closeEvent(ereignis);
}

}  // namespace jorv
