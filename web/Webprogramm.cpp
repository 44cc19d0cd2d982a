// SPDX-License-Identifier: GPL-3.0-or-later
#include "web/Webprogramm.h"

#include "app/shell/JsonWriter.h"
#include "app/shell/Rechenlauf.h"
#include "app/shell/ergebnis_json.h"
#include "charts/A_Heizen.h"
#include "charts/A_Uebersicht.h"
#include "charts/Neuzeichnen.h"
#include "charts/Tooltiptexte.h"
#include "climate/ebene/E_Klima.h"
#include "climate/ebene/E_Zoom_Klima.h"
#include "climate/ebene/stationskarten.h"
#include "climate/klimainfo_texte.h"
#include "language/c_Sprache.h"
#include "project/FatalError.h"
#include "project/Laufzeitfehler.h"
#include "project/c_glob.h"
#include "report/Report.h"
#include "report/Temperaturverlauf.h"

#include <cmath>
#include <stdexcept>

namespace {

// Whether the group has the option `index`; the group tells its range only by a fault.
bool hat_option(const OptionGroup& g, int index) {
    try {
        static_cast<void>(g.Value(index));
        return true;
    } catch (const std::out_of_range&) {
        return false;
    }
}

// The page's labels: their font and, for the energy plane's list entries, their width.
const std::string SEITENSCHRIFT = "11px 'Liberation Sans', Arial, sans-serif";
constexpr double LISTE_EINTRAG_BREITE = 314;
constexpr int TWIPS_JE_PIXEL = 15;

// The lines of `text` wrapped at `breite` pixels as the browser wraps a label: after a blank or
// a hyphen, a word wider than the line standing on a line of its own.
int umbrochene_zeilen(const std::string& text, double breite,
                      const CanvasFlaeche::Textmass& breite_von) {
    int zeilen = 1;
    std::string zeile;
    std::size_t a = 0;
    while (a < text.size()) {
        std::size_t e = text.find_first_of(" -", a);
        e = e == std::string::npos ? text.size() : e + 1;
        const std::string wort = text.substr(a, e - a);
        std::string probe = zeile + wort;
        while (!probe.empty() && probe.back() == ' ') {
            probe.pop_back();
        }
        if (!zeile.empty() && breite_von(SEITENSCHRIFT, probe) > breite) {
            ++zeilen;
            zeile = wort;
        } else {
            zeile += wort;
        }
        a = e;
    }
    return zeilen;
}

} // namespace

Dialogs::Antwort Seitendialoge::nachricht(const std::string& text, const std::string& t, Symbol,
                                          Knoepfe knoepfe, bool) {
    if (frage) {
        return frage(text, t, knoepfe);
    }
    return knoepfe == Knoepfe::OK ? Antwort::OK : Antwort::Abbrechen;
}

std::optional<std::string> Seitendialoge::oeffnen_dialog(const std::string&, int,
                                                         const std::string&) {
    std::optional<std::string> pfad;
    pfad.swap(oeffnen_pfad);
    return pfad;
}

std::optional<std::string> Seitendialoge::speichern_dialog(const std::string&, int,
                                                           const std::string&) {
    std::optional<std::string> pfad;
    pfad.swap(speichern_pfad);
    return pfad;
}

namespace {

// The station maps' pictures and their sizes, which also stand where a picture cannot be read.
struct Stationsbild {
    const char* pfad;
    int breite, hoehe;
};
constexpr Stationsbild EUROPA{"/Grafiken/europa.bmp", 234, 201};
constexpr Stationsbild WELT{"/Grafiken/welt.bmp", 650, 250};
// The frame that shows the world map, narrower than the map, so that it scrolls.
constexpr int WELT_RAHMEN = 336;
constexpr int PUNKT_RADIUS = 2;
constexpr int32_t WEISS = 0xffffff;

} // namespace

