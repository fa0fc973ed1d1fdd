// The session: paths, company folders, guards of the monthly actions, company values.
#include "shell/session.h"

#include <fstream>
#include <gtest/gtest.h>

#include "base/ini.h"
#include "base/soubory.h"
#include "shell/nova_firma.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "store/table.h"
#include "support/prazdna_relace.h"

namespace {

namespace fs = std::filesystem;

/// A session over an empty data root.
struct Relace : zkouska::PrazdnaRelace {
    void zaloz(const std::string& nazev) {
        ASSERT_EQ(shell::zaloz_slozku_firmy(koren.cesta(), nazev, {"Zkušební s.r.o.", "12345678"}),
                  "");
    }
    void otevri(const std::string& nazev) {
        session.firma = nazev;
        shell::cti_konfiguracni_soubor(session);
    }
};

void zaloz_tabulku(const fs::path& slozka, const std::string& tabulka) {
    fs::create_directories(slozka);
    store::Connection spojeni(slozka);
    store::Transaction transakce(spojeni);
    spojeni.create_table(store::definition_of(tabulka));
    transakce.commit();
}

TEST(OtevreniFirmy, CestyRokARadekPlynouZNazvu) {
    Relace r;
    r.zaloz("firma22");
    r.otevri("Firma22");
    const shell::Session& s = r.session;
    EXPECT_EQ(s.firma, "FIRMA22");
    EXPECT_EQ(s.rok, 2022);
    EXPECT_EQ(s.cesta_dat.string(), (r.koren / "FIRMA22").string() + "/Zorv/");
    EXPECT_EQ(s.cesta_ucet.string(), (r.koren / "FIRMA22").string() + "/Ucet/");
    EXPECT_EQ(s.cesta_faktury.string(), (r.koren / "FIRMA22").string() + "/Faktury/");
    EXPECT_EQ(s.cesta_minuly_rok.string(), (r.koren / "FIRMA21").string() + "/Zorv/");
    EXPECT_EQ(s.radek_firmy, "FIRMA22  |  2022  |  Zkušební s.r.o.");
    EXPECT_EQ(base::cti_ini_cislo(s.cesta_ucet / "Firma.ini", "global", "verze", 1), 6);
}

TEST(OtevreniFirmy, SlozkaSeNajdeBezOhleduNaVelikostPismen) {
    Relace r;
    r.zaloz("FIRMA22");
    fs::rename(r.koren / "FIRMA22", r.koren / "Firma22");
    r.otevri("FIRMA22");
    EXPECT_EQ(r.session.cesta_dat.string(), (r.koren / "Firma22").string() + "/Zorv/");
}

TEST(OtevreniFirmy, DataPredRokem2009SeOdmitnouAProgramKonci) {
    Relace r;
    r.zaloz("FIRMA09");
    EXPECT_NO_THROW(r.otevri("FIRMA09"));
    fs::rename(r.koren / "FIRMA09", r.koren / "FIRMA08");
    EXPECT_THROW(r.otevri("FIRMA08"), base::UkonceniProgramu);
    ASSERT_EQ(r.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(r.obsluha.hlasky[0],
              "Tímto programem můžete zpracovávat mzdy od 1.1.2009.\r\nV subsystému VELMAR plus "
              "přepněte odpovídající rok.\r\nData roku 2008 tímto programem nelze spustit.");
}

TEST(OtevreniFirmy, BezTabulkySetupJeChybaANicSeNezalozi) {
    Relace r;
    fs::create_directories(r.koren / "FIRMA22" / "Ucet");
    EXPECT_THROW(r.otevri("FIRMA22"), base::ChybaDat);
    EXPECT_TRUE(fs::is_empty(r.koren / "FIRMA22" / "Ucet"));
    Relace bez_firmy;
    EXPECT_THROW(bez_firmy.session.data(), base::ChybaDat);
}

TEST(OtevreniFirmy, StaraSlozkaFirmaSePrevedeDoUctu) {
    Relace r;
    r.zaloz("FIRMA22");
    fs::rename(r.koren / "FIRMA22" / "Ucet", r.koren / "FIRMA22" / "Firma");
    for (const char* soubor : {"rid_ucet.idx", "Firma.ini"}) {
        fs::remove(r.koren / "FIRMA22" / "Firma" / soubor);
    }
    {
        store::Connection stara(r.koren / "FIRMA22" / "Firma");
        store::Transaction transakce(stara);
        for (const char* t : {"Uctovano", "vykony", "Adresy"})
            stara.delete_table(t);
        transakce.commit();
    }
    r.otevri("FIRMA22");
    EXPECT_EQ(r.session.radek_firmy, "FIRMA22  |  2022  |  Zkušební s.r.o.");
    EXPECT_TRUE(shell::tabulka_existuje(r.session.cesta_ucet, "Setup"));
    EXPECT_FALSE(fs::exists(r.koren / "FIRMA22" / "Firma"));
    r.otevri("FIRMA22");
    EXPECT_EQ(r.session.radek_firmy, "FIRMA22  |  2022  |  Zkušební s.r.o.");
}

TEST(SeznamFirem, VstoupiJenSlozkySRokemATabulkouSetup) {
    Relace r;
    for (const char* nazev : {"zelena22", "FIRMA22", "Chmel21", "HORA22"})
        r.zaloz(nazev);
    fs::rename(r.koren / "ZELENA22", r.koren / "zelena22");
    zaloz_tabulku(r.koren / "STARA10" / "Firma", "Setup");
    zaloz_tabulku(r.koren / "22" / "Ucet", "Setup");     // two characters
    zaloz_tabulku(r.koren / "ABCX1" / "Ucet", "Setup");  // one digit
    zaloz_tabulku(r.koren / "JINA22" / "Ucet", "Hodnoty");
    fs::create_directories(r.koren / "PRAZDNA22" / "Ucet");
    std::ofstream(r.koren / "SOUBOR22") << "x";
    EXPECT_EQ(shell::seznam_firem(r.koren.cesta()),
              (std::vector<std::string>{"FIRMA22", "HORA22", "CHMEL21", "STARA10", "ZELENA22"}));
    EXPECT_TRUE(fs::is_empty(r.koren / "PRAZDNA22" / "Ucet")) << "seznam nic nezakládá";
    EXPECT_TRUE(shell::seznam_firem(r.koren / "neni").empty());
}

TEST(SeznamFirem, SousedniRokyMeniPosledniDveCislice) {
    EXPECT_EQ(shell::firma_minuly_rok("FIRMA22"), "FIRMA21");
    EXPECT_EQ(shell::firma_minuly_rok("FIRMA10"), "FIRMA09");
    EXPECT_EQ(shell::firma_pristi_rok("FIRMA09"), "FIRMA10");
}

TEST(NovaFirma, NevhodnyNazevSeOdmitneANicNezustane) {
    Relace r;
    r.zaloz("FIRMA22");
    for (const char* nazev : {"", "22", "FIRMA", "FIRMA2", "A/B22", "..22", "FIRMA08", "漢字22",
                              "FIRMA22", "firma22"}) {
        EXPECT_NE(shell::zaloz_slozku_firmy(r.koren.cesta(), nazev, {}), "") << nazev;
    }
    EXPECT_NE(shell::zaloz_slozku_firmy(r.koren / "neni", "FIRMA23", {}), "");
    EXPECT_NE(shell::zaloz_slozku_firmy(r.koren.cesta(), "FIRMA23", {"x", "123456789"}), "")
        << "IČO má nejvýše osm znaků";
    EXPECT_FALSE(fs::exists(r.koren / "FIRMA23"));
    EXPECT_EQ(shell::seznam_firem(r.koren.cesta()), std::vector<std::string>{"FIRMA22"});
}

TEST(NovaFirma, ChybejiciTabulkySeZaloziJednouAKalendareZeSablony) {
    Relace r;
    r.zaloz("FIRMA22");
    r.otevri("FIRMA22");
    fs::create_directories(r.session.slozka_programu / "Sablony");
    base::zapis_soubor(r.session.slozka_programu / "Sablony" / "Rpd.csv",
                       "Rok,Nazev,Fond1\n2022,Jednosměnný,8:00;8:00\n");
    shell::zaloz_chybejici_tabulky(r.session);
    EXPECT_TRUE(r.session.ucet().table_exists("EET") && r.session.ucet().table_exists("Hodnoty"));
    EXPECT_FALSE(r.session.data().table_exists("EET"));
    for (const char* t : {"Doch", "Ridici", "Os_karty", "Deti", "Fixni", "Zdr_poj", "Stroje",
                          "Uctuj_hr", "Uctuj_ci", "Nahrady", "Rpd", "epodani"}) {
        EXPECT_TRUE(r.session.data().table_exists(t)) << t;
    }
    EXPECT_FALSE(r.session.data().table_exists("Hrube01")) << "měsíční tabulky později";
    shell::zaloz_chybejici_tabulky(r.session);
    store::Query rpd(r.session.data(), "SELECT * FROM Rpd");
    rpd.open();
    EXPECT_EQ(rpd.text("Nazev"), "Jednosměnný");
    EXPECT_EQ(store::read_all(rpd).rows.size(), 1U) << "kalendáře jen jednou";
}

TEST(HodnotyFirmy, HodnotaSeZapiseJednouAHledaSeBezOhleduNaVelikost) {
    Relace r;
    r.zaloz("FIRMA22");
    r.otevri("FIRMA22");
    shell::zaloz_chybejici_tabulky(r.session);
    EXPECT_EQ(shell::hodnota_firmy(r.session, "PRIJMENI", "není"), "není");
    shell::uloz_hodnotu_firmy(r.session, "prijmeni", "Nováková");
    shell::uloz_hodnotu_firmy(r.session, "PRIJMENI", "Dvořáková");
    EXPECT_EQ(shell::hodnota_firmy(r.session, "Prijmeni", "není"), "Dvořáková");
    store::Query q(r.session.ucet(), "SELECT * FROM Hodnoty");
    EXPECT_EQ(store::read_all(q).rows.size(), 1U);
}

TEST(VyplatniListiny, NejakaListinaSeNajdeVKteremkoliMesici) {
    Relace r;
    r.zaloz("FIRMA22");
    r.otevri("FIRMA22");
    EXPECT_FALSE(shell::je_nejaka_vyplatni_listina(r.session));
    r.session.data().create_table(store::definition_of("Listin12"));
    EXPECT_TRUE(shell::je_nejaka_vyplatni_listina(r.session));
}

TEST(UplatneniRidicihoSouboru, MesicKonciProsincemADiskJenNaCesteSPismenem) {
    Relace r;
    r.session.ridici_zorv = shell::vychozi_ridici_zorv("d:\\Velmar");
    EXPECT_EQ(r.session.ridici_zorv.disk_uctu, "D");
    EXPECT_EQ(shell::vychozi_ridici_zorv("/opt/velmar").disk_uctu, "C");
    r.session.ridici_zorv.uzaverka[11] = "9.1.2023";
    r.session.cesta_ucet = "/data/FIRMA22/Ucet/";
    shell::uplatni_ridici_zorv(r.session);
    EXPECT_EQ(r.session.aktivni_mesic, 13);
    EXPECT_EQ(r.session.mesic_v_poli, 12);
    EXPECT_EQ(r.session.cesta_ucet_hlavni, r.session.cesta_ucet);
    r.session.cesta_ucet = "C:\\Data\\FIRMA22\\Ucet\\";
    shell::uplatni_ridici_zorv(r.session);
    EXPECT_EQ(r.session.cesta_ucet_hlavni.string(), "D:\\Data\\FIRMA22\\Ucet\\");
}

TEST(StrazMesice, OtevrenyUzavrenyAPredbihajiciMesic) {
    Relace r;
    r.zaloz("FIRMA22");
    r.otevri("FIRMA22");
    struct Radek {
        int aktivni, mesic;
        bool povoleno, projde;
        std::string hrube, predani;
    };
    const std::string odpovedni =
        "Vstupujete do uzavřeného měsíce a jste zodpovědní za korektnost prováděných akcí!";
    const Radek radky[] = {
        {3, 3, false, true, "", ""},
        {3, 2, false, true, "Vstupujete do uzavřeného měsíce!",
         "Budete zpracovávat uzavřený měsíc!"},
        {13, 12, false, true, "Vstupujete do uzavřeného měsíce!",
         "Budete zpracovávat uzavřený měsíc!"},
        {3, 1, true, true, odpovedni, odpovedni},
        {5, 1, false, false,
         "Měsíc leden  2022 je již uzavřen - nelze do něho vstoupit bez povolení!",
         "Měsíc leden  2022 je již uzavřen - výplaty nelze zpracovat bez povolení!"},
        {3, 4, false, true, "Nedodrželi jste posloupnost měsíců!",
         "Nedodrželi jste posloupnost měsíců!"},
    };
    for (const Radek& radek : radky) {
        base::zapis_ini_logicke(r.session.soubor_nastaveni(), "System", "VstupDoUzavrenychMesicu",
                                radek.povoleno);
        r.session.aktivni_mesic = radek.aktivni;
        r.session.zpracovavany_mesic = radek.mesic;
        const auto zkus = [&](auto straz, const std::string& hlaska) {
            r.obsluha.hlasky.clear();
            EXPECT_EQ(straz(r.session), radek.projde);
            EXPECT_EQ(r.obsluha.hlasky,
                      hlaska.empty() ? std::vector<std::string>{} : std::vector{hlaska});
        };
        zkus(shell::test_aktivniho_mesice_hrube, radek.hrube);
        zkus(shell::test_aktivniho_mesice_predani, radek.predani);
    }
}

}  // namespace
