// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Desktopprogramm.h"

#include "charts/A_Heizen.h"
#include "charts/Neuzeichnen.h"
#include "language/c_Sprache.h"
#include "project/FatalError.h"
#include "project/c_glob.h"
#include "project/lebenszyklus/eingaben_anzeigen.h"
#include "project/pfade.h"
#include "ui/ChartWidget.h"
#include "ui/Drucken.h"
#include "ui/Massstab.h"
#include "ui/QtImportDialoge.h"
#include "ui/ReportFenster.h"
#include "ui/Tastatur.h"
#include "ui/Uebersetzen.h"

#include <QAction>
#include <QApplication>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QStandardPaths>
#include <QStringList>

#include <algorithm>

namespace {

// The anchors of the help by input plane, in the order of E_Menue.
// The help's sections of the input and the output planes, in the order of their buttons.
constexpr std::array<const char*, 6> HILFE_ANKER{"geometrie", "fenster", "daemmung",
                                                 "gebaeude",  "klima",   "energie"};
constexpr std::array<const char*, 5> HILFE_ANKER_AUSGABE{"uebersicht", "klima_gebaeude", "heizen",
                                                         "kuehlen", "sankey"};

} // namespace

std::string befehlszeile_aus(const QStringList& argumente) {
    return argumente.join(QLatin1Char(' ')).toStdString();
}

Desktopprogramm::Desktopprogramm(Projekt& projekt, Dialogs* dialoge, Sprachwahl sprachwahl)
    : p(projekt), klimaordner(datenordner("klima")), einstellungen(benutzerordner().einstellungen),
      eigene_stationen(benutzerordner().stationen),
      dokumente(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation).toStdString()),
      import_dialoge(std::make_unique<QtImportDialoge>()),
      dialoge_(dialoge != nullptr ? dialoge : &qt_dialoge_), sprachwahl_(std::move(sprachwahl)) {
    // The planes were laid out for the small system sans of 8 points. Unlike the charts, whose
    // pixels are exact, the controls' texts are smoothed: unsmoothed, the small face breaks
    // words apart ("Dämm ung").
    QFont schrift = QtImageSurface::schrift("MS Sans Serif", 8.25, false);
    schrift.setStyleStrategy(QFont::PreferAntialias);
    QApplication::setFont(schrift);
}

Desktopprogramm::~Desktopprogramm() {
    // The refresh table draws on the main window's charts: it goes before them.
    auffrischen_.reset();
    zoom.reset();
    klimaimport.reset();
    haupt.reset();
    io.reset();
    ebenen.reset();
}

void Desktopprogramm::starten(const std::string& befehlszeile) {
    befehlszeile_ = befehlszeile;
    p.KlimaOrdner = klimaordner;
    p.Einstellungen = einstellungen;
    p.EigeneStationen = eigene_stationen;
    // The splash comes first; the record may have served an earlier program in this process.
    p.Gestartet = 0;
    const std::string grafiken = datenordner("Grafiken");
    Sprachwahl wahl = sprachwahl_;
    if (!wahl) {
        wahl = [grafiken] {
            Sprachwahl_Fenster f(grafiken);
            f.exec();
            return f.gewaehlt;
        };
    }
    const bool schnell = sprache_beim_start(p, befehlszeile, wahl);
    // Closed without a choice: the design's language, so that every window has its texts.
    if (p.Sprache != "d" && p.Sprache != "e") {
        p.Sprache = "d";
        sprachtexte_setzen(p);
    }
    qt_texte_ = qt_texte_laden(p.Sprache);
    einstellung_.Sprache = p.Sprache;
    einstellung_.dezimal = p.Sprache == "e" ? '.' : ',';
    ebenen = std::make_unique<Eingabeflaechen>(p, einstellung_.dezimal);
    io = std::make_unique<FILEIO>(p, *ebenen, *dialoge_);
    fenster_bauen();

    start = std::make_unique<StartFenster>([this] { Timer1_Timer(); },
                                           [this] { return p.Gestartet == 1; });
    if (p.Sprache == "e") {
        unuebersetzt += fenster_uebersetzen(*start, "Start");
    }
    start->infotext_setzen(p.Sprache);
    start->schliessen_erlaubt = haupt->schliessen_erlaubt;
    if (schnell) {
        Timer1_Timer();
        return;
    }
    if (const QScreen* schirm = QGuiApplication::primaryScreen()) {
        start->move(schirm->availableGeometry().center() - start->rect().center());
    }
    start->show();
    start->Timer1.start();
}

