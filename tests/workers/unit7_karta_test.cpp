// TForm7: a new card, a correction, field events, calendars, saving and its cascade.
#include "workers/unit7_karta.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"
#include "workers/unit7_vyber_pracovnika.h"
#include "workers/unit7_vypis.h"

namespace {

using namespace workers;

struct Form7 : testing::Test {
    Form7() {
        firma.vloz("Zdr_poj", "Cislo,Nazev,Kod_zp\n1,Všeobecná,111\n51,Fond,\n");
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Titul,Dat_nar_text,Cislo_zdrav_poj,tpd,Prum_nemoc_1,"
                   "Jake_socialni,Jake_zdravotni,Jaka_dan,CSSZ102,CSSZ103,CSSZ111,Rodne_cislo,"
                   "Benefit4,Benefit5\n"
                   "7,Novák,Petr,,14.5.1971,1,37.5,1234.123456789,1,0,1,,4,X,71-55-14/1004,10,20\n"
                   "8,Malá,Eva,,1.1.1980,1,40,,1,1,1,Ž,,0,,,\n");
    }

    std::unique_ptr<TForm7> novy() {
        auto form = std::make_unique<TForm7>(firma.session, kalendar());
        form->acPridatExecute();
        form->FormShow();
        return form;
    }
    std::unique_ptr<TForm7> oprava(std::int64_t pocitadlo) {
        auto form = std::make_unique<TForm7>(firma.session, kalendar());
        form->acOpravitExecute(pocitadlo);
        form->FormShow();
        return form;
    }
    VyberKalendare kalendar() {
        return [this](shell::Session&) { return zvoleny; };
    }
    /// Typed into a field and left by Enter.
    static void napis(TForm7& form, const char* ovladac, const char* text) {
        form.vstup_do_pole(ovladac);
        form.psani(ovladac, text);
        form.opusteni_pole(ovladac);
    }
    std::string karta(std::int64_t pocitadlo, const std::string& pole) {
        return firma.vypis(
            fmt::format("SELECT {} FROM Os_karty WHERE Pocitadlo = {}", pole, pocitadlo));
    }

    zkouska::ZkusebniFirma firma;
    std::optional<ZvolenyKalendar> zvoleny;
};

TEST_F(Form7, NovaKartaMaVychoziHodnotyAUloziSe) {
    auto form = novy();
    EXPECT_EQ(form->nadpis, "Nový záznam");
    EXPECT_FALSE(form->ulozit_povoleno);
    EXPECT_EQ(form->fokus, "Cislo");
    napis(*form, "Cislo", "15");
    napis(*form, "Jmeno", "Žofie");
    form->psani("Titul", "Mgr.");
    EXPECT_EQ(form->nadpis, "15 - Mgr. Žofie");
    napis(*form, "Prijmeni", "Říhová");
    napis(*form, "Dat_nar_text", "1,5,1980");
    form->acUlozitExecute();
    EXPECT_FALSE(form->zavreno);
    EXPECT_EQ(form->fokus, "Cislo_zdrav_poj");
    EXPECT_EQ(form->stranka, StrankaKarty::danove);
    napis(*form, "Cislo_zdrav_poj", "1");
    EXPECT_EQ(form->jmeno_pojistovny, "Všeobecná");
    form->acUlozitExecute();
    ASSERT_TRUE(form->ulozeno && form->zavreno);
    EXPECT_EQ(karta(form->Pocitadlo,
                    "Cislo, Titul, Dat_nar_text, Dat_nar_cislo, tpd, Vyplatni_misto, Clenstvi_OS, "
                    "Zamestnanec, Splnuje_slevy, Jake_socialni, Jake_zdravotni, Jaka_dan, "
                    "Odp_poplatnik, Invalidita, CSSZ102, CSSZ103, CSSZ111, Cssz_druh_cinnosti, "
                    "Id_rpd, Staly_plat"),
              "15|Mgr.|1.5.1980|19800501|40|1|false|true|true|1|1|1|2570|0|0||0|1|0|\n");
    EXPECT_EQ(form->postup, 0) << "nový pracovník nemá co opravovat jinde";
}