Webprogramm::Webprogramm(Projekt& projekt, const std::string& sprache, const std::string& klima,
                         CanvasFlaeche::Textmass breite, CanvasFlaeche::Textmass hoehe,
                         Seitendialoge& dialoge)
    : p(projekt), dialoge_(dialoge) {
    p.KlimaOrdner = klima;
    p.Gestartet = 0;
    sprache_beim_start(p, sprache == "e" ? "e" : "d", [] { return std::string(); });
    einstellung_.Sprache = p.Sprache;
    einstellung_.dezimal = p.Sprache == "e" ? '.' : ',';
    ebenen_ = std::make_unique<Eingabeflaechen>(p, einstellung_.dezimal);
    io_ = std::make_unique<FILEIO>(p, *ebenen_, dialoge_);
    weltkarte_einrichten(ebenen_->klima, WELT.breite, WELT_RAHMEN);
    for (Steuerelement& s : steuerelemente(*ebenen_)) {
        // An option group's range is asked once: the group tells it only by a fault, which is
        // slow in the browser.
        if (s.art == Steuerelement::Art::Option) {
            for (int i = 0; i < 4; ++i) {
                if (hat_option(*static_cast<const OptionGroup*>(s.modell), i)) {
                    s.optionen |= 1U << i;
                }
            }
        }
        steuer_.emplace(s.name, s);
    }

    breite_ = std::move(breite);
    hoehe_ = std::move(hoehe);
    // The energy plane's list entries wrap at their width as the page's labels do, so that each
    // stands under its predecessor by that one's lines.
    ebenen_->energie.Texthoehe = [this](const std::string& text) {
        return umbrochene_zeilen(text, LISTE_EINTRAG_BREITE, breite_) *
               static_cast<int>(std::ceil(hoehe_(SEITENSCHRIFT, text))) * TWIPS_JE_PIXEL;
    };
}

// Here, where the run's observer is a complete type.
const std::vector<const char*> Webprogramm::DIAGRAMME{"AV_Picture",
                                                      "Picture1",
                                                      "Monatsbilanz",
                                                      "JahrBilanz_Uebersicht",
                                                      "UeberGrafik",
                                                      "UeberJahr",
                                                      "Temperaturen",
                                                      "Heizbilanz",
                                                      "JahrBilanz_Heizen",
                                                      "NutzungsgradMonat",
                                                      "NutzungsgradJahr",
                                                      "Gewinne_N",
                                                      "Verluste_N",
                                                      "Gewinne_S",
                                                      "Verluste_S",
                                                      "Gewinne_O",
                                                      "Verluste_O",
                                                      "Gewinne_W",
                                                      "Verluste_W",
                                                      "StundenProTagMonat",
                                                      "StundenProTagJahr",
                                                      "KuehlbedarfMonat",
                                                      "KuehlbedarfJahr",
                                                      "KuehlGradStundenMonat",
                                                      "KuehlGradStundenJahr",
                                                      "Sankey",
                                                      "Sankey_Kuehlen",
                                                      "Monatsuebersicht",
                                                      "Picture2",
                                                      "Picture3"};

Webprogramm::~Webprogramm() = default;

void Webprogramm::flaeche_anlegen(const std::string& feld, int breite, int hoehe, Rgb hintergrund) {
    flaechen_[feld] = std::make_unique<CanvasFlaeche>(breite, hoehe, hintergrund, breite_, hoehe_);
}

CanvasFlaeche* Webprogramm::flaeche(const std::string& feld) {
    const auto f = flaechen_.find(feld);
    return f == flaechen_.end() ? nullptr : f->second.get();
}

