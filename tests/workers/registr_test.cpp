// The register of workers: whom a filter lists, in which order, where the cursor stays.
#include <fmt/format.h>
#include <fmt/ranges.h>
#include <gtest/gtest.h>

#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"
#include "workers/fixni.h"
#include "workers/unit13_fixni_pracovnika.h"
#include "workers/unit6_registr.h"
#include "workers/unit7_karta.h"
#include "workers/unit9_dite.h"

namespace {

using workers::FiltrRegistru;
using workers::PoradiRegistru;
using workers::TForm6;
using Stranka = TForm6::Stranka;

/// Seven workers, entered in another order than by number; 5 has two cards.
struct Registr {
    zkouska::ZkusebniFirma firma;
    TForm6 form{firma.session, nullptr};

    Registr() {
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Dat_nar_cislo,Zam_do,Rocni_zuctovani,Id_rpd,Volit_1,"
                   "Volit_2\n"
                   "3,Chalupa,Ivan,19900101,\"  \",true,0,1,20\n"
                   "1,Novák,Jan,19800101,,true,5,1,10\n"
                   "2,Nováková,Eva,19700101,31.3.2022,false,0,2,10\n"
                   "4,Hybš,Čeněk,19600101,,,,,\n"
                   "5,ivan,žofie,,,true,7,2,20\n"
                   "5,Ivan,Adam,19600101,30.6.2022,,,1,\n"
                   "6,O'Neil 50%,Anna,19851231,,,0,,7\n");
        firma.vloz("Deti",
                   "Cislo_pracovnika,Jmeno,Poradi,Odpocitatelna_dan\n"
                   "2,Petr,2,1617\n2,Ota,1,1267\n3,Iva,1,1267\n9,Cizí,1,1267\n");
        firma.vloz("epodani", "Cislo_pracovnika,Soubor\n4,ONZ_1\n");
        firma.vloz("Fixni",
                   "Cislo_pracovnika,Sloupec,Kcs,Ucet,Kod_banky\n3,14,500,123,100\n1,13,200,,\n");
        form.FormShow();
    }
    std::string cisla() const {
        std::string text;
        for (const auto* r : form.radky)
            text += fmt::format("{} ", r->Cislo);
        return text;
    }
    void stoupni_na(std::int64_t cislo) {
        for (std::size_t i = 0; i < form.radky.size(); ++i)
            if (form.radky[i]->Cislo == cislo) return form.vyber_radek(static_cast<int>(i));
        FAIL() << "pracovník " << cislo << " v seznamu není";
    }
    std::int64_t kurzor() const { return form.pracovnik() ? form.pracovnik()->Cislo : 0; }
};

std::string pocitadla(const store::Rows& vety) {
    std::string text;
    for (const auto& veta : vety.rows)
        text += veta[0].as_text() + " ";
    return text;
}
std::string pocitadla(const std::vector<const workers::RadekRegistru*>& radky) {
    std::string text;
    for (const auto* r : radky)
        text += fmt::format("{} ", r->Pocitadlo);
    return text;
}

