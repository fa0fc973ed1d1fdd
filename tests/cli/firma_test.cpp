// Making companies and looking at them; settings and the control record.
#include <fstream>

#include "base/ini.h"
#include "store/connection.h"
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace fs = std::filesystem;

using Firma = Prikaz;

TEST_F(Firma, NezdarenaFirmaPoSobeNicNenecha) {
    const struct {
        std::vector<std::string> slova;
        std::string v_textu;
    } pripady[] = {
        {{"firma", "zaloz", "BEZROKU"}, ""},
        {{"firma", "zaloz", "../VEN22"}, ""},
        {{"firma", "zaloz", "STARA08"}, "2009"},
        {{"firma", "zaloz", "DIRA22", "--struktura", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 0"},
         "Modul 14 musí být zadaný povinně."},
        {{"firma", "zaloz", "DIRA22", "--struktura", "1 2 4 0 0 0 0 0 5 6 7 8 0 0 0 9 0 10"},
         "Nenavazuje modul 2."},
    };
    for (const auto& pripad : pripady) {
        const auto vysledek = spust(pripad.slova);
        EXPECT_EQ(vysledek.stav, 1) << pripad.slova[2] << ": " << vysledek.err;
        EXPECT_FALSE(vysledek.err.empty());
        EXPECT_NE(vysledek.err.find(pripad.v_textu), std::string::npos) << vysledek.err;
    }
    EXPECT_TRUE(fs::is_empty(koren));
    EXPECT_FALSE(fs::exists(slozka / "VEN22"));
}

TEST_F(Firma, ZalozenaFirmaMaStrukturuATabulky) {
    projde({"firma", "zaloz", "cukrarna22", "--nazev", "Cukrárna", "--struktura",
            "1 2 3 0 0 0 4 5 6 7 8 9 10 11 0 12 0 13"});
    firma = "Cukrarna22";
    EXPECT_EQ(projde({"firma", "seznam"}), "CUKRARNA22\n");
    EXPECT_EQ(projde({"ridici", "modul14"}), "13\n");
    EXPECT_EQ(projde({"sql", "SELECT COUNT(*) AS Sloupcu FROM Ridici"}), "Sloupcu\n13\n");
    const auto tabulky = projde({"tabulky"});
    for (const auto* radek : {"Os_karty", "Setup", "HrubeMM"})
        EXPECT_NE(tabulky.find(radek), std::string::npos) << radek;

    EXPECT_FALSE(fs::exists(koren / "CUKRARNA22" / "Faktury" / store::Connection::file_name()))
        << "výpis nic nezakládá";

    projde({"kalendar", "zakladni"});
    EXPECT_EQ(projde({"sql", "SELECT COUNT(*) AS N FROM Rpd"}), "N\n2\n");

    const auto podruhe = spust({"firma", "zaloz", "CUKRARNA22"});
    EXPECT_EQ(podruhe.stav, 1);
    EXPECT_TRUE(fs::exists(koren / "CUKRARNA22" / "Zorv" / "rid_zorv.idx"));
}

TEST_F(Firma, FirmaBezStrukturyOdkazujeNaZalozeni) {
    zaloz_firmu("PEKARNA22");
    fs::remove(koren / "PEKARNA22" / "Zorv" / "rid_zorv.idx");
    const auto vysledek = spust({"firma", "stav", "--ano"});
    EXPECT_EQ(vysledek.stav, 3);
    EXPECT_NE(vysledek.err.find("zorvctl firma zaloz"), std::string::npos) << vysledek.err;

    EXPECT_EQ(spust({"firma", "zaloz", "PEKARNA22", "--ico", "1"}).stav, 1);
    projde({"firma", "zaloz", "PEKARNA22"});
    EXPECT_EQ(projde({"ridici", "modul14"}), "18\n");
}

TEST_F(Firma, VadnyRidiciZaznamJeChybaDat) {
    zaloz_firmu("PEKARNA22");
    fs::resize_file(koren / "PEKARNA22" / "Zorv" / "rid_zorv.idx", 675);
    const auto vysledek = spust({"firma", "stav"});
    EXPECT_EQ(vysledek.stav, 4);
    EXPECT_NE(vysledek.err.find("rid_zorv.idx"), std::string::npos) << vysledek.err;
}

TEST_F(Firma, NastaveniARidiciSeCtouMeniAOdmitaji) {
    zaloz_firmu("PEKARNA22");
    const struct {
        std::string sloveso, nazev, dobra, spatna;
    } pripady[] = {
        {"nastaveni", "legislativa2009/minimalnimzda", "17300", "mnoho"},
        {"nastaveni", "CSSZ/cssz_vs", "1234567890", ""},
        {"nastaveni", "System/VstupDoUzavrenychMesicu", "1", "třeba"},
        {"ridici", "sloupec_os_oh.1", "2", "256"},
        {"ridici", "os_sazba1", "0.5", "půl"},
        {"ridici", "Text_os_oh.2", "Příplatek", "delší text než dvacet znaků"},
        {"ridici", "disk_uctu", "D", "Ω"},
    };
    for (const auto& p : pripady) {
        projde({p.sloveso, p.nazev, p.dobra});
        const auto zmenena = projde({p.sloveso, p.nazev});
        EXPECT_NE(zmenena.find_first_not_of("\n0"), std::string::npos) << p.nazev;
        if (p.spatna.empty()) continue;
        const auto odmitnuta = spust({p.sloveso, p.nazev, p.spatna});
        EXPECT_EQ(odmitnuta.stav, 1) << p.nazev << odmitnuta.err;
        EXPECT_NE(odmitnuta.err, "") << p.nazev;
        EXPECT_EQ(projde({p.sloveso, p.nazev}), zmenena) << p.nazev;
    }
    EXPECT_EQ(projde({"nastaveni", "Legislativa2009/MinimalniMzda"}), "17300\n");
    EXPECT_EQ(base::cti_ini_text(koren / "PEKARNA22" / "Zorv" / "Nastaveni.ini", "Legislativa2009",
                                 "MinimalniMzda", ""),
              "17300");
    EXPECT_NE(projde({"nastaveni"}).find("Legislativa/proc_soc2"), std::string::npos);
    EXPECT_NE(projde({"ridici"}).find("Příplatek"), std::string::npos);
}

TEST_F(Firma, MezModuluBezSloupcuTabulkyUpozorni) {
    zaloz_firmu("PEKARNA22");
    const auto posun = spust({"ridici", "modul1_do", "3"});
    EXPECT_EQ(posun.stav, 0);
    EXPECT_EQ(posun.err,
              "Pozor: Řídicí záznam a tabulka Ridici mají jiné sloupce. V tabulce chybí: 3 (modul "
              "1).\n");
    EXPECT_NE(spust({"ridici", "modul13", "0"}).err.find("V tabulce navíc: 17 (modul 13)."),
              std::string::npos);
    spust({"ridici", "modul13", "17"});
    EXPECT_EQ(spust({"ridici", "modul1_do", "2"}).err, "");
    EXPECT_EQ(spust({"ridici", "sloupec_staly_plat", "1"}).err, "");
}

}  // namespace zkouska