bool Webprogramm::starten() {
    for (const char* n : DIAGRAMME) {
        if (flaeche(n) == nullptr) {
            fehler_ = std::string("the page has no chart ") + n;
            return false;
        }
    }
    auto f = [this](const char* n) -> Surface& { return *flaeche(n); };
    geometrie_ =
        std::make_unique<GeometrieFlaechen>(GeometrieFlaechen{f("AV_Picture"), f("Picture1")});
    uebersicht_ = std::make_unique<UebersichtFlaechen>(
        UebersichtFlaechen{f("Temperaturen"), f("Monatsbilanz"), f("JahrBilanz_Uebersicht"),
                           f("UeberGrafik"), f("UeberJahr")});
    heizen_ = std::make_unique<HeizenFlaechen>(HeizenFlaechen{
        f("Heizbilanz"), f("JahrBilanz_Heizen"), f("NutzungsgradMonat"), f("NutzungsgradJahr"),
        f("Gewinne_N"), f("Verluste_N"), f("Gewinne_S"), f("Verluste_S"), f("Gewinne_O"),
        f("Verluste_O"), f("Gewinne_W"), f("Verluste_W"), heiz_felder_});
    kuehlen_ = std::make_unique<KuehlenFlaechen>(KuehlenFlaechen{
        f("StundenProTagMonat"), f("StundenProTagJahr"), f("KuehlbedarfMonat"),
        f("KuehlbedarfJahr"), f("KuehlGradStundenMonat"), f("KuehlGradStundenJahr")});
    sankey_ = std::make_unique<SankeyFlaechen>(SankeyFlaechen{f("Sankey"), f("Sankey_Kuehlen")});
    energie_ = std::make_unique<EnergieFlaechen>(
        EnergieFlaechen{f("Monatsuebersicht"), f("Picture2"), f("Picture3")});
    for (const auto& [name, flaeche] : flaechen_) {
        flaeche->Cls();
    }
    rechenlauf_ = std::make_unique<Rechenlauf>(p);
    auffrischen_ = std::make_unique<Auffrischtabelle>(
        p, ergebnisebenen(),
        [this](Ebene e) {
            switch (e) {
            case Ebene::Geometrie:
                return eingabe_ == Geometrie;
            case Ebene::Energie:
                return eingabe_ == Energie;
            case Ebene::Uebersicht:
                return ausgabe_ == Uebersicht;
            case Ebene::Heizen:
                return ausgabe_ == Heizen;
            case Ebene::Kuehlen:
                return ausgabe_ == Kuehlen;
            case Ebene::Sankey:
                return ausgabe_ == Sankey;
            case Ebene::KlimaGebaeude:
                return ausgabe_ == KlimaGebaeude;
            }
            return false;
        },
        einstellung_);
    ebenen_->geometrie.Visible = true;
    const bool gut = ausfuehren([this] { io_->start(std::string(), "/", "/"); });
    p.Gestartet = 1;
    gezeigte_zeichnen();
    return gut;
}

Ergebnisebenen Webprogramm::ergebnisebenen() {
    Ergebnisebenen x;
    x.geometrie = geometrie_.get();
    x.uebersicht = uebersicht_.get();
    x.heizen = heizen_.get();
    x.kuehlen = kuehlen_.get();
    x.sankey = sankey_.get();
    x.energie = energie_.get();
    return x;
}

bool Webprogramm::ausfuehren(const std::function<void()>& aktion) {
    bool fehlerfrei = true;
    try {
        aktion();
    } catch (const FatalError& f) {
        fehlerfrei = false;
        fehler_ = f.text(p.Sprache);
    } catch (const Laufzeitfehler& f) {
        fehlerfrei = false;
        fehler_ = f.what();
    }
    // As on the desktop: the results stand after a run that reached its end, fall with a fault
    // or a stopped run, and otherwise stay as they stood.
    const Rechenlauf::Stand lauf = rechenlauf_ ? rechenlauf_->abholen() : Rechenlauf::Stand::Keiner;
    if (!fehlerfrei || lauf == Rechenlauf::Stand::Abgebrochen || p.FormLoadGuard != 0) {
        gueltig_ = false;
    } else if (lauf == Rechenlauf::Stand::Fertig) {
        gueltig_ = true;
    }
    if (gueltig_) {
        fehler_.clear();
        nach_aktion();
    }
    return fehlerfrei;
}

void Webprogramm::nach_aktion() {
    if (eingabe_ == Geometrie) {
        zeichnen(Flaeche::Picture1);
    }
    if (ausgabe_ == Heizen) {
        heiz_felder_ = HeizFelderAusfuellen(p, einstellung_.dezimal);
    }
}

void Webprogramm::zeichnen(Flaeche f) {
    Ergebnisebenen x = ergebnisebenen();
    neu_zeichnen(f, p, x, einstellung_);
}

