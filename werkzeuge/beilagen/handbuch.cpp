#include "beilagen/handbuch.h"

#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <vector>

namespace jorv::beilagen {

namespace {

constexpr int punkte_je_zoll = 600;
constexpr double mm = punkte_je_zoll / 25.4;
constexpr double rand = 22 * mm, fuss = 12 * mm;
constexpr double abstand = 96 / 25.4;  // a millimetre in the margins of text formats, which the layout scales itself
const QColor leise(110, 110, 110), linien(190, 196, 202), kopfzeile(232, 236, 240);

struct Ueberschrift {
    QString text;
    int stufe = 1;
    int seite = 0;
};

QFont schrift(double punkte, bool fett = false)
{
    QFont f(QStringLiteral("DejaVu Sans"));
    f.setPointSizeF(punkte);
    f.setBold(fett);
    return f;
}

void tabelle_gestalten(QTextTable& tabelle)
{
    QTextTableFormat form = tabelle.format();
    form.setBorder(0.5);
    form.setBorderBrush(linien);
    form.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    form.setBorderCollapse(true);
    form.setCellPadding(1.1 * abstand);
    form.setCellSpacing(0);
    form.setTopMargin(1.5 * abstand);
    form.setBottomMargin(3 * abstand);
    form.setHeaderRowCount(1);
    form.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    tabelle.setFormat(form);
    for (int spalte = 0; spalte < tabelle.columns(); ++spalte) {
        QTextTableCell zelle = tabelle.cellAt(0, spalte);
        QTextCharFormat kopf = zelle.format();
        kopf.setBackground(kopfzeile);
        zelle.setFormat(kopf);
    }
}

bool ist_code(const QTextBlock& block)
{
    return block.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
}

// What the reader of Markdown leaves plain: sizes of headings, air between paragraphs, code in a fixed pitch.
void gestalten(QTextDocument& text)
{
    constexpr double groessen[] = {0, 20, 15, 11.5, 10};
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        QTextCursor stelle(block);
        QTextBlockFormat form = block.blockFormat();
        const int stufe = form.headingLevel();
        const bool in_tabelle = stelle.currentTable() != nullptr;
        const bool code = ist_code(block);
        form.setTopMargin(stufe > 0 ? (stufe == 1 ? 0 : 5 * abstand) : 0);
        form.setBottomMargin(in_tabelle || code ? 0 : (stelle.currentList() ? 0.8 : 2) * abstand);
        form.setLineHeight(code ? 100 : 115, QTextBlockFormat::ProportionalHeight);
        if (code) {
            form.setLeftMargin(5 * abstand);
            if (!ist_code(block.next())) form.setBottomMargin(2.5 * abstand);
        }
        stelle.setBlockFormat(form);
        if (stufe > 0) {
            stelle.select(QTextCursor::BlockUnderCursor);
            QTextCharFormat zeichen;
            zeichen.setFont(schrift(groessen[std::min(stufe, 4)], true));
            stelle.mergeCharFormat(zeichen);
        }
    }
    for (QTextFrame* rahmen : text.rootFrame()->childFrames())
        if (auto* tabelle = qobject_cast<QTextTable*>(rahmen)) tabelle_gestalten(*tabelle);
}

// Code spans and fences in the fixed pitch that the machine has. The places first: a new format joins pieces of text.
void code_gestalten(QTextDocument& text)
{
    std::vector<std::pair<int, int>> stellen;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
        for (auto teil = block.begin(); !teil.atEnd(); ++teil)
            if (const QTextFragment stueck = teil.fragment(); stueck.charFormat().fontFixedPitch())
                stellen.emplace_back(stueck.position(), stueck.position() + stueck.length());
    QTextCharFormat zeichen;
    zeichen.setFontFamilies({QStringLiteral("DejaVu Sans Mono")});
    zeichen.setFontPointSize(8);
    for (const auto& [von, bis] : stellen) {
        QTextCursor stelle(&text);
        stelle.setPosition(von);
        stelle.setPosition(bis, QTextCursor::KeepAnchor);
        stelle.mergeCharFormat(zeichen);
    }
}

// The middle of a block's first line: the box may begin with the margin at the end of the page before.
double erste_zeile(const QTextDocument& text, const QTextBlock& block)
{
    static_cast<void>(text.pageCount());  // completes the layout, which is put off behind each change
    const QRectF kasten = text.documentLayout()->blockBoundingRect(block);
    return kasten.bottom() - block.layout()->boundingRect().height() + block.layout()->lineAt(0).height() / 2;
}

// A heading low on a page goes to the next one with what it heads.
void umbrechen(QTextDocument& text, double seitenhoehe)
{
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        if (block.blockFormat().headingLevel() < 2) continue;
        const double stelle = erste_zeile(text, block) / seitenhoehe;
        if (stelle - std::floor(stelle) < 0.85) continue;
        QTextBlockFormat form = block.blockFormat();
        form.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
        QTextCursor(block).setBlockFormat(form);
    }
}

