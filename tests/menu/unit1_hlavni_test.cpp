// Opening a company and the action "Výpočet výplat".
#include "menu/unit1_hlavni.h"

#include <gtest/gtest.h>

#include "base/ini.h"
#include "base/soubory.h"
#include "base/text.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"
#include "store/catalogue.h"
#include "support/prazdna_relace.h"
#include "support/zkusebni_firma.h"

namespace {

namespace fs = std::filesystem;

/// A company as the accounting module leaves it: nothing of the payroll is there yet.
struct NovaFirma : zkouska::PrazdnaRelace {
    menu::TForm1 form{session};
    int ukazana_struktura = 0;

    explicit NovaFirma(bool uloz_strukturu = true) {
        EXPECT_EQ(shell::zaloz_slozku_firmy(koren.cesta(), "FIRMA22", {"Zkušební", "1"}), "");
        session.firma = "FIRMA22";
        session.velmar.logovat = false;
        obsluha.pri_obrazovce = [this, uloz_strukturu](base::Obrazovka& obrazovka) {
            auto& struktura = dynamic_cast<paysheet::TForm2&>(obrazovka);
            EXPECT_EQ(struktura.pole[17], "18");
            ++ukazana_struktura;
            uloz_strukturu ? struktura.btOKClick() : struktura.btZpetClick();
        };
    }
    fs::path ucet() const { return koren / "FIRMA22/Ucet"; }
    fs::path nastaveni() const { return koren / "FIRMA22/Zorv/Nastaveni.ini"; }
};

TEST(OtevreniFirmy, PrvniOtevreniZaloziVseDruheNicNemeni) {
    NovaFirma f;
    EXPECT_EQ(f.form.lbFirma, "Vyber firmu --->");
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_EQ(f.form.lbFirma, "FIRMA22  |  2022  |  Zkušební");
    EXPECT_EQ(f.form.mesic, 1);
    EXPECT_EQ(f.session.nastaveni.proc_soc2, 24.8L);
    EXPECT_EQ(f.session.sloupce_slovy.size(), 18U);
    EXPECT_EQ(f.session.sazby_dph, (std::array<std::string, 3>{"21", "15", "10"}));
    EXPECT_EQ(f.form.pozadi, (f.session.slozka_programu / "Sablony" / "pozadi9.jpg").string());
    for (const std::string& tabulka : store::tables_made_at_opening()) {
        const bool v_uctu = store::find_entry(tabulka)->place == store::Place::ucet;
        EXPECT_EQ(f.session.ucet().table_exists(tabulka), v_uctu) << tabulka;
        EXPECT_EQ(f.session.data().table_exists(tabulka), !v_uctu) << tabulka;
    }

    const auto tabulky = f.session.data().tables();
    const std::string ridici = base::precti_soubor(f.session.soubor_ridici_zorv(), 1000);
    const std::string nastaveni = base::precti_soubor(f.nastaveni(), 100000);
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_EQ(f.ukazana_struktura, 1);
    EXPECT_EQ(f.session.data().tables(), tabulky);
    EXPECT_EQ(base::precti_soubor(f.session.soubor_ridici_zorv(), 1000), ridici);
    EXPECT_EQ(base::precti_soubor(f.nastaveni(), 100000), nastaveni);
    EXPECT_EQ(f.obsluha.hlasky.size(), 1U) << "jen zpráva o založení struktury";
}

TEST(OtevreniFirmy, OdchodBezUlozeniStrukturyNechaFirmuBezTabulek) {
    NovaFirma f(false);
    EXPECT_FALSE(f.form.zaloz_soubory());
    EXPECT_FALSE(fs::exists(f.session.soubor_ridici_zorv()));
    EXPECT_TRUE(f.session.data().tables().empty());
    EXPECT_FALSE(fs::exists(f.nastaveni()));
    EXPECT_FALSE(f.form.zaloz_soubory()) << "příště se ptá znovu";
    EXPECT_EQ(f.ukazana_struktura, 2);
}

TEST(OtevreniFirmy, ChybejiciSouboryUcetnictviSeVyjmenujiADalSeNejde) {
    NovaFirma f;
    fs::remove(f.ucet() / "rid_ucet.idx");
    {
        store::Connection ucet(f.ucet());
        store::Transaction transakce(ucet);
        ucet.delete_table("vykony");
        ucet.delete_table("Adresy");
        transakce.commit();
    }
    EXPECT_FALSE(f.form.zaloz_soubory());
    EXPECT_EQ(f.obsluha.hlasky.back(),
              "Ve složce \"" + f.ucet().string() +
                  "/\" nebyly nalezeny soubory pro účetnictví:\r\n\r\n- \"RID_UCET.IDX\"\r\n- "
                  "\"VYKONY.DB\"\r\n- \"ADRESY.DB\"\r\n\r\nVe zpracování nelze pokračovat.");
    EXPECT_FALSE(f.session.data().table_exists("Os_karty"));
}

TEST(OtevreniFirmy, ZmizelaSlozkaFirmuTiseZrusi) {
    NovaFirma f;
    f.session.firma = "PRYC22";
    f.form.FormShow();
    EXPECT_EQ(f.session.firma, "");
    EXPECT_EQ(f.form.lbFirma, "Vyber firmu --->");
    EXPECT_TRUE(f.obsluha.hlasky.empty());
}

TEST(OtevreniFirmy, UzavrenyProsinecNechaPoleMesiceNaDvanacti) {
    NovaFirma f;
    ASSERT_TRUE(f.form.zaloz_soubory());
    f.session.ridici_zorv.uzaverka.fill("9.1.2023");
    shell::zapis_zaznam(f.session.soubor_ridici_zorv(), shell::bajty(f.session.ridici_zorv));
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_EQ(f.session.aktivni_mesic, 13);
    EXPECT_EQ(f.form.mesic, 12);
}

TEST(PrevzetiStarychUdaju, VylouceneSloupceSePrevedouJedinkrat) {
    NovaFirma f;
    ASSERT_TRUE(f.form.zaloz_soubory());
    base::zapis_ini_logicke(f.nastaveni(), "Nejde_do_pojisteni", "preneseno_z_vr", false);
    f.session.ridici_zorv.nejdou_stare = {{{1, 2, 0, 0, 5}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 9}}};
    shell::zapis_zaznam(f.session.soubor_ridici_zorv(), shell::bajty(f.session.ridici_zorv));
    ASSERT_TRUE(f.form.zaloz_soubory());
    const auto& tabulka = f.session.nastaveni.nejde_do_pojisteni;
    EXPECT_EQ(tabulka[0], (std::array<std::int16_t, 8>{1, 2, 0, 0, 5, 0, 0, 0}));
    EXPECT_EQ(tabulka[2][4], 9);
    EXPECT_TRUE(f.session.nastaveni.preneseno_z_vr);