void Webprogramm::gezeigte_zeichnen() {
    if (!gueltig_) {
        return;
    }
    switch (eingabe_) {
    case Geometrie:
        zeichnen(Flaeche::AV_Picture);
        zeichnen(Flaeche::Picture1);
        break;
    case Energie:
        zeichnen(Flaeche::Monatsuebersicht);
        zeichnen(Flaeche::Picture2);
        break;
    default:
        break;
    }
    switch (ausgabe_) {
    case Uebersicht:
        zeichnen(Flaeche::Monatsbilanz);
        zeichnen(Flaeche::JahrBilanz_Uebersicht);
        zeichnen(Flaeche::UeberGrafik);
        zeichnen(Flaeche::Temperaturen);
        break;
    case Heizen:
        zeichnen(Flaeche::Heizbilanz);
        zeichnen(Flaeche::JahrBilanz_Heizen);
        zeichnen(Flaeche::NutzungsgradMonat);
        zeichnen(Flaeche::Gewinne_N);
        heiz_felder_ = HeizFelderAusfuellen(p, einstellung_.dezimal);
        break;
    case Kuehlen:
        zeichnen(Flaeche::StundenProTagMonat);
        zeichnen(Flaeche::KuehlbedarfMonat);
        zeichnen(Flaeche::KuehlGradStundenMonat);
        break;
    case Sankey:
        zeichnen(Flaeche::Sankey);
        zeichnen(Flaeche::Sankey_Kuehlen);
        break;
    default:
        break;
    }
}

bool Webprogramm::schieben(const std::string& name, void (ScrollField::*schritt)(int),
                           int richtung) {
    const auto s = steuer_.find(name);
    if (s == steuer_.end() || s->second.art != Steuerelement::Art::Scroll) {
        return false;
    }
    auto* feld = static_cast<ScrollField*>(s->second.modell);
    // The window plane's type logic asks which field the user works on.
    if (name.rfind("E_Fenster.", 0) == 0) {
        ebenen_->fenster.Fokus = feld;
    }
    return ausfuehren([feld, schritt, richtung] { (feld->*schritt)(richtung); });
}

bool Webprogramm::pfeil(const std::string& name, int richtung) {
    return schieben(name, &ScrollField::pfeil, richtung);
}

bool Webprogramm::seite(const std::string& name, int richtung) {
    return schieben(name, &ScrollField::seite, richtung);
}

bool Webprogramm::setzen(const std::string& name, int wert) {
    const auto s = steuer_.find(name);
    if (s == steuer_.end()) {
        return false;
    }
    void* m = s->second.modell;
    const bool fenster = name.rfind("E_Fenster.", 0) == 0;
    switch (s->second.art) {
    case Steuerelement::Art::Scroll: {
        auto* feld = static_cast<ScrollField*>(m);
        if (fenster) {
            ebenen_->fenster.Fokus = feld;
        }
        if (wert == feld->Value()) {
            return true;
        }
        return ausfuehren([feld, wert] { feld->setze(wert); });
    }
    case Steuerelement::Art::Liste:
        if (fenster) {
            ebenen_->fenster.Fokus = nullptr;
        }
        return ausfuehren([m, wert] { static_cast<ListField*>(m)->setze_index(wert); });
    case Steuerelement::Art::Check:
        return ausfuehren([m, wert] { static_cast<CheckField*>(m)->setze(wert != 0 ? 1 : 0); });
    case Steuerelement::Art::Option:
        if (!hat_option(*static_cast<OptionGroup*>(m), wert)) {
            return false;
        }
        return ausfuehren([m, wert] { static_cast<OptionGroup*>(m)->setzen(wert); });
    case Steuerelement::Art::Label:
        break;
    }
    return false;
}

bool Webprogramm::klicken(const std::string& name) {
    E_Fenster& f = ebenen_->fenster;
    E_Energie& g = ebenen_->energie;
    for (int i = 0; i < 4; ++i) {
        if (name == "Command_HR(" + std::to_string(i) + ")") {
            return ausfuehren([&f, i] { f.Command_HR_Click(i); });
        }
    }
    for (int i = 1; i <= 9; ++i) {
        if (name == "Label_Auswahl(" + std::to_string(i) + ")") {
            return ausfuehren([&g, i] { g.Label_Auswahl_Click(i); });
        }
    }
    if (name == "Command1") {
        return ausfuehren([&g] { g.Command1_Click(); });
    }
    if (name == "Command2") {
        return ausfuehren([&g] { g.Command2_Click(); });
    }
    if (name == "Command3") {
        return ausfuehren([&g] { g.Command3_Click(); });
    }
    if (name == "Frame_Auswahl") {
        return ausfuehren([&g] { g.Frame_Auswahl_Click(); });
    }
    return false;
}

