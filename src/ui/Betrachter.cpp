#include "ui/Betrachter.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QTextBlock>
#include <QTextDocument>
#include <algorithm>
#include <cstdint>

#include "plattform/pfad.h"
#include "ui/qtext.h"

namespace jorv {

namespace {

constexpr std::size_t hoechstens = 64u << 20;  // more than that nobody reads, and it would fill the memory
constexpr int spalten = 112, zeilen = 40;

QFont festbreite(int punkte)
{
    QFont schrift = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    schrift.setPointSize(punkte);
    return schrift;
}

// The selection stays in sight while the search line has the focus.
void auswahl_hervorheben(QWidget& feld)
{
    QPalette farben = feld.palette();
    for (const auto rolle : {QPalette::Highlight, QPalette::HighlightedText})
        farben.setBrush(QPalette::Inactive, rolle, farben.brush(QPalette::Active, rolle));
    feld.setPalette(farben);
}

}  // namespace

bool Betrachter::zeigen(const Dateisystem& dateien, const std::string& pfad)
{
    QWidget* dialog = QApplication::activeModalWidget();
    Betrachter* fenster = nullptr;
    for (QWidget* offen : QApplication::topLevelWidgets())
        if (auto* betrachter = dynamic_cast<Betrachter*>(offen);
            betrachter && betrachter->isVisible() && betrachter->m_pfad == pfad && betrachter->parentWidget() == dialog)
            fenster = betrachter;
    const bool neu = !fenster;
    if (neu) fenster = new Betrachter(dateien, pfad, dialog);
    if (!fenster->laden()) {
        if (neu) delete fenster;
        return false;
    }
    fenster->show();
    fenster->raise();
    fenster->activateWindow();
    return true;
}

Betrachter::Betrachter(const Dateisystem& dateien, std::string pfad, QWidget* eltern)
    : QMainWindow(eltern, Qt::Window), m_dateien(dateien), m_pfad(std::move(pfad))
{
    setObjectName(QStringLiteral("Betrachter"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(QStringLiteral("%1 – Jorv+").arg(anzeige(pfad_name(m_pfad))));
    anlegen();
    menue_anlegen();
}

void Betrachter::anlegen()
{
    auto* flaeche = new QWidget(this);
    auto* anordnung = new QVBoxLayout(flaeche);
    anordnung->setContentsMargins(0, 0, 0, 0);
    anordnung->setSpacing(0);
    txt_datei = new QPlainTextEdit(flaeche);
    txt_datei->setObjectName(QStringLiteral("txt_datei"));
    txt_datei->setReadOnly(true);
    txt_datei->setUndoRedoEnabled(false);
    txt_datei->setLineWrapMode(QPlainTextEdit::NoWrap);
    txt_datei->setFont(festbreite(10));
    txt_datei->setFrameShape(QFrame::NoFrame);
    auswahl_hervorheben(*txt_datei);
    anordnung->addWidget(txt_datei);

    m_suche = new QWidget(flaeche);
    auto* zeile = new QHBoxLayout(m_suche);
    zeile->setContentsMargins(6, 6, 6, 6);
    txt_suchen = new QLineEdit(m_suche);
    txt_suchen->setObjectName(QStringLiteral("txt_suchen"));
    txt_suchen->setMaximumWidth(300);
    auto* beschriftung = new QLabel(QStringLiteral("Suchen &nach:"), m_suche);
    beschriftung->setBuddy(txt_suchen);
    auto* cmd_weiter = new QPushButton(QStringLiteral("&Weiter"), m_suche);
    auto* cmd_zurueck = new QPushButton(QStringLiteral("&Zurück"), m_suche);
    m_fund = new QLabel(m_suche);
    m_fund->setObjectName(QStringLiteral("lbl_fund"));
    for (QWidget* teil : {static_cast<QWidget*>(beschriftung), static_cast<QWidget*>(txt_suchen),
                          static_cast<QWidget*>(cmd_weiter), static_cast<QWidget*>(cmd_zurueck)})
        zeile->addWidget(teil);
    zeile->addWidget(m_fund, 1);
    m_suche->hide();
    anordnung->addWidget(m_suche);
    setCentralWidget(flaeche);
    connect(txt_suchen, &QLineEdit::returnPressed, this, [this] { suchen(false); });
    connect(txt_suchen, &QLineEdit::textEdited, m_fund, &QLabel::clear);
    connect(cmd_weiter, &QPushButton::clicked, this, [this] { suchen(false); });
    connect(cmd_zurueck, &QPushButton::clicked, this, [this] { suchen(true); });

    m_zeilen = new QLabel(this);
    auto* ort = new QLabel(this);
    const QString pfad = anzeige(m_pfad);
    ort->setText(ort->fontMetrics().elidedText(pfad, Qt::ElideMiddle, 500));
    ort->setToolTip(pfad);
    statusBar()->addWidget(ort, 1);
    statusBar()->addPermanentWidget(m_zeilen);

    const QFontMetrics masse(txt_datei->font());
    const QSize frei = screen()->availableSize() * 4 / 5;
    resize(QSize(masse.averageCharWidth() * spalten, masse.lineSpacing() * zeilen).boundedTo(frei));
}

void Betrachter::menue_anlegen()
{
    const auto eintrag = [this](QMenu& menue, const char* text, const QList<QKeySequence>& tasten, auto tun) {
        QAction* aktion = menue.addAction(QString::fromUtf8(text));
        aktion->setShortcuts(tasten);
        connect(aktion, &QAction::triggered, this, tun);
    };
    QMenu& datei = *menuBar()->addMenu(QStringLiteral("&Datei"));
    eintrag(datei, "&Neu laden", {Qt::Key_F5}, [this] { laden(); });
    eintrag(datei, "&Drucken...", {QKeySequence::Print}, [this] { drucken(); });
    datei.addSeparator();
    eintrag(datei, "&Schließen", {Qt::Key_Escape, QKeySequence::Close}, [this] { abbrechen(); });
    QMenu& bearbeiten = *menuBar()->addMenu(QStringLiteral("&Bearbeiten"));
    eintrag(bearbeiten, "&Kopieren", {QKeySequence::Copy}, [this] {
        if (txt_suchen->hasFocus())
            txt_suchen->copy();
        else
            txt_datei->copy();
    });
    eintrag(bearbeiten, "&Alles markieren", {QKeySequence::SelectAll}, [this] {
        if (txt_suchen->hasFocus())
            txt_suchen->selectAll();
        else
            txt_datei->selectAll();
    });
    bearbeiten.addSeparator();
    eintrag(bearbeiten, "&Suchen...", {Qt::CTRL | Qt::Key_F}, [this] { suche_zeigen(); });
    eintrag(bearbeiten, "&Weitersuchen", {Qt::Key_F3}, [this] { suchen(false); });
    eintrag(bearbeiten, "&Rückwärts suchen", {Qt::SHIFT | Qt::Key_F3}, [this] { suchen(true); });
}

// Read anew, the place in the text stays.
bool Betrachter::laden()
{
    const auto bytes = m_dateien.anfang_lesen(m_pfad, hoechstens);
    if (!bytes) return false;
    const int oben = txt_datei->verticalScrollBar()->value();
    txt_datei->setPlainText(anzeige(*bytes));
    txt_datei->verticalScrollBar()->setValue(oben);
    const auto ganz = m_dateien.groesse(m_pfad).value_or(0);
    const int anzahl =
        txt_datei->document()->lastBlock().length() > 1 ? txt_datei->blockCount() : txt_datei->blockCount() - 1;
    const QString text = QStringLiteral("%1 Zeilen").arg(QLocale().toString(anzahl));
    m_zeilen->setText(ganz > hoechstens ? QStringLiteral("nur die ersten 64 MB: %1").arg(text) : text);
    return true;
}

void Betrachter::suche_zeigen()
{
    const QString auswahl = txt_datei->textCursor().selectedText();
    if (!auswahl.isEmpty() && !auswahl.contains(QChar::ParagraphSeparator)) txt_suchen->setText(auswahl);
    m_fund->clear();
    m_suche->show();
    txt_suchen->setFocus();
    txt_suchen->selectAll();
}

void Betrachter::suche_verbergen()
{
    m_suche->hide();
    txt_datei->setFocus();
}

// Without regard to case, and round the end of the text.
void Betrachter::suchen(bool rueckwaerts)
{
    const QString text = txt_suchen->text();
    if (text.isEmpty()) return suche_zeigen();
    const auto richtung = rueckwaerts ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextDocument& inhalt = *txt_datei->document();
    QTextCursor fund = inhalt.find(text, txt_datei->textCursor(), richtung);
    const bool herum = fund.isNull();
    if (herum) {
        QTextCursor rand(txt_datei->document());
        if (rueckwaerts) rand.movePosition(QTextCursor::End);
        fund = inhalt.find(text, rand, richtung);
    }
    if (fund.isNull())
        m_fund->setText(QStringLiteral("nicht gefunden"));
    else if (herum)
        m_fund->setText(rueckwaerts ? QStringLiteral("vom Ende an weitergesucht")
                                    : QStringLiteral("vom Anfang an weitergesucht"));
    else
        m_fund->clear();
    if (fund.isNull()) return m_suche->show();
    txt_datei->setTextCursor(fund);
}

void Betrachter::drucken()
{
    QPrinter drucker;
    drucker.setDocName(anzeige(pfad_name(m_pfad)));
    QPrintDialog dialog(&drucker, this);
    dialog.setWindowTitle(QStringLiteral("Drucken"));
    if (dialog.exec() == QDialog::Accepted) drucken_auf(drucker);
}

void Betrachter::drucken_auf(QPrinter& drucker) const
{
    constexpr int groesste = 10, kleinste = 6, rand_mm = 20;
    qsizetype laengste = 1;
    for (QTextBlock zeile = txt_datei->document()->begin(); zeile.isValid(); zeile = zeile.next())
        laengste = std::max<qsizetype>(laengste, zeile.length() - 1);
    const double breite = drucker.pageLayout().fullRect(QPageLayout::Millimeter).width() - 2 * rand_mm;
    // A letter of a fixed pitch is about six tenths as wide as it is high; a point is 0.353 mm.
    const double punkte = breite / (static_cast<double>(laengste) * 0.6 * 0.353);
    QTextDocument seiten;
    seiten.setDefaultFont(festbreite(std::clamp(static_cast<int>(punkte), kleinste, groesste)));
    seiten.setPlainText(txt_datei->toPlainText());
    seiten.print(&drucker);
}

void Betrachter::abbrechen()
{
    if (m_suche->isVisible())
        suche_verbergen();
    else
        close();
}

}  // namespace jorv
