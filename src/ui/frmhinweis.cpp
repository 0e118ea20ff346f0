#include "ui/frmhinweis.h"

#include <QCheckBox>
#include <QStyle>

#include "plattform/zahl.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

frmhinweis::frmhinweis(Global& g, QWidget* eltern)
    : QDialog(eltern),
      m_g(g),
      chk_hinweis(benannt(new QCheckBox(QStringLiteral("diesen Hinweis &wieder anzeigen"), this), "chk_hinweis"))
{
    setObjectName(QStringLiteral("frmhinweis"));
    setWindowTitle(QStringLiteral("Jorv+ - Hinweis"));
    auto* bild = new QLabel(this);
    bild->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(32, 32));
    const auto absatz = [this](const QString& text, const char* name) {
        auto* label = benannt(new QLabel(text, this), name);
        label->setWordWrap(true);
        label->setMinimumWidth(fontMetrics().averageCharWidth() * 62);
        return label;
    };
    auto* ok = benannt(new QPushButton(QStringLiteral("OK"), this), "cmd_ok");
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    chk_hinweis->setChecked(zahl_lesen(g.Hinweis) == 1);
    auto* raster = new QGridLayout(this);
    raster->setHorizontalSpacing(abstand_gruppen);
    raster->setVerticalSpacing(abstand_gruppen);
    raster->addWidget(bild, 0, 0, Qt::AlignTop);
    raster->addWidget(
        absatz(QStringLiteral("Die Zuordnung der TOREL-Dateien zu den ROVER-Punkten kann auch automatisch "
                              "erfolgen, wenn sinnvolle Drei- und/oder Vierecke per Mausklick auf die "
                              "Punktsignaturen der TOREL-Punkte in der Grafik gebildet werden."),
               "lbl_hinweis"),
        0, 1, 1, 2);
    raster->addWidget(
        absatz(QStringLiteral("Weitere Hinweise zu dieser Automatik finden Sie im Handbuch!"), "lbl_handbuch"), 1, 1, 1,
        2);
    raster->addWidget(chk_hinweis, 2, 1);
    raster->addWidget(ok, 2, 2, Qt::AlignRight);
    ok->setFocus();
}

void frmhinweis::zeigen(Global& g, QWidget* eltern)
{
    if (zahl_lesen(g.Hinweis) == 1) frmhinweis(g, eltern).exec();
}

void frmhinweis::accept()
{
    m_g.Hinweis = chk_hinweis->isChecked() ? '1' : '0';
    QDialog::accept();
}

}  // namespace jorv
