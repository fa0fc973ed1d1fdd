#include "support/zkusebni_firma.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "base/text.h"
#include "paysheet/sloupce.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"
#include "store/query.h"
#include "store/transfer.h"

namespace zkouska {

namespace {

int rok_podle_nazvu(const std::string& nazev) {
    return 2000 + base::je_cele_cislo(nazev.substr(nazev.size() - 2));
}

void otevri(shell::Session& session, const std::filesystem::path& koren, const std::string& nazev) {
    const std::string chyba =
        shell::zaloz_slozku_firmy(koren, nazev, {"Zkušební firma", "12345678"});
    if (!chyba.empty()) throw std::runtime_error(chyba);
    session.koren_dat = koren;
    session.firma = nazev;
    shell::cti_konfiguracni_soubor(session);
}

void zaloz_strukturu(shell::Session& session) {
    session.ridici_zorv = shell::vychozi_ridici_zorv(session.slozka_programu);
    paysheet::TForm2 struktura(session);
    paysheet::Vypln_formular_2(struktura);
    struktura.btOKClick();
    if (!struktura.ulozeno) throw std::runtime_error("struktura výplatní listiny neprošla");
    shell::uplatni_ridici_zorv(session);
    paysheet::Nacti_sloupce_slovy(session);
}

}  // namespace

ZkusebniFirma::ZkusebniFirma(std::string nazev)
    : hodiny({{rok_podle_nazvu(nazev), 1, 15}, 8, 0, 0}),
      session({obsluha, hodiny, nahoda}, slozka / "program") {
    otevri(session, slozka.cesta(), nazev);
    zaloz_strukturu(session);
    shell::zaloz_chybejici_tabulky(session);
    session.ucetni_ridici = shell::cti_ucetni_ridici(session.cesta_ucet / "rid_ucet.idx");
    session.nastaveni = shell::cti_nastaveni(session.soubor_nastaveni(), session.rok,
                                             session.ridici_zorv.proc_soc_zamestnavatel);
    obsluha.hlasky.clear();
}

void ZkusebniFirma::vloz(std::string_view tabulka, std::string_view csv) {
    const store::ImportResult vysledek = store::import_csv(data(), tabulka, csv, tabulka, false);
    for (const std::string& chyba : vysledek.errors)
        ADD_FAILURE() << chyba;
}

std::string ZkusebniFirma::vypis(std::string_view dotaz) {
    store::Query q(data(), dotaz);
    std::string vypis;
    for (q.open(); !q.eof(); q.next()) {
        for (int i = 0; i < q.column_count(); ++i) {
            if (i > 0) vypis += '|';
            vypis += q.text(i);
        }
        vypis += '\n';
    }
    return vypis;
}

}  // namespace zkouska
