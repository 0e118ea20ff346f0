#include "ui/Dialogbau.h"

#include <QDialogButtonBox>

#include "modell/Gemeinsam.h"
#include "ui/qtext.h"

namespace jorv {

QLabel* beschriftung(const QString& text, QWidget* feld)
{
    auto* label = new QLabel(text);
    label->setBuddy(feld);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

QDialogButtonBox* knopfzeile(QDialog& dialog)
{
    auto* zeile = new QDialogButtonBox(&dialog);
    QPushButton* ok = benannt(zeile->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole), "cmd_ok");
    benannt(zeile->addButton(QStringLiteral("Abbrechen"), QDialogButtonBox::RejectRole), "cmd_abbrechen");
    ok->setDefault(true);
    QObject::connect(zeile, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(zeile, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return zeile;
}

void pfad_zeigen(QLabel& label, std::string_view pfad)
{
    const int frei = label.contentsRect().width() - 2 * label.margin();
    QString text = anzeige(pfad);
    for (int zeichen = static_cast<int>(pfad.size()) - 1;
         zeichen > 3 && label.fontMetrics().horizontalAdvance(text) > frei; --zeichen)
        text = anzeige(pfad_kuerzen(pfad, zeichen));
    label.setText(text);
    label.setToolTip(anzeige(pfad));
}

}  // namespace jorv