    base::zapis_ini_cislo(f.nastaveni(), "Nejde_do_pojisteni", "hodnota_1_1", 12);
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_EQ(tabulka[0][0], 12) << "podruhé se nepřevádí";
}

TEST(PrevzetiStarychUdaju, JmenoUcetniPrejdeDoHodnotFirmy) {
    NovaFirma f;
    base::zapis_ini_text(f.nastaveni(), "mzdova_ucetni", "vyhotovil", "Jana Nováková");
    base::zapis_ini_text(f.nastaveni(), "mzdova_ucetni", "telefon", "123");
    base::zapis_ini_text(f.nastaveni(), "mzdova_ucetni", "jine", "zůstává");
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_EQ(shell::hodnota_firmy(f.session, "mzdova_ucetni_jmeno", ""), "Jana Nováková");
    EXPECT_EQ(shell::hodnota_firmy(f.session, "mzdova_ucetni_telefon", ""), "123");
    EXPECT_EQ(base::IniSoubor(f.nastaveni()).klice("mzdova_ucetni"),
              std::vector<std::string>{"jine"});
}

TEST(RidiciSoubory, ZaznamUcetnictviSePrebiraZHlavnihoPocitace) {
    NovaFirma f;
    ASSERT_TRUE(f.form.zaloz_soubory());
    f.session.cesta_ucet_hlavni = f.koren / "hlavni";
    EXPECT_FALSE(f.form.testuj_ucetnictvi_v_hlavnim_pocitaci());
    fs::copy(f.ucet(), f.session.cesta_ucet_hlavni, fs::copy_options::recursive);
    EXPECT_TRUE(f.form.testuj_ucetnictvi_v_hlavnim_pocitaci());
    shell::UcetniRidici hlavni;
    hlavni.uzavreno[4] = 1;
    shell::zapis_zaznam(f.session.cesta_ucet_hlavni / "rid_ucet.idx", shell::bajty(hlavni));
    f.form.prepis_ridici_soubor_pro_ucetnictvi();
    EXPECT_EQ(shell::cti_ucetni_ridici(f.ucet() / "rid_ucet.idx").uzavreno[4], 1);
}

