// SPDX-License-Identifier: GPL-3.0-or-later
// The layout check of the planes' real widgets on the offscreen platform, both languages, on the
// layout cases, with the window at its design size and enlarged: no two input widgets overlap, no
// widget leaves its plane or frame, no caption or list row is cut by its field or broken inside
// brackets, no two captions of a plane overlap and no caption lies on the drawing of a picture.
#include "project/c_glob.h"
#include "project/lebenszyklus/projektdatei.h"
#include "tests/layout/Layoutfaelle.h"
#include "tests/project/SkriptDialogs.h"
#include "tests/support/Testprojekt.h"
#include "tests/ui/Uitesthilfe.h"
#include "ui/Desktopprogramm.h"
#include "ui/Hauptfenster.h"
#include "ui/Massstab.h"
#include "ui/Stationskarte.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTextLayout>
#include <QtTest>

#include <cmath>
#include <fstream>

namespace {

// Widgets that touch, or stand out of their parent, on purpose: by object name, or by caption
// in quotes; a name ending in "(" stands for all of an array. `b` null: `a` stands out.
struct Ausnahme {
    const char* a;
    const char* b;
    const char* grund;
};

const Ausnahme AUSNAHMEN[] = {
    {"Monatsbutton(", "Monatsbutton(",
     "the month buttons of the overview each reach one pixel into the next"},
    {"AktiverMonat1", nullptr,
     "the marker of the chosen month lies on its button and its inner field is one pixel larger"},
};

QString name(const QWidget* w) {
    if (!w->objectName().isEmpty()) {
        return w->objectName();
    }
    if (const auto* l = qobject_cast<const QLabel*>(w)) {
        return QStringLiteral("\"%1\"").arg(l->text());
    }
    return QString::fromUtf8(w->metaObject()->className());
}

bool passt(const QWidget* w, const char* v) {
    const QString n = name(w), m = QString::fromUtf8(v);
    return m.endsWith(QLatin1Char('(')) ? n.startsWith(m) : n == m;
}

// Whether a and b (b null: a standing out) are listed.
bool ausgenommen(const QWidget* a, const QWidget* b) {
    for (const Ausnahme& x : AUSNAHMEN) {
        if (b == nullptr ? x.b == nullptr && passt(a, x.a)
                         : x.b != nullptr && ((passt(a, x.a) && passt(b, x.b)) ||
                                              (passt(a, x.b) && passt(b, x.a)))) {
            return true;
        }
    }
    return false;
}

bool eingabe(const QWidget* w) {
    return qobject_cast<const QAbstractSlider*>(w) || qobject_cast<const QComboBox*>(w) ||
           qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QLineEdit*>(w) ||
           qobject_cast<const QAbstractSpinBox*>(w);
}

// Where the text of a caption is drawn, in the coordinates of `ebene`; empty for a picture or an
// empty caption.
QRect textfeld(const QLabel* l, const QWidget* ebene) {
    if (l->text().trimmed().isEmpty() || !l->pixmap().isNull() || l->textFormat() == Qt::RichText) {
        return {};
    }
    const QRect innen = l->contentsRect();
    const int flags = static_cast<int>(l->alignment()) | (l->wordWrap() ? Qt::TextWordWrap : 0);
    const QRect r = l->fontMetrics().boundingRect(innen, flags, l->text());
    return QRect(l->mapTo(ebene, r.topLeft()), r.size());
}

// Where the pixmap of a picture field is drawn, in the coordinates of `ebene`; empty without one.
QRect bildfeld(const QLabel* l, const QWidget* ebene) {
    if (l->pixmap().isNull()) {
        return {};
    }
    const QRect r =
        QStyle::alignedRect(l->layoutDirection(), l->alignment(),
                            l->pixmap().deviceIndependentSize().toSize(), l->contentsRect());
    return QRect(l->mapTo(ebene, r.topLeft()), r.size());
}

// Whether the text box `t` (plane coordinates) covers a drawn pixel of the picture `bild` placed
// at `feld`: one of another colour than its top left corner, the paper of the drawing. A box
// that only touches the drawing by a pixel passes.
bool auf_zeichnung(const QRect& t, const QImage& bild, const QRect& feld) {
    const QRect innen = t.adjusted(1, 1, -1, -1).intersected(feld);
    if (innen.isEmpty()) {
        return false;
    }
    const QRgb papier = bild.pixel(0, 0);
    for (int y = innen.top(); y <= innen.bottom(); ++y) {
        for (int x = innen.left(); x <= innen.right(); ++x) {
            const int bx = (x - feld.left()) * bild.width() / feld.width();
            const int by = (y - feld.top()) * bild.height() / feld.height();
            if (bild.pixel(bx, by) != papier) {
                return true;
            }
        }
    }
    return false;
}

// Whether a wrapped caption breaks a line inside brackets, as in "(ohne / Dach):". A framed
// display field shows a long catalogue text and wraps it where it must.
bool bricht_in_klammern(const QLabel* l) {
    if (!l->wordWrap() || l->frameShape() != QFrame::NoFrame || l->textFormat() == Qt::RichText ||
        !l->pixmap().isNull()) {
        return false;
    }
    const QString t = l->text();
    QTextLayout satz(t, l->font());
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    satz.setTextOption(option);
    satz.beginLayout();
    int tiefe = 0, gezaehlt = 0;
    bool bruch = false;
    for (QTextLine zeile = satz.createLine(); zeile.isValid(); zeile = satz.createLine()) {
        zeile.setLineWidth(l->contentsRect().width());
        for (; gezaehlt < zeile.textStart(); ++gezaehlt) {
            tiefe += t[gezaehlt] == QLatin1Char('(') ? 1 : t[gezaehlt] == QLatin1Char(')') ? -1 : 0;
        }
        bruch = bruch || tiefe > 0;
    }
    satz.endLayout();
    return bruch;
}

// The faults of one plane as it stands.
QStringList pruefen(QWidget* ebene, const QString& ort) {
    QStringList fehler;
    QList<QWidget*> sichtbar;
    for (QWidget* w : ebene->findChildren<QWidget*>()) {
        if (w->isVisibleTo(ebene) && !w->isWindow() &&
            !qobject_cast<QAbstractSpinBox*>(w->parentWidget()) &&
            !qobject_cast<QComboBox*>(w->parentWidget())) {
            sichtbar.push_back(w);
        }
    }
    for (QWidget* w : sichtbar) {
        QWidget* eltern = w->parentWidget();
        if (!eltern->rect().contains(w->geometry()) && !ausgenommen(w, nullptr)) {
            fehler << QStringLiteral("%1: %2 (%3,%4 %5x%6) leaves %7")
                          .arg(ort, name(w))
                          .arg(w->x())
                          .arg(w->y())
                          .arg(w->width())
                          .arg(w->height())
                          .arg(name(eltern));
        }
        if (const auto* sb = qobject_cast<const QScrollBar*>(w)) {
            // Room for both arrows and a thumb that can move.
            const int noetig =
                2 * sb->style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, sb) +
                sb->style()->pixelMetric(QStyle::PM_ScrollBarSliderMin, nullptr, sb);
            const int laenge = sb->orientation() == Qt::Vertical ? sb->height() : sb->width();
            if (laenge < noetig) {
                fehler << QStringLiteral("%1: scroll field %2 is %3 px long, below %4")
                              .arg(ort, name(w))
                              .arg(laenge)
                              .arg(noetig);
            }
        }
        // A list shows its chosen row whole; a list of station names cuts a long one on purpose
        // and shows it whole in its tooltip.
        if (const auto* cb = qobject_cast<const QComboBox*>(w);
            cb != nullptr && dynamic_cast<const Namensliste*>(w) == nullptr) {
            QStyleOptionComboBox opt;
            opt.initFrom(cb);
            const QRect feld = cb->style()->subControlRect(QStyle::CC_ComboBox, &opt,
                                                           QStyle::SC_ComboBoxEditField, cb);
            const int breite = cb->fontMetrics().horizontalAdvance(cb->currentText());
            if (breite > feld.width() - 4) {
                fehler << QStringLiteral("%1: list %2 cuts its row \"%3\" (%4 of %5 px)")
                              .arg(ort, name(w), cb->currentText())
                              .arg(breite)
                              .arg(feld.width() - 4);
            }
        }
        if (const auto* l = qobject_cast<const QLabel*>(w)) {
            if (bricht_in_klammern(l)) {
                fehler << QStringLiteral("%1: caption %2 breaks inside its brackets")
                              .arg(ort, name(w));
            }
            const QRect t = textfeld(l, l);
            if (!t.isEmpty() && !l->contentsRect().adjusted(-1, -1, 1, 1).contains(t)) {
                fehler << QStringLiteral("%1: caption %2 is cut by its field (%3 of %4 px wide, "
                                         "%5 of %6 high)")
                              .arg(ort, name(w))
                              .arg(t.width())
                              .arg(l->contentsRect().width())
                              .arg(t.height())
                              .arg(l->contentsRect().height());
            }
        }
    }
    // No caption or value lies on the drawing of a picture field.
    for (QWidget* w : sichtbar) {
        const auto* bild = qobject_cast<const QLabel*>(w);
        const QRect feld = bild != nullptr ? bildfeld(bild, ebene) : QRect();
        if (feld.isEmpty()) {
            continue;
        }
        const QImage pixel = bild->pixmap().toImage();
        for (QWidget* v : sichtbar) {
            const auto* l = qobject_cast<const QLabel*>(v);
            if (l != nullptr && l != bild && auf_zeichnung(textfeld(l, ebene), pixel, feld)) {
                fehler << QStringLiteral("%1: caption %2 lies on the drawing of %3")
                              .arg(ort, name(v), name(w));
            }
        }
    }
    for (int i = 0; i < sichtbar.size(); ++i) {
        for (int j = i + 1; j < sichtbar.size(); ++j) {
            QWidget* a = sichtbar[i];
            QWidget* b = sichtbar[j];
            if (ausgenommen(a, b)) {
                continue;
            }
            if (eingabe(a) && eingabe(b) && !a->isAncestorOf(b) && !b->isAncestorOf(a)) {
                const QRect ra(a->mapTo(ebene, QPoint(0, 0)), a->size());
                const QRect rb(b->mapTo(ebene, QPoint(0, 0)), b->size());
                if (ra.intersects(rb)) {
                    fehler << QStringLiteral("%1: input fields %2 and %3 overlap")
                                  .arg(ort, name(a), name(b));
                }
            }
            const auto* la = qobject_cast<const QLabel*>(a);
            const auto* lb = qobject_cast<const QLabel*>(b);
            if (la != nullptr && lb != nullptr) {
                const QRect ta = textfeld(la, ebene), tb = textfeld(lb, ebene);
                if (!ta.isEmpty() && !tb.isEmpty() && ta.adjusted(1, 1, -1, -1).intersects(tb)) {
                    fehler << QStringLiteral("%1: captions %2 and %3 overlap")
                                  .arg(ort, name(a), name(b));
                }
            }
        }
    }
    return fehler;
}

} // namespace

