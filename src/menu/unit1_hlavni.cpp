// TForm1: opening a company, its control records.
#include "menu/unit1_hlavni.h"

#include <fmt/format.h>

#include "base/ini.h"
#include "paysheet/sloupce.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"

namespace menu {

namespace {

constexpr const char* k_soubor_uctu = "rid_ucet.idx";
constexpr const char* k_bez_firmy = "Vyber firmu --->";

}  // namespace

TForm1::TForm1(shell::Session& session)
    : lbFirma(session.firma.empty() ? k_bez_firmy : session.radek_firmy),
      mesic(session.mesic_v_poli),
      session_(session) {}

void TForm1::ukaz_bez_firmy() {
    lbFirma = k_bez_firmy;
    oznam_zmenu();
}

std::filesystem::path TForm1::sablona(const char* soubor) const {
    return session_.slozka_programu / "Sablony" / soubor;
}

bool TForm1::zaloz_soubory() {
    shell::Session& s = session_;
    shell::cti_konfiguracni_soubor(s);
    lbFirma = s.radek_firmy;
    oznam_zmenu();
    if (!cti_ridici_soubor_pro_zorv()) return false;
    prenes_vyloucene_sloupce();
    if (!testuj_ucetnictvi_v_tomto_pocitaci()) return false;
    cti_ridici_soubor_pro_ucetnictvi();
    s.nastaveni =
        shell::cti_nastaveni(s.soubor_nastaveni(), s.rok, s.ridici_zorv.proc_soc_zamestnavatel);
    shell::zaloz_chybejici_tabulky(s);
    s.sazby_dph = {shell::hodnota_firmy(s, "dphs1", "21"), shell::hodnota_firmy(s, "dphs2", "15"),
                   shell::hodnota_firmy(s, "dphs3", "10")};
    prenes_jmeno_ucetni();
    pozadi = shell::hodnota_firmy(s, "pozadi", sablona("pozadi9.jpg").string());
    oznam_zmenu();
    return true;
}

bool TForm1::cti_ridici_soubor_pro_zorv() {
    shell::Session& s = session_;
    if (std::filesystem::exists(s.soubor_ridici_zorv())) {
        s.ridici_zorv = shell::cti_ridici_zorv(s.soubor_ridici_zorv());
    } else {
        s.ridici_zorv = shell::vychozi_ridici_zorv(s.slozka_programu);
        paysheet::TForm2 struktura(s);
        paysheet::Vypln_formular_2(struktura);
        struktura.opusteni_pole();
        s.obsluha().ukaz_modalne(struktura);
        if (!std::filesystem::exists(s.soubor_ridici_zorv())) return false;
    }
    shell::uplatni_ridici_zorv(s);
    mesic = s.mesic_v_poli;
    paysheet::Nacti_sloupce_slovy(s);
    oznam_zmenu();
    return true;
}

void TForm1::cti_pomocny_ridici_soubor() {
    const std::filesystem::path soubor = session_.cesta_dat / "rid_pom.idx";
    session_.pomocny_ridici = std::filesystem::exists(soubor) ? shell::cti_pomocny_ridici(soubor)
                                                              : shell::PomocnyRidici{};
}

void TForm1::cti_ridici_soubor_pro_banku() {
    const std::filesystem::path soubor = session_.cesta_dat / "rid_bank.idx";
    session_.bankovni_ridici = std::filesystem::exists(soubor) ? shell::cti_bankovni_ridici(soubor)
                                                               : shell::BankovniRidici{};
}

void TForm1::cti_ridici_soubor_pro_ucetnictvi() {
    session_.ucetni_ridici = shell::cti_ucetni_ridici(session_.cesta_ucet / k_soubor_uctu);
}

void TForm1::prepis_ridici_soubor_pro_ucetnictvi() {
    session_.ucetni_ridici = shell::cti_ucetni_ridici(session_.cesta_ucet_hlavni / k_soubor_uctu);
    shell::zapis_zaznam(session_.cesta_ucet / k_soubor_uctu, shell::bajty(session_.ucetni_ridici));
}

bool TForm1::testuj_ucetnictvi_v_hlavnim_pocitaci() const {
    const std::filesystem::path& ucet = session_.cesta_ucet_hlavni;
    return std::filesystem::exists(ucet / k_soubor_uctu) &&
           shell::tabulka_existuje(ucet, "Uctovano");
}

bool TForm1::testuj_ucetnictvi_v_tomto_pocitaci() {
    const std::filesystem::path& ucet = session_.cesta_ucet;
    std::string chybi;
    const auto zkontroluj = [&chybi](bool existuje, const char* soubor) {
        if (!existuje) chybi += fmt::format("\r\n- \"{}\"", soubor);
    };
    zkontroluj(std::filesystem::exists(ucet / k_soubor_uctu), "RID_UCET.IDX");
    zkontroluj(shell::tabulka_existuje(ucet, "Uctovano"), "UCTOVANO.DB");
    zkontroluj(shell::tabulka_existuje(ucet, "vykony"), "VYKONY.DB");
    zkontroluj(shell::tabulka_existuje(ucet, "Adresy"), "ADRESY.DB");
    if (chybi.empty()) return true;
    session_.obsluha().hlaska("Ve složce \"" + ucet.string() +
                              "\" nebyly nalezeny soubory pro účetnictví:\r\n" + chybi +
                              "\r\n\r\nVe zpracování nelze pokračovat.");
    return false;
}

/// Once in a company's life: the columns outside the insurance and tax bases move from the control
/// record into `Nastaveni.ini`.
void TForm1::prenes_vyloucene_sloupce() {
    constexpr const char* k_sekce = "Nejde_do_pojisteni";
    const std::filesystem::path soubor = session_.soubor_nastaveni();
    if (base::cti_ini_logicke(soubor, k_sekce, "preneseno_z_vr", false)) return;
    const auto& stare = session_.ridici_zorv.nejdou_stare;
    base::IniSoubor ini(soubor);
    for (std::size_t r = 0; r < stare.size(); ++r) {
        for (std::size_t c = 0; c < stare[r].size(); ++c) {
            session_.nastaveni.nejde_do_pojisteni[r][c] = stare[r][c];
            ini.nastav(k_sekce, fmt::format("hodnota_{}_{}", r + 1, c + 1),
                       std::to_string(stare[r][c]));
        }
    }
    ini.nastav(k_sekce, "preneseno_z_vr", "1");
    ini.uloz();
    session_.nastaveni.preneseno_z_vr = true;
}

/// The accountant's name and telephone move from `Nastaveni.ini` to the company's values.
void TForm1::prenes_jmeno_ucetni() {
    constexpr const char* k_sekce = "mzdova_ucetni";
    struct Udaj {
        const char* klic;
        const char* hodnota_firmy;
    };
    for (const Udaj& udaj :
         {Udaj{"vyhotovil", "mzdova_ucetni_jmeno"}, Udaj{"telefon", "mzdova_ucetni_telefon"}}) {
        base::IniSoubor ini(session_.soubor_nastaveni());
        const auto hodnota = ini.hodnota(k_sekce, udaj.klic);
        if (!hodnota) continue;
        shell::uloz_hodnotu_firmy(session_, udaj.hodnota_firmy, *hodnota);
        ini.smaz_klic(k_sekce, udaj.klic);
        ini.uloz();
    }
}

}  // namespace menu