TEST(RidiciSoubory, ChybejiciPomocneZaznamyMajiVychoziHodnoty) {
    NovaFirma f;
    ASSERT_TRUE(f.form.zaloz_soubory());
    f.session.pomocny_ridici.hrube_fokus = 3;
    f.session.bankovni_ridici.aktivni_banka = 5;
    f.form.cti_pomocny_ridici_soubor();
    f.form.cti_ridici_soubor_pro_banku();
    EXPECT_EQ(f.session.pomocny_ridici.hrube_fokus, 1);
    EXPECT_EQ(f.session.bankovni_ridici.aktivni_banka, 1);
    shell::PomocnyRidici psany;
    psany.listina_komu = 4;
    shell::zapis_zaznam(f.session.cesta_dat / "rid_pom.idx", shell::bajty(psany));
    f.form.cti_pomocny_ridici_soubor();
    EXPECT_EQ(f.session.pomocny_ridici.listina_komu, 4);
}

/// An open company whose main form stands on a month.
struct Vypocet {
    zkouska::ZkusebniFirma firma;
    menu::TForm1 form{firma.session};
    int ukazano = 0;

    Vypocet() {
        firma.obsluha.pri_obrazovce = [this](base::Obrazovka& obrazovka) {
            auto& vypocet = dynamic_cast<payrun::TForm21&>(obrazovka);
            EXPECT_GT(vypocet.pracovni_dny_mesice, 0);
            ++ukazano;
        };
    }
    void zaloz_hrube(int mesic) {
        firma.session.zpracovavany_mesic = mesic;
        menu::zaloz_hrube_zorv(firma.session);
    }
};

TEST(VypocetVyplat, UzavrenyMesicBezPovoleniSeNespusti) {
    Vypocet v;
    v.zaloz_hrube(1);
    v.firma.session.aktivni_mesic = 4;
    v.form.mesic = 1;
    EXPECT_FALSE(v.form.acVypocetVyplatExecute());
    EXPECT_EQ(v.firma.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(v.ukazano, 0);
    EXPECT_FALSE(v.firma.data().table_exists("Listin01"));
}

TEST(VypocetVyplat, BezHrubychMezdSeNespusti) {
    Vypocet v;
    v.form.mesic = 2;
    EXPECT_FALSE(v.form.acVypocetVyplatExecute());
    ASSERT_EQ(v.firma.obsluha.hlasky.size(), 2U);
    EXPECT_EQ(v.firma.obsluha.hlasky[0], "Nedodrželi jste posloupnost měsíců!");
    EXPECT_EQ(v.firma.obsluha.hlasky[1], "Soubor \"HRUBE02.DB\" v adresáři \"" +
                                             base::velkymi(v.firma.session.cesta_dat.string()) +
                                             "nebyl nalezen.\r\n\r\nNelze zpracovat výplaty.");
    EXPECT_FALSE(v.firma.data().table_exists("Listin02"));
}

TEST(VypocetVyplat, PoprveZaloziListinuPodruheSePta) {
    Vypocet v;
    v.zaloz_hrube(1);
    EXPECT_TRUE(v.form.acVypocetVyplatExecute());
    EXPECT_EQ(v.ukazano, 1);
    EXPECT_EQ(v.firma.session.zpracovavany_mesic, 1);
    EXPECT_TRUE(v.firma.data().table_exists("Listin01"));
    v.firma.vloz("Listin01", "Mesic,Cislo_pracovnika,Modul,Hodnota\n1,7,14,100\n");

    const std::string otazka =
        "V měsíci 1 byly výplaty již zpracovány.\r\nZrušit původní výplaty a provést nový výpočet?";
    v.firma.obsluha.odpovez(otazka, false);
    EXPECT_FALSE(v.form.acVypocetVyplatExecute());
    EXPECT_EQ(v.firma.vypis("SELECT Hodnota FROM Listin01"), "100\n") << "ne: listina zůstává";

    v.firma.obsluha.odpovez(otazka, true);
    EXPECT_TRUE(v.form.acVypocetVyplatExecute());
    EXPECT_EQ(v.firma.vypis("SELECT Hodnota FROM Listin01"), "") << "ano: nová listina je prázdná";
    EXPECT_EQ(v.ukazano, 2);
    EXPECT_TRUE(v.firma.obsluha.hlasky.empty());
}

TEST(MesicniTabulky, ZaloziSeJenKdyzNejsou) {
    Vypocet v;
    v.zaloz_hrube(5);
    v.firma.vloz("Hrube05", "Mesic,Cislo_pracovnika,Modul\n5,7,1\n");
    v.zaloz_hrube(5);
    EXPECT_EQ(v.firma.vypis("SELECT Cislo_pracovnika FROM Hrube05"), "7\n");
}

}  // namespace