TEST(Registr, FiltrVybiraPracovniky) {
    const struct {
        const char* popis;
        void (*nastav)(FiltrRegistru&);
        const char* cisla;
    } pripady[] = {
        {"bez omezení", [](auto&) {}, "1 2 3 4 5 5 6 "},
        {"mají děti", [](auto& f) { f.maji_deti = true; }, "2 3 "},
        {"mají ePodání", [](auto& f) { f.maji_epodani = true; }, "4 "},
        {"roční zúčtování", [](auto& f) { f.rocni_zuctovani = true; }, "1 3 5 "},
        {"výstup ze samých mezer je prázdný", [](auto& f) { f.aktivni = true; }, "1 3 4 5 6 "},
        {"prázdný kalendář není 0", [](auto& f) { f.nema_kalendar = true; }, "2 3 6 "},
        {"číslo", [](auto& f) { f.cislo = "5"; }, "5 5 "},
        {"číslo s mezerami a nulami", [](auto& f) { f.cislo = " 003 "; }, "3 "},
        {"číslo je výraz dotazu", [](auto& f) { f.cislo = "2+1"; }, "3 "},
        {"číslo z mezer neomezuje", [](auto& f) { f.cislo = "  "; }, "1 2 3 4 5 5 6 "},
        {"číslo, které nikdo nemá", [](auto& f) { f.cislo = "77"; }, ""},
        {"hledisko",
         [](auto& f) {
             f.volitelne[0] = {1, "1"};
         },
         "1 3 5 "},
        {"hledisko bez hodnoty",
         [](auto& f) {
             f.volitelne[0] = {1, ""};
         },
         "1 2 3 4 5 5 6 "},
        {"hodnota bez hlediska",
         [](auto& f) {
             f.volitelne[1] = {0, "1"};
         },
         "1 2 3 4 5 5 6 "},
        {"obě hlediska",
         [](auto& f) {
             f.volitelne = {workers::VolitelneHledisko{1, "1"}, {2, "20"}};
         },
         "3 "},
        {"dvakrát totéž hledisko s jinou hodnotou",
         [](auto& f) {
             f.volitelne = {workers::VolitelneHledisko{1, "1"}, {1, "2"}};
         },
         ""},
        {"část příjmení malými", [](auto& f) { f.jmeno = "nová"; }, "1 2 "},
        {"část jména nebo příjmení", [](auto& f) { f.jmeno = "IVAN"; }, "3 5 5 "},
        {"diakritika se rozlišuje", [](auto& f) { f.jmeno = "zof"; }, ""},
        {"apostrof patří do jména", [](auto& f) { f.jmeno = "o'n"; }, "6 "},
        {"uvozovka neuteče do dotazu", [](auto& f) { f.jmeno = "\" OR 1=1 --"; }, ""},
        {"procento zastupuje cokoli", [](auto& f) { f.jmeno = "n%k"; }, "1 2 4 "},
        {"podtržítko jeden znak", [](auto& f) { f.jmeno = "e_a"; }, "2 "},
        {"více omezení najednou",
         [](auto& f) {
             f.aktivni = f.rocni_zuctovani = true;
             f.jmeno = "v";
         },
         "1 3 5 "},
    };
    Registr r;
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.popis);
        r.form.filtr = {};
        p.nastav(r.form.filtr);
        r.form.zmena_filtru();
        EXPECT_EQ(r.form.chyba_filtru, "");
        EXPECT_EQ(r.cisla(), p.cisla);
        EXPECT_EQ(r.form.pocet_slovy, fmt::format("Zobrazeno {} z 7", r.form.radky.size()));
    }
}

// What the screen decides in memory is what the query says, whatever meets whatever.
TEST(Registr, SeznamJeVzdyVysledkemDotazu) {
    Registr r;
    unsigned poradi = 0;
    for (unsigned bity = 0; bity < 32; ++bity) {
        for (const char* jmeno : {"", "a", "ván", "%", "n%á%a", "_ě_ě", "50%", "_____", "ý"}) {
            for (const char* hodnota : {"", "1", "10"}) {
                FiltrRegistru& f = r.form.filtr;
                f = {};
                f.maji_deti = bity & 1U;
                f.maji_epodani = bity & 2U;
                f.rocni_zuctovani = bity & 4U;
                f.aktivni = bity & 8U;
                f.nema_kalendar = bity & 16U;
                f.jmeno = jmeno;
                f.volitelne[bity % 2] = {static_cast<int>(bity % 3), hodnota};
                f.poradi = static_cast<PoradiRegistru>(poradi++ % 4);
                r.form.zmena_filtru();
                const auto dotaz = pracovnici_registru(r.firma.session, f, "Pocitadlo");
                ASSERT_EQ(pocitadla(r.form.radky), pocitadla(dotaz)) << dotaz_registru(f);
            }
        }
    }
}

