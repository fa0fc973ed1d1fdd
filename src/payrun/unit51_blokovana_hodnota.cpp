#include "payrun/unit51_blokovana_hodnota.h"

#include <fmt/format.h>

#include "base/klavesy.h"
#include "base/text.h"
#include "shell/hodnota_text.h"

namespace payrun {

namespace {

constexpr const char* k_cislo_pracovnika = "Cislo_pracovnika";
constexpr int k_cislic = 7;
constexpr long long k_nejvyse = 9999999;  // k_cislic digits

void dosad(store::Table& tabulka, const std::string& pole, const std::string& text) {
    if (base::neprazdny(text)) {
        tabulka.set(pole, base::je_cele_cislo(text));
    } else {
        tabulka.clear(pole);
    }
}

}  // namespace

TForm51::TForm51(shell::Session& session, store::Table& blok, std::string nadpis_)
    : nadpis(std::move(nadpis_)), session_(session), blok_(blok) {
    cislo_pracovnika = blok_.text(k_cislo_pracovnika);
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const std::string pole = k_druhy_blokace[i].pole;
        hodnoty[i] = {blok_.text(pole + "_abs"), blok_.text(pole + "_dif")};
    }
}

bool TForm51::povol_klavesu(char znak, std::string_view dosud) const {
    if (base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::minus_na_zacatku,
                                        k_cislic)) {
        return true;
    }
    session_.obsluha().pipni();
    return false;
}

/// What the key filter would not have let in (a pasted text) is refused here.
bool TForm51::zkontroluj(const std::string& pole, const std::string& text) {
    if (!base::neprazdny(text) || shell::presne_cele(text, -k_nejvyse, k_nejvyse)) return true;
    session_.obsluha().hlaska(
        fmt::format("Údaj \"{}\" musí být celé číslo, nejvýše {} číslic.", text, k_cislic));
    fokus = pole;
    oznam_zmenu();
    return false;
}

bool TForm51::zkontroluj_vse() {
    if (!zkontroluj(k_cislo_pracovnika, cislo_pracovnika)) return false;
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const std::string pole = k_druhy_blokace[i].pole;
        if (!zkontroluj(pole + "_abs", hodnoty[i].abs)) return false;
        if (!zkontroluj(pole + "_dif", hodnoty[i].dif)) return false;
    }
    return true;
}

void TForm51::Button2Click() {
    if (!zkontroluj_vse()) return;
    dosad(blok_, k_cislo_pracovnika, cislo_pracovnika);
    for (std::size_t i = 0; i < hodnoty.size(); ++i) {
        const std::string pole = k_druhy_blokace[i].pole;
        dosad(blok_, pole + "_abs", hodnoty[i].abs);
        dosad(blok_, pole + "_dif", hodnoty[i].dif);
    }
    store::Transaction transakce(session_.data());
    blok_.post();
    transakce.commit();
    vysledek_ok = true;
    zavreno = true;
    oznam_zmenu();
}

void TForm51::Button1Click() {
    blok_.cancel();
    zavreno = true;
    oznam_zmenu();
}

}  // namespace payrun
