// The windows with time bars, driven from the tree and the menu.
#include <QCheckBox>
#include <QClipboard>
#include <QListWidget>
#include <QPrinter>
#include <QScrollBar>
#include <QToolTip>
#include <QTreeWidget>
#include <QWheelEvent>

#include "planung/Beobachtungen.h"
#include "planung/automatik.h"
#include "planung/zeitfenster.h"
#include "ui/Einzelansicht.h"
#include "ui/Fensterprobe.h"
#include "ui/Fensterpruefung.h"
#include "ui/Zeitbalken.h"

namespace jorv {

using namespace hilfen;

namespace {

// A rover from 10:00 to 11:30, four stations around it that cover it and one of another session; none is linked.
struct Balkenprobe : Fensterprobe {
    Balkenprobe()
    {
        rover(g, beobachtung("5501001a.14o", "10:00:00", "11:30:00"), 25000, 25000);
        const char* namen[] = {"0590001a.14o", "0591001a.14o", "0592001b.14o", "0593001a.14o", "0594001a.14o"};
        for (int i = 0; i < 5; ++i)
            station(g, beobachtung(namen[i], "09:00:00", "12:00:00"), 20000 + 2000 * i, i % 2 ? 20000 : 30000);
        g.Hinweis = "0";
        automatik(g);
        static_cast<void>(menue_zeitfenster(g));
        form.show();
    }
    // The rover's node by mouse.
    void rover_klicken()
    {
        auto& baum = teil<QTreeWidget>(form, "tre_punkte");
        const auto stelle = baum.visualItemRect(baum.topLevelItem(0)->child(0)).center();
        QTest::mouseClick(baum.viewport(), Qt::LeftButton, {}, stelle);
    }
};

Zeitbalken& balken(const QWidget& fenster)
{
    return teil<Zeitbalken>(fenster, "pic_zeiten");
}

void zeile_klicken(const QWidget& fenster, int zeile)
{
    auto& b = balken(fenster);
    QTest::mouseClick(b.viewport(), Qt::LeftButton, {}, b.zeilenkasten(zeile).center());
}

std::string haken(const QWidget& fenster)
{
    std::string text;
    for (const auto& z : balken(fenster).bild().zeilen()) text += z.haken ? (*z.haken ? 'x' : '.') : 'R';
    return text;
}

}  // namespace

TEST(Handarbeitfenster, VerknuepftMitDerMausUndSchuetzt)
{
    Balkenprobe p;
    p.g.Hinweis = "1";
    Drehbuch b;
    b.im("frmhinweis", [](QWidget&) { taste(Qt::Key_Return); });
    b.im("frmhandarbeit", [&](QWidget& fenster) {
        EXPECT_EQ(fenster.windowTitle().toUtf8().toStdString(),
                  " ROVER-Datei: 5501001a.14o mit TOREL-Dateien verknüpfen");
        zeile_klicken(fenster, 1);
        zeile_klicken(fenster, 2);
        b.meldung();
        zeile_klicken(fenster, 3);
        zeile_klicken(fenster, 4);
        EXPECT_EQ(haken(fenster), "Rxx.x.");
        EXPECT_EQ(balken(fenster).bild().zeilen()[0].farbe, QColor(0, 255, 0));
        klick(fenster, "chk_schutz");
        klick(fenster, "cmd_ok");
    });
    p.rover_klicken();
    EXPECT_EQ(b.meldungen.size(), 1u);
    const auto& t = p.g.ROVER_TOREL[1];
    EXPECT_EQ(verkettet(t.Anzahl, t.Status, t.Grund, t.Schutz ? 1 : 0, t.TOREL_Dateiname[2]), "31010593001a.14o");
    EXPECT_EQ(p.g.baum.finden("R_Datei")->Kinder[0].Bild, 1);
    EXPECT_EQ(p.g.berechnete_ROVER, 1);
}

TEST(Handarbeitfenster, GehtMitDerTastaturUndAbbrechenAendertNichts)
{
    Balkenprobe p;
    Drehbuch b;
    b.im("frmhandarbeit", [](QWidget& fenster) {
        EXPECT_EQ(fokus(), "pic_zeiten");
        EXPECT_EQ(balken(fenster).aktuelle(), 1);
        taste(Qt::Key_Space);
        taste(Qt::Key_End);
        taste(Qt::Key_Space);
        taste(Qt::Key_Up);
        taste(Qt::Key_Space);
        EXPECT_EQ(haken(fenster), "Rx..xx");
        EXPECT_EQ(teil<QLabel>(fenster, "lbl_zeile").text().toStdString(),
                  "TOREL: 0593001a.14o Start: 01.01.2014 09:00:00 Ende: 01.01.2014 12:00:00");
        taste(Qt::Key_Escape);
    });
    auto& baum = teil<QTreeWidget>(p.form, "tre_punkte");
    baum.setFocus();
    baum.setCurrentItem(baum.topLevelItem(0)->child(0));
    taste(Qt::Key_Return);
    EXPECT_EQ(p.g.ROVER_TOREL[1].Anzahl, 0);
}

TEST(Handarbeitfenster, PasstZeigtDieKarteUndDieZeitAmZeiger)
{
    Balkenprobe p;
    for (int i = 0; i < 40; ++i) station(p.g, beobachtung("0595001a.14o", "09:00:00", "10:30:00"), 25000, 21000);
    Drehbuch b;
    b.im("frmhandarbeit", [](QWidget& fenster) {
        elemente_pruefen(fenster, {{"pic_zeiten", "&Beobachtungszeiten:"},
                                   {"pic_einzel", nullptr},
                                   {"chk_schutz", "Einstellungen &schützen"},
                                   {"cmd_ok", "OK"},
                                   {"cmd_abbrechen", "Abbrechen"}});
        fenster_pruefen(fenster);
        auto& zeiten = balken(fenster);
        const int mitte = (zeiten.bild().namensbreite() + zeiten.viewport()->width()) / 2;
        const int rover = zeiten.zeilenkasten(0).top();
        EXPECT_TRUE(zeiten.hinweis_an({mitte, rover + 3}).startsWith(QStringLiteral(" ROVER: 5501001a.14o Start")));
        EXPECT_TRUE(zeiten.hinweis_an({mitte, 3}).startsWith(QStringLiteral("01.01.2014 10:4")));
        EXPECT_EQ(zeiten.verticalScrollBar()->value(), 0);
        taste(Qt::Key_End);
        EXPECT_GT(zeiten.verticalScrollBar()->value(), 0);
        EXPECT_EQ(zeiten.zeilenkasten(0).top(), rover);  // stays in view
        auto& karte = teil<Einzelansicht>(fenster, "pic_einzel");
        const Bildort ort = karte.karte().ansicht().bild({25000, 21000});
        const QPointF zeiger(ort.x, ort.y);
        QMouseEvent bewegung(QEvent::MouseMove, zeiger, karte.mapToGlobal(zeiger), Qt::NoButton, {}, {});
        QApplication::sendEvent(&karte, &bewegung);
        const auto marke = karte.karte().lbl_pkz();
        EXPECT_EQ(marke ? marke->text : "", "  0595  ");
        taste(Qt::Key_Escape);
    });
    p.rover_klicken();
}

TEST(Zeitenfenster, PasstVergroessertDieZeitUndDruckt)
{
    Balkenprobe p;
    Drehbuch b;
    b.im("frmgesamt", [&p](QWidget& fenster) {
        elemente_pruefen(
            fenster,
            {{"pic_zeiten", nullptr}, {"cmd_ganz", "&Ganze Zeit"}, {"cmd_drucken", "&Drucken..."}, {"cmd_ok", "OK"}});
        fenster_pruefen(fenster);
        auto& zeiten = balken(fenster);
        EXPECT_EQ(zeiten.bild().anzahl(), 6);
        EXPECT_EQ(zeiten.bild().zeilen()[0].farbe, QColor(255, 0, 0));
        EXPECT_EQ(zeiten.bild().zeilen()[5].farbe, QColor(0, 0, 255));
        const double ganz = zeiten.bild().achse.sekunden();
        EXPECT_EQ(ganz, 3 * 3600);
        const QPointF stelle(zeiten.viewport()->width() - 1, 50);
        const auto vorher = zeiten.hinweis_an(stelle.toPoint());
        QWheelEvent rad(stelle, zeiten.viewport()->mapToGlobal(stelle), {}, {0, 240}, {}, {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(zeiten.viewport(), &rad);
        EXPECT_NEAR(zeiten.bild().achse.sekunden(), ganz / 1.5625, 1e-6);
        EXPECT_EQ(zeiten.hinweis_an(stelle.toPoint()), vorher);  // what is under the pointer stays there
        EXPECT_GT(zeiten.horizontalScrollBar()->value(), 0);
        zeiten.horizontalScrollBar()->setValue(0);
        EXPECT_EQ(zeitmarke_text(zeiten.bild().achse.zeit(0)), "9:00");
        for (int i = 0; i < 60; ++i) taste(Qt::Key_Plus);
        EXPECT_NEAR(zeiten.bild().achse.sekunden(), 60, 1e-6);
        taste(Qt::Key_G, Qt::AltModifier);
        EXPECT_EQ(zeiten.bild().achse.sekunden(), ganz);
        QPrinter drucker;
        drucker.setOutputFormat(QPrinter::PdfFormat);
        drucker.setOutputFileName(QString::fromStdString(p.pfad("zeiten.pdf").string()));
        zeiten.drucken(drucker, fenster.windowTitle());
        EXPECT_GT(fs::file_size(p.pfad("zeiten.pdf")), 2000u);
        taste(Qt::Key_Return);
    });
    p.befehl("m_grafik_zeiten(1)");
    EXPECT_EQ(p.g.zeit_tag, 1);
}

TEST(Warumfenster, PasstUndErzaehltDieEntscheidung)
{
    Balkenprobe p;
    static_cast<void>(p.g.GEO_Punkt.anfuegen(figur({punkt("0590", 0, 0), punkt("0591", 9, 0), punkt("0593", 0, 9)})));
    automatik(p.g);
    Drehbuch b;
    const auto warum = [](QWidget& fenster) {
        elemente_pruefen(fenster, {{"lbl_kopf", nullptr},
                                   {"lst_schritte", "So hat die &Automatik entschieden:"},
                                   {"cmd_kopieren", "&Kopieren"},
                                   {"cmd_ok", "OK"}});
        fenster_pruefen(fenster);
        EXPECT_TRUE(teil<QLabel>(fenster, "lbl_kopf").text().startsWith(QStringLiteral("5501001a.14o: rot, Kein")));
        EXPECT_EQ(teil<QListWidget>(fenster, "lst_schritte").item(0)->text().toStdString(), "1. liegt in keiner Figur");
        EXPECT_TRUE(teil<QLabel>(fenster, "lbl_weg").text().startsWith(QStringLiteral("Weg zu Grün: ")));
        klick(fenster, "cmd_kopieren");
        EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("  - liegt in keiner Figur")));
        taste(Qt::Key_Return);
    };
    b.im("frmWarum", warum);
    p.form.baumbefehl("mnu_tree_warum", "5501001a.14o", "ROVER-Dateien");
    b.im("frmEinstellungen", [&](QWidget& fenster) {
        b.im("frmWarum", warum);
        taste(Qt::Key_W, Qt::AltModifier);
        klick(fenster, "cmd_abbrechen");
    });
    p.form.baumbefehl("mnu_tree_settings", "5501001a.14o", "ROVER-Dateien");
}

}  // namespace jorv