TEST(Registr, DotazMaPodminkyPresne) {
    FiltrRegistru f;
    EXPECT_EQ(dotaz_registru(f), "SELECT * FROM OS_KARTY\r\nORDER BY cislo, pocitadlo");
    f.maji_deti = f.aktivni = true;
    f.cislo = "7";
    f.volitelne[1] = {10, "4"};
    f.jmeno = "Čech";
    f.poradi = PoradiRegistru::datum_narozeni;
    EXPECT_EQ(dotaz_registru(f, "Cislo"),
              "SELECT Cislo FROM OS_KARTY\r\n"
              "WHERE (EXISTS (SELECT * FROM DETI WHERE OS_KARTY.CISLO=DETI.CISLO_PRACOVNIKA)) AND "
              "((TRIM(ZAM_DO)=\"\") OR (ZAM_DO IS NULL)) AND (CISLO=7) AND (VOLIT_10=4) AND "
              "(UPPER(PRIJMENI) LIKE :jmeno OR UPPER(JMENO) LIKE :jmeno)\r\n"
              "ORDER BY dat_nar_cislo, pocitadlo");
    EXPECT_EQ(vzor_jmena(f), "%ČECH%");
}

TEST(Registr, ChybneCisloUkazeChybuASeznamZustane) {
    Registr r;
    r.form.filtr.maji_deti = true;
    r.form.zmena_filtru();
    for (const char* spatne :
         {"abc", "1;", "1) OR (Jmeno=", "5 6", "'", "1); DELETE FROM Os_karty WHERE (1=1"}) {
        SCOPED_TRACE(spatne);
        r.form.filtr.cislo = spatne;
        r.form.zmena_filtru();
        EXPECT_NE(r.form.chyba_filtru, "");
        EXPECT_EQ(r.cisla(), "2 3 ");
    }
    r.form.filtr.cislo.clear();
    r.form.filtr.volitelne[0] = {3, "x"};
    r.form.zmena_filtru();
    EXPECT_NE(r.form.chyba_filtru.find("\"x\""), std::string::npos) << r.form.chyba_filtru;
    r.form.acVseExecute();
    EXPECT_EQ(r.form.chyba_filtru, "");
    EXPECT_EQ(r.cisla(), "1 2 3 4 5 5 6 ");
    EXPECT_EQ(r.form.filtr, FiltrRegistru{});
    EXPECT_EQ(r.firma.vypis("SELECT COUNT(*) AS P FROM Os_karty"), "7\n");
}

TEST(Registr, PoradiJsouCeskaARovneDrziPoradiZapisu) {
    const struct {
        PoradiRegistru poradi;
        const char* cisla;
    } pripady[] = {{PoradiRegistru::cislo, "1 2 3 4 5 5 6 "},
                   {PoradiRegistru::prijmeni, "4 3 5 5 1 2 6 "},
                   {PoradiRegistru::jmeno, "5 6 4 2 3 1 5 "},
                   {PoradiRegistru::datum_narozeni, "5 4 5 2 1 6 3 "}};
    Registr r;
    for (const auto& p : pripady) {
        r.form.filtr.poradi = p.poradi;
        r.form.zmena_filtru();
        EXPECT_EQ(r.cisla(), p.cisla);
    }
    r.form.acVseExecute();
    EXPECT_EQ(r.form.filtr.poradi, PoradiRegistru::datum_narozeni) << "třídění není filtr";
}

TEST(Registr, KurzorZustaneNaPracovnikoviJinakPrvniRadek) {
    Registr r;
    r.form.vyber_radek(5);
    const std::int64_t pocitadlo = r.form.pracovnik()->Pocitadlo;
    EXPECT_EQ(r.form.pracovnik()->Jmeno, "Adam");
    r.form.filtr.poradi = PoradiRegistru::jmeno;
    r.form.filtr.jmeno = "ivan";
    r.form.zmena_filtru();
    EXPECT_EQ(r.form.pracovnik()->Pocitadlo, pocitadlo) << "stejné číslo má jiná karta";
    r.form.filtr.aktivni = true;
    r.form.zmena_filtru();
    EXPECT_EQ(r.form.radek, 0);
    EXPECT_EQ(r.form.pracovnik()->Jmeno, "Ivan");
    r.form.filtr.cislo = "0";
    r.form.zmena_filtru();
    EXPECT_EQ(r.form.pracovnik(), nullptr);
    EXPECT_EQ(r.form.radek, -1);
    r.form.acOpravitExecute();
    r.form.acSmazatExecute();
    r.form.acDetiPridatExecute();
    r.form.acFixniPridatExecute();
}

