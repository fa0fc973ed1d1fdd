// The list of children claimed for the tax benefit: where each month comes from.
#include "workers/unit100_seznam_deti.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"

namespace {

/// A note as the pay sheet has it.
std::string poznamka(const char* prijmeni, const char* jmeno, const char* rc, int castka) {
    return base::na_sirku(prijmeni, 30) + base::na_sirku(jmeno, 20) + base::mezery(30) +
           base::na_sirku(rc, 13) + base::castka_do_sloupce(7, 0, castka);
}

class SeznamDeti : public testing::Test {
  protected:
    zkouska::ZkusebniFirma firma;

    SeznamDeti() {
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Zam_od,Zam_do\n"
                   "20,Beneš,Petr,1.3.2022,15.10.2022\n10,Adamová,Jana,1.1.2015,\n");
        firma.vloz("Deti",
                   "Cislo_pracovnika,Prijmeni,Jmeno,Rodne_cislo,Odpocitatelna_dan\n"
                   "20,Beneš,Ota,10-01-01/0001,1267\n"
                   "10,Adamová,Eva,15-51-02/1234,1860\n"
                   "10,Adam,Jan,08-01-01/0002,0\n");
    }
    /// Rows "worker child: months from the sheet / months of the claim".
    std::string zdroj() {
        std::string text, dite;
        for (const auto& r : workers::zdroj_seznamu_deti(firma.session)) {
            const std::string tento =
                fmt::format("{} {} {}:", r.cislo_pracovnika, r.pracovnik, r.dite);
            if (tento != dite) text += (text.empty() ? "" : "\n") + tento;
            dite = tento;
            text += fmt::format(" {}{}{}", r.Mesic, r.poznamka == workers::k_z_listiny ? "=" : "?",
                                r.castka);
        }
        return text;
    }
};

TEST_F(SeznamDeti, BezListinPlatiNarokVMesicichZamestnani) {
    EXPECT_EQ(zdroj(),
              "10 Adamová Jana Adamová Eva: 1?1860 2?1860 3?1860 4?1860 5?1860 6?1860 7?1860 8?1860"
              " 9?1860 10?1860 11?1860 12?1860\n"
              "20 Beneš Petr Beneš Ota: 3?1267 4?1267 5?1267 6?1267 7?1267 8?1267 9?1267 10?1267");
}

TEST_F(SeznamDeti, MesicSListinouSeRidiJenJi) {
    firma.vloz("Listin01", "Cislo_pracovnika,Prijmeni,Jmeno,Modul,Poznamka\n10,Adamová,Jana,88," +
                               poznamka("Adamová", "Eva", "15-51-02/1234", 1267) +
                               "\n10,Adamová,Jana,65,\n10,Adamová,Jana,88," +
                               poznamka("Adam", "Jan", "08-01-01/0002", 1860) + "\n");
    firma.vloz("Listin04", "Cislo_pracovnika,Modul\n10,14\n");
    for (int mesic = 5; mesic <= 12; ++mesic)
        firma.vloz("Listin" + base::cislo_s_nulami(mesic, 2), "Cislo_pracovnika,Modul\n10,14\n");
    EXPECT_EQ(zdroj(),
              "10 Adamová Jana Adam Jan: 1=1860\n"
              "10 Adamová Jana Adamová Eva: 1=1267 2?1860 3?1860\n"
              "20 Beneš Petr Beneš Ota: 3?1267");
}

TEST_F(SeznamDeti, SestavaMaHlavickuPracovnikaAZnackuKazdehoMesice) {
    firma.vloz("Listin02", "Cislo_pracovnika,Prijmeni,Jmeno,Modul,Poznamka\n10,Adamová,Jana,88," +
                               poznamka("Adamová", "Eva", "15-51-02/1234", 1267) + "\n");
    std::string text;
    firma.obsluha.pri_obrazovce = [&text](base::Obrazovka& obrazovka) {
        text = report::jako_text(dynamic_cast<report::TFUsrPrev&>(obrazovka).dokument);
    };
    workers::tisk_deti(firma.session);
    EXPECT_NE(text.find("DĚTI  UPLATŇOVANÉ  PRO  DAŇOVÉ  ZVÝHODNĚNÍ"), std::string::npos);
    EXPECT_NE(text.find("10  Adamová Jana\n"), std::string::npos) << text;
    std::string znacky;
    const auto radek = text.find("Adamová Eva, rod.č. 15-51-02/1234");
    ASSERT_NE(radek, std::string::npos) << text;
    for (const std::string& slovo :
         base::rozdel_text(text.substr(radek, text.find('\n', radek) - radek), ' '))
        if (!slovo.empty()) znacky += slovo + " ";
    EXPECT_EQ(znacky,
              "Adamová Eva, rod.č. 15-51-02/1234 (1860) 1267 (1860) (1860) (1860) (1860) (1860)"
              " (1860) (1860) (1860) (1860) (1860) ");
    const auto ota = text.substr(text.find("Beneš Ota"));
    EXPECT_NE(ota.find("..."), std::string::npos) << "leden bez nároku";
}

}  // namespace
