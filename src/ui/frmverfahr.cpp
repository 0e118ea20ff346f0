#include "ui/frmverfahr.h"

#include <QEvent>
#include <QGroupBox>
#include <QRadioButton>
#include <QStyle>

#include "modell/Gemeinsam.h"
#include "ui/Dialogbau.h"
#include "ui/frmVerzeichnis.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr std::array modi = {u"&E – eine virtuelle Referenzstation je ROVER",
                             u"&S – wenige virtuelle Referenzstationen für mehrere ROVER",
                             u"&F – fremde virtuelle Referenzstationen", u"&B – Basislinien zwischen Punkten"};

QLineEdit* zeile(QWidget* eltern, const char* name, std::string_view text)
{
    auto* feld = benannt(new QLineEdit(eltern), name);
    feld->setText(anzeige(text));
    return feld;
}

}  // namespace

frmverfahr::frmverfahr(Global& g, const Verfahrenswahl& vorschlag, std::string_view nummer, Verfahrensanlage ok,
                       QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      m_ok(std::move(ok)),
      txt_nummer(zeile(this, "txt_nummer", nummer)),
      txt_name(zeile(this, "txt_name", vorschlag.name)),
      txt_arbeit(zeile(this, "txt_arbeit", vorschlag.verzeichnis)),
      cmd_arbeit(benannt(new QPushButton(QStringLiteral("Aus&wählen..."), this), "cmd_arbeit"))
{
    setObjectName(QStringLiteral("frmverfahr"));
    setWindowTitle(QStringLiteral(" Jorv+ - Neues Verfahren anlegen"));
    aufbauen();
    for (std::size_t i = 0; i < opt_modus.size(); ++i)
        opt_modus[i]->setChecked(vorschlag.modus == verkettet(static_cast<int>(i) + 1));
    connect(cmd_arbeit, &QPushButton::clicked, this, [this] { verzeichnis_waehlen(); });
    txt_arbeit->installEventFilter(this);
    txt_name->setFocus();
}

void frmverfahr::aufbauen()
{
    auto* raster = new QGridLayout(this);
    raster->setVerticalSpacing(abstand_gruppe);
    txt_nummer->setReadOnly(true);
    txt_nummer->setFocusPolicy(Qt::ClickFocus);
    txt_nummer->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("0000")) + 20);
    txt_name->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    cmd_arbeit->setAutoDefault(false);
    raster->addWidget(beschriftung(QStringLiteral("Nu&mmer:"), txt_nummer), 0, 0);
    raster->addWidget(txt_nummer, 0, 1, Qt::AlignLeft);
    raster->addWidget(beschriftung(QStringLiteral("&Name:"), txt_name), 1, 0);
    raster->addWidget(txt_name, 1, 1, 1, 2);
    raster->addWidget(beschriftung(QStringLiteral("&Arbeitsverzeichnis:"), txt_arbeit), 2, 0);
    raster->addWidget(txt_arbeit, 2, 1);
    raster->addWidget(cmd_arbeit, 2, 2);
    auto* rahmen = benannt(new QGroupBox(QStringLiteral("Modus"), this), "fra_modus");
    auto* spalte = new QVBoxLayout(rahmen);
    for (std::size_t i = 0; i < opt_modus.size(); ++i) {
        opt_modus[i] = benannt(new QRadioButton(QString::fromUtf16(modi[i]), rahmen),
                               verkettet("opt_modus", static_cast<int>(i) + 1).c_str());
        spalte->addWidget(opt_modus[i]);
    }
    raster->setRowMinimumHeight(3, abstand_gruppen);
    raster->addWidget(rahmen, 4, 0, 1, 3);
    raster->setRowMinimumHeight(5, abstand_gruppen);
    raster->addWidget(knopfzeile(*this), 6, 0, 1, 3);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);
}

Verfahrenswahl frmverfahr::wahl() const
{
    std::string modus;
    for (std::size_t i = 0; i < opt_modus.size(); ++i)
        if (opt_modus[i]->isChecked()) modus = verkettet(static_cast<int>(i) + 1);
    return {eingabe(txt_name->text()), eingabe(txt_arbeit->text()), modus};
}

void frmverfahr::accept()
{
    const auto falsch = m_ok(wahl());
    if (!falsch) return QDialog::accept();
    txt_nummer->setText(anzeige(naechste_Nummer(m_g)));
    bemaengeln(*falsch == Verfahrensfeld::name ? *txt_name : *txt_arbeit);
}

// The field shows that it was the one, until it is changed.
void frmverfahr::bemaengeln(QLineEdit& feld)
{
    feld.setFocus();
    feld.selectAll();
    if (!feld.actions().isEmpty()) return;
    QAction* zeichen = feld.addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), QLineEdit::TrailingPosition);
    connect(&feld, &QLineEdit::textChanged, zeichen, &QObject::deleteLater);
}

void frmverfahr::verzeichnis_waehlen()
{
    if (const auto pfad = frmVerzeichnis::waehlen(m_g, eingabe(txt_arbeit->text()), this))
        txt_arbeit->setText(anzeige(*pfad));
    txt_arbeit->setFocus();
}

bool frmverfahr::eventFilter(QObject* objekt, QEvent* ereignis)
{
    if (objekt == txt_arbeit && ereignis->type() == QEvent::MouseButtonDblClick) {
        verzeichnis_waehlen();
        return true;
    }
    return QDialog::eventFilter(objekt, ereignis);
}

}  // namespace jorv
