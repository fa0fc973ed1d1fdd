// The list of closed months: what it shows of the control record.
#include "annual/stav_projektu.h"

#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"

namespace {

TEST(Uzaverky, UkazujiDataZeSouboruANicNemeni) {
    zkouska::ZkusebniFirma firma;
    shell::RidiciZorv zaznam = firma.session.ridici_zorv;
    zaznam.uzaverka[0] = "14.2.2022";
    zaznam.uzaverka[9] = "10.11.2022";
    zaznam.uzaverka[11] = "  ";
    const auto bajty = shell::bajty(zaznam);
    // Another screen's copy in memory is older than the file.
    shell::zapis_zaznam(firma.session.soubor_ridici_zorv(), bajty);

    annual::TFStavProjektu form(firma.session);
    form.FormShow();
    EXPECT_EQ(form.nadpis, "Uzávěrky - " + firma.session.radek_firmy);
    EXPECT_EQ(form.radky[0], "leden  2022       14.2.2022");
    EXPECT_EQ(form.radky[1], "únor  2022        ");
    EXPECT_EQ(form.radky[8], "září  2022        ");
    EXPECT_EQ(form.radky[9], "říjen  2022       10.11.2022");
    EXPECT_EQ(form.radky[11], "prosinec  2022      ");
    EXPECT_EQ(firma.session.ridici_zorv.uzaverka[9], "10.11.2022");
    EXPECT_EQ(shell::bajty(shell::cti_ridici_zorv(firma.session.soubor_ridici_zorv())), bajty);

    form.acZpet();
    EXPECT_TRUE(form.zavreno);
}

TEST(Uzaverky, BezSouboruSePoznaKteryChybi) {
    zkouska::ZkusebniFirma firma;
    std::filesystem::remove(firma.session.soubor_ridici_zorv());
    annual::TFStavProjektu form(firma.session);
    try {
        form.FormShow();
        FAIL() << "chybějící řídicí soubor prošel";
    } catch (const base::ChybaDat& chyba) {
        EXPECT_NE(std::string(chyba.what()).find("rid_zorv.idx"), std::string::npos);
    }
}

}  // namespace