bool Webprogramm::klima(const std::string& was, int wert, const std::string& text) {
    E_Klima& k = ebenen_->klima;
    if (was == "Option" && wert >= 1 && wert <= 3) {
        using Handler = void (*)(E_Klima&, Projekt&, Dialogs&, bool);
        const Handler h[3] = {Option1_Click, Option2_Click, Option3_Click};
        return ausfuehren([this, &k, h = h[wert - 1]] { h(k, p, dialoge_, true); });
    }
    if (was == "Klimaregionwahl") {
        return ausfuehren([this, &k, wert] {
            k.Klimaregionwahl.waehlen(wert);
            Klimaregionwahl_Click(k, p);
        });
    }
    if (was == "Klimaregionwahl2") {
        return ausfuehren([this, &k, wert] {
            k.Klimaregionwahl2.waehlen(wert);
            Klimaregionwahl2_Click(k, p);
        });
    }
    if (was == "HScroll1") {
        return ausfuehren([&k, wert] { HScroll1_Change(k, wert); });
    }
    if (was == "plz") {
        return ausfuehren([this, &k, &text] {
            k.plz = text.substr(0, 5);
            PLZsuchen_Click(k, p, dialoge_);
        });
    }
    return false;
}

const Bitmap& Webprogramm::karte() {
    const std::string& bild = ebenen_->klima.Picture1;
    if (!karte_ || karte_name_ != bild) {
        karte_ = std::make_unique<Bitmap>(bitmap_lesen("/" + bild));
        karte_name_ = bild;
    }
    return *karte_;
}

bool Webprogramm::karte_klick(int x, int y) {
    return ausfuehren([this, x, y] { Picture1_MouseDown(ebenen_->klima, p, karte(), x, y); });
}

int32_t Webprogramm::stationsfarbe(bool europa, const std::vector<Kartenpunkt>& punkte,
                                   double faktor, int x, int y) {
    const Stationsbild& b = europa ? EUROPA : WELT;
    auto bild = stationsbilder_.find(b.pfad);
    if (bild == stationsbilder_.end()) {
        Bitmap gelesen;
        try {
            gelesen = bitmap_lesen(b.pfad);
        } catch (const FatalError&) {
            // Without its picture the map is white, and its dots still name and pick stations.
            gelesen =
                Bitmap{b.breite, b.hoehe,
                       std::vector<int32_t>(static_cast<std::size_t>(b.breite * b.hoehe), WEISS)};
        }
        bild = stationsbilder_.emplace(b.pfad, std::move(gelesen)).first;
    }
    // An enlarged picture repeats each pixel of the original.
    const int32_t grund = bild->second.farbe(static_cast<int>(std::floor(x / faktor)),
                                             static_cast<int>(std::floor(y / faktor)));
    if (grund < 0) {
        return grund;
    }
    for (auto punkt = punkte.rbegin(); punkt != punkte.rend(); ++punkt) {
        const long dx = x - std::lround(punkt->x);
        const long dy = y - std::lround(punkt->y);
        if (dx * dx + dy * dy <= PUNKT_RADIUS * PUNKT_RADIUS) {
            return punkt->farbe;
        }
    }
    return grund;
}

int32_t Webprogramm::stationsfarbe(int x, int y) {
    const E_Klima& k = ebenen_->klima;
    const bool europa = p.Klimaauswahl == 2;
    return stationsfarbe(
        europa,
        kartenpunkte(europa ? k.listen.Europa : k.listen.Welt, k.Klimaregionwahl2.ListIndex), 1.0,
        x, y);
}

std::string Webprogramm::stationskarte_hover(int x, int y) {
    E_Klima& k = ebenen_->klima;
    if (k.sichtbar != 2 && k.sichtbar != 3) {
        return std::string();
    }
    station_karte_hover(k, p, stationsfarbe(x, y), x, y);
    return k.MausRegion;
}

bool Webprogramm::stationskarte_klick(int x, int y) {
    E_Klima& k = ebenen_->klima;
    if (k.sichtbar != 2 && k.sichtbar != 3) {
        return true;
    }
    const int32_t farbe = stationsfarbe(x, y);
    return ausfuehren(
        [this, &k, farbe, x, y] { station_karte_klick(k, p, farbe, x, y, k.MausRegion); });
}

