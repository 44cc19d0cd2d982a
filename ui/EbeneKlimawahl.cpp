// SPDX-License-Identifier: GPL-3.0-or-later
#include "climate/Bitmap.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "ui/Bau.h"
#include "ui/Bindungen.h"
#include "ui/Ebenen.h"
#include "ui/Massstab.h"
#include "ui/Stationskarte.h"
#include "ui/ZoomKlima.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QTimer>

#include <memory>

using namespace bau;

namespace {

// The German map: a press picks the region under the pointer by the colour of the picture shown,
// a move names it in the hover label.
class Deutschlandkarte : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void(int x, int y)> klick, bewegung;

protected:
    void mousePressEvent(QMouseEvent* e) override {
        if (klick) {
            const QPoint p = massstab::entwurfspunkt(*this, e->position());
            klick(p.x(), p.y());
        }
        QLabel::mousePressEvent(e);
    }
    void mouseMoveEvent(QMouseEvent* e) override {
        if (bewegung) {
            const QPoint p = massstab::entwurfspunkt(*this, e->position());
            bewegung(p.x(), p.y());
        }
        QLabel::mouseMoveEvent(e);
    }
};

// The post code field takes its keys through the plane's filter only: digits, back-space and
// Enter reach it as the key codes of the plane, every other key is dropped.
class PlzFilter : public QObject {
public:
    std::function<void(int taste)> taste;

protected:
    bool eventFilter(QObject* o, QEvent* e) override {
        if (e->type() != QEvent::KeyPress) {
            return QObject::eventFilter(o, e);
        }
        const auto* k = static_cast<QKeyEvent*>(e);
        int code = 0;
        if (k->key() == Qt::Key_Backspace) {
            code = 8;
        } else if (k->key() == Qt::Key_Return || k->key() == Qt::Key_Enter) {
            code = 13;
        } else if (k->text().size() == 1) {
            code = k->text().at(0).unicode();
        }
        if (code != 0 && taste) {
            taste(code);
        }
        return true;
    }
};

// Image1: a small picture of the world map that opens the enlarged one when clicked.
class Bildknopf : public QLabel {
public:
    using QLabel::QLabel;
    std::function<void()> klick;

protected:
    void mouseReleaseEvent(QMouseEvent* e) override {
        if (klick && rect().contains(e->position().toPoint())) {
            klick();
        }
        QLabel::mouseReleaseEvent(e);
    }
};

// The pictures of the station maps, in pixels.
constexpr int EUROPA_BREITE = 234;
constexpr int EUROPA_HOEHE = 201;
constexpr int WELT_BREITE = 650;
constexpr int WELT_HOEHE = 250;

// The climate data: a caption, its value and the unit; `name` names the caption when it is one
// of the plane's own labels.
QLabel* klimawert(QWidget* rahmen, const char* name, const char* text, int zeile, int y) {
    bau::text(rahmen, name, text, 10, y + 1)->setProperty("zeile", zeile);
    QLabel* wert = anzeige(rahmen, 220, y, 60);
    wert->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    bau::text(rahmen, nullptr, "°C", 286, y + 1);
    return wert;
}

Namensliste* namensliste(QWidget* eltern, const char* name, int x, int y, int w) {
    auto* cb = new Namensliste(eltern);
    cb->setObjectName(QString::fromUtf8(name));
    cb->setGeometry(x, y, w, 22);
    return cb;
}

void zeilen_setzen(Namensliste& cb, const Klimaliste& l) {
    if (cb.count() != static_cast<int>(l.Eintraege.size())) {
        cb.clear();
        for (const std::string& z : l.Eintraege) {
            cb.addItem(QString::fromStdString(z));
        }
    }
    // A station outside the list shows its name with no row selected.
    cb.setPlaceholderText(QString::fromStdString(l.Text));
    if (cb.currentIndex() != l.ListIndex) {
        cb.setCurrentIndex(l.ListIndex);
    }
    cb.anpassen();
}

} // namespace

