#include "ui/frmImport.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "projekt/importieren.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

struct Feldzeile {
    Importfeld feld;
    const char* name;
    const char16_t* text;
    int zeichen;  // width of the box
};
// Boxes from this width on grow with the window.
constexpr int langes_feld = 40;
constexpr std::array<Feldzeile, importfelder> feldzeilen = {
    {{Importfeld::name, "txt_name", u"&Name:", 40},
     {Importfeld::nummer, "txt_verf_nummer", u"N&ummer:", 5},
     {Importfeld::modus, "txt_verf_modus", u"&Modus:", 5},
     {Importfeld::verzeichnis, "txt_arb_verz", u"&Arbeitsverzeichnis:", 40},
     {Importfeld::anlegedatum, "txt_anlegedatum", u"an&gelegt am:", 21},
     {Importfeld::letztdatum, "txt_letztdatum", u"zuletzt &bearbeitet am:", 21},
     {Importfeld::versionsnummer, "txt_vers_nummer", u"&Version:", 5},
     {Importfeld::versionsdatum, "txt_vers_datum", u"Ver&sion vom:", 21}}};

struct Urteilzeile {
    const char *name, *knopf;
    const char16_t* text;  // of the button
};
constexpr std::array<Urteilzeile, importstellen> urteilzeilen = {
    {{"txt_sta_name", nullptr, nullptr},
     {"txt_sta_verf_nummer", "cmd_freie_nummer", u"&freie Nummer"},
     {"txt_sta_verf_modus", nullptr, nullptr},
     {"txt_sta_arb_verz", "cmd_pfad_aktualisieren", u"&Pfad aktualisieren"},
     {"txt_sta_anlegedatum", "cmd_akt_anlegedatum", u"ak&tuelles Datum"},
     {"txt_sta_letztdatum", "cmd_akt_letztdatum", u"aktuelles &Datum"},
     {"txt_sta_version", "cmd_akt_version", u"aktuelle V&ersion"}}};

// Frame, text margins and cursor.
constexpr int rand = 16;

QString ohne_rand(std::string_view text)
{
    return anzeige(text).trimmed();
}

}  // namespace

frmImport::frmImport(Global& g, Importdialog import, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      m_import(std::move(import)),
      lbl_modus(benannt(new QLabel(this), "lbl_modus")),
      cmd_importieren(nullptr)
{
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(QStringLiteral(" Jorv+ - Verfahren importieren"));
    auto* datei = benannt(new QLabel(this), "lbl_importdatei");
    datei->setMinimumWidth(fontMetrics().averageCharWidth() * 60);
    auto* raster = new QGridLayout;
    raster->setVerticalSpacing(abstand_gruppe);
    raster->setHorizontalSpacing(abstand_gruppe);
    felder_anlegen(*raster);
    auto* knoepfe = knopfzeile(*this);
    cmd_importieren = benannt(knoepfe->findChild<QPushButton*>(QStringLiteral("cmd_ok")), "cmd_import");
    cmd_importieren->setText(QStringLiteral("&Importieren"));
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addWidget(datei);
    spalte->addLayout(raster);
    spalte->addWidget(knoepfe);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
    zeigen();
    layout()->activate();
    pfad_zeigen(*datei, m_import.Importdatei);
    for (const Importfeld feld : {Importfeld::anlegedatum, Importfeld::letztdatum})
        if (!m_import.urteil(importstelle(feld)).gut) m_felder[static_cast<std::size_t>(feld)]->selectAll();
}

void frmImport::felder_anlegen(QGridLayout& raster)
{
    int zeile = 0;
    for (std::size_t i = 0; i < importfelder; ++i) {
        const auto& z = feldzeilen[i];
        auto* feld = benannt(new QLineEdit(anzeige(m_import.wert(z.feld)), this), z.name);
        const int breite = fontMetrics().averageCharWidth() * z.zeichen + rand;
        feld->setMinimumWidth(breite);
        if (z.zeichen < langes_feld) feld->setMaximumWidth(breite);
        m_felder[i] = feld;
        raster.addWidget(beschriftung(QString::fromUtf16(z.text), feld), zeile, 0);
        raster.addWidget(feld, zeile, 1);
        connect(feld, &QLineEdit::textEdited, this, [this, feld = z.feld](const QString& text) {
            import_setzen(m_g, m_import, feld, eingabe(text));
            zeigen();
        });
        if (z.feld != Importfeld::versionsdatum) urteil_anlegen(raster, zeile, importstelle(z.feld));
        ++zeile;
        if (z.feld == Importfeld::modus) raster.addWidget(lbl_modus, zeile++, 1, 1, 3);
    }
    raster.setColumnStretch(1, 1);
    lbl_modus->setWordWrap(true);
    lbl_modus->setMinimumHeight(2 * fontMetrics().lineSpacing());
}

void frmImport::urteil_anlegen(QGridLayout& raster, int zeile, Importstelle stelle)
{
    const auto i = static_cast<std::size_t>(stelle);
    const auto& z = urteilzeilen[i];
    auto* urteil = benannt(new QLineEdit(this), z.name);
    urteil->setReadOnly(true);
    urteil->setFocusPolicy(Qt::NoFocus);
    urteil->setAccessibleName(QStringLiteral("Urteil"));
    urteil->setFixedWidth(fontMetrics().averageCharWidth() * 26 + rand);
    raster.addWidget(urteil, zeile, 2);
    m_urteile[i] = urteil;
    if (!z.knopf) return;
    auto* knopf = benannt(new QPushButton(QString::fromUtf16(z.text), this), z.knopf);
    knopf->setAutoDefault(false);
    QSizePolicy groesse = knopf->sizePolicy();
    groesse.setRetainSizeWhenHidden(true);
    knopf->setSizePolicy(groesse);
    raster.addWidget(knopf, zeile, 3);
    connect(knopf, &QPushButton::clicked, this, [this, stelle] {
        import_knopf(m_g, m_import, stelle);
        zeigen();
    });
    m_knoepfe[i] = knopf;
}

// Boxes, verdicts and buttons as the rules left them.
void frmImport::zeigen()
{
    for (std::size_t i = 0; i < importfelder; ++i)
        if (const QString text = anzeige(m_import.neu[i]); m_felder[i]->text() != text) m_felder[i]->setText(text);
    QLineEdit* verzeichnis = m_felder[static_cast<std::size_t>(Importfeld::verzeichnis)];
    verzeichnis->setToolTip(verzeichnis->text());
    for (std::size_t i = 0; i < importstellen; ++i) {
        const Importurteil& urteil = m_import.urteile[i];
        m_urteile[i]->setText(anzeige(urteil.status));
        QPalette farben;
        farben.setColor(QPalette::Base, urteil.gut ? QColor(0, 255, 0) : QColor(255, 0, 0));
        farben.setColor(QPalette::Text, urteil.gut ? Qt::black : Qt::white);
        m_urteile[i]->setPalette(farben);
        if (m_knoepfe[i]) m_knoepfe[i]->setVisible(urteil.knopf);
    }
    lbl_modus->setText(ohne_rand(m_import.moduszeile));
    cmd_importieren->setEnabled(m_import.importierbar());
}

void frmImport::accept()
{
    if (!m_import.importierbar()) return;
    if (!ist_fehler(cmd_import(m_g, m_import))) return QDialog::accept();
    // What the failed import has put into the list counts from now on.
    import_pruefen(m_g, m_import);
    zeigen();
}

}  // namespace jorv