TEST(Registr, ByvalyJeTenKdoMaVyplnenyVystup) {
    Registr r;
    std::string byvali;
    for (const auto* radek : r.form.radky)
        if (radek->byvaly) byvali += radek->Jmeno + " ";
    EXPECT_EQ(byvali, "Eva Adam ");
}

TEST(Registr, ZaskrtnutiObratiStrankuAVolbaHlediskaVedeNaHodnotu) {
    Registr r;
    ASSERT_EQ(r.form.hlediska.size(), 11U);
    EXPECT_EQ(r.form.hlediska[0], "vyber volitelné");
    EXPECT_EQ(r.form.hlediska[10], "10 - nezadáno");
    r.form.filtr.maji_deti = true;
    r.form.scMajiDetiClick();
    EXPECT_EQ(r.form.stranka, Stranka::deti);
    r.form.filtr.maji_deti = false;
    r.form.filtr.maji_epodani = true;
    r.form.scMajiEPodaniClick();
    EXPECT_EQ(r.form.stranka, Stranka::epodani);
    r.form.filtr.maji_epodani = false;
    r.form.vyber_stranku(Stranka::info);
    r.form.scMajiEPodaniClick();
    EXPECT_EQ(r.form.stranka, Stranka::info) << "odškrtnutí stránku nemění";
    r.form.filtr.volitelne[1] = {2, ""};
    r.form.cbVolitelneChange(1);
    EXPECT_EQ(r.form.fokus, "edVolitelne2");
    r.form.filtr.volitelne[1] = {0, "10"};
    r.form.cbVolitelneChange(1);
    EXPECT_EQ(r.form.filtr.volitelne[1].hodnota, "");
}

TEST(Registr, StrankyUkazujiPracovnikaPodKurzorem) {
    Registr r;
    r.stoupni_na(3);
    ASSERT_EQ(r.form.fixni.vety.rows.size(), 1U);
    EXPECT_EQ(r.form.fixni.vety.rows[0][1].as_text(), "14");
    EXPECT_EQ(r.form.fixni.vety.rows[0][5].as_text(), "0100") << "kód banky s nulami";
    r.form.vyber_stranku(Stranka::deti);
    r.stoupni_na(2);
    ASSERT_EQ(r.form.deti.vety.rows.size(), 2U);
    EXPECT_EQ(r.form.deti.vety.rows[0][2].as_text(), "Ota") << "podle pořadí dítěte";
    EXPECT_EQ(r.form.suma_odpocitatelnych, "2884");
    r.stoupni_na(1);
    EXPECT_EQ(r.form.suma_odpocitatelnych, "0");
    r.form.vyber_stranku(Stranka::epodani);
    r.stoupni_na(4);
    EXPECT_EQ(r.form.epodani.vety.rows.at(0).at(1).as_text(), "ONZ_1");
}