class TestLayoutEbenen : public QObject {
    Q_OBJECT

    std::unique_ptr<TempOrdner> klima;

private slots:
    void initTestCase() { klima = klima_kopie(); }

    void ebenen_data() {
        QTest::addColumn<int>("fall");
        QTest::addColumn<QString>("sprache");
        QTest::addColumn<double>("massstab");
        for (int f = 0; f < static_cast<int>(layoutfaelle().size()); ++f) {
            for (const char* s : {"d", "e"}) {
                for (double m : {1.0, 1.5, 2.0}) {
                    QTest::newRow(QStringLiteral("%1_%2_%3")
                                      .arg(layoutfaelle()[static_cast<std::size_t>(f)].name, s)
                                      .arg(m)
                                      .toUtf8()
                                      .constData())
                        << f << QString::fromUtf8(s) << m;
                }
            }
        }
    }

    // Every input and output plane after opening the case, as a user sees it in a window of the
    // design's size times `massstab`.
    void ebenen() {
        QFETCH(int, fall);
        QFETCH(QString, sprache);
        QFETCH(double, massstab);
        SkriptDialogs dialoge;
        auto programm = programm_starten(&dialoge, *klima, sprache.toUtf8().constData());
        const Layoutfall& lf = layoutfaelle()[static_cast<std::size_t>(fall)];
        TempOrdner ablage;
        {
            auto p = leeres_projekt();
            *p = programm->p;
            lf.aendern(*p);
            const auto pfad = ablage.pfad() / "fall.vel";
            std::ofstream(pfad, std::ios::binary) << datei_schreiben(*p);
            dialoge.dateien.push_back(pfad.string());
        }
        programm->haupt->findChild<QAction*>(QStringLiteral("mnuFileOeffnen"))->trigger();
        QVERIFY2(programm->fehler.empty(), programm->fehler.c_str());
        Hauptfenster& haupt = *programm->haupt;
        haupt.resize(static_cast<int>(std::lround(800 * massstab)),
                     static_cast<int>(std::lround(546 * massstab)) +
                         haupt.menuBar()->sizeHint().height());
        QCoreApplication::processEvents();
        // Really enlarged: the planes and their font, not only the window.
        QCOMPARE(haupt.massstab().faktor(), massstab);
        QCOMPARE(haupt.eingabe[0]->width(), static_cast<int>(std::lround(352 * massstab)));
        QCOMPARE(haupt.eingabe[0]->font().pixelSize(),
                 static_cast<int>(std::floor(QApplication::font().pixelSize() * massstab)));
        const QString ort = QStringLiteral("%1 %2x").arg(lf.name).arg(massstab);
        QStringList fehler;
        for (int i = 0; i < 6; ++i) {
            haupt.eingabe_knopf[static_cast<std::size_t>(i)]->click();
            fehler << pruefen(haupt.eingabe[static_cast<std::size_t>(i)],
                              QStringLiteral("%1 %2").arg(ort).arg(
                                  haupt.eingabe[static_cast<std::size_t>(i)]->objectName()));
            bild_speichern(
                haupt,
                QStringLiteral("layout_%1_%2_%3_e%4").arg(lf.name, sprache).arg(massstab).arg(i));
        }
        for (int i = 0; i < 5; ++i) {
            haupt.ausgabe_knopf[static_cast<std::size_t>(i)]->click();
            fehler << pruefen(haupt.ausgabe[static_cast<std::size_t>(i)],
                              QStringLiteral("%1 %2").arg(ort).arg(
                                  haupt.ausgabe[static_cast<std::size_t>(i)]->objectName()));
            bild_speichern(
                haupt,
                QStringLiteral("layout_%1_%2_%3_a%4").arg(lf.name, sprache).arg(massstab).arg(i));
        }
        fehler.removeDuplicates();
        for (const QString& f : fehler) {
            qWarning("%s", qPrintable(f));
        }
        QVERIFY2(fehler.isEmpty(),
                 qPrintable(QStringLiteral("%1 layout faults").arg(fehler.size())));
    }

