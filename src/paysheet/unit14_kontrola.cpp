#include "paysheet/unit14_kontrola.h"

#include <fmt/format.h>
#include <optional>

#include "base/text.h"
#include "paysheet/unit14_pole.h"
#include "shell/hodnota_text.h"

namespace paysheet {

namespace {

using F = TForm14;
using Nalez = std::optional<ChybaNastaveni>;

/// The columns of a module; none when its first column is 0.
struct RozsahModulu {
    int od, do_;
    bool obsahuje(std::string_view text) const {
        return od > 0 && shell::presne_cele(text, od, do_).has_value();
    }
};

/// A column number that, when given, must lie in a module.
struct PoleModulu {
    std::string F::*text;
    const char* ovladac;
    const char* zprava;
};

constexpr PoleModulu k_modul1[] = {
    {&F::Edit1, "Edit1", "Sloupec pro stálý plat neodpovídá modulu č. 1."},
    {&F::Edit2, "Edit2", "Sloupec pro OSOH 1 neodpovídá modulu č. 1."},
    {&F::Edit4, "Edit4", "Sloupec pro OSOH 2 neodpovídá modulu č. 1."},
    {&F::Edit6, "Edit6", "Sloupec pro OSOH 3 neodpovídá modulu č. 1."},
    {&F::Edit8, "Edit8", "Sloupec pro OSOH 4 neodpovídá modulu č. 1."},
    {&F::Edit10, "Edit10", "Sloupec pro OSOH 5 neodpovídá modulu č. 1."},
};
constexpr PoleModulu k_davky{&F::scPenzijni32, "scPenzijni32",
                             "Sloupec v oblasti dávek neodpovídá modulu 5."};
constexpr PoleModulu k_srazky{&F::scPenzijni33, "scPenzijni33",
                              "Sloupec v oblasti srážek neodpovídá modulu 10."};

Nalez mimo_modul(const F& form, const PoleModulu& pole, RozsahModulu modul, Stranka stranka) {
    const std::string& text = form.*pole.text;
    if (!base::neprazdny(text) || modul.obsahuje(text)) return {};
    return ChybaNastaveni{pole.zprava, stranka, pole.ovladac};
}

Nalez sloupce_modulu_1(const F& form, const shell::RidiciZorv& zaznam) {
    for (const PoleModulu& pole : k_modul1) {
        Nalez nalez = mimo_modul(form, pole, {zaznam.modul1_od, zaznam.modul1_do},
                                 Stranka::zakladni_parametry);
        if (nalez) return nalez;
    }
    return {};
}

/// The employer's percentage is tested only where the worker's one stands.
std::vector<ChybaNastaveni> procenta_pojisteni(const F& form) {
    const auto chyba = [](const char* ovladac, const char* zprava, bool pokracovat = false) {
        return ChybaNastaveni{zprava, Stranka::legislativa, ovladac, pokracovat};
    };
    if (!base::neprazdny(form.Edit13)) {
        return {chyba("Edit13", "Nezadali jste procento pro sociální pojištění u pracovníka.")};
    }
    std::vector<ChybaNastaveni> nalezy;
    if (!base::neprazdny(form.scProcSoc2)) {
        nalezy.push_back(chyba("scProcSoc2",
                               "Nezadali jste aktuální procento sociálního pojištění placené "
                               "zaměstnavatelem.",
                               true));
    }
    if (!base::neprazdny(form.Edit15)) {
        nalezy.push_back(
            chyba("Edit15", "Nezadali jste procento pro zdravotní pojištění u pracovníka."));
    } else if (!base::neprazdny(form.Edit16)) {
        nalezy.push_back(
            chyba("Edit16", "Nezadali jste procento pro zdravotní pojištění za organizaci."));
    }
    return nalezy;
}

Nalez penzijni_pripojisteni(const F& form, const shell::RidiciZorv& zaznam) {
    constexpr Stranka k_stranka = Stranka::pojisteni_dane_uctovani;
    const bool davky = base::neprazdny(form.scPenzijni32);
    if (davky != base::neprazdny(form.scPenzijni33)) {
        return ChybaNastaveni{"U platby pro penzijní fond musíte zadat obě hodnoty nebo žádnou.",
                              k_stranka, davky ? k_srazky.ovladac : k_davky.ovladac};
    }
    if (Nalez nalez = mimo_modul(form, k_davky, {zaznam.modul5_od, zaznam.modul5_do}, k_stranka)) {
        return nalez;
    }
    return mimo_modul(form, k_srazky, {zaznam.modul10_od, zaznam.modul10_do}, k_stranka);
}

/// Wage in kind is always taxed; from the insurance bases it may be left out.
Nalez naturalni_mzda_mimo_dan(const F& form, const shell::RidiciZorv& zaznam) {
    constexpr std::size_t k_dan = 2;
    const RozsahModulu modul3{zaznam.modul3_od, zaznam.modul3_do};
    for (std::size_t c = 0; c < form.scNejdou[k_dan].size(); ++c) {
        if (!modul3.obsahuje(form.scNejdou[k_dan][c])) continue;
        return ChybaNastaveni{"Sloupec pro naturální mzdu nemůže být vyloučen z daně.",
                              Stranka::pojisteni_dane_uctovani, ovladac_nejdou(k_dan, c)};
    }
    return {};
}

/// What could not be stored at all: a missing or wrong number, a text too long.
Nalez neulozitelne_pole(const F& form) {
    for (const PoleNastaveni& pole : pole_nastaveni()) {
        std::string zprava = chyba_pole(pole, form.*pole.text);
        if (!zprava.empty()) return ChybaNastaveni{zprava, pole.stranka, pole.ovladac};
    }
    for (std::size_t r = 0; r < form.scNejdou.size(); ++r) {
        for (std::size_t c = 0; c < form.scNejdou[r].size(); ++c) {
            const std::string zprava = chyba_cisla_sloupce(
                "Sloupce hrubých mezd, které NEJDOU do pojištění a daně", form.scNejdou[r][c]);
            if (zprava.empty()) continue;
            return ChybaNastaveni{zprava, Stranka::pojisteni_dane_uctovani, ovladac_nejdou(r, c)};
        }
    }
    if (form.scKodSazbyPojistneho < 0) {
        return ChybaNastaveni{"Nezadali jste údaj \"Kód sazby pojistného (ČSSZ)\".",
                              Stranka::legislativa, "scKodSazbyPojistneho"};
    }
    return {};
}

}  // namespace

std::vector<ChybaNastaveni> zkontroluj_nastaveni(const TForm14& form,
                                                 const shell::RidiciZorv& zaznam) {
    if (const Nalez nalez = sloupce_modulu_1(form, zaznam)) return {*nalez};
    std::vector<ChybaNastaveni> nalezy = procenta_pojisteni(form);
    if (!nalezy.empty() && !nalezy.back().pokracovat) return nalezy;
    Nalez posledni = penzijni_pripojisteni(form, zaznam);
    if (!posledni) posledni = naturalni_mzda_mimo_dan(form, zaznam);
    if (!posledni) posledni = neulozitelne_pole(form);
    if (posledni) nalezy.push_back(*posledni);
    return nalezy;
}

}  // namespace paysheet