TEST(Registr, InfoJePrehledKarty) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Zdr_poj", "Cislo,Nazev\n11,Všeobecná\n");
    firma.vloz("Os_karty",
               "Cislo,Prijmeni,Zamestnanec,Student,Cislo_zdrav_poj,Cislo_penz_fondu,Staly_plat,"
               "Os_oh_2,tpd,Prum_nemoc_0,Prum_nemoc_12\n1,Novák,true,false,11,60,30000,1500,37.5,"
               "800.25,900\n");
    firma.session.ridici_zorv.text_os_oh[1] = "prémie";
    TForm6 form(firma.session, nullptr);
    form.FormShow();
    form.vyber_stranku(Stranka::info);
    const auto hodnota = [](const store::Rows& udaje, const std::string& popisek) {
        for (const auto& veta : udaje.rows)
            if (veta[0].as_text() == popisek) return veta[1].as_text();
        return "chybí " + popisek;
    };
    EXPECT_EQ(hodnota(form.osobni, "Příjmení"), "Novák");
    EXPECT_EQ(hodnota(form.osobni, "Zaměstnanec"), "ANO");
    EXPECT_EQ(hodnota(form.osobni, "Student"), "");
    EXPECT_EQ(hodnota(form.osobni, "Zdravotní pojišťovna"), "11 Všeobecná");
    EXPECT_EQ(hodnota(form.osobni, "Penzijní fond"), "60 neznámá pojišťovna");
    EXPECT_EQ(hodnota(form.plat, "Stálý plat"), "30000");
    EXPECT_EQ(hodnota(form.plat, "prémie"), "1500");
    EXPECT_EQ(hodnota(form.plat, "Týdenní pracovní doba"), "37,5");
    EXPECT_EQ(hodnota(form.plat, "Průměr na nemoc - prosinec minulého roku"), "800,25");
    EXPECT_EQ(hodnota(form.plat, "Průměr na nemoc - prosinec"), "900");
}

TEST(Registr, KartaVraciKurzor) {
    Registr r;
    r.stoupni_na(3);
    const std::int64_t puvodni = r.form.pracovnik()->Pocitadlo;
    r.firma.obsluha.pri_obrazovce = [](base::Obrazovka& okno) {
        dynamic_cast<workers::TForm7&>(okno).acZpetExecute();
    };
    r.form.acPridatExecute();
    EXPECT_EQ(r.form.pracovnik()->Pocitadlo, puvodni) << "bez uložení zpět na původního";
    r.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& okno) {
        auto& karta = dynamic_cast<workers::TForm7&>(okno);
        r.firma.vloz("Os_karty", "Cislo,Prijmeni\n2,Čtvrtý\n");
        karta.Pocitadlo = 8;
        karta.ulozeno = true;
    };
    r.form.acPridatExecute();
    EXPECT_EQ(r.form.pracovnik()->Prijmeni, "Čtvrtý");
    EXPECT_EQ(r.cisla(), "1 2 2 3 4 5 5 6 ");
    r.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& okno) {
        EXPECT_EQ(dynamic_cast<workers::TForm7&>(okno).Pocitadlo, 8);
    };
    r.form.seznam_dvojklik();
    r.firma.obsluha.pri_obrazovce = nullptr;
    r.form.vyber_stranku(Stranka::ispv);
    r.form.seznam_dvojklik();
}

TEST(Registr, DetiSePridajiASmazou) {
    Registr r;
    r.form.vyber_stranku(Stranka::deti);
    r.stoupni_na(1);
    r.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& okno) {
        auto& dite = dynamic_cast<workers::TForm9&>(okno);
        EXPECT_EQ(dite.Cislo_pracovnika, "1");
        dite.Jmeno = "Jiří";
        dite.Prijmeni = "Novák";
        dite.Rodne_cislo = "15-01-01/1234";
        dite.acOkExecute();
    };
    r.form.acDetiPridatExecute();
    EXPECT_EQ(r.form.suma_odpocitatelnych, "1267");
    EXPECT_EQ(r.form.deti.radek, 0);
    r.form.filtr.maji_deti = true;
    r.form.scMajiDetiClick();
    EXPECT_EQ(r.cisla(), "1 2 3 ") << "seznam ví o novém dítěti";
    for (const bool smazat : {false, true}) {
        r.firma.obsluha.odpovez("Smazat záznam?", smazat);
        r.form.acDetiSmazatExecute();
        EXPECT_EQ(r.form.suma_odpocitatelnych, smazat ? "0" : "1267");
    }
    r.form.acDetiSmazatExecute();
    EXPECT_EQ(r.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "4\n");
}