void Desktopprogramm::Timer1_Timer() {
    dialoge_->wartecursor(true);
    bindungen->ausfuehren([this] { io->start(befehlszeile_, programmordner(), dokumente); });
    start->hide();
    start->Timer1.stop();
    p.Gestartet = 1;
    dialoge_->wartecursor(false);
    // Centred on the screen, 200 pixels higher than the middle, but never above its top.
    if (const QScreen* schirm = QGuiApplication::primaryScreen()) {
        const QRect frei = schirm->availableGeometry();
        haupt->move(frei.x() + (frei.width() - haupt->width()) / 2,
                    std::max(frei.y(), frei.y() + (frei.height() - haupt->height()) / 2 - 200));
    }
    haupt->show();
}

void Desktopprogramm::fenster_bauen() {
    haupt = std::make_unique<Hauptfenster>();
    qt_dialoge_.fenster = haupt.get();
    qt_dialoge_.erste_ebenen = [this] {
        haupt->eingabe_zeigen(Hauptfenster::Geometrie);
        haupt->ausgabe_zeigen(Hauptfenster::Uebersicht);
    };
    bindungen = std::make_unique<Bindungen>(
        [this](const std::string& t) { fehler_zeigen(t); }, [this] { nach_aktion(); },
        [this](bool fehlerfrei) { return ergebnisse_gueltig(fehlerfrei); });
    bindungen->sprache = p.Sprache;

    const std::string grafiken = datenordner("Grafiken");
    Ebenenbau bau;
    geometrie_diagramme =
        geometrie_bauen(*haupt->eingabe[Hauptfenster::Geometrie], ebenen->geometrie, grafiken, bau);
    ::fenster_bauen(*haupt->eingabe[Hauptfenster::Fenster], ebenen->fenster, bau);
    daemmung_bauen(*haupt->eingabe[Hauptfenster::Daemmung], ebenen->daemmung, bau);
    gebaeude_bauen(*haupt->eingabe[Hauptfenster::Gebaeude], ebenen->gebaeude, bau);
    klimawahl_felder = klimawahl_bauen(*haupt->eingabe[Hauptfenster::Klima], ebenen->klima, p,
                                       *dialoge_, grafiken, bau);
    energie_diagramme = energie_bauen(*haupt->eingabe[Hauptfenster::Energie], ebenen->energie, p,
                                      einstellung_, bau);
    uebersicht_diagramme =
        uebersicht_bauen(*haupt->ausgabe[Hauptfenster::Uebersicht], p, einstellung_, bau);
    heizen_diagramme = heizen_bauen(*haupt->ausgabe[Hauptfenster::Heizen], p, einstellung_, bau);
    kuehlen_diagramme = kuehlen_bauen(*haupt->ausgabe[Hauptfenster::Kuehlen], p, einstellung_, bau);
    sankey_diagramme = sankey_bauen(*haupt->ausgabe[Hauptfenster::Sankey], bau);
    klima_felder = klima_bauen(*haupt->ausgabe[Hauptfenster::KlimaGebaeude]);
    diagramme_ = bau.diagramme;

    // English is laid over the German design, window by window, before the models are bound,
    // so that the texts the planes write themselves win.
    if (p.Sprache == "e") {
        unuebersetzt += fenster_uebersetzen(*haupt, "Haupt");
        haupt->zoom_beschriften(true);
        unuebersetzt += fenster_uebersetzen(*haupt->E_Menue, "E_Menue");
        unuebersetzt += fenster_uebersetzen(*haupt->A_Menue, "A_Menue");
        const std::array<const char*, 4> namen{"E_Geometrie", "E_Fenster", "E_Daemmung",
                                               "E_Gebaeude"};
        for (std::size_t i = 0; i < namen.size(); ++i) {
            unuebersetzt += fenster_uebersetzen(*haupt->eingabe[i], namen[i]);
        }
        unuebersetzt += fenster_uebersetzen(*haupt->eingabe[Hauptfenster::Energie], "E_Energie");
        unuebersetzt += fenster_uebersetzen(*haupt->eingabe[Hauptfenster::Klima], "E_Klima");
        const std::array<const char*, 5> ausgaben{"A_Uebersicht", "A_Klima", "A_Heizen",
                                                  "A_Kuehlen", "A_Sankey"};
        for (std::size_t i = 0; i < ausgaben.size(); ++i) {
            unuebersetzt += fenster_uebersetzen(*haupt->ausgabe[i], ausgaben[i]);
        }
    }
    // By keyboard: the menus open with Alt and a letter in both languages, Tab walks the
    // input side and then the output side, and a focused scroll field shows a frame.
    zugriffstasten_setzen(*haupt->menuBar());
    std::vector<QWidget*> bereiche{haupt->E_Menue};
    bereiche.insert(bereiche.end(), haupt->eingabe.begin(), haupt->eingabe.end());
    bereiche.push_back(haupt->A_Menue);
    bereiche.insert(bereiche.end(), haupt->ausgabe.begin(), haupt->ausgabe.end());
    tab_reihenfolge(bereiche);
    fokus_sichtbar_machen(*haupt);
    for (const auto& b : bau.binden) {
        b(*bindungen);
    }
    sprachmenue = std::make_unique<Sprachmenue>(p);
    bindungen->folgen([this] {
        haupt->mnuSpracheDeutsch->setChecked(sprachmenue->mnuSpracheDeutsch);
        haupt->mnuSpracheEnglisch->setChecked(sprachmenue->mnuSpracheEnglisch);
    });

    ergebnisse_bauen();

    // The menu.
    auto befehl = [this](std::function<void()> f) {
        return [this, f] { bindungen->ausfuehren(f); };
    };
    haupt->neu = befehl([this] { io->datei_neu(); });
    haupt->oeffnen = befehl([this] { io->datei_oeffnen(std::string()); });
    haupt->speichern = befehl([this] { io->datei_speichern(); });
    haupt->speichern_unter = befehl([this] { io->datei_speichern_unter(); });
    haupt->beenden = [this] {
        bool ende = false;
        bindungen->ausfuehren([this, &ende] { ende = io->programm_beenden(); });
        if (ende) {
            haupt->schliessen_erlaubt = nullptr;
            QApplication::quit();
        }
    };
    haupt->schliessen_erlaubt = [this] {
        int16_t abbruch = 0;
        bindungen->ausfuehren([this, &abbruch] { abbruch = io->aenderung_abfragen(); });
        return abbruch != 1;
    };
    haupt->sprache = [this](const char* buchstabe) {
        bindungen->ausfuehren([this, buchstabe] { sprachmenue->klick(p, *dialoge_, buchstabe); });
    };
    haupt->hilfe = [this] { hilfe_zeigen(""); };
    haupt->hilfe_zur_ebene = [this] {
        hilfe_zeigen(haupt->ausgabe_aktiv()
                         ? HILFE_ANKER_AUSGABE[static_cast<std::size_t>(haupt->ausgabe_gezeigt())]
                         : HILFE_ANKER[static_cast<std::size_t>(haupt->eingabe_gezeigt())]);
    };
    haupt->info = [this] { start->exec(); };
    // The report window, modal, in the mode of its menu entry; English laid over it each time.
    auto report_fenster = [this](ReportFenster::Modus modus) {
        ReportFenster fenster(p, *ebenen, modus, haupt.get());
        if (p.Sprache == "e") {
            unuebersetzt += fenster_uebersetzen(fenster, "A_Report");
        }
        fenster.exec();
    };
    haupt->report_anzeigen = [report_fenster] { report_fenster(ReportFenster::Modus::Report); };
    haupt->temperaturen_anzeigen = [report_fenster] {
        report_fenster(ReportFenster::Modus::Temperaturverlauf);
    };
    haupt->drucken = [this] {
        Drucken dialog(p, *ebenen, einstellung_.dezimal, haupt.get());
        dialog.exec();
    };
    haupt->klimaimport = [this] { klimaimport_zeigen(); };
    haupt->ebene_gezeigt = [this] {
        // The planes' own flags tell the driver's observers what is on the screen.
        const int e = haupt->eingabe_gezeigt();
        ebenen->geometrie.Visible = e == Hauptfenster::Geometrie;
        ebenen->fenster.Visible = e == Hauptfenster::Fenster;
        // A plane that comes up recalculates and draws its sketch anew; after a fault the
        // next change does, so that showing a plane does not report the fault again.
        if (bindungen && bindungen->gueltig() && p.Gestartet == 1 &&
            haupt->eingabe_gezeigt() == Hauptfenster::Geometrie) {
            bindungen->ausfuehren([this] { alles_berechnen(p); });
        }
        ausgabe_auffrischen();
    };
    haupt->ebene_gezeigt();
    bindungen->abgleichen();
}

