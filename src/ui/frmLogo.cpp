#include "ui/frmLogo.h"

#include <QCheckBox>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

#include "projekt/titel.h"
#include "ui/Dialogbau.h"
#include "ui/qtext.h"

namespace jorv {

frmLogo::frmLogo(Global& g)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint),
      m_g(g),
      m_bild(benannt(new QLabel(this), "img_logo")),
      lbl_version(benannt(new QLabel(anzeige(Logo_Version()), this), "lbl_version")),
      chk_start(benannt(new QCheckBox(QStringLiteral("künftig &ohne Bestätigung starten"), this), "chk_start")),
      cmd_start(benannt(new QPushButton(QStringLiteral("&Start"), this), "cmd_start"))
{
    setObjectName(QStringLiteral("frmLogo"));
    setWindowTitle(QStringLiteral("Jorv+"));
    setAttribute(Qt::WA_QuitOnClose, false);
    // The pictures stand on white, in dark desktops too.
    QPalette farben = palette();
    farben.setColor(QPalette::Window, Qt::white);
    farben.setColor(QPalette::WindowText, Qt::black);
    setPalette(farben);
    auto* name = benannt(new QLabel(QStringLiteral("Jorv+"), this), "lbl_name");
    QFont gross = font();
    gross.setPointSizeF(gross.pointSizeF() * 2.5);
    gross.setBold(true);
    name->setFont(gross);
    const bool wartet = g.Bestaetigung == "J";
    cmd_start->setVisible(wartet);
    chk_start->setChecked(!wartet);
    cmd_start->setDefault(true);

    auto* raster = new QGridLayout(this);
    raster->setContentsMargins(24, 24, 24, 18);
    raster->setHorizontalSpacing(24);
    raster->setVerticalSpacing(abstand_gruppen);
    raster->addWidget(m_bild, 0, 0, 2, 1, Qt::AlignCenter);
    raster->addWidget(name, 0, 1, Qt::AlignLeft | Qt::AlignBottom);
    raster->addWidget(lbl_version, 1, 1, Qt::AlignLeft | Qt::AlignTop);
    raster->setRowMinimumHeight(2, abstand_gruppen);
    auto* unten = new QHBoxLayout;
    unten->addWidget(chk_start);
    unten->addStretch();
    unten->addWidget(cmd_start);
    raster->addLayout(unten, 3, 0, 1, 2);
    bild_laden();

    connect(chk_start, &QCheckBox::clicked, this, [this](bool gesetzt) {
        m_g.Bestaetigung = gesetzt ? 'N' : 'J';
        cmd_start->show();
    });
    connect(cmd_start, &QPushButton::clicked, this, &QDialog::accept);
}

void frmLogo::bild_laden()
{
    QPixmap bild;
    const auto bytes = m_g.dateien.lesen(Logo_Datei(m_g));
    if (bytes) bild.loadFromData(QByteArray::fromStdString(*bytes));
    m_bild->setPixmap(bild);
    m_bild->setVisible(!bild.isNull());
}

void frmLogo::zeigen(std::chrono::milliseconds dauer)
{
    QTimer::singleShot(dauer, this, [this] {
        if (chk_start->isChecked() && cmd_start->isHidden()) accept();
    });
    adjustSize();
    move(screen()->availableGeometry().center() - rect().center());
    exec();
}

}  // namespace jorv
