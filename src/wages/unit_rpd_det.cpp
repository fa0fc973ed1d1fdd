#include "wages/unit_rpd_det.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "base/klavesy.h"
#include "base/text.h"

namespace wages {
namespace {

constexpr std::array k_dny{"Pondělí", "Úterý", "Středa", "Čtvrtek", "Pátek", "Sobota", "Neděle"};
constexpr std::array k_typy{"Základní", "Skupinový"};
constexpr int k_skupinovy = 1;
constexpr int k_znaku_bunky = 5;

std::string pole_fondu(std::size_t mesic_od_nuly) {
    return fmt::format("Fond{}", mesic_od_nuly + 1);
}

/// Of a table or of a query.
template <class Zdroj>
BunkyRoku nacti_bunky(const Zdroj& rpd) {
    BunkyRoku bunky;
    for (std::size_t m = 0; m < bunky.size(); ++m)
        bunky[m] = bunky_z_textu(rpd.text(pole_fondu(m)));
    return bunky;
}

}  // namespace

ZaznamKalendare zaznam_kalendare(const store::Table& rpd) {
    return {static_cast<int>(rpd.integer("Rok")), static_cast<int>(rpd.integer("Typ")),
            rpd.text("Nazev"), nacti_bunky(rpd)};
}

BunkyRoku bunky_roku(const store::Query& rpd) {
    return nacti_bunky(rpd);
}

const char* typ_kalendare_slovy(int typ) {
    return typ == 0 ? k_typy.front() : k_typy.back();
}

const char* den_v_tydnu_slovy(int den_v_tydnu) {
    return k_dny.at(static_cast<std::size_t>(den_v_tydnu - 1));
}

TFRpdDet::TFRpdDet(shell::Session& session, store::Table& rpd, std::string nadpis_,
                   ZaznamKalendare zaznam)
    : nadpis(std::move(nadpis_)),
      Nazev(std::move(zaznam.nazev)),
      Rok(zaznam.rok),
      Typ(zaznam.typ == 0 ? 0 : k_skupinovy),
      mesic(session.hodiny().dnes().mesic - 1),
      session_(session),
      rpd_(rpd),
      puvodni_typ_(zaznam.typ),
      rok_(std::move(zaznam.bunky)) {
    bunky = mesic_roku();
    spocti();
}

void TFRpdDet::FormShow() {
    fokus = "Nazev";
    oznam_zmenu();
}

int TFRpdDet::dnu() const {
    return base::dni_v_mesici(mesic + 1, Rok);
}

TFRpdDet::Den TFRpdDet::den(int cislo) const {
    if (cislo < 1 || cislo > dnu()) return {"", 1, DruhDne::neni, false};
    const base::Datum datum{Rok, mesic + 1, cislo};
    const int v_tydnu = base::den_v_tydnu(datum);
    const DruhDne druh = base::je_svatek(datum) ? DruhDne::svatek
                         : v_tydnu > 5          ? DruhDne::vikend
                                                : DruhDne::pracovni;
    return {den_v_tydnu_slovy(v_tydnu), v_tydnu, druh,
            bunky[static_cast<std::size_t>(cislo - 1)] == k_bez_prace};
}

bool TFRpdDet::povol_klavesu(char znak, std::string_view dosud) const {
    const bool znak_casu =
        (znak >= '0' && znak <= '9') || znak == ':' || znak == ',' || znak == '.';
    if (znak == base::k_backspace || znak == base::k_enter) return true;
    if (znak_casu && base::hlidej_delku_klavesy(znak, dosud, k_znaku_bunky)) return true;
    session_.obsluha().pipni();
    return false;
}

void TFRpdDet::zmena_mesice(int novy) {
    prijmi_rozepsane();
    mesic = novy;
    bunky = mesic_roku();
    spocti();
    oznam_zmenu();
}

void TFRpdDet::zmena_roku() {
    spocti();
    oznam_zmenu();
}

void TFRpdDet::opusteni_bunky(int cislo) {
    const auto i = static_cast<std::size_t>(cislo - 1);
    if (bunky[i] == mesic_roku()[i]) return;
    if (const auto cas = bunka_z_textu(bunky[i])) {
        if (*cas != mesic_roku()[i]) naposledy_upravena_ = *cas;
        zapis_bunku(cislo, *cas);
    } else {
        bunky[i] = mesic_roku()[i];
        session_.obsluha().pipni();
    }
    spocti();
    oznam_zmenu();
}

void TFRpdDet::enter_v_bunce(int cislo) {
    opusteni_bunky(cislo);
    const int dalsi = cislo + 1;
    if (dalsi > dnu()) {
        fokus = "acOK";
        oznam_zmenu();
        return;
    }
    const std::string& tato = mesic_roku()[static_cast<std::size_t>(cislo - 1)];
    const DruhDne druh = den(dalsi).druh;
    const bool volno = druh == DruhDne::vikend || druh == DruhDne::svatek;
    if (vlozi_se_do_nasledujiciho(
            {scVkladatDoNasledujiciho, scPrepisovatSvatky, scPrepisovatVyplnene}, volno,
            mesic_roku()[static_cast<std::size_t>(dalsi - 1)])) {
        zapis_bunku(dalsi, naposledy_upravena_.empty() ? tato : naposledy_upravena_);
        spocti();
    }
    fokus = fmt::format("den_{}", dalsi);
    oznam_zmenu();
}

void TFRpdDet::acOKExecute() {
    prijmi_rozepsane();
    if (!base::neprazdny(Nazev)) {
        session_.obsluha().hlaska(
            "Údaj <Název> musí být vyplněn.\r\n\r\n"
            "Opravte chyby a zkuste údaje uložit znovu.");
        fokus = "Nazev";
        oznam_zmenu();
        return;
    }
    uloz();
    vysledek_ok = true;
    zavreno = true;
    oznam_zmenu();
}

void TFRpdDet::acZpetExecute() {
    rpd_.cancel();
    zavreno = true;
    oznam_zmenu();
}

void TFRpdDet::zapis_bunku(int cislo, const std::string& hodnota) {
    const auto i = static_cast<std::size_t>(cislo - 1);
    bunky[i] = mesic_roku()[i] = hodnota;
}

/// A cell may be left without an event: by a shortcut, or by choosing another month.
void TFRpdDet::prijmi_rozepsane() {
    for (int i = 1; i <= static_cast<int>(bunky.size()); ++i)
        opusteni_bunky(i);
}

/// The calendar without funds of days that its year does not have.
BunkyRoku TFRpdDet::platne_bunky() const {
    BunkyRoku platne = rok_;
    for (std::size_t m = 0; m < platne.size(); ++m) {
        const int dnu_mesice = base::dni_v_mesici(static_cast<int>(m) + 1, Rok);
        std::fill(platne[m].begin() + dnu_mesice, platne[m].end(), k_bez_prace);
    }
    return platne;
}

void TFRpdDet::spocti() {
    const BunkyRoku platne = platne_bunky();
    soucet_mesice = cas_textem(minut_mesice(platne[static_cast<std::size_t>(mesic)]));
    soucet_roku = cas_textem(minut_roku(platne));
}

void TFRpdDet::uloz() {
    const base::DatumCas ted = session_.hodiny().nyni();
    if (rpd_.value("Vytvoreno").is_empty()) rpd_.set("Vytvoreno", ted);
    rpd_.set("Zmeneno", ted);
    rpd_.set("Rok", Rok);
    rpd_.set("Typ", Typ == 0 ? 0 : std::max(puvodni_typ_, k_skupinovy));
    rpd_.set("Nazev", base::orez(Nazev));
    const BunkyRoku platne = platne_bunky();
    for (std::size_t m = 0; m < platne.size(); ++m)
        rpd_.set(pole_fondu(m), text_z_bunek(platne[m]));
    store::Transaction transakce(session_.data());
    rpd_.post();
    transakce.commit();
}

}  // namespace wages
