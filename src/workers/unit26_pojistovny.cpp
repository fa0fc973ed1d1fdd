#include "workers/unit26_pojistovny.h"

#include <fmt/format.h>

#include "base/text.h"
#include "workers/ciselnik_pouziti.h"
#include "workers/fixni_spojeni.h"

namespace workers {
namespace {

constexpr long long k_nejvetsi_cislo = 99;  // workers' cards and lists show two digits
constexpr std::size_t k_pole_uctu = 2;      // in the list of fields below

struct Pojistovna {
    const char* nazev;
    const char* kod;
};

/// Health insurers as registered in 2022; the names are shortened to what the field takes.
constexpr Pojistovna k_zdravotni_pojistovny[] = {
    {"Všeobecná zdrav. pojišťovna ČR", "111"}, {"Vojenská zdrav. pojišťovna ČR", "201"},
    {"Česká průmyslová zdr. pojišť.", "205"},  {"Oborová zdravotní pojišťovna", "207"},
    {"Zaměstnanecká pojišťovna Škoda", "209"}, {"Zdr. pojišť. min. vnitra ČR", "211"},
    {"RBP, zdravotní pojišťovna", "213"},
};

std::vector<std::string> pochybny_ucet(const TextyPoli& hodnoty) {
    const std::string ucet = base::orez(hodnoty[k_pole_uctu]);
    if (ucet.empty() || ucet_modulo_11(ucet)) return {};
    return {fmt::format("- účet \"{}\" neodpovídá kontrole modulo 11", ucet)};
}

PopisCiselniku popis_pojistoven() {
    using enum DruhPole;
    return {"Zdr_poj",
            "TForm26",
            "Tfmz003",
            "Pojišťovny a fondy",
            {{"Cislo", "Číslo", "Čí&slo:", cele, 2},
             {"Nazev", "Název", "&Název:", text, 30},
             {"Ucet", "Účet", "Úč&et:", text, k_delka_uctu},
             {"Kod_banky", "Kód banky", "Kód &banky:", kod, k_delka_kodu_banky},
             {"Variabilni", "Variabilní symbol", "&Variabilní symbol:", cislice, k_delka_symbolu},
             {"Konstantni", "Konstantní symbol", "&Konstantní symbol:", kod, k_delka_konstantniho},
             {"Specificky", "Specifický symbol", "S&pecifický symbol:", cislice, k_delka_symbolu},
             {"Kod_zp", "Kód ZP", "Kó&d zdravotní pojišťovny:", cislice, 3}},
            0,
            k_nejvetsi_cislo,
            pouziti_na_kartach,
            pochybny_ucet};
}

}  // namespace

TForm26::TForm26(shell::Session& session) : Ciselnik(session, popis_pojistoven()) {}

void TForm26::FormShow() {
    Ciselnik::FormShow();
    if (!vsechny().rows.empty()) return;
    nerusene([this] {
        const std::string otazka =
            "V seznamu není žádná pojišťovna.\r\n\r\n"
            "Doplnit zdravotní pojišťovny České republiky?";
        if (!session_.obsluha().otazka_ano_ne(otazka, nadpis)) return;
        dopln_zdravotni_pojistovny(session_);
        nacti(0);
    });
}

void dopln_zdravotni_pojistovny(shell::Session& session) {
    store::Transaction transakce(session.data());
    store::Inserter vety(session.data(), "Zdr_poj", {"Cislo", "Nazev", "Kod_zp"});
    int cislo = 0;
    for (const Pojistovna& pojistovna : k_zdravotni_pojistovny) {
        vety.set(0, ++cislo);
        vety.set(1, pojistovna.nazev);
        vety.set(2, pojistovna.kod);
        vety.insert();
    }
    transakce.commit();
}

}  // namespace workers