KlimawahlFelder klimawahl_bauen(QWidget& e, E_Klima& k, Projekt& p, Dialogs& d,
                                const std::string& grafiken, Ebenenbau& bau) {
    KlimawahlFelder f;
    std::array<QRadioButton*, 3> optionen{};
    const std::array<const char*, 3> namen{"Deutschland", "Europa", "Welt"};
    for (std::size_t i = 0; i < optionen.size(); ++i) {
        optionen[i] = option(&e, nullptr, namen[i], 8 + static_cast<int>(i) * 110, 6, 100);
        optionen[i]->setObjectName(QStringLiteral("Option%1").arg(i + 1));
        optionen[i]->setProperty("zeile", static_cast<int>(i));
    }
    f.Option = optionen;

    auto* karte = new Deutschlandkarte(&e);
    karte->setObjectName(QStringLiteral("Picture1"));
    karte->setGeometry(8, 28, 234, 315);
    karte->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    f.Picture1 = karte;
    karte->setMouseTracking(true);
    // The hover label comes up a second after the pointer rests and goes again after three.
    const Schwebetext schwebe = Schwebetext::bauen(karte, "Label2");
    f.Label2 = schwebe.label;
    f.Timer1 = schwebe.Timer1;
    f.Timer2 = schwebe.Timer2;
    QLabel* region = text(&e, nullptr, "Klimaregion", 8, 348);
    region->setProperty("zeile", 4);
    Namensliste* regionen = namensliste(&e, "Klimaregionwahl", 8, 364, 336);
    f.Klimaregionwahl = regionen;
    QLabel* plz_text = text(&e, nullptr, "Postleitzahl", 8, 396);
    plz_text->setProperty("zeile", 5);
    f.plz = new QLineEdit(&e);
    f.plz->setObjectName(QStringLiteral("plz"));
    f.plz->setGeometry(100, 394, 60, 20);
    f.PLZsuchen = knopf(&e, "PLZsuchen", "OK", 166, 393, 40, 22);
    Namensliste* stationen = namensliste(&e, "Klimaregionwahl2", 8, 30, 336);
    f.Klimaregionwahl2 = stationen;

    f.Picture2 = new Stationskarte(&e, grafiken + "/europa.bmp", EUROPA_BREITE, EUROPA_HOEHE);
    f.Picture2->setObjectName(QStringLiteral("Picture2"));
    f.Picture2->move(59, 60);
    f.picture3f = new QFrame(&e);
    f.picture3f->setObjectName(QStringLiteral("picture3f"));
    f.picture3f->setGeometry(8, 60, 336, WELT_HOEHE);
    f.Picture3 = new Stationskarte(f.picture3f, grafiken + "/welt.bmp", WELT_BREITE, WELT_HOEHE);
    f.Picture3->setObjectName(QStringLiteral("Picture3"));
    f.HScroll1 = balken(&e, Qt::Horizontal, 8, 312, 336, 17);
    f.HScroll1->setObjectName(QStringLiteral("HScroll1"));
    weltkarte_einrichten(k, WELT_BREITE, f.picture3f->width());
    f.HScroll1->setRange(0, k.HScroll1_max);
    f.HScroll1->setSingleStep(10 * TWIPS_JE_PIXEL);
    f.HScroll1->setPageStep(k.picture3f_breite);
    QGroupBox* grafik = rahmen(&e, "Frame_Grafik", "Grafik", 8, 334, 180, 84);
    grafik->setProperty("zeile", 3);
    auto* image1 = new Bildknopf(grafik);
    image1->setObjectName(QStringLiteral("Image1"));
    image1->setGeometry(9, 18, WELT_BREITE / 4, WELT_HOEHE / 4);
    image1->setPixmap(QPixmap(QString::fromStdString(grafiken + "/welt.bmp"))
                          .scaled(image1->size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    image1->setCursor(Qt::PointingHandCursor);
    f.Image1 = image1;
    f.E_Zoom_Klima = new ZoomKlimaFenster(k, grafiken + "/welt.bmp", &e);
    const Schwebetext maus = Schwebetext::bauen(&e, "MausRegion");
    f.MausRegion = maus.label;
    f.MausTimer1 = maus.Timer1;
    f.MausTimer2 = maus.Timer2;

    QGroupBox* daten = rahmen(&e, "Frame_Klimadaten", "Klimadaten", 8, 424, 336, 90);
    daten->setProperty("zeile", 6);
    f.anz_MittelJahrTemp = klimawert(daten, nullptr, "Jahresmitteltemperatur", 7, 18);
    f.anz_MinMonatTemp = klimawert(daten, "anz_MinMonatText", "min. Monatsmittelwert", 8, 41);
    f.anz_MaxMonatTemp = klimawert(daten, "anz_MaxMonatText", "max. Monatsmittelwert", 9, 64);
    f.anz_MittelJahrTemp->setObjectName(QStringLiteral("anz_MittelJahrTemp"));
    f.anz_MinMonatTemp->setObjectName(QStringLiteral("anz_MinMonatTemp"));
    f.anz_MaxMonatTemp->setObjectName(QStringLiteral("anz_MaxMonatTemp"));
    f.anz_MinMonatText = daten->findChild<QLabel*>(QStringLiteral("anz_MinMonatText"));
    f.anz_MaxMonatText = daten->findChild<QLabel*>(QStringLiteral("anz_MaxMonatText"));

    auto* filter = new PlzFilter;
    filter->setParent(f.plz);
    f.plz->installEventFilter(filter);

    // The colours of the picture shown, read again only when the picture changes.
    auto bild = std::make_shared<std::pair<std::string, Bitmap>>();
    const std::string ordner = grafiken;
    auto karte_von = [bild, ordner, &k]() -> const Bitmap& {
        if (bild->first != k.Picture1) {
            const std::string datei = k.Picture1.substr(k.Picture1.find('/') + 1);
            bild->second = bitmap_lesen(ordner + "/" + datei);
            bild->first = k.Picture1;
        }
        return bild->second;
    };

    const KlimawahlFelder w = f;
    QWidget* ebene = &e;
    bau.binden.push_back([=, &k, &p, &d](Bindungen& bd) {
        using Handler = void (*)(E_Klima&, Projekt&, Dialogs&, bool);
        const std::array<Handler, 3> handler{Option1_Click, Option2_Click, Option3_Click};
        for (std::size_t i = 0; i < w.Option.size(); ++i) {
            QObject::connect(w.Option[i], &QRadioButton::toggled, w.Option[i],
                             [&bd, &k, &p, &d, h = handler[i]](bool an) {
                                 bd.ausfuehren([&k, &p, &d, h, an] { h(k, p, d, an); });
                             });
        }
        karte->bewegung = [karte_von, schwebe](int x, int y) {
            // A map picture that cannot be read names nothing here; the press reports it.
            std::string text;
            try {
                text = Picture1_Hover(karte_von(), x, y);
            } catch (const FatalError&) {
                text.clear();
            }
            schwebe.bewegt(x, y, text);
        };
        karte->klick = [&bd, &k, &p, karte_von](int x, int y) {
            bd.ausfuehren(
                [&k, &p, karte_von, x, y] { Picture1_MouseDown(k, p, karte_von(), x, y); });
        };
        QObject::connect(w.Klimaregionwahl, QOverload<int>::of(&QComboBox::activated),
                         w.Klimaregionwahl, [&bd, &k, &p](int i) {
                             bd.ausfuehren([&k, &p, i] {
                                 k.Klimaregionwahl.waehlen(i);
                                 Klimaregionwahl_Click(k, p);
                             });
                         });
        QObject::connect(w.Klimaregionwahl2, QOverload<int>::of(&QComboBox::activated),
                         w.Klimaregionwahl2, [&bd, &k, &p](int i) {
                             bd.ausfuehren([&k, &p, i] {
                                 k.Klimaregionwahl2.waehlen(i);
                                 Klimaregionwahl2_Click(k, p);
                             });
                         });
        filter->taste = [&bd, &k, &p, &d](int taste) {
            bd.ausfuehren([&k, &p, &d, taste] { plz_KeyPress(k, p, d, taste); });
        };
        QObject::connect(w.PLZsuchen, &QPushButton::clicked, w.PLZsuchen, [&bd, &k, &p, &d] {
            bd.ausfuehren([&k, &p, &d] { PLZsuchen_Click(k, p, d); });
        });
        // Both station maps: the hover names a station by the random search, the release on a
        // yellow dot picks through the station list.
        for (Stationskarte* karte_n : {w.Picture2, w.Picture3}) {
            karte_n->bewegung = [maus, karte_n, ebene, &k, &p](int32_t farbe, int x, int y) {
                station_karte_hover(k, p, farbe, x, y);
                const QPoint auf_ebene = massstab::entwurfspunkt(
                    *ebene, karte_n->mapTo(ebene, QPoint(x, y) * massstab::von(*ebene)));
                maus.bewegt(auf_ebene.x(), auf_ebene.y(), k.MausRegion);
            };
            karte_n->loslassen = [&bd, &k, &p](int32_t farbe, int x, int y) {
                bd.ausfuehren([&k, &p, farbe, x, y] {
                    station_karte_klick(k, p, farbe, x, y, k.MausRegion);
                });
            };
        }
        QObject::connect(w.HScroll1, &QScrollBar::valueChanged, w.HScroll1, [w, &k](int wert) {
            HScroll1_Change(k, wert);
            massstab::verschieben(*w.Picture3, QPoint(-k.HScroll1 / TWIPS_JE_PIXEL, 0));
        });
        image1->klick = [w] { w.E_Zoom_Klima->oeffnen(); };
        w.E_Zoom_Klima->bestaetigt = [&bd, &k, &p](const E_Zoom_Klima& z) {
            bd.ausfuehren([&k, &p, z] { E_Zoom_Klima_Command1(z, k, p); });
        };
        // The window's title is the caption above its list, in the language of the run.
        w.E_Zoom_Klima->setWindowTitle(w.E_Zoom_Klima->ueberschrift->text());
        bd.label(*w.anz_MittelJahrTemp, k.anz_MittelJahrTemp);
        bd.label(*w.anz_MinMonatTemp, k.anz_MinMonatTemp);
        bd.label(*w.anz_MaxMonatTemp, k.anz_MaxMonatTemp);
        // The climate information plane, built beside this one, if the window holds it.
        QLabel* klimaname = ebene->window()->findChild<QLabel*>(QStringLiteral("anz_klimaregion"));
        bd.folgen([=, &k, &p] {
            for (std::size_t i = 0; i < w.Option.size(); ++i) {
                const QSignalBlocker still(w.Option[i]);
                w.Option[i]->setChecked(p.Klimaauswahl == static_cast<int>(i) + 1);
            }
            // Germany shows the map, the regions and the post code; the other scopes their list.
            const bool deutschland = k.sichtbar == 1;
            for (QWidget* x : std::initializer_list<QWidget*>{w.Picture1, w.Klimaregionwahl, w.plz,
                                                              w.PLZsuchen, region, plz_text}) {
                x->setVisible(deutschland);
            }
            w.Klimaregionwahl2->setVisible(k.sichtbar == 2 || k.sichtbar == 3);
            w.Picture2->setVisible(k.sichtbar == 2);
            for (QWidget* x : std::initializer_list<QWidget*>{w.picture3f, w.HScroll1, grafik}) {
                x->setVisible(k.sichtbar == 3);
            }
            if (k.sichtbar == 2) {
                w.Picture2->punkte_setzen(
                    kartenpunkte(k.listen.Europa, k.Klimaregionwahl2.ListIndex));
            } else if (k.sichtbar == 3) {
                w.Picture3->punkte_setzen(
                    kartenpunkte(k.listen.Welt, k.Klimaregionwahl2.ListIndex));
                const QSignalBlocker still(w.HScroll1);
                w.HScroll1->setValue(k.HScroll1);
                massstab::verschieben(*w.Picture3, QPoint(-k.HScroll1 / TWIPS_JE_PIXEL, 0));
            }
            // wetter_laden names the station on the climate information plane after the
            // recalculation, so after that plane's own refresh.
            if (klimaname != nullptr) {
                name_setzen(*klimaname, QString::fromStdString(p.Klimainfo.Klimaname));
            }
            {
                const QSignalBlocker still(w.Klimaregionwahl);
                zeilen_setzen(*regionen, k.Klimaregionwahl);
            }
            {
                const QSignalBlocker still(w.Klimaregionwahl2);
                zeilen_setzen(*stationen, k.Klimaregionwahl2);
            }
            if (w.plz->text().toStdString() != k.plz) {
                w.plz->setText(QString::fromStdString(k.plz));
            }
            if (karte->property("bild").toString().toStdString() != k.Picture1) {
                const std::string datei = k.Picture1.substr(k.Picture1.find('/') + 1);
                karte->setPixmap(QPixmap(QString::fromStdString(ordner + "/" + datei)));
                karte->setProperty("bild", QString::fromStdString(k.Picture1));
            }
        });
    });
    return f;
}
