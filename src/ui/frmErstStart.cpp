#include "ui/frmErstStart.h"

#include <QCheckBox>
#include <QFontDatabase>
#include <QPlainTextEdit>

#include "app/neuerungen.h"
#include "plattform/zahl.h"
#include "projekt/titel.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

frmErstStart::frmErstStart(Global& g, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      chk_hinweis(benannt(new QCheckBox(QStringLiteral("beim nächsten Start &wieder anzeigen"), this), "chk_hinweis"))
{
    setObjectName(QStringLiteral("frmErstStart"));
    setWindowTitle(QStringLiteral("Jorv+ - Neuerungen"));
    auto* text = benannt(new QPlainTextEdit(this), "txt_neuerungen");
    auto* titel = benannt(new QLabel(anzeige(Neuerungen_Titel()), this), "lbl_titel");
    titel->setBuddy(text);
    QFont fett = font();
    fett.setBold(true);
    fett.setPointSizeF(fett.pointSizeF() * 1.2);
    titel->setFont(fett);
    const Neuerungen neuerungen = Neuerungen_lesen(g);
    text->setReadOnly(true);
    text->setAccessibleName(QStringLiteral("Neuerungen"));
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setPlainText(anzeige(neuerungen.text));
    if (neuerungen.fehlt) {
        QPalette warnung = text->palette();
        warnung.setColor(QPalette::Base, QColor(255, 205, 190));
        warnung.setColor(QPalette::Text, Qt::black);
        text->setPalette(warnung);
    }
    chk_hinweis->setChecked(zahl_lesen(g.Hinweis1) == 1);
    auto* ok = benannt(new QPushButton(QStringLiteral("OK"), this), "cmd_ok");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* unten = new QHBoxLayout;
    unten->addWidget(chk_hinweis);
    unten->addStretch();
    unten->addWidget(ok);
    auto* spalte = new QVBoxLayout(this);
    spalte->setSpacing(abstand_gruppen);
    spalte->addWidget(titel);
    spalte->addWidget(text, 1);
    spalte->addLayout(unten);
    ok->setFocus();
    resize(640, 460);
}

void frmErstStart::accept()
{
    m_g.Hinweis1 = chk_hinweis->isChecked() ? '1' : '0';
    QDialog::accept();
}

}  // namespace jorv
