// Names of modules and columns.
#include "paysheet/sloupce.h"

#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"

namespace {

TEST(Sloupce, ModulSlovyZnaCtrnactModulu) {
    EXPECT_EQ(paysheet::modul_slovy(1), "hrubé mzdy");
    EXPECT_EQ(paysheet::modul_slovy(5), "jiné dávky a náhrady");
    EXPECT_EQ(paysheet::modul_slovy(14), "k výplatě");
    for (int modul : {-1, 0, 15, 61})
        EXPECT_EQ(paysheet::modul_slovy(modul), "neznámý modul");
}

TEST(Sloupce, NazevSloupceSeMeniAzNovymNactenim) {
    zkouska::ZkusebniFirma firma;
    const auto slovy = [&](int sloupec) { return paysheet::sloupec_slovy(firma.session, sloupec); };
    EXPECT_EQ(slovy(1), "hrubé mzdy - sloupec 1");
    EXPECT_EQ(slovy(18), "k výplatě");
    for (int sloupec : {0, 19, 100, -1})
        EXPECT_EQ(slovy(sloupec), "neznámý sloupec");
    {
        store::Transaction transakce(firma.data());
        firma.data().execute("UPDATE Ridici SET text = 'úkolová mzda' WHERE Sloupec = 1");
        transakce.commit();
    }
    EXPECT_EQ(slovy(1), "hrubé mzdy - sloupec 1");
    paysheet::Nacti_sloupce_slovy(firma.session);
    EXPECT_EQ(slovy(1), "úkolová mzda");
    EXPECT_EQ(firma.session.sloupce_slovy.front(), "01úkolová mzda");
    EXPECT_EQ(firma.session.sloupce_slovy.size(), 18U);
}

}  // namespace
