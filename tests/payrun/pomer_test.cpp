#include "payrun/pomer.h"

#include <gtest/gtest.h>

namespace payrun {
namespace {

TrvaniPomeru pomer(const char* od, const char* konec) {
    return {mez_pomeru(od), mez_pomeru(konec)};
}

// May 2022 has 22 days Monday to Friday; the 1st is a Sunday, the 31st a Tuesday.
TEST(PracovniPomer, TrvalCelyMesicCastADny) {
    struct Pripad {
        const char *od, *konec;
        bool cely, cast;
        int dni;
    };
    const Pripad pripady[] = {
        {"", "", true, true, 22},
        {"1.5.2022", "", true, true, 22},
        {"01.05.2022", "31.05.2022", true, true, 22},
        {"2.5.2022", "", false, true, 22},
        {"3.5.2022", "", false, true, 21},
        {"", "30.5.2022", false, true, 21},
        {"", "31.5.2022", true, true, 22},
        {"", "1.5.2022", false, true, 0},
        {"16.5.2022", "18.5.2022", false, true, 3},
        {"31.5.2022", "31.5.2022", false, true, 1},
        {"1.6.2022", "", false, false, 0},
        {"", "30.4.2022", false, false, 0},
        {"1.1.2023", "", false, false, 0},
        {"", "31.12.2021", false, false, 0},
        {"15.3.1998", "15.3.2035", true, true, 22},
        {"31.12.2021", "1.1.2023", true, true, 22},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(std::string(p.od) + " až " + p.konec);
        const TrvaniPomeru trvani = pomer(p.od, p.konec);
        EXPECT_EQ(pracovni_pomer_trva(RezimPomeru::cely_mesic, trvani, 5, 2022), p.cely);
        EXPECT_EQ(pracovni_pomer_trva(RezimPomeru::cast_mesice, trvani, 5, 2022), p.cast);
        EXPECT_EQ(kolik_dni_trval_pracovni_pomer(trvani, 5, 2022), p.dni);
    }
}

TEST(PracovniPomer, NesmyslneDatumNicNezastavi) {
    struct Pripad {
        const char *od, *konec;
        int dni;
    };
    const Pripad pripady[] = {
        {"nevím", "až do konce", 22},   // nečitelné: bez omezení
        {"..", "1.2", 22},              // neúplné: bez omezení
        {"20.5.2022", "10.5.2022", 0},  // konec před začátkem
        {"31.4.2022", "", 22},          // den, který není: leží před květnem
        {"", "31.4.2022", 0},
        {"", "99.99.9999", 22},
        {"1.1.9999", "", 0},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(std::string(p.od) + " až " + p.konec);
        EXPECT_EQ(kolik_dni_trval_pracovni_pomer(pomer(p.od, p.konec), 5, 2022), p.dni);
    }
}

}  // namespace
}  // namespace payrun