    // Every value of the insulation and building planes shows its unit in its own frame, in
    // both languages.
    void einheiten() {
        struct Einheiten {
            int ebene;
            const char* rahmen;
            QStringList texte;
        };
        const Einheiten tabelle[] = {
            {Hauptfenster::Daemmung, "Frame3", {"W/(m²K)"}},
            {Hauptfenster::Daemmung, "Frame1", {"m²", "W/(m²K)"}},
            {Hauptfenster::Daemmung, "Frame2", {"W/(m²K)"}},
            {Hauptfenster::Gebaeude, "Frame3", {"°C"}},
            {Hauptfenster::Gebaeude, "Frame7", {"°C"}},
            {Hauptfenster::Gebaeude, "Frame2", {"kWh/(m² a)", "W/m²"}},
            {Hauptfenster::Gebaeude, "Frame4", {"1/h", "%"}},
            {Hauptfenster::Gebaeude, "Frame9", {"kWh"}},
            {Hauptfenster::Gebaeude, "Frame8", {"Wh/(m³ K)", "kWh/K"}},
        };
        for (const char* sprache : {"d", "e"}) {
            SkriptDialogs dialoge;
            auto programm = programm_starten(&dialoge, *klima, sprache);
            Hauptfenster& haupt = *programm->haupt;
            for (const Einheiten& z : tabelle) {
                haupt.eingabe_zeigen(z.ebene);
                auto* rahmen =
                    haupt.eingabe[static_cast<std::size_t>(z.ebene)]->findChild<QGroupBox*>(
                        QString::fromUtf8(z.rahmen));
                QVERIFY2(rahmen != nullptr, z.rahmen);
                QStringList gezeigt;
                for (const QLabel* l : rahmen->findChildren<QLabel*>()) {
                    if (l->isVisibleTo(rahmen)) {
                        gezeigt << l->text();
                    }
                }
                for (const QString& t : z.texte) {
                    QVERIFY2(gezeigt.contains(t), qPrintable(QStringLiteral("%1 %2 of plane %3: %4")
                                                                 .arg(sprache, z.rahmen)
                                                                 .arg(z.ebene)
                                                                 .arg(t)));
                }
            }
        }
    }
};

QTEST_MAIN(TestLayoutEbenen)
#include "test_layout_ebenen.moc"
