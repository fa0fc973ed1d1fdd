// Actions of the main menu: the common guard, what each one is carried out by, and that a refused
// one leaves no trace.
#include "menu/akce.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <stdexcept>

#include "base/soubory.h"
#include "menu/import_hrubych.h"
#include "menu/nepostavene_akce.h"
#include "menu/unit1_hlavni.h"
#include "support/zkusebni_firma.h"

namespace {

struct Hlavni {
    zkouska::ZkusebniFirma firma;
    menu::TForm1 form{firma.session};
    std::vector<std::string> ukazano;

    Hlavni() {
        firma.vloz("Zdr_poj", "Cislo,Nazev\n1,Pojišťovna\n");  // an empty list would ask
        firma.obsluha.pri_obrazovce = [this](base::Obrazovka& obrazovka) {
            ukazano.emplace_back(obrazovka.jmeno());
            EXPECT_FALSE(form.proved_akci("acZmenitFirmu")) << "akce za otevřenou obrazovkou";
        };
    }
    std::vector<std::string> hlasky() { return std::exchange(firma.obsluha.hlasky, {}); }
};

TEST(AkceHlavniNabidky, JmenaAZkratkySeNeopakujiASkupinyMajiNadpis) {
    std::set<std::string_view> jmena, zkratky, nadpisy;
    for (const auto& akce : menu::vsechny_akce()) {
        EXPECT_TRUE(jmena.insert(akce.nazev).second) << akce.nazev;
        EXPECT_TRUE(*akce.zkratka == '\0' || zkratky.insert(akce.zkratka).second) << akce.nazev;
        EXPECT_STRNE(menu::skupina_slovy(akce.skupina), "") << akce.nazev;
        nadpisy.insert(menu::skupina_slovy(akce.skupina));
        EXPECT_EQ(menu::najdi_akci(akce.nazev), &akce);
    }
    EXPECT_EQ(jmena.size(), 35U);
    EXPECT_EQ(nadpisy.size(), 9U);
    EXPECT_EQ(menu::najdi_akci("acNeni"), nullptr);
}

// Every action either runs or says that its screen is missing; none is forgotten in between.
TEST(AkceHlavniNabidky, KazdaAkceJeBudPostavenaNeboNaSeznamuNepostavenych) {
    const auto& nepostavene = menu::k_nepostavene_akce;
    for (const auto& nazev : nepostavene)
        EXPECT_NE(menu::najdi_akci(nazev), nullptr) << nazev;
    Hlavni h;
    for (const auto& akce : menu::vsechny_akce()) {
        h.firma.session.firma = "FIRMA22";
        h.ukazano.clear();
        const bool ceka = std::find(std::begin(nepostavene), std::end(nepostavene), akce.nazev) !=
                          std::end(nepostavene);
        const std::string veta =
            std::string("Obrazovka „") + akce.popisek + "“ zatím není součástí této verze.";
        bool probehla = false;
        EXPECT_NO_THROW(probehla = h.form.proved_akci(akce.nazev)) << akce.nazev;
        const auto hlasky = h.hlasky();
        EXPECT_EQ(std::count(hlasky.begin(), hlasky.end(), veta), ceka ? 1 : 0) << akce.nazev;
        EXPECT_FALSE(ceka && (probehla || !h.ukazano.empty())) << akce.nazev;
    }
    EXPECT_THROW(h.form.proved_akci("acNeni"), std::logic_error);
}

TEST(AkceHlavniNabidky, BezFirmyJdouJenAkceKtereJiNepotrebuji) {
    const std::set<std::string> bez_firmy{"acEvidenceDochazky", "acFunkce", "acEditaceSestav",
                                          "acZmenitFirmu", "acKonec"};
    Hlavni h;
    h.firma.session.firma.clear();
    for (const auto& akce : menu::vsechny_akce()) {
        h.form.proved_akci(akce.nazev);
        const auto hlasky = h.hlasky();
        const bool odmitnuta =
            hlasky == std::vector<std::string>{"Nejdříve vyberte firmu."} && h.ukazano.empty();
        EXPECT_EQ(odmitnuta, !bez_firmy.contains(akce.nazev)) << akce.nazev;
    }
}

TEST(AkceHlavniNabidky, KazdaOtevreSvouObrazovkuADruhaAkceZaNiNejde) {
    Hlavni h;
    h.firma.session.zpracovavany_mesic = 1;
    menu::zaloz_hrube_zorv(h.firma.session);
    const std::pair<const char*, const char*> pripady[] = {
        {"acVypocetVyplat", "TForm21"},     {"acUzaverky", "TFStavProjektu"},
        {"acNastaveniVL", "TForm3"},        {"acPracovniKalendar", "TFRpd"},
        {"acPojistovnyFondy", "TForm26"},   {"acStroje", "TForm15"},
        {"acExterniVstup", "TForm74"},      {"acEvidenceDochazky", "TForm162"},
        {"acNastaveniParametru", "TForm14"}};
    for (const auto& [akce, obrazovka] : pripady) {
        h.ukazano.clear();
        EXPECT_TRUE(h.form.proved_akci(akce));
        EXPECT_EQ(h.ukazano, std::vector<std::string>{obrazovka});
    }
    EXPECT_TRUE(h.form.proved_akci("acZmenitFirmu")) << "po obrazovce už akce jdou";
}

// Closed month, missing gross items, the operator's No: three ways of being refused.
TEST(MesicniAkce, OdmitnutaNechaSessionAVratiFokusNaMesic) {
    const struct {
        const char* popis;
        int mesic, aktivni;
        bool ma_listinu;
        const char* akce = "acVypocetVyplat";
    } pripady[] = {{"uzavřený měsíc", 2, 5, false},
                   {"bez hrubých mezd", 7, 7, false},
                   {"původní výplaty zůstanou", 2, 2, true},
                   {"zadání do uzavřeného měsíce", 2, 5, false, "acHrubeZorvNahrady"}};
    for (const auto& p : pripady) {
        Hlavni h;
        auto& session = h.firma.session;
        h.firma.vloz("Hrube02", "Mesic,Cislo_pracovnika,Modul\n2,7,1\n");
        if (p.ma_listinu) {
            h.firma.vloz("Listin02", "Mesic,Cislo_pracovnika,Modul\n2,7,14\n");
            h.firma.obsluha.odpovez("výplaty již zpracovány", false);
        }
        session.aktivni_mesic = p.aktivni;
        session.zpracovavany_mesic = 4;
        h.form.mesic = p.mesic;
        EXPECT_FALSE(h.form.proved_akci(p.akce)) << p.popis;
        EXPECT_TRUE(h.form.fokus_na_mesici) << p.popis;
        EXPECT_EQ(session.zpracovavany_mesic, 4) << p.popis;
        EXPECT_TRUE(h.ukazano.empty()) << p.popis;
    }
}

TEST(MesicniAkce, VpustenaPracujeSMesicemZPole) {
    Hlavni h;
    auto& session = h.firma.session;
    h.firma.vloz("Hrube02", "Mesic,Cislo_pracovnika,Modul\n2,7,1\n");
    session.aktivni_mesic = h.form.mesic = 2;
    session.zpracovavany_mesic = 4;
    h.firma.obsluha.pri_obrazovce = [&](base::Obrazovka&) {
        EXPECT_EQ(session.zpracovavany_mesic, 2);
        h.ukazano.emplace_back("výpočet");
    };
    EXPECT_TRUE(h.form.proved_akci("acVypocetVyplat"));
    EXPECT_EQ(h.ukazano.size(), 1U);
}

TEST(MesicniAkce, OdmitnutyImportHrubychNechaMesicNaSvem) {
    zkouska::ZkusebniFirma firma;
    firma.session.aktivni_mesic = 5;
    firma.session.zpracovavany_mesic = 4;
    const char* csv = "Mesic,Cislo_pracovnika,Modul\n2,7,1\n";
    EXPECT_FALSE(menu::import_hrubych(firma.session, 2, csv, "h.csv", false));
    EXPECT_EQ(firma.session.zpracovavany_mesic, 4);
    EXPECT_TRUE(menu::import_hrubych(firma.session, 5, csv, "h.csv", false));
    EXPECT_EQ(firma.session.zpracovavany_mesic, 5);
}

TEST(Restart, ZavreFormularASpustiJenKdyzJeSpoustec) {
    Hlavni h;
    EXPECT_TRUE(h.form.proved_akci("acRestart"));
    EXPECT_EQ(h.hlasky(), std::vector<std::string>{"Ukončete program a spusťte jej znovu."});
    EXPECT_FALSE(h.form.zavreno);
    EXPECT_EQ(h.form.spustit_po_zavreni, "");

    const auto spoustec = h.firma.session.slozka_programu / "RestartZorv.exe";
    std::filesystem::create_directories(spoustec.parent_path());
    base::zapis_soubor(spoustec, "x");
    EXPECT_TRUE(h.form.proved_akci("acRestart"));
    EXPECT_TRUE(h.form.zavreno);
    EXPECT_EQ(h.form.spustit_po_zavreni, spoustec.string());
    EXPECT_TRUE(h.hlasky().empty());
}

TEST(EditaceSestav, F12JiZapneAVypne) {
    Hlavni h;
    for (const bool zapnuta : {true, false}) {
        h.form.proved_akci("acEditaceSestav");
        EXPECT_EQ(h.form.editace_sestav, zapnuta);
    }
}

}  // namespace