void Desktopprogramm::ergebnisse_bauen() {
    // The charts the driver redraws while their plane is shown.
    geometrie_flaechen_ = std::make_unique<GeometrieFlaechen>(GeometrieFlaechen{
        geometrie_diagramme.AV_Picture->flaeche(), geometrie_diagramme.Picture1->flaeche()});
    UebersichtDiagramme& u = uebersicht_diagramme;
    uebersicht_flaechen_ = std::make_unique<UebersichtFlaechen>(UebersichtFlaechen{
        u.Temperaturen->flaeche(), u.Monatsbilanz->flaeche(), u.JahrBilanz->flaeche(),
        u.UeberGrafik->flaeche(), u.UeberJahr->flaeche()});
    const HeizenDiagramme& h = heizen_diagramme;
    heizen_flaechen_ = std::make_unique<HeizenFlaechen>(heizen_flaechen(h, heiz_felder_));
    const KuehlenDiagramme& k = kuehlen_diagramme;
    kuehlen_flaechen_ = std::make_unique<KuehlenFlaechen>(
        KuehlenFlaechen{k.StundenProTagMonat->flaeche(), k.StundenProTagJahr->flaeche(),
                        k.KuehlbedarfMonat->flaeche(), k.KuehlbedarfJahr->flaeche(),
                        k.KuehlGradStundenMonat->flaeche(), k.KuehlGradStundenJahr->flaeche()});
    sankey_flaechen_ = std::make_unique<SankeyFlaechen>(SankeyFlaechen{
        sankey_diagramme.Sankey->flaeche(), sankey_diagramme.Sankey_Kuehlen->flaeche()});
    const EnergieDiagramme& en = energie_diagramme;
    energie_flaechen_ = std::make_unique<EnergieFlaechen>(EnergieFlaechen{
        en.Monatsuebersicht->flaeche(), en.Picture2->flaeche(), en.Picture3->flaeche()});
    rechenlauf_ = std::make_unique<Rechenlauf>(p);
    auffrischen_ = std::make_unique<Auffrischtabelle>(
        p, ergebnisebenen(),
        [this](Ebene e) {
            const int a = haupt->ausgabe_gezeigt();
            switch (e) {
            case Ebene::Geometrie:
                return haupt->eingabe_gezeigt() == Hauptfenster::Geometrie;
            case Ebene::Uebersicht:
                return a == Hauptfenster::Uebersicht;
            case Ebene::Heizen:
                return a == Hauptfenster::Heizen;
            case Ebene::Kuehlen:
                return a == Hauptfenster::Kuehlen;
            case Ebene::Sankey:
                return a == Hauptfenster::Sankey;
            case Ebene::KlimaGebaeude:
                return a == Hauptfenster::KlimaGebaeude;
            case Ebene::Energie:
                return haupt->eingabe_gezeigt() == Hauptfenster::Energie;
            }
            return false;
        },
        einstellung_);
    // A chart that comes up is drawn from the record as it stands.
    auto beim_zeigen = [this](ChartWidget* c, Flaeche f) {
        c->zeichnen = [this, c, f] {
            Ergebnisebenen x = ergebnisebenen();
            c->flaeche().Cls();
            neu_zeichnen(f, p, x, einstellung_);
        };
    };
    beim_zeigen(geometrie_diagramme.Picture1, Flaeche::Picture1);
    beim_zeigen(geometrie_diagramme.AV_Picture, Flaeche::AV_Picture);
    beim_zeigen(u.Monatsbilanz, Flaeche::Monatsbilanz);
    beim_zeigen(u.JahrBilanz, Flaeche::JahrBilanz_Uebersicht);
    beim_zeigen(u.UeberGrafik, Flaeche::UeberGrafik);
    beim_zeigen(u.Temperaturen, Flaeche::Temperaturen);
    beim_zeigen(h.Heizbilanz, Flaeche::Heizbilanz);
    beim_zeigen(h.JahrBilanz, Flaeche::JahrBilanz_Heizen);
    beim_zeigen(h.NutzungsgradMonat, Flaeche::NutzungsgradMonat);
    beim_zeigen(h.Gewinne_N, Flaeche::Gewinne_N);
    beim_zeigen(k.StundenProTagMonat, Flaeche::StundenProTagMonat);
    beim_zeigen(k.KuehlbedarfMonat, Flaeche::KuehlbedarfMonat);
    beim_zeigen(k.KuehlGradStundenMonat, Flaeche::KuehlGradStundenMonat);
    beim_zeigen(sankey_diagramme.Sankey, Flaeche::Sankey);
    beim_zeigen(sankey_diagramme.Sankey_Kuehlen, Flaeche::Sankey_Kuehlen);
    beim_zeigen(en.Monatsuebersicht, Flaeche::Monatsuebersicht);
    beim_zeigen(en.Picture2, Flaeche::Picture2);

    for (std::size_t i = 0; i < u.Monatsbutton.size(); ++i) {
        QObject::connect(u.Monatsbutton[i], &QPushButton::clicked, haupt.get(), [this, i] {
            monat_waehlen(uebersicht_diagramme, p, einstellung_, static_cast<int>(i) + 1);
        });
    }
    monat_waehlen(u, p, einstellung_, 7);
    u.Temperaturen->klick = [this] { zoom_zeigen(); };
}