TEST_F(Form7, OpravaNechaNedotcenaPoleJakJsou) {
    auto form = oprava(1);
    EXPECT_EQ(form->nadpis, "7 - Petr Novák");
    EXPECT_EQ(form->hodnoty["CSSZ102"].index, 1) << "podle rodného čísla";
    EXPECT_EQ(form->hodnoty["CSSZ103"].index, 3);
    EXPECT_EQ(form->hodnoty["CSSZ111"].index, 0) << "neznámý znak";
    EXPECT_EQ(form->hodnoty["Jake_zdravotni"].index, -1);
    EXPECT_EQ(form->hodnoty["tpd"].text, "37,5");
    napis(*form, "Benefit5", "25,50");
    EXPECT_EQ(form->hodnoty["Benefit4"].text, "25,50") << "květen nelze zadat zvlášť";
    napis(*form, "Staly_plat", "20000");
    napis(*form, "Staly_plat", "");
    form->acUlozitExecute();
    ASSERT_TRUE(form->ulozeno);
    EXPECT_EQ(karta(1,
                    "tpd, Prum_nemoc_1, Jake_zdravotni, CSSZ102, CSSZ103, CSSZ111, Benefit4, "
                    "Benefit5, Staly_plat, Student"),
              "37.5|1234.123456789|0|Ž|4|0|25.5|20||false\n");
    EXPECT_EQ(karta(2, "Cislo, Student"), "8|\n") << "jiné karty se uložení netýká";
    EXPECT_THROW(oprava(99), base::ChybaDat);
}

TEST_F(Form7, UdalostiPoliDoplnujiAMazou) {
    auto form = oprava(2);
    napis(*form, "Rodne_cislo", "71-05-14/1010");
    EXPECT_EQ(form->hodnoty["CSSZ102"].index, 0);
    EXPECT_FALSE(form->pocet_deti_povolen);
    napis(*form, "CSSZ101", "cz");
    form->vstup_do_pole("CSSZ105");
    EXPECT_EQ(form->hodnoty["CSSZ105"].text, "CZ");
    EXPECT_EQ(form->vybrat_text, "CSSZ105");
    napis(*form, "CSSZ107", "sk");
    form->vstup_do_pole("CSSZ107");
    EXPECT_EQ(form->hodnoty["CSSZ107"].text, "SK");
    napis(*form, "Zam_od", "1,2,2022");
    form->vstup_do_pole("CSSZ114");
    EXPECT_EQ(form->hodnoty["CSSZ114"].text, "010222");

    napis(*form, "Cislo_penz_fondu", "51");
    form->vstup_do_pole("penz_fond_podnik_sazba");
    EXPECT_TRUE(form->panel_sazby_pf_viditelny);
    napis(*form, "penz_fond_podnik_sazba", "300");
    EXPECT_FALSE(form->panel_sazby_pf_viditelny);
    napis(*form, "penz_fond_podnik_smlouva", "4100123");
    napis(*form, "Cislo_penz_fondu", " ");
    EXPECT_EQ(form->hodnoty["penz_fond_podnik_sazba"].text, "");
    EXPECT_EQ(form->hodnoty["penz_fond_podnik_smlouva"].text, "");

    const int slevy[] = {0, 210, 420, 1345, 1765};
    for (int stupen = 0; stupen < 5; ++stupen) {
        form->hodnoty["Invalidita"].index = stupen;
        form->zmena_volby("Invalidita");
        EXPECT_EQ(form->hodnoty.cislo("Odp_invalidita"), slevy[stupen]);
    }
    form->hodnoty["Jaka_dan"].index = 1;
    form->zmena_volby("Jaka_dan");
    EXPECT_TRUE(form->poznamka_dane_viditelna);
    napis(*form, "Zam_od", "1.7.2022");
    form->acPrepocetExecute();
    EXPECT_EQ(form->hodnoty["Dovolena_narok"].text, "100");
}

