#include "ui/Fensterschirm.h"

#include <QMessageBox>

#include "plattform/fensterstart.h"
#include "ui/Ausgabefenster.h"
#include "ui/Betrachter.h"
#include "ui/Fortschrittsfeld.h"
#include "ui/Hauptfenster.h"
#include "ui/frmDateien.h"
#include "ui/frmverfahr.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

QMessageBox::Icon bild(Symbol symbol)
{
    switch (symbol) {
        case Symbol::stop:
            return QMessageBox::Critical;
        case Symbol::warnung:
            return QMessageBox::Warning;
        case Symbol::info:
            return QMessageBox::Information;
        case Symbol::frage:
            return QMessageBox::Question;
        case Symbol::keins:
            break;
    }
    return QMessageBox::NoIcon;
}

// A box never stands behind the dialog that it belongs to.
QWidget* vorderes_fenster(QWidget* hauptform)
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : hauptform;
}

void einrichten(QMessageBox& box, Symbol symbol, std::string_view text, std::string_view titel)
{
    box.setObjectName(QStringLiteral("meldung"));
    box.setIcon(bild(symbol));
    box.setWindowTitle(anzeige(titel));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    box.setText(anzeige(text));
}

}  // namespace

void Fensterschirm::meldung(Symbol symbol, std::string_view text, std::string_view titel)
{
    QMessageBox box(vorderes_fenster(m_hauptform));
    einrichten(box, symbol, text, titel);
    box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    box.exec();
}

Antwort Fensterschirm::frage(Symbol symbol, std::string_view text, Antwort vorgabe, std::string_view titel)
{
    QMessageBox box(vorderes_fenster(m_hauptform));
    einrichten(box, symbol, text, titel);
    QPushButton* ja = box.addButton(QStringLiteral("&Ja"), QMessageBox::YesRole);
    QPushButton* nein = box.addButton(QStringLiteral("&Nein"), QMessageBox::NoRole);
    box.setDefaultButton(vorgabe == Antwort::ja ? ja : nein);
    box.setEscapeButton(nein);
    box.exec();
    return box.clickedButton() == ja ? Antwort::ja : Antwort::nein;
}

void Fensterschirm::fortschritt_zeigen(std::string_view text)
{
    if (m_hauptform) m_hauptform->fortschritt().zeigen(anzeige(text));
}

void Fensterschirm::fortschritt_setzen(double prozent)
{
    if (m_hauptform) m_hauptform->fortschritt().setzen(prozent);
}

void Fensterschirm::fortschritt_verbergen()
{
    if (m_hauptform) m_hauptform->fortschritt().verbergen();
}

bool Fensterschirm::ereignisse()
{
    QCoreApplication::processEvents();
    return m_hauptform && m_hauptform->fortschritt().abbruch();
}

void Fensterschirm::baum_erneuern()
{
    if (m_hauptform) m_hauptform->baum_erneuern();
}

void Fensterschirm::karte_zeichnen(bool neu)
{
    if (m_hauptform) m_hauptform->karte_zeichnen(neu);
}

void Fensterschirm::menue_erneuern()
{
    if (m_hauptform) m_hauptform->menue_erneuern();
}

void Fensterschirm::liste_erneuern()
{
    if (m_hauptform) m_hauptform->menue_erneuern();
}

void Fensterschirm::titel_setzen(std::string_view titel)
{
    if (m_hauptform) m_hauptform->titel_setzen(anzeige(titel));
}

void Fensterschirm::sanduhr(bool an)
{
    if (an == m_sanduhr) return;
    m_sanduhr = an;
    if (an)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void Fensterschirm::piepen()
{
    QApplication::beep();
}

bool Fensterschirm::im_editor_oeffnen(std::string_view pfad)
{
    if (!m_hauptform) return false;
    const Global& g = m_hauptform->g();
    const auto start = editor_start(g.dateien, g.Editor, pfad);
    if (!start) return Betrachter::zeigen(g.dateien, std::string(pfad));
    return !fenster_starten(*start, Fensterausgabe::fenster).fehler;
}

std::error_code Fensterschirm::im_fenster_starten(const Fensterstart& start)
{
    return Ausgabefenster::starten(start);
}

std::optional<Dateiwahl> Fensterschirm::dateien_waehlen(Dateiart art, std::string_view verzeichnis)
{
    if (!m_hauptform) return std::nullopt;
    return frmDateien(m_hauptform->g(), art, verzeichnis, m_hauptform).waehlen();
}

void Fensterschirm::neues_verfahren(const Verfahrenswahl& vorschlag, std::string_view nummer,
                                    const Verfahrensanlage& ok)
{
    if (m_hauptform) frmverfahr(m_hauptform->g(), vorschlag, nummer, ok, m_hauptform).exec();
}

}  // namespace jorv