void Desktopprogramm::ausgabe_auffrischen() {
    if (p.Gestartet != 1 || !bindungen->gueltig()) {
        return;
    }
    switch (haupt->ausgabe_gezeigt()) {
    case Hauptfenster::Heizen:
        heiz_felder_ = HeizFelderAusfuellen(p, einstellung_.dezimal);
        heizfelder_zeigen(heizen_diagramme, heiz_felder_);
        break;
    case Hauptfenster::KlimaGebaeude:
        klima_ausfuellen(klima_felder, p, einstellung_.dezimal);
        break;
    default:
        break;
    }
}

void Desktopprogramm::zoom_zeigen() {
    if (!zoom) {
        zoom = std::make_unique<ZoomFenster>(p, einstellung_, haupt.get());
        zoom->setWindowTitle(QStringLiteral("Velmaris"));
        if (p.Sprache == "e") {
            unuebersetzt += fenster_uebersetzen(*zoom, "A_Zoom");
        }
        // The month chosen in the window is the overview's month too.
        zoom->monat_gewaehlt = [this](int m) {
            monat_waehlen(uebersicht_diagramme, p, einstellung_, m);
        };
    }
    zoom->massstab_setzen(haupt->massstab().faktor());
    zoom->show();
    zoom->raise();
    zoom->Temperaturen->zeichnen();
    zoom->Temperaturen->update();
}

