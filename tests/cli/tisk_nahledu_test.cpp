// Reports of verbs: text on the output, or PDF files by --pdf.
#include "cli/tisk_nahledu.h"

#include "cli/obsluha_terminalu.h"

#include "base/soubory.h"
#include "prikaz.h"
#include "report/tabulkova.h"

namespace {

using namespace zkouska;

/// Shows two reports as a verb would.
void ukaz_dve_sestavy(cli::TiskNahledu& tisk) {
    std::istringstream in;
    std::ostringstream err;
    cli::ObsluhaTerminalu obsluha(in, err, {}, false);
    obsluha.pri_obrazovce<report::TFUsrPrev>(
        [&tisk](report::TFUsrPrev& nahled) { tisk.vytiskni(nahled); });
    for (const char* nazev : {"Pracovníci", "Děti"}) {
        report::TFUsrPrev nahled(
            report::sestav_tabulku({nazev, {}, {{"Příjmení", 30}}, {{"Říha"}}, {}, false}));
        obsluha.ukaz_modalne(nahled);
        EXPECT_TRUE(nahled.zavreno);
    }
}

TEST(TiskNahledu, BezVolbyVypiseText) {
    std::ostringstream out, err;
    cli::TiskNahledu tisk({}, out, err);
    ukaz_dve_sestavy(tisk);
    EXPECT_EQ(out.str(),
              "Pracovníci\n\n----------\nPříjmení\n----------\nŘíha\n"
              "Děti\n\n--------\nPříjmení\n--------\nŘíha\n");
    EXPECT_EQ(err.str(), "");
    EXPECT_FALSE(tisk.chybi_pdf());
}

TEST(TiskNahledu, SVolbouUloziKazdouSestavuDoSvehoSouboru) {
    const DocasnaSlozka slozka;
    std::ostringstream out, err;
    cli::TiskNahledu tisk(slozka / "tisk.pdf", out, err);
    EXPECT_TRUE(tisk.chybi_pdf());
    ukaz_dve_sestavy(tisk);
    EXPECT_EQ(out.str(), "");
    EXPECT_FALSE(tisk.chybi_pdf());
    for (const char* soubor : {"tisk.pdf", "tisk-2.pdf"}) {
        EXPECT_TRUE(base::precti_soubor(slozka / soubor, 1U << 20U).starts_with("%PDF-")) << soubor;
        EXPECT_NE(err.str().find((slozka / soubor).string()), std::string::npos) << err.str();
    }
}

TEST_F(Prikaz, SlovesoBezSestavyPdfOdmitne) {
    const auto soubor = slozka / "tisk.pdf";
    const auto vysledek = spust({"firma", "seznam", "--pdf", soubor.string()});
    EXPECT_EQ(vysledek.stav, 2);
    EXPECT_NE(vysledek.err.find("žádnou sestavu netiskne"), std::string::npos) << vysledek.err;
    EXPECT_FALSE(std::filesystem::exists(soubor));
}

}  // namespace
