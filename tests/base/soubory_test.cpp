// Whole files, the log and the remembered windows.
#include "base/soubory.h"

#include <gtest/gtest.h>

#include "base/deniky.h"
#include "support/docasna_slozka.h"

namespace {

namespace fs = std::filesystem;

/// The text of the error, "" when there was none.
template <typename F>
std::string chyba_z(F co) {
    try {
        co();
    } catch (const base::ChybaDat& e) {
        return e.what();
    }
    return "";
}

TEST(Soubory, ZapisNahradiCelyObsahAPatriJenVlastnikovi) {
    const zkouska::DocasnaSlozka slozka;
    const auto soubor = slozka / "rid_zorv.idx";
    base::zapis_soubor(soubor, std::string(100000, 'x'));
    base::zapis_soubor(soubor, std::string("nov\0y", 5));
    EXPECT_EQ(base::precti_soubor(soubor, 5), std::string("nov\0y", 5));
    EXPECT_EQ(fs::status(soubor).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(std::distance(fs::directory_iterator(slozka.cesta()), {}), 1);
}

TEST(Soubory, ChybaJmenujeSoubor) {
    const zkouska::DocasnaSlozka slozka;
    base::zapis_soubor(slozka / "dlouhy.idx", "123456");
    EXPECT_NE(chyba_z([&] { base::precti_soubor(slozka / "neni.idx", 9); }).find("neni.idx"),
              std::string::npos);
    EXPECT_NE(chyba_z([&] { base::precti_soubor(slozka / "dlouhy.idx", 5); }).find("dlouhy.idx"),
              std::string::npos);
    EXPECT_NE(chyba_z([&] { base::precti_soubor(slozka.cesta(), 5); }), "");
    EXPECT_NE(chyba_z([&] { base::zapis_soubor(slozka / "neni/novy.idx", ""); }).find("novy.idx"),
              std::string::npos);
}

TEST(Soubory, NezdarenyZapisNenechaZbytky) {
    const zkouska::DocasnaSlozka slozka;
    fs::create_directories(slozka / "cil/uvnitr");  // a folder cannot be replaced by a file
    EXPECT_NE(chyba_z([&] { base::zapis_soubor(slozka / "cil", "x"); }), "");
    EXPECT_TRUE(fs::is_directory(slozka / "cil/uvnitr"));
    EXPECT_EQ(std::distance(fs::directory_iterator(slozka.cesta()), {}), 1);
}

TEST(Deniky, LogPridavaRadkySCasem) {
    const zkouska::DocasnaSlozka slozka;
    const base::PevneHodiny hodiny({{2022, 3, 5}, 6, 7, 8});
    base::log_akce(true, slozka.cesta(), hodiny, "zorv", "TForm21", " otevřeno");
    base::log_akce(true, slozka.cesta(), hodiny, "zorv", "TForm21", "");
    base::log_akce(false, slozka.cesta(), hodiny, "zorv", "TForm17", "x");
    EXPECT_EQ(base::precti_soubor(slozka / "Velmar/Logy/2022/zorv_TForm21_2022.log", 1000),
              "0305060708 otevřeno\n0305060708\n");
    EXPECT_FALSE(fs::exists(slozka / "Velmar/Logy/2022/zorv_TForm17_2022.log"));
}

TEST(Deniky, ChybyJsouPoRadcichAJenProVlastnika) {
    const zkouska::DocasnaSlozka slozka;
    const base::PevneHodiny hodiny({{2022, 3, 5}, 6, 7, 8});
    const fs::path soubor = slozka / "Chyby.txt";
    base::zapis_chybu(soubor, hodiny, {"base::ChybaDat", "Řádek.\r\nDruhý.", "Edit1->TForm14"});
    base::zapis_chybu(soubor, hodiny, {"std::logic_error", "x", ""});
    base::zapis_chybu(slozka / "neni/Chyby.txt", hodiny, {"a", "b", "c"});
    EXPECT_EQ(base::precti_soubor(soubor, 1000),
              "5.3.2022 6:07:08 : base::ChybaDat - Řádek. Druhý. Edit1->TForm14\r\n"
              "5.3.2022 6:07:08 : std::logic_error - x \r\n");
    EXPECT_EQ(fs::status(soubor).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(Deniky, OknoSiPamatujeMisto) {
    const zkouska::DocasnaSlozka slozka;
    EXPECT_FALSE(base::nacti_okno(slozka.cesta(), "zorv", "TForm1"));
    base::uloz_okno(slozka.cesta(), "zorv", "TForm1", {true, 10, -20, 800, 600});
    const auto okno = base::nacti_okno(slozka.cesta(), "zorv", "TForm1");
    ASSERT_TRUE(okno);
    EXPECT_TRUE(okno->maximalizovano);
    EXPECT_EQ(std::tie(okno->nahore, okno->vlevo, okno->sirka, okno->vyska),
              std::tuple(10, -20, 800, 600));
    EXPECT_FALSE(base::nacti_okno(slozka.cesta(), "zorv", "TForm2"));
}

}  // namespace