void Webprogramm::zoom_klima_oeffnen() {
    if (ebenen_->klima.sichtbar == 3) {
        zoom_klima_ = E_Zoom_Klima_oeffnen(ebenen_->klima);
    }
}

std::vector<Kartenpunkt> Webprogramm::zoom_klima_punkte() const {
    return kartenpunkte(ebenen_->klima.listen.Welt, zoom_klima_->Klimaregionwahl2.ListIndex,
                        ZOOM_FAKTOR);
}

std::string Webprogramm::zoom_klima_hover(int x, int y) {
    if (!zoom_klima_) {
        return std::string();
    }
    const int32_t farbe = stationsfarbe(false, zoom_klima_punkte(), ZOOM_FAKTOR, x, y);
    E_Zoom_Klima_hover(*zoom_klima_, ebenen_->klima, farbe, x, y);
    return zoom_klima_->MausRegion;
}

void Webprogramm::zoom_klima_klick(int x, int y) {
    if (zoom_klima_) {
        const int32_t farbe = stationsfarbe(false, zoom_klima_punkte(), ZOOM_FAKTOR, x, y);
        E_Zoom_Klima_klick(*zoom_klima_, ebenen_->klima, farbe, x, y);
    }
}

void Webprogramm::zoom_klima_waehlen(int zeile) {
    if (zoom_klima_) {
        zoom_klima_->Klimaregionwahl2.waehlen(zeile);
    }
}

bool Webprogramm::zoom_klima_schliessen(bool ok) {
    const std::optional<E_Zoom_Klima> z = std::move(zoom_klima_);
    zoom_klima_.reset();
    if (!ok || !z) {
        return true;
    }
    return ausfuehren([this, &z] { E_Zoom_Klima_Command1(*z, ebenen_->klima, p); });
}

std::string Webprogramm::karte_hover(int x, int y) {
    // A map picture that cannot be read names nothing here; the press reports it.
    try {
        return Picture1_Hover(karte(), x, y);
    } catch (const FatalError&) {
        return std::string();
    }
}

void Webprogramm::monat(int m) {
    if (m < 1 || m > 12) {
        return;
    }
    p.Monat_Uebersicht = static_cast<int16_t>(m);
    if (gueltig_ && ausgabe_ == Uebersicht) {
        zeichnen(Flaeche::Temperaturen);
    }
    zoom_zeichnen();
}

void Webprogramm::zoom_zeigen(bool offen) {
    zoom_offen_ = offen;
    zoom_zeichnen();
}

void Webprogramm::zoom_zeichnen() {
    CanvasFlaeche* f = flaeche(ZOOM_FLAECHE);
    if (f == nullptr || !zoom_offen_) {
        return;
    }
    f->Cls();
    // Without valid results the window stays empty, as the overview's chart does.
    if (gueltig_) {
        TemperaturDiagrammZeichnen(p, *f, einstellung_);
    }
}

bool Webprogramm::eingabe_zeigen(int ebene) {
    eingabe_ = ebene;
    ebenen_->geometrie.Visible = ebene == Geometrie;
    ebenen_->fenster.Visible = ebene == Fenster;
    // The geometry plane recalculates and draws its sketch anew when it comes up.
    bool gut = true;
    if (gueltig_ && ebene == Geometrie) {
        gut = ausfuehren([this] { alles_berechnen(p); });
    }
    gezeigte_zeichnen();
    return gut;
}

bool Webprogramm::ausgabe_zeigen(int ebene) {
    ausgabe_ = ebene;
    gezeigte_zeichnen();
    return true;
}

bool Webprogramm::berechnen() {
    return ausfuehren([this] { alles_berechnen(p); });
}

bool Webprogramm::neu() {
    const bool gut = ausfuehren([this] { io_->datei_neu(); });
    gezeigte_zeichnen();
    return gut;
}

bool Webprogramm::oeffnen(const std::string& pfad) {
    const bool gut = ausfuehren([this, &pfad] { io_->datei_oeffnen(pfad); });
    if (gut) {
        weltstation_zeigen();
    }
    gezeigte_zeichnen();
    return gut;
}