TEST_F(Form7, SeznamyUkazujiPlatneSazbyAVsechnyDruhyCinnosti) {
    const auto form = novy();
    EXPECT_EQ(form->polozky(CiselnikKarty::socialni)[0].text, "platí 6,5 % dle zadání");
    EXPECT_EQ(form->polozky(CiselnikKarty::zdravotni)[1].text, "platí 4,5 %, min. 2187 Kč");
    EXPECT_EQ(form->polozky(CiselnikKarty::dan)[3].text,
              "15% do 3500 Kč srážková, jinak zálohová (statutární orgán)");
    const auto& druhy = form->polozky(CiselnikKarty::druh_cinnosti);
    ASSERT_EQ(druhy.size(), 32U);
    EXPECT_EQ(druhy[5].text, "6 šestý pracovní poměr u téhož zaměstnavatele");
    EXPECT_EQ(druhy[15].text, "J desátá dohoda o pracovní činnosti u téhož zaměstnavatele");
    EXPECT_EQ(druhy[31].text, "Z sedmá dohoda o provedení práce u téhož zaměstnavatele");
    std::string kody;
    for (const auto& druh : druhy)
        kody += druh.hodnota;
    EXPECT_EQ(kody, "123456ABCDEFGHIJKLMNOPQRSTUVWXYZ");
}

TEST_F(Form7, KalendarMusiBytSvehoRokuALzeJejZrusit) {
    auto form = novy();
    form->acRpdExecute();
    EXPECT_EQ(form->hodnoty["Id_rpd"].text, "vyberte klepnutím zde") << "nic nevybral";
    zvoleny = {3, 2021, "Ranní"};
    form->acRpdExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Musíte vybrat kalendář aktuálního roku.");
    EXPECT_EQ(form->hodnoty["Id_rpd"].cislo, 0);
    form->acRpdMinExecute();
    EXPECT_EQ(form->hodnoty["Id_rpd_min"].text, "2021  (Ranní)");
    EXPECT_EQ(form->hodnoty["Id_rpd_min"].cislo, 3);
    zvoleny->rok = 2022;
    form->acRpdMinExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Musíte vybrat kalendář minulého roku.");
    form->acRpdExecute();
    EXPECT_EQ(form->hodnoty["Id_rpd"].cislo, 3);
    form->btRpdMinXClick();
    EXPECT_EQ(form->hodnoty["Id_rpd_min"].cislo, 0);
    EXPECT_EQ(form->hodnoty["Id_rpd_min"].text, "vyberte klepnutím zde");
    EXPECT_EQ(firma.obsluha.hlasky.size(), 2U);
}

TEST_F(Form7, PlatceDaneSeVybereZeSeznamuPracovniku) {
    auto form = oprava(1);
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
        auto& vyber = dynamic_cast<TFVyberPracovnika&>(obrazovka);
        ASSERT_EQ(vyber.vety.rows.size(), 2U);
        vyber.filtr = "7";
        vyber.filtrChange();
        EXPECT_EQ(vyber.vety.rows.size(), 1U);
        vyber.filtr = "malá E";
        vyber.filtrChange();
        vyber.acVybratExecute();
        EXPECT_TRUE(vyber.zavreno);
    };
    form->btKdoPlatiDanClick();
    EXPECT_EQ(form->hodnoty["Kdo_plati_dan"].text, "8");
    EXPECT_EQ(form->jmeno_platce_dane, "Malá Eva");
}

TEST_F(Form7, RadekZpravVedeNaSvujUdaj) {
    auto form = novy();
    form->hodnoty["Kdo_plati_dan"].text = "99";
    form->opusteni_pole("Kdo_plati_dan");
    ASSERT_EQ(form->chyby.size(), 5U);
    ASSERT_EQ(form->napovedy.size(), 1U);
    std::string cesta;
    for (int i = 0; i < 7; ++i) {
        form->dalsi_chyba();
        cesta += form->fokus + " ";
    }
    EXPECT_EQ(cesta, "Cislo Prijmeni Jmeno Dat_nar_text Cislo_zdrav_poj Kdo_plati_dan Cislo ");
    form->vyber_chybu(4);
    EXPECT_EQ(form->stranka, StrankaKarty::danove);
}

