// The action "Fixní položky": refused without a module that could have one.
#include <gtest/gtest.h>
#include <tuple>

#include "menu/akce_evidence.h"
#include "support/zkusebni_firma.h"
#include "workers/unit11_fixni_polozky.h"

namespace {

TEST(AkceFixniPolozky, BezModulu5A10A13SeOdmitneSKterymkolivOtevreSeznam) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n1,13,100\n2,13,250\n");
    int otevreno = 0;
    firma.obsluha.pri_obrazovce = [&otevreno](base::Obrazovka& obecna) {
        auto& form = dynamic_cast<workers::TForm11&>(obecna);
        ++otevreno;
        ASSERT_EQ(form.soucty.size(), 1U) << "součty jsou připravené při otevření";
        EXPECT_EQ(form.soucty[0].kcs, 350);
        form.acZpetExecute();
    };
    shell::RidiciZorv& r = firma.session.ridici_zorv;
    const shell::RidiciZorv uplny = r;
    const auto bez = [&r](bool modul5, bool modul10, bool modul13) {
        if (modul5) r.modul5_od = r.modul5_do = 0;
        if (modul10) r.modul10_od = r.modul10_do = 0;
        if (modul13) r.modul13 = 0;
    };
    for (const auto& [m5, m10, m13] : {std::tuple{false, true, true}, std::tuple{true, false, true},
                                       std::tuple{true, true, false}}) {
        r = uplny;
        bez(m5, m10, m13);
        EXPECT_TRUE(menu::acFixniPolozkyExecute(firma.session));
    }
    EXPECT_EQ(otevreno, 3);
    bez(true, true, true);
    EXPECT_FALSE(menu::acFixniPolozkyExecute(firma.session));
    EXPECT_EQ(firma.obsluha.hlasky,
              std::vector<std::string>{
                  "Fixní položky nelze zadávat - není definován modul 5 ani modul 10 ani modul "
                  "13."});
    EXPECT_EQ(otevreno, 3);
}

}  // namespace
