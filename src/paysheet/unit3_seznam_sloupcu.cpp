#include "paysheet/unit3_seznam_sloupcu.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/text.h"
#include "paysheet/sloupce.h"
#include "paysheet/unit4_sloupec.h"
#include "report/nahled.h"
#include "report/tabulkova.h"

namespace paysheet {

namespace {

constexpr const char* k_neni = "není";
constexpr const char* k_bez_hodnoty = "...";
constexpr int k_modul_srazek = 10;

template <std::size_t N>
std::string polozka(const std::array<const char*, N>& texty, std::int64_t index,
                    const char* jinak) {
    return index >= 0 && index < static_cast<std::int64_t>(N)
               ? texty[static_cast<std::size_t>(index)]
               : jinak;
}

std::string dny_slovy(std::int64_t jake) {
    static constexpr std::array<const char*, 3> k_vety{
        "Dny se nezadávají.", "Dny jsou odpracované.", "Dny jsou neodpracované."};
    return polozka(k_vety, jake, "");
}

std::string hodiny_slovy(std::int64_t jake) {
    static constexpr std::array<const char*, 4> k_vety{
        "Hodiny se nezadávají.", "Hodiny jsou odpracované.", "Hodiny jsou neodpracované.",
        "Hodiny vedlejší pracovní poměr."};
    return polozka(k_vety, jake, "");
}

TForm3::Hodnota hodnota_na_panelu(const store::Table& ridici, int n) {
    const auto pole = [n](const char* nazev) { return fmt::format("{}_{}", nazev, n); };
    const std::string nadpis = ridici.text(pole("nadpis"));
    if (!base::neprazdny(nadpis)) {
        return {nadpis, k_bez_hodnoty, k_bez_hodnoty, k_bez_hodnoty, k_bez_hodnoty};
    }
    const store::Value konstanta = ridici.value(pole("Konstanta"));
    return {nadpis, ridici.text(pole("predrazeno")), ridici.text(pole("Min")),
            ridici.text(pole("Max")),
            konstanta.is_empty() ? "" : base::castka_prosta(konstanta.as_number())};
}

}  // namespace

TForm3::TForm3(shell::Session& session)
    : nadpis("Parametry výplatní listiny - " + session.radek_firmy), session_(session) {}

std::string TForm3::varianta_vypoctu(int var_vyp) {
    static constexpr std::array<const char*, 12> k_varianty{"dosadit hodnotu 1",
                                                            "dosadit hodnotu 2",
                                                            "dosadit hodnotu 3",
                                                            "dosadit hodnotu 4",
                                                            "1 x 2",
                                                            "1 x 2 / 100",
                                                            "1 x 2 x 3 / 100",
                                                            "1 x 2 + 3 x 4",
                                                            "1 x 2 x ( 3 + 100 ) / 100",
                                                            "1 x 2 x 3",
                                                            "1 / 2 x 3 + 4",
                                                            "1 x 2 / 100 x 3 / 100"};
    return polozka(k_varianty, var_vyp - 1, "???");
}

void TForm3::FormShow() {
    ridici_.set_connection(session_.data());
    ridici_.set_table_name("Ridici");
    ridici_.set_index_name("By_tr1");
    ridici_.open();
    nacti_sloupce(0);
}

/// Reads the grid anew and stands on a row, or on the first when there is no such.
void TForm3::nacti_sloupce(std::int64_t pocitadlo) {
    sloupce.clear();
    int stojime_na = 0;
    ridici_.refresh();
    for (ridici_.first(); !ridici_.eof(); ridici_.next()) {
        const std::int64_t veta = ridici_.integer("Pocitadlo");
        if (veta == pocitadlo) stojime_na = static_cast<int>(sloupce.size());
        const int modul = static_cast<int>(ridici_.integer("Modul"));
        sloupce.push_back({veta, modul, modul_slovy(modul),
                           static_cast<int>(ridici_.integer("Sloupec")), ridici_.text("text")});
    }
    opravit_povoleno = !sloupce.empty();
    vyber_radek(stojime_na);
}

void TForm3::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(sloupce.size()) ? novy : -1;
    const int modul = radek < 0 ? 0 : sloupce[static_cast<std::size_t>(radek)].modul;
    panel_viditelny = modul == 1 || modul == 3;
    panel_znacek_viditelny = modul == k_modul_srazek;
    zobrazit_prazdny_panel();
    if (panel_viditelny) zobrazit_hodnoty_na_panelu();
    oznam_zmenu();
}