TEST(Registr, FixniPolozkyBezModuluOdmitne) {
    const struct {
        int modul5, modul10, modul13;
        const char* pridat;
        const char* opravit;
    } pripady[] = {{0, 0, 0, workers::k_neni_modul_pro_fixni, workers::k_neni_modul_pro_opravu},
                   {0, 0, 17, "", workers::k_neni_modul_pro_opravu},
                   {0, 13, 0, "", ""},
                   {7, 0, 0, "", ""}};
    for (const auto& p : pripady) {
        SCOPED_TRACE(fmt::format("{} {} {}", p.modul5, p.modul10, p.modul13));
        Registr r;
        auto& z = r.firma.session.ridici_zorv;
        z.modul5_od = z.modul5_do = static_cast<std::uint8_t>(p.modul5);
        z.modul10_od = z.modul10_do = static_cast<std::uint8_t>(p.modul10);
        z.modul13 = static_cast<std::uint8_t>(p.modul13);
        int ukazano = 0;
        r.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& okno) {
            EXPECT_EQ(dynamic_cast<workers::TForm13&>(okno).Cislo_pracovnika, "3");
            ++ukazano;
        };
        r.stoupni_na(3);
        std::vector<std::string> cekane;
        for (const char* text : {p.pridat, p.opravit})
            if (*text) cekane.emplace_back(text);
        r.form.acFixniPridatExecute();
        r.form.acFixniOpravitExecute();
        EXPECT_EQ(r.firma.obsluha.hlasky, cekane);
        EXPECT_EQ(ukazano, 2 - static_cast<int>(cekane.size()));
    }
}

TEST(Registr, FixniPolozkaAPodaniSeSmazouJenPoSouhlasu) {
    Registr r;
    r.stoupni_na(3);
    r.firma.obsluha.odpovez("Opravdu chcete smazat označenou položku?", true);
    r.form.acFixniSmazatExecute();
    EXPECT_EQ(r.firma.vypis("SELECT Cislo_pracovnika FROM Fixni"), "1\n");
    r.form.vyber_stranku(Stranka::epodani);
    r.stoupni_na(4);
    for (const bool smazat : {false, true}) {
        r.firma.obsluha.odpovez("Smazat záznam? (Vygenerovaný XML soubor bude zachován.)", smazat);
        r.form.acEPodaniSmazatExecute();
        EXPECT_EQ(r.firma.vypis("SELECT COUNT(*) AS P FROM epodani"), smazat ? "0\n" : "1\n");
    }
}

TEST(Registr, TiskMaVsechnyZobrazenePracovniky) {
    Registr r;
    r.form.filtr.aktivni = true;
    r.form.filtr.poradi = PoradiRegistru::prijmeni;
    r.form.zmena_filtru();
    std::string text;
    r.firma.obsluha.pri_obrazovce = [&](base::Obrazovka& okno) {
        text = report::jako_text(dynamic_cast<report::TFUsrPrev&>(okno).dokument);
    };
    r.form.acTiskniExecute();
    for (const char* cast : {"Pracovníci - FIRMA22", "Výběr: Aktivní", "Třídění: Příjmení a jména",
                             "Dne 15.1.2022, počet pracovníků: 5"}) {
        EXPECT_NE(text.find(cast), std::string::npos) << cast << "\n" << text;
    }
    std::size_t posledni = 0;
    for (const auto* radek : r.form.radky) {
        const std::size_t kde = text.find(radek->Jmeno, posledni);
        EXPECT_NE(kde, std::string::npos) << radek->Prijmeni << "\n" << text;
        posledni = kde;
    }
    EXPECT_EQ(text.find("Eva"), std::string::npos) << "bývalá není zobrazená";
}

TEST(Registr, NepostaveneAkceToReknouJednouVetou) {
    Registr r;
    r.form.acPrepocetDovoleneExecute();
    r.form.acEpodPridatExecute();
    r.form.acEPortalExecute();
    r.form.acIspvExecute();
    r.form.acPriruckaISPVExecute();
    ASSERT_EQ(r.firma.obsluha.hlasky.size(), 5U);
    for (const std::string& hlaska : r.firma.obsluha.hlasky)
        EXPECT_TRUE(hlaska.ends_with(" není součástí této verze.")) << hlaska;
}

}  // namespace
