#include "workers/ciselnik_veta.h"

#include <fmt/format.h>

#include "base/cekani.h"
#include "base/text.h"
#include "store/query.h"
#include "workers/ciselnik_seznam.h"

namespace workers {

VetaCiselniku::VetaCiselniku(shell::Session& session, const PopisCiselniku& popis,
                             store::Table& tabulka, std::string nadpis_, TextyPoli hodnoty_)
    : nadpis(std::move(nadpis_)),
      hodnoty(std::move(hodnoty_)),
      fokus(popis.pole.front().pole),
      session_(session),
      popis_(popis),
      tabulka_(tabulka) {}

bool VetaCiselniku::povol_klavesu(std::size_t pole, char znak, std::string_view dosud) const {
    if (povoleny_znak(popis_.pole[pole], znak, dosud)) return true;
    session_.obsluha().pipni();
    return false;
}

long long VetaCiselniku::cislo() const {
    return base::je_cele_cislo(hodnoty.front());
}

/// True for a new row, too.
bool VetaCiselniku::meni_se_cislo() const {
    const store::Value dosud = tabulka_.value(popis_.pole.front().pole);
    return dosud.is_empty() || dosud.as_integer() != cislo();
}

bool VetaCiselniku::cislo_je_v_seznamu() const {
    store::Query dotaz(session_.data(), fmt::format("SELECT Pocitadlo FROM {} WHERE {} = :cislo",
                                                    popis_.tabulka, popis_.pole.front().pole));
    dotaz.set("cislo", static_cast<std::int64_t>(cislo())).open();
    return !dotaz.eof();
}

/// A number once given twice may stay until it is changed.
std::string VetaCiselniku::chyba_cisla() const {
    const char* const nadpis_cisla = popis_.pole.front().nadpis;
    if (!base::neprazdny(hodnoty.front()))
        return fmt::format("Údaj <{}> musí být vyplněn.", nadpis_cisla);
    if (cislo() < popis_.nejmensi_cislo || cislo() > popis_.nejvetsi_cislo)
        return fmt::format("Údaj <{}> musí být v intervalu {} - {}.", nadpis_cisla,
                           popis_.nejmensi_cislo, popis_.nejvetsi_cislo);
    if (meni_se_cislo() && cislo_je_v_seznamu())
        return fmt::format("Číslo {} už v seznamu je.", cislo());
    return "";
}

bool VetaCiselniku::bez_chyb() {
    std::string chyby;
    const auto pridej = [&](const std::string& chyba, const char* pole) {
        if (chyba.empty()) return;
        if (chyby.empty()) fokus = pole;
        chyby += chyba + "\r\n";
    };
    for (std::size_t i = 0; i < popis_.pole.size(); ++i) {
        std::string chyba = chyba_pole(popis_.pole[i], hodnoty[i]);
        if (i == 0 && chyba.empty()) chyba = chyba_cisla();
        pridej(chyba, popis_.pole[i].pole);
    }
    if (chyby.empty()) return true;
    session_.obsluha().hlaska(chyby + "\r\nOpravte chyby a zkuste údaje uložit znovu.");
    oznam_zmenu();
    return false;
}

/// Asks about what may be written, though it looks wrong.
bool VetaCiselniku::obsluha_souhlasi() {
    std::vector<std::string> pochybnosti;
    if (popis_.pochybnosti) pochybnosti = popis_.pochybnosti(hodnoty);
    const store::Value dosud = tabulka_.value(popis_.pole.front().pole);
    if (popis_.pouziti && meni_se_cislo() && !dosud.is_empty()) {
        for (const std::string& radek : popis_.pouziti(session_, dosud.as_integer()))
            pochybnosti.push_back(radek);
    }
    if (pochybnosti.empty()) return true;
    return session_.obsluha().otazka_ano_ne(
        fmt::format("POZOR:\r\n{}\r\n\r\nPřesto uložit?", fmt::join(pochybnosti, "\r\n")), nadpis);
}

void VetaCiselniku::acUlozitExecute() {
    if (ceka_) return;
    const base::Cekani cekani(ceka_);
    if (!bez_chyb() || !obsluha_souhlasi()) return;
    zapis();
    ulozeno = true;
    zavreno = true;
    oznam_zmenu();
}

void VetaCiselniku::acZpetExecute() {
    if (ceka_) return;
    tabulka_.cancel();
    zavreno = true;
    oznam_zmenu();
}

void VetaCiselniku::zapis() {
    for (std::size_t i = 0; i < popis_.pole.size(); ++i)
        tabulka_.set(popis_.pole[i].pole, hodnota_pole(popis_.pole[i], hodnoty[i]));
    store::Transaction transakce(session_.data());
    tabulka_.post();
    transakce.commit();
}

}  // namespace workers
