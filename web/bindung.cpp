// SPDX-License-Identifier: GPL-3.0-or-later
// The program's interface to the page's JavaScript: one object per run, its actions by control
// name, what changed in its state as one JSON text, and each chart's command list as views into the
// module's memory, so that a redraw crosses over once per chart.
#include "web/Webprogramm.h"

#include "calc/c_mod.h"
#include "charts/Ebenenlage.h"
#include "project/c_glob.h"
#include "report/Textmass.h"

#include <emscripten/bind.h>
#include <emscripten/val.h>

#include <exception>
#include <map>
#include <memory>
#include <utility>

using emscripten::val;

namespace {

// The page measures texts with its own fonts; a text is measured once per font.
class Seitenmass {
public:
    explicit Seitenmass(val seite) : seite_(std::move(seite)) {}
    double breite(const std::string& font, const std::string& text) {
        const auto schluessel = std::make_pair(font, text);
        const auto f = breiten_.find(schluessel);
        if (f != breiten_.end()) {
            return f->second;
        }
        const double b = seite_.call<double>("textbreite", font, text);
        breiten_.emplace(schluessel, b);
        return b;
    }
    double hoehe(const std::string& font) {
        const auto f = hoehen_.find(font);
        if (f != hoehen_.end()) {
            return f->second;
        }
        const double h = seite_.call<double>("texthoehe", font);
        hoehen_.emplace(font, h);
        return h;
    }

private:
    val seite_;
    std::map<std::pair<std::string, std::string>, double> breiten_;
    std::map<std::string, double> hoehen_;
};

// One run of the program for the page. `seite` answers textbreite(font, text),
// texthoehe(font) and frage(text, titel, knoepfe) with 0 OK, 1 Yes, 2 No, 3 Cancel.
class Seitenprogramm {
public:
    Seitenprogramm(const std::string& sprache, const std::string& klima, val seite)
        : seite_(seite), mass_(std::make_shared<Seitenmass>(seite)) {
        dialoge_.frage = [this](const std::string& text, const std::string& titel,
                                Dialogs::Knoepfe k) {
            const int a = seite_.call<int>("frage", text, titel, static_cast<int>(k));
            switch (a) {
            case 1:
                return Dialogs::Antwort::Ja;
            case 2:
                return Dialogs::Antwort::Nein;
            case 3:
                return Dialogs::Antwort::Abbrechen;
            default:
                return Dialogs::Antwort::OK;
            }
        };
        auto m = mass_;
        // The page's one record, as a program's main() holds it.
        programm_ = std::make_unique<Webprogramm>(
            projekt(), sprache, klima,
            [m](const std::string& font, const std::string& text) { return m->breite(font, text); },
            [m](const std::string& font, const std::string&) { return m->hoehe(font); }, dialoge_);
    }

