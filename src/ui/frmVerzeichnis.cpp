#include "ui/frmVerzeichnis.h"

#include "projekt/verzeichniswahl.h"
#include "ui/Dialogbau.h"
#include "ui/Verzeichnisliste.h"
#include "ui/qtext.h"

namespace jorv {

frmVerzeichnis::frmVerzeichnis(Global& g, std::string_view anfang, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      Dir1(new Verzeichnisliste(g, this)),
      txt_neu(benannt(new QLineEdit(this), "txt_neu")),
      lbl_pfad(benannt(new QLabel(this), "lbl_pfad"))
{
    setObjectName(QStringLiteral("frmVerzeichnis"));
    setWindowTitle(QStringLiteral("Verzeichnis auswählen"));
    auto* raster = new QGridLayout(this);
    raster->setVerticalSpacing(abstand_gruppe);
    Dir1->einbauen(*raster, 0);
    raster->addWidget(beschriftung(QStringLiteral("&Neues Verzeichnis:"), txt_neu), 2, 0);
    raster->addWidget(txt_neu, 2, 1);
    lbl_pfad->setTextFormat(Qt::PlainText);
    lbl_pfad->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    raster->addWidget(beschriftung(QStringLiteral("Auswahl:"), nullptr), 3, 0);
    raster->addWidget(lbl_pfad, 3, 1);
    raster->setRowStretch(1, 1);
    raster->setRowMinimumHeight(4, abstand_gruppen);
    raster->addWidget(knopfzeile(*this), 5, 0, 1, 2);
    Dir1->bei_markierung = [this] { pfad_erneuern(); };
    connect(txt_neu, &QLineEdit::textChanged, this, [this] { pfad_erneuern(); });
    Dir1->oeffnen(anfang);
    Dir1->setFocus();
    resize(480, 420);
}

std::optional<std::string> frmVerzeichnis::waehlen(Global& g, std::string_view anfang, QWidget* eltern)
{
    frmVerzeichnis dialog(g, anfang, eltern);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return dialog.verzeichnis();
}

void frmVerzeichnis::accept()
{
    const auto wahl = Verzeichnis_uebernehmen(m_g, Dir1->markiert(), eingabe(txt_neu->text()));
    if (!wahl) {
        txt_neu->setFocus();
        txt_neu->selectAll();
        return;
    }
    m_wahl = *wahl;
    QDialog::accept();
}

void frmVerzeichnis::pfad_erneuern()
{
    pfad_zeigen(*lbl_pfad, Verzeichnis_Wahl(Dir1->markiert(), eingabe(txt_neu->text())));
}

void frmVerzeichnis::resizeEvent(QResizeEvent* ereignis)
{
    QDialog::resizeEvent(ereignis);
    pfad_erneuern();
}

void frmVerzeichnis::showEvent(QShowEvent* ereignis)
{
    QDialog::showEvent(ereignis);
    layout()->activate();
    pfad_erneuern();
}

}  // namespace jorv