TEST_F(Form7, ObsazeneCisloAHodnotaKterouNelzeUlozitZastaviUlozeni) {
    auto form = oprava(1);
    napis(*form, "Cislo", "8");
    EXPECT_TRUE(form->ulozit_povoleno) << "odmítá se až uložení";
    form->stranka = StrankaKarty::cssz;
    form->acUlozitExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Pracovník číslo 8 už existuje - hodnoty nelze zapsat.");
    EXPECT_EQ(form->fokus, "Cislo");
    EXPECT_EQ(form->stranka, StrankaKarty::osobni);
    napis(*form, "Cislo", "7");
    napis(*form, "Misto_narozeni", "北京");
    form->acUlozitExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(),
              "Údaj \"Místo narození\" obsahuje znak, který nelze uložit.");
    napis(*form, "Misto_narozeni", "");
    napis(*form, "Dovolena_narok", "1-2");
    form->acUlozitExecute();
    EXPECT_EQ(firma.obsluha.hlasky.back(), "Údaj \"nárok za běžný rok\" musí být číslo.");
    EXPECT_FALSE(form->ulozeno);
    form->acZpetExecute();
    EXPECT_TRUE(form->zavreno);
    EXPECT_EQ(karta(1, "Cislo, Misto_narozeni, Dovolena_narok, Student"), "7|||\n");
}

/// Twelve months of gross wages, pay sheets and blocked values of workers 7 and 8.
struct Kaskada : Form7 {
    Kaskada() {
        for (int mesic = 1; mesic <= 12; ++mesic) {
            const std::string m = fmt::format("{:02}", mesic);
            const std::string vety =
                "Cislo_pracovnika,Prijmeni,Jmeno\n7,Novák,Petr\n8,Malá,Eva\n7,Novák,\n";
            firma.vloz("Hrube" + m, vety);
            firma.vloz("Listin" + m, vety);
            if (mesic != 5) firma.vloz("Blok" + m, "Cislo_pracovnika,dan_dif\n7,1\n8,2\n");
        }
        firma.vloz("Deti", "Cislo_pracovnika,Prijmeni,Jmeno\n7,Novák,Jan\n8,Malý,Jan\n");
        firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n8,13,100\n7,13,200\n");
    }
    std::string tabulka(const std::string& nazev, const std::string& pole = "Prijmeni, Jmeno") {
        return firma.vypis("SELECT Cislo_pracovnika, " + pole + " FROM " + nazev);
    }
};

TEST_F(Kaskada, ZmenaCislaJmenaATituluProjdeVsechnyTabulky) {
    firma.vloz("Rocni", "Cislo_pracovnika,Pojistne\n7,5\n8,6\n");
    auto form = oprava(1);
    napis(*form, "Cislo", "77");
    napis(*form, "Prijmeni", "O'Neil \"st.\"");
    napis(*form, "Jmeno", "Ján");
    napis(*form, "Titul", "Ing.");
    std::vector<std::string> texty;
    int posledni = -1;
    firma.obsluha.pri_udalostech = [&] {
        texty.push_back(form->postup_text);
        EXPECT_TRUE(form->postup_viditelny);
        EXPECT_GE(form->postup, posledni);
        posledni = form->postup;
        form->acUlozitExecute();
        form->acZpetExecute();
        form->psani("Jmeno", "Jiný");
        EXPECT_FALSE(form->zavreno) << "během zápisu karta nic jiného nedělá";
    };
    form->acUlozitExecute();
    ASSERT_TRUE(form->ulozeno);
    EXPECT_FALSE(form->postup_viditelny);
    for (int mesic = 1; mesic <= 12; ++mesic) {
        const std::string m = fmt::format("{:02}", mesic);
        SCOPED_TRACE(m);
        EXPECT_EQ(tabulka("Hrube" + m),
                  "77|O'Neil \"st.\"|Ján\n8|Malá|Eva\n77|O'Neil \"st.\"|Ján\n");
        EXPECT_EQ(tabulka("Listin" + m),
                  "77|O'Neil \"st.\"|Ján, Ing.\n8|Malá|Eva\n77|O'Neil \"st.\"|Ján, Ing.\n");
        if (mesic != 5) {
            EXPECT_EQ(tabulka("Blok" + m, "dan_dif"), "77|1\n8|2\n");
        }
    }
    EXPECT_EQ(tabulka("Deti"), "77|Novák|Jan\n8|Malý|Jan\n");
    EXPECT_EQ(tabulka("Fixni", "Kcs"), "8|100\n77|200\n");
    EXPECT_EQ(tabulka("Rocni", "Pojistne"), "77|5\n8|6\n");
    ASSERT_EQ(texty.size(), 12U + 2 + 12 + 11 + 1);
    EXPECT_EQ(texty[0], "Opravuji \"HRUBE01\"");
    EXPECT_EQ(texty[12], "Opravuji \"DETI.DB\"");
    EXPECT_EQ(texty[13], "Opravuji fixní položky.");
    EXPECT_EQ(texty[25], "Opravuji výplatní listinu 12.");
    EXPECT_EQ(texty[26], "Opravuji \"BLOK01\"");
    EXPECT_EQ(texty.back(), "Opravuji \"ROCNI.DB\"");
}