void Desktopprogramm::klimaimport_zeigen() {
    klimaimport = std::make_unique<KlimaimportFenster>(p, *dialoge_, *import_dialoge, haupt.get());
    klimaimport->setWindowModality(Qt::ApplicationModal);
    klimaimport->show();
}

Ergebnisebenen Desktopprogramm::ergebnisebenen() {
    Ergebnisebenen x;
    x.geometrie = geometrie_flaechen_.get();
    x.uebersicht = uebersicht_flaechen_.get();
    x.heizen = heizen_flaechen_.get();
    x.kuehlen = kuehlen_flaechen_.get();
    x.sankey = sankey_flaechen_.get();
    x.energie = energie_flaechen_.get();
    x.klima_ausfuellen = [this](const Projekt& q) {
        klima_ausfuellen(klima_felder, q, einstellung_.dezimal);
    };
    return x;
}

bool Desktopprogramm::ergebnisse_gueltig(bool fehlerfrei) {
    const Rechenlauf::Stand lauf = rechenlauf_ ? rechenlauf_->abholen() : Rechenlauf::Stand::Keiner;
    // A fault while a project was read leaves the load guard set: the record is part old, part
    // new, and nothing is calculated until a project is built up again.
    if (!fehlerfrei || lauf == Rechenlauf::Stand::Abgebrochen || p.FormLoadGuard != 0) {
        return false;
    }
    return lauf == Rechenlauf::Stand::Fertig || bindungen->gueltig();
}