std::vector<Ueberschrift> ueberschriften(const QTextDocument& text, double seitenhoehe)
{
    std::vector<Ueberschrift> alle;
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next()) {
        const int stufe = block.blockFormat().headingLevel();
        if (stufe < 2 || stufe > 3) continue;
        alle.push_back({block.text(), stufe, static_cast<int>(erste_zeile(text, block) / seitenhoehe) + 1});
    }
    return alle;
}

void titelseite(QPainter& maler, const QRectF& seite, const QString& titel)
{
    maler.setFont(schrift(30, true));
    maler.drawText(QRectF(rand, seite.height() * 0.3, seite.width() - 2 * rand, 20 * mm), titel);
    maler.setFont(schrift(14));
    maler.drawText(QRectF(rand, seite.height() * 0.3 + 20 * mm, seite.width() - 2 * rand, 12 * mm),
                   QStringLiteral("Benutzerhandbuch"));
}

// Contents on pages of their own in front; `versatz` is what they and the title page add to each number.
int verzeichnis(QPdfWriter& pdf, QPainter& maler, const QRectF& seite, const std::vector<Ueberschrift>& alle,
                bool malen, int versatz)
{
    double y = rand;
    int seiten = 1;
    const auto zeile = [&](const QFont& f, const QString& links, const QString& rechts, double einzug, double hoehe) {
        if (y + hoehe > seite.height() - rand - fuss) {
            ++seiten;
            y = rand;
            if (malen) pdf.newPage();
        }
        if (malen) {
            maler.setFont(f);
            const QRectF feld(rand + einzug, y, seite.width() - 2 * rand - einzug, hoehe);
            maler.drawText(feld, Qt::AlignLeft | Qt::AlignBottom, links);
            maler.drawText(feld, Qt::AlignRight | Qt::AlignBottom, rechts);
        }
        y += hoehe;
    };
    zeile(schrift(15, true), QStringLiteral("Inhalt"), {}, 0, 10 * mm);
    for (const auto& u : alle)
        zeile(schrift(9.5, u.stufe == 2), u.text, QString::number(u.seite + versatz), u.stufe == 2 ? 0 : 6 * mm,
              u.stufe == 2 ? 7.5 * mm : 5.2 * mm);
    return seiten;
}

}  // namespace

bool handbuch_setzen(const QString& quelle, const QString& ziel)
{
    QFile datei(quelle);
    if (!datei.open(QIODevice::ReadOnly)) return false;
    QPdfWriter pdf(ziel);
    pdf.setResolution(punkte_je_zoll);
    pdf.setPageSize(QPageSize(QPageSize::A4));
    pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
    pdf.setCreator(QStringLiteral("Jorv+"));
    const QRectF seite(0, 0, pdf.width(), pdf.height());
    const QSizeF satz(seite.width() - 2 * rand, seite.height() - 2 * rand - fuss);

    QTextDocument text;
    text.documentLayout()->setPaintDevice(&pdf);
    text.setDefaultFont(schrift(9.5));
    text.setDocumentMargin(0);
    text.setMarkdown(QString::fromUtf8(datei.readAll()));
    const QString titel = text.begin().text();
    gestalten(text);
    code_gestalten(text);
    text.setPageSize(satz);
    umbrechen(text, satz.height());
    pdf.setTitle(titel);
    const auto alle = ueberschriften(text, satz.height());

    QPainter maler;
    if (!maler.begin(&pdf)) return false;
    titelseite(maler, seite, titel);
    const int versatz = 1 + verzeichnis(pdf, maler, seite, alle, false, 0);
    pdf.newPage();
    verzeichnis(pdf, maler, seite, alle, true, versatz);
    for (int nummer = 0; nummer < text.pageCount(); ++nummer) {
        pdf.newPage();
        maler.save();
        maler.translate(rand, rand - nummer * satz.height());
        const QRectF ausschnitt(0, nummer * satz.height(), satz.width(), satz.height());
        maler.setClipRect(ausschnitt);
        QAbstractTextDocumentLayout::PaintContext umgebung;
        umgebung.clip = ausschnitt;
        umgebung.palette.setColor(QPalette::Text, Qt::black);
        text.documentLayout()->draw(&maler, umgebung);
        maler.restore();
        maler.setFont(schrift(8));
        maler.setPen(leise);
        maler.drawText(QRectF(rand, seite.height() - rand - fuss / 2, satz.width(), fuss), Qt::AlignHCenter,
                       QString::number(nummer + 1 + versatz));
        maler.setPen(Qt::black);
    }
    return maler.end();
}

}  // namespace jorv::beilagen