    void flaeche_anlegen(const std::string& feld, int breite, int hoehe, int farbe) {
        programm_->flaeche_anlegen(feld, breite, hoehe,
                                   Rgb{static_cast<uint8_t>(farbe >> 16),
                                       static_cast<uint8_t>(farbe >> 8),
                                       static_cast<uint8_t>(farbe)});
    }
    bool starten() { return programm_->starten(); }
    bool pfeil(const std::string& n, int r) { return programm_->pfeil(n, r); }
    bool seite(const std::string& n, int r) { return programm_->seite(n, r); }
    bool setzen(const std::string& n, int w) { return programm_->setzen(n, w); }
    bool klicken(const std::string& n) { return programm_->klicken(n); }
    bool klima(const std::string& was, int w, const std::string& t) {
        return programm_->klima(was, w, t);
    }
    bool karte_klick(int x, int y) { return programm_->karte_klick(x, y); }
    std::string karte_hover(int x, int y) { return programm_->karte_hover(x, y); }
    void zoom_zeigen(bool offen) { programm_->zoom_zeigen(offen); }
    void zoom_klima_oeffnen() { programm_->zoom_klima_oeffnen(); }
    std::string zoom_klima_hover(int x, int y) { return programm_->zoom_klima_hover(x, y); }
    void zoom_klima_klick(int x, int y) { programm_->zoom_klima_klick(x, y); }
    void zoom_klima_waehlen(int zeile) { programm_->zoom_klima_waehlen(zeile); }
    bool zoom_klima_schliessen(bool ok) { return programm_->zoom_klima_schliessen(ok); }
    bool stationskarte_klick(int x, int y) { return programm_->stationskarte_klick(x, y); }
    std::string stationskarte_hover(int x, int y) { return programm_->stationskarte_hover(x, y); }
    void monat(int m) { programm_->monat(m); }
    bool eingabe_zeigen(int e) { return programm_->eingabe_zeigen(e); }
    bool ausgabe_zeigen(int e) { return programm_->ausgabe_zeigen(e); }
    bool berechnen() { return programm_->berechnen(); }
    bool neu() { return programm_->neu(); }
    bool oeffnen(const std::string& pfad) { return programm_->oeffnen(pfad); }
    std::string speichern(bool unter, const std::string& pfad) {
        return programm_->speichern(unter, pfad);
    }
    std::string aenderungen() { return programm_->aenderungen(); }
    std::string tooltip(const std::string& f, double x, double y) const {
        return programm_->tooltip(f, x, y);
    }
    std::string ergebnis() const { return programm_->ergebnis(); }
    std::string report() const {
        return programm_->report([](const std::string& t) { return times_breite(t); });
    }
    std::string temperaturen() const { return programm_->temperaturen(); }
    const Projekt& datensatz() const { return programm_->p; }
    // The chart's commands as a Float64Array view (valid until the next call into the module).
    val befehle(const std::string& feld) {
        CanvasFlaeche* f = programm_->flaeche(feld);
        if (f == nullptr) {
            return val::null();
        }
        return val(emscripten::typed_memory_view(f->befehle().size(), f->befehle().data()));
    }
    // Its texts and fonts, in the order the commands name them.
    val texte(const std::string& feld) {
        val liste = val::array();
        if (CanvasFlaeche* f = programm_->flaeche(feld)) {
            for (const std::string& t : f->texte()) {
                liste.call<void>("push", t);
            }
        }
        return liste;
    }

private:
    val seite_;
    std::shared_ptr<Seitenmass> mass_;
    Seitendialoge dialoge_;
    std::unique_ptr<Webprogramm> programm_;
};

// The bare recalculation on a copy of the page's record, which has no charts to tell: the
// benchmark's figure beside the native alles_berechnen.
class Rechenprobe {
public:
    explicit Rechenprobe(const Seitenprogramm& s) : kopie_(s.datensatz()) {}
    // False where the run stopped short (a fault, or a record still being built up).
    bool rechnen() {
        try {
            alles_berechnen(kopie_);
            return kopie_.FormLoadGuard == 0;
        } catch (const std::exception&) {
            return false;
        }
    }

private:
    Projekt kopie_;
};

// The places in the enlarged temperature window of `breite` x `hoehe` pixels, as JSON.
std::string zoom_lage_json(int breite, int hoehe) {
    const ZoomLage l = zoom_lage(breite, hoehe);
    std::string j = "{\"Temperaturen\":[" + std::to_string(l.Temperaturen_Width) + "," +
                    std::to_string(l.Temperaturen_Height) + "],\"Command_Schliessen\":[" +
                    std::to_string(l.Schliessen_Left) + "," + std::to_string(l.Schliessen_Top) +
                    "],\"Monatsbutton\":[";
    for (std::size_t i = 0; i < l.Monatsbutton_Left.size(); ++i) {
        j += (i > 0 ? ",[" : "[") + std::to_string(l.Monatsbutton_Left[i]) + "," +
             std::to_string(l.Monatsbutton_Width[i]) + "]";
    }
    return j + "]}";
}

} // namespace

EMSCRIPTEN_BINDINGS(velmaris) {
    emscripten::function("zoom_lage", &zoom_lage_json);
    emscripten::class_<Seitenprogramm>("Programm")
        .constructor<std::string, std::string, val>()
        .function("flaeche_anlegen", &Seitenprogramm::flaeche_anlegen)
        .function("starten", &Seitenprogramm::starten)
        .function("pfeil", &Seitenprogramm::pfeil)
        .function("seite", &Seitenprogramm::seite)
        .function("setzen", &Seitenprogramm::setzen)
        .function("klicken", &Seitenprogramm::klicken)
        .function("klima", &Seitenprogramm::klima)
        .function("karte_klick", &Seitenprogramm::karte_klick)
        .function("karte_hover", &Seitenprogramm::karte_hover)
        .function("stationskarte_klick", &Seitenprogramm::stationskarte_klick)
        .function("stationskarte_hover", &Seitenprogramm::stationskarte_hover)
        .function("monat", &Seitenprogramm::monat)
        .function("zoom_zeigen", &Seitenprogramm::zoom_zeigen)
        .function("zoom_klima_oeffnen", &Seitenprogramm::zoom_klima_oeffnen)
        .function("zoom_klima_hover", &Seitenprogramm::zoom_klima_hover)
        .function("zoom_klima_klick", &Seitenprogramm::zoom_klima_klick)
        .function("zoom_klima_waehlen", &Seitenprogramm::zoom_klima_waehlen)
        .function("zoom_klima_schliessen", &Seitenprogramm::zoom_klima_schliessen)
        .function("eingabe_zeigen", &Seitenprogramm::eingabe_zeigen)
        .function("ausgabe_zeigen", &Seitenprogramm::ausgabe_zeigen)
        .function("berechnen", &Seitenprogramm::berechnen)
        .function("neu", &Seitenprogramm::neu)
        .function("oeffnen", &Seitenprogramm::oeffnen)
        .function("speichern", &Seitenprogramm::speichern)
        .function("aenderungen", &Seitenprogramm::aenderungen)
        .function("tooltip", &Seitenprogramm::tooltip)
        .function("ergebnis", &Seitenprogramm::ergebnis)
        .function("report", &Seitenprogramm::report)
        .function("temperaturen", &Seitenprogramm::temperaturen)
        .function("befehle", &Seitenprogramm::befehle)
        .function("texte", &Seitenprogramm::texte);
    emscripten::class_<Rechenprobe>("Rechenprobe")
        .constructor<const Seitenprogramm&>()
        .function("rechnen", &Rechenprobe::rechnen);
}
