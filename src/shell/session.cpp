#include "shell/session.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/datum.h"
#include "base/ini.h"
#include "base/text.h"
#include "shell/disk.h"
#include "shell/stara_slozka.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "store/table.h"

namespace shell {

namespace {

constexpr int k_nejstarsi_rok = 2009;

store::Connection& spojeni(std::unique_ptr<store::Connection>& drzak, const Session& session,
                           const std::filesystem::path& slozka) {
    if (session.firma.empty() || slozka.empty()) {
        throw base::ChybaDat("Není otevřena žádná firma.");
    }
    if (!drzak) drzak = std::make_unique<store::Connection>(slozka);
    return *drzak;
}

void odvod_cesty(Session& session) {
    // A path that ends in a separator names a folder, as it is shown in messages.
    const auto podslozka = [&session](const std::string& firma, const char* jmeno) {
        return slozka_firmy(session.koren_dat, firma) / jmeno / "";
    };
    session.cesta_dat = podslozka(session.firma, "Zorv");
    session.cesta_minuly_rok = podslozka(firma_minuly_rok(session.firma), "Zorv");
    session.cesta_faktury = podslozka(session.firma, "Faktury");
    session.cesta_ucet = podslozka(session.firma, "Ucet");
    session.cesta_ucet_hlavni = session.cesta_ucet;
}

int rok_firmy(std::string_view firma) {
    const std::size_t od = firma.size() < 2 ? 0 : firma.size() - 2;
    return base::je_cele_cislo(firma.substr(od)) + 2000;
}

std::string adresa_firmy(Session& session) {
    if (!tabulka_existuje(session.cesta_ucet, "Setup")) {
        throw base::ChybaDat(
            fmt::format("Ve složce \"{}\" nebyla nalezena tabulka SETUP s údaji o firmě.",
                        session.cesta_ucet.string()));
    }
    store::Table setup;
    setup.set_connection(session.ucet());
    setup.set_table_name("Setup");
    setup.open();
    return setup.text("Adr1");
}

/// What the two guards of monthly actions say; they differ in these words only.
struct TextyStraze {
    const char* posledni_uzavreny;
    const char* konec_zakazu;
};

bool test_aktivniho_mesice(Session& session, const TextyStraze& texty) {
    const int rozdil = session.aktivni_mesic - session.zpracovavany_mesic;
    if (rozdil == 0) return true;
    if (rozdil < 0) {
        session.obsluha().hlaska("Nedodrželi jste posloupnost měsíců!");
        return true;
    }
    if (rozdil == 1) {
        session.obsluha().hlaska(texty.posledni_uzavreny);
        return true;
    }
    if (base::cti_ini_logicke(session.soubor_nastaveni(), "System", "VstupDoUzavrenychMesicu",
                              false)) {
        session.obsluha().hlaska(
            "Vstupujete do uzavřeného měsíce a jste zodpovědní za korektnost prováděných akcí!");
        return true;
    }
    session.obsluha().hlaska("Měsíc " + base::mesic_slovy(session.zpracovavany_mesic, session.rok) +
                             " je již uzavřen - " + texty.konec_zakazu);
    return false;
}

}  // namespace

Session::Session(Prostredi prostredi, std::filesystem::path slozka_programu_)
    : slozka_programu(std::move(slozka_programu_)), prostredi_(prostredi) {}

store::Connection& Session::data() {
    return spojeni(data_, *this, cesta_dat);
}
store::Connection& Session::ucet() {
    return spojeni(ucet_, *this, cesta_ucet);
}

void Session::zavri_spojeni() {
    data_.reset();
    ucet_.reset();
}

void cti_konfiguracni_soubor(Session& session) {
    session.zavri_spojeni();
    session.firma = base::velkymi(session.firma);
    session.rok = rok_firmy(session.firma);
    odvod_cesty(session);
    prenes_starou_slozku(slozka_firmy(session.koren_dat, session.firma));
    const std::string adresa = adresa_firmy(session);
    if (session.rok < k_nejstarsi_rok) {
        session.obsluha().hlaska(
            fmt::format("Tímto programem můžete zpracovávat mzdy od 1.1.2009.\r\n"
                        "V subsystému VELMAR plus přepněte odpovídající rok.\r\n"
                        "Data roku {} tímto programem nelze spustit.",
                        session.rok));
        throw base::UkonceniProgramu();
    }
    session.radek_firmy = fmt::format("{}  |  {}  |  {}", session.firma, session.rok, adresa);
}

RidiciZorv vychozi_ridici_zorv(const std::filesystem::path& slozka_programu) {
    RidiciZorv zaznam;
    zaznam.disk_uctu = std::string(1, pismeno_disku(slozka_programu).value_or('C'));
    return zaznam;
}

void uplatni_ridici_zorv(Session& session) {
    session.aktivni_mesic = prvni_neuzavreny_mesic(session.ridici_zorv);
    session.mesic_v_poli = std::min(session.aktivni_mesic, 12);
    session.cesta_ucet_hlavni = session.cesta_ucet;
    if (pismeno_disku(session.cesta_ucet)) {
        session.cesta_ucet_hlavni =
            session.ridici_zorv.disk_uctu + session.cesta_ucet.string().substr(1);
    }
}

std::string hodnota_firmy(Session& session, std::string_view nazev, std::string_view vychozi) {
    store::Table hodnoty;
    hodnoty.set_connection(session.ucet());
    hodnoty.set_table_name("Hodnoty");
    hodnoty.open();
    return hodnoty.locate("Nazev", nazev) ? hodnoty.text("Hodnota") : std::string(vychozi);
}

void uloz_hodnotu_firmy(Session& session, std::string_view nazev, std::string_view hodnota) {
    store::Transaction transakce(session.ucet());
    store::Table hodnoty;
    hodnoty.set_connection(session.ucet());
    hodnoty.set_table_name("Hodnoty");
    hodnoty.open();
    if (hodnoty.locate("Nazev", nazev)) {
        hodnoty.edit();
    } else {
        hodnoty.append();
        hodnoty.set("Nazev", nazev);
    }
    hodnoty.set("Hodnota", hodnota);
    hodnoty.post();
    transakce.commit();
}

bool test_aktivniho_mesice_hrube(Session& session) {
    return test_aktivniho_mesice(
        session, {"Vstupujete do uzavřeného měsíce!", "nelze do něho vstoupit bez povolení!"});
}

bool test_aktivniho_mesice_predani(Session& session) {
    return test_aktivniho_mesice(
        session, {"Budete zpracovávat uzavřený měsíc!", "výplaty nelze zpracovat bez povolení!"});
}

bool je_nejaka_vyplatni_listina(Session& session) {
    for (int mesic = 1; mesic <= 12; ++mesic) {
        if (session.data().table_exists(store::month_table("Listin", mesic))) return true;
    }
    return false;
}

}  // namespace shell