void TForm3::zobrazit_prazdny_panel() {
    hodnoty = {};
    for (std::string* text : {&vypocet, &dny, &hodiny, &datum, &stredisko, &vykon, &stroj})
        text->clear();
}

void TForm3::zobrazit_hodnoty_na_panelu() {
    if (!ridici_.locate("Pocitadlo", sloupce[static_cast<std::size_t>(radek)].pocitadlo)) return;
    for (std::size_t i = 0; i < hodnoty.size(); ++i)
        hodnoty[i] = hodnota_na_panelu(ridici_, static_cast<int>(i) + 1);
    vypocet = varianta_vypoctu(static_cast<int>(ridici_.integer("var_vyp")));
    dny = dny_slovy(ridici_.integer("Jake_dny"));
    hodiny = hodiny_slovy(ridici_.integer("Jake_hodiny"));
    const auto ano_ne = [this](const char* pole) { return ridici_.boolean(pole) ? "ANO" : "ne"; };
    datum = ano_ne("Datum");
    stredisko = ano_ne("Stredisko");
    vykon = ano_ne("Vykon");
    stroj = ano_ne("Stroj");
}

void TForm3::btOpravitClick() {
    if (radek < 0) return;
    const std::int64_t pocitadlo = sloupce[static_cast<std::size_t>(radek)].pocitadlo;
    if (!ridici_.locate("Pocitadlo", pocitadlo)) return;
    TForm4 form(session_, ridici_);
    session_.obsluha().ukaz_modalne(form);
    nacti_sloupce(pocitadlo);
}

void TForm3::btPridatClick() {
    session_.obsluha().hlaska("Přidání sloupce do výplatní listiny v této verzi ještě není.");
}

void TForm3::btSmazatClick() {
    session_.obsluha().hlaska("Vypuštění sloupce z výplatní listiny v této verzi ještě není.");
}

void TForm3::btTiskClick() {
    report::TabulkovaSestava sestava;
    sestava.nazev = nadpis;
    sestava.zahlavi = {"Vytištěno " + base::datum_textem(session_.hodiny().nyni().datum)};
    sestava.sloupce = {{"modul", 14, report::Zarovnani::vpravo},
                       {"název modulu", 45},
                       {"sloupec", 16, report::Zarovnani::vpravo},
                       {"text", 60},
                       {"výpočet", 50}};
    for (const Sloupec& s : sloupce) {
        const bool pocita =
            (s.modul == 1 || s.modul == 3) && ridici_.locate("Pocitadlo", s.pocitadlo);
        sestava.radky.push_back(
            {std::to_string(s.modul), s.calModulSlovy, std::to_string(s.sloupec), s.text,
             pocita ? varianta_vypoctu(static_cast<int>(ridici_.integer("var_vyp"))) : ""});
    }
    report::TFUsrPrev nahled(report::sestav_tabulku(sestava));
    session_.obsluha().ukaz_modalne(nahled);
}

void TForm3::btZpetClick() {
    ridici_.close();
    zavreno = true;
    oznam_zmenu();
}

void Vypln_formular_3(TForm3& form, const shell::RidiciZorv& z) {
    const auto rozsah = [](int od, int do_) {
        return od == 0 && do_ == 0 ? k_neni : fmt::format("{} až {}", od, do_);
    };
    const auto jeden = [](int sloupec) { return sloupec == 0 ? k_neni : std::to_string(sloupec); };
    form.moduly = {rozsah(z.modul1_od, z.modul1_do),
                   jeden(z.modul2),
                   rozsah(z.modul3_od, z.modul3_do),
                   jeden(z.modul4),
                   rozsah(z.modul5_od, z.modul5_do),
                   jeden(z.modul6),
                   jeden(z.modul7),
                   jeden(z.modul8),
                   jeden(z.modul9),
                   rozsah(z.modul10_od, z.modul10_do),
                   jeden(z.modul11),
                   jeden(z.modul12),
                   jeden(z.modul13),
                   jeden(z.modul14)};
}

void acNastaveniVLExecute(shell::Session& session) {
    TForm3 form(session);
    Vypln_formular_3(form, session.ridici_zorv);
    form.FormShow();
    session.obsluha().ukaz_modalne(form);
    Nacti_sloupce_slovy(session);
}

}  // namespace paysheet