TEST_F(Kaskada, SamotnyTitulMeniJenJmenoVListine) {
    auto form = oprava(1);
    napis(*form, "Titul", "Ing.");
    form->acUlozitExecute();
    EXPECT_EQ(tabulka("Listin12"), "7|Novák|Petr, Ing.\n8|Malá|Eva\n7|Novák|Petr, Ing.\n");
    EXPECT_EQ(tabulka("Hrube12"), "7|Novák|Petr\n8|Malá|Eva\n7|Novák|Petr\n");
}

TEST_F(Kaskada, ZmenaJinehoUdajeTabulkyNemeni) {
    auto form = oprava(1);
    napis(*form, "Ulice", "Dlouhá 1");
    firma.obsluha.pri_udalostech = [] { FAIL() << "není co opravovat"; };
    form->acUlozitExecute();
    EXPECT_TRUE(form->ulozeno);
    EXPECT_EQ(tabulka("Hrube01"), "7|Novák|Petr\n8|Malá|Eva\n7|Novák|\n");
}

TEST_F(Kaskada, ChybaUprostredNechaVseJakBylo) {
    firma.data().delete_table("Deti");
    auto form = oprava(1);
    napis(*form, "Cislo", "77");
    EXPECT_THROW(form->acUlozitExecute(), base::ChybaDat);
    EXPECT_FALSE(form->ulozeno || form->zavreno || form->postup_viditelny);
    EXPECT_EQ(tabulka("Hrube01"), "7|Novák|Petr\n8|Malá|Eva\n7|Novák|\n");
    EXPECT_EQ(karta(1, "Cislo"), "7\n");
    firma.vloz("Deti", "Cislo_pracovnika\n7\n");
    form->acUlozitExecute();
    EXPECT_TRUE(form->ulozeno) << "po nápravě lze uložit znovu";
    EXPECT_EQ(tabulka("Deti", "Poradi"), "77|\n");
}

TEST_F(Form7, VypisKartyUkazujeTextySeznamu) {
    auto form = oprava(1);
    const CiselnikyKarty ciselniky(firma.session);
    std::string vypis;
    for (const auto& stranka : vypis_karty(form->hodnoty, ciselniky, firma.session, false)) {
        vypis += "[" + stranka.nazev + "]";
        for (const auto& [popisek, hodnota] : stranka.radky)
            vypis += popisek + "=" + hodnota + ";";
    }
    for (const char* cast :
         {"[Osobní data]Číslo pracovníka - nyní=7;", "Týdenní pracovní doba=37,5;",
          "Sociální pojištění=platí 6,5 % dle zadání;", "Student=ne;",
          "Rodinný stav=Rozvedený / -á;", "leden=1234,123457;"}) {
        EXPECT_NE(vypis.find(cast), std::string::npos) << cast << "\n" << vypis;
    }
    EXPECT_EQ(vypis.find("Stálý plat="), std::string::npos);
}

}  // namespace