void Desktopprogramm::fehler_zeigen(const std::string& text) {
    fehler = text;
    dialoge_->wartecursor(false);
    dialoge_->nachricht(text, "Velmaris", Dialogs::Symbol::Ausrufezeichen, Dialogs::Knoepfe::OK);
}

void Desktopprogramm::nach_aktion() {
    const bool gueltig = bindungen->gueltig();
    for (ChartWidget* c : diagramme_) {
        c->gueltig_setzen(gueltig);
    }
    // The result planes grey their fields with the charts; the planes' buttons stay usable.
    for (QWidget* a : haupt->ausgabe) {
        a->setEnabled(gueltig);
    }
    if (zoom) {
        zoom->Temperaturen->gueltig_setzen(gueltig);
    }
    // The documents of the results would print new inputs beside old results: they wait, as
    // the result planes do, for a calculation that succeeds.
    for (const char* name :
         {"mnuFileDrucken", "mnuBerechnungsergebnisseExportieren", "mnuTemperaturExport"}) {
        if (auto* a = haupt->findChild<QAction*>(QString::fromUtf8(name))) {
            a->setEnabled(gueltig);
        }
    }
    if (!gueltig) {
        return;
    }
    fehler.clear();
    if (haupt->eingabe_gezeigt() == Hauptfenster::Geometrie) {
        Ergebnisebenen x = ergebnisebenen();
        neu_zeichnen(Flaeche::Picture1, p, x, einstellung_);
    }
    // The refresh table wrote the heating fields while their plane was shown.
    if (haupt->ausgabe_gezeigt() == Hauptfenster::Heizen) {
        heizfelder_zeigen(heizen_diagramme, heiz_felder_);
    }
    for (ChartWidget* c : diagramme_) {
        if (c->isVisible()) {
            c->update();
        }
    }
    // The enlarged temperature course follows every change while it is open.
    if (zoom && zoom->isVisible()) {
        zoom->Temperaturen->zeichnen();
        zoom->Temperaturen->update();
    }
}

void Desktopprogramm::hilfe_zeigen(const std::string& anker) {
    if (!hilfe) {
        hilfe = std::make_unique<Hilfefenster>(datenordner("help") + "/velmaris_" + p.Sprache +
                                               ".html");
    }
    hilfe->zeigen(anker);
}