void Webprogramm::weltstation_zeigen() {
    E_Klima& k = ebenen_->klima;
    const int i = k.Klimaregionwahl2.ListIndex;
    if (p.Klimaauswahl != 3 || i < 0 || i >= k.listen.Welt.anzahl()) {
        return;
    }
    // As a pick in the list does: left of the strip shown to the map's start, right of it to
    // its end.
    const double x = k.listen.Welt.punkt(i).first * 15;
    if (k.HScroll1 > x) {
        HScroll1_Change(k, 0);
    }
    if (k.HScroll1 + k.picture3f_breite < x) {
        HScroll1_Change(k, k.HScroll1_max);
    }
}

std::string Webprogramm::speichern(bool unter, const std::string& pfad) {
    bool gut = false;
    if (unter) {
        dialoge_.speichern_pfad = pfad;
    }
    ausfuehren([this, unter, &gut] {
        gut = unter ? io_->datei_speichern_unter() : io_->datei_speichern();
    });
    dialoge_.speichern_pfad.reset();
    return gut ? io_->offene_datei() : std::string();
}

std::string Webprogramm::tooltip(const std::string& feld, double x, double y) const {
    const auto f = flaechen_.find(feld);
    if (f == flaechen_.end() || !gueltig_) {
        return std::string();
    }
    const Surface& s = *f->second;
    const char dez = einstellung_.dezimal;
    const std::string& sprache = einstellung_.Sprache;
    if (feld == "Monatsuebersicht") {
        const auto b = flaechen_.find("Picture2");
        if (!auf_saeule_energie(s, *b->second, x, y)) {
            return std::string();
        }
        const int m = tooltip_monat_energie(x);
        return m == 0 ? std::string() : tooltip_Monatsverbrauch(p, m, sprache, dez);
    }
    if (!auf_balken(s, x, y)) {
        return std::string();
    }
    const int m = tooltip_monat(x);
    const UebersichtLegende u = uebersicht_legende(sprache);
    const HeizenLegende h = heizen_legende(sprache);
    const KuehlenLegende k = kuehlen_legende(sprache);
    if (feld == "JahrBilanz_Uebersicht") {
        return tooltip_JahrBilanz_Uebersicht(p, u, dez);
    }
    if (feld == "UeberJahr") {
        return tooltip_UeberJahr(p, u, sprache, dez);
    }
    if (feld == "JahrBilanz_Heizen") {
        return tooltip_JahrBilanz_Heizen(p, h, dez);
    }
    if (feld == "NutzungsgradJahr") {
        return tooltip_NutzungsgradJahr(p, h, dez);
    }
    if (feld == "StundenProTagJahr") {
        return tooltip_StundenProTagJahr(p, sprache, dez);
    }
    if (feld == "KuehlbedarfJahr") {
        return tooltip_KuehlbedarfJahr(p, k, dez);
    }
    if (feld == "KuehlGradStundenJahr") {
        return tooltip_KuehlGradStundenJahr(p, k, sprache, dez);
    }
    if (m == 0) {
        return std::string();
    }
    if (feld == "Monatsbilanz") {
        return tooltip_Monatsbilanz(p, m, u, dez);
    }
    if (feld == "UeberGrafik") {
        return tooltip_UeberGrafik(p, m, u, dez);
    }
    if (feld == "Heizbilanz") {
        return tooltip_Heizbilanz(p, m, h, dez);
    }
    if (feld == "NutzungsgradMonat") {
        return tooltip_NutzungsgradMonat(p, m, h, dez);
    }
    if (feld == "StundenProTagMonat") {
        return tooltip_StundenProTagMonat(p, m, sprache, dez);
    }
    if (feld == "KuehlbedarfMonat") {
        return tooltip_KuehlbedarfMonat(p, m, k, dez);
    }
    if (feld == "KuehlGradStundenMonat") {
        return tooltip_KuehlGradStundenMonat(p, m, k, dez);
    }
    return std::string();
}

std::string Webprogramm::ergebnis() const {
    return ergebnis_json(p, false);
}

std::string
Webprogramm::report(const std::function<double(const std::string&)>& times_breite) const {
    const Reportquelle q{p, *ebenen_, einstellung_.dezimal, times_breite};
    return report_der_sprache(q, 0);
}

std::string Webprogramm::temperaturen() const {
    return temperaturverlauf_jahrestext(p, einstellung_.dezimal);
}
