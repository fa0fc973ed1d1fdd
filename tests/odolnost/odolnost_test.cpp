// Nothing is lost: an import and a pay run are killed at every write to the disk, and every write
// fails once. Each time the folder opens, its database is sound, and the month is as before, an
// empty sheet, or complete.
#include "odolnost/odolnost.h"

#include <fmt/format.h>
#include <set>

#include "menu/unit1_hlavni.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "store/query.h"
#include "store/transfer.h"

namespace zkouska {
namespace {

constexpr int k_pracovniku = 40;

std::string karty() {
    std::string csv =
        "Cislo,Prijmeni,Jmeno,Jake_socialni,Jake_zdravotni,Jaka_dan,Odp_poplatnik,tpd\n";
    for (int i = 1; i <= k_pracovniku; ++i) {
        csv += fmt::format("{},Příjmení{},Jméno,1,1,1,2570,40\n", i, i);
    }
    return csv;
}

std::string hrube(int zaklad) {
    std::string csv = "Mesic,Cislo_pracovnika,Modul,Sloupec,Kc_cel\n";
    for (int i = 1; i <= 5 * k_pracovniku; ++i) {
        csv += fmt::format("1,{},1,{},{}\n", i % k_pracovniku + 1, i % 2 + 1, zaklad + i);
    }
    return csv;
}

/// Rows of one table as text; "není" when it does not exist.
std::string obsah(const fs::path& slozka, const std::string& tabulka) {
    store::Connection data(slozka);
    EXPECT_EQ(data.integrity_check(), "ok");
    if (!data.table_exists(tabulka)) return "není";
    return store::export_csv(data, tabulka);
}

class OdolnostMesice : public Odolnost {
  protected:
    void vloz_mesic() {
        firma().vloz("Os_karty", karty());
        firma().vloz("Hrube01", hrube(1000));
    }
};

class OdolnostImportu : public OdolnostMesice {
  protected:
    void SetUp() override {
        vloz_mesic();
        zavri_firmu();
        pripravena();
        obnov();
        stare_ = obsah(zorv(), "Hrube01");
        importuj();
        nove_ = obsah(zorv(), "Hrube01");
        ASSERT_NE(stare_, nove_);
    }
    void importuj() {
        store::Connection data(zorv());
        const auto vysledek = store::import_csv(data, "Hrube01", hrube(7000), "hrube.csv", true);
        if (!vysledek.errors.empty()) throw base::ChybaDat(vysledek.errors.front());
    }
    void over(bool dokonceno) {
        const std::string nalezeno = obsah(zorv(), "Hrube01");
        EXPECT_TRUE(nalezeno == stare_ || nalezeno == nove_) << "třetí stav";
        if (dokonceno) {
            EXPECT_EQ(nalezeno, nove_);
        }
        videno_.insert(nalezeno == nove_);
    }
    std::string stare_, nove_;
    std::set<bool> videno_;
};

TEST_F(OdolnostImportu, ZabityKdykoliNechaStaryNeboNovyMesic) {
    zabijej([this] { importuj(); }, [this](bool dokonceno) { over(dokonceno); });
    EXPECT_EQ(videno_.size(), 2U);
}

TEST_F(OdolnostImportu, SelhaniZapisuNechaStaryNeboNovyMesic) {
    kaz([this] { importuj(); }, [this](bool dokonceno) { over(dokonceno); });
}

/// The whole action "Výpočet výplat" of January, a second time over a computed month.
class OdolnostVypoctu : public OdolnostMesice {
  protected:
    void SetUp() override {
        vloz_mesic();
        zavri_firmu();
        pripravena();
        obnov();
        vypocti();

        zapamatuj();
        stare_ = obsah(zorv(), "Listin01");
        ASSERT_NE(stare_, "není");
        {
            store::Connection data(zorv());
            store::Transaction zmena(data);
            data.execute("UPDATE Hrube01 SET Kc_cel = 30000");
            zmena.commit();
        }
        zapamatuj();
        vypocti();
        nove_ = obsah(zorv(), "Listin01");
        ASSERT_NE(stare_, nove_);
        prazdne_ = nove_.substr(0, nove_.find('\n') + 1);
    }
    void vypocti() {
        SkriptovanaObsluha obsluha;
        obsluha.odpovez("Zrušit původní výplaty", true);
        obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
            auto& vypocet = dynamic_cast<payrun::TForm21&>(obrazovka);
            vypocet.Button2Click();
            vypocet.Button1Click();
        };
        base::PevneHodiny hodiny({{2022, 1, 15}, 8, 0, 0});
        base::SystemovaNahoda nahoda;
        shell::Session session({obsluha, hodiny, nahoda}, zkousena() / "program");
        session.koren_dat = zkousena();
        session.firma = "FIRMA22";
        menu::TForm1 hlavni(session);
        if (!hlavni.zaloz_soubory()) throw base::ChybaDat("firma se neotevřela");
        hlavni.acVypocetVyplatExecute();
    }
    void over(bool dokonceno) {
        const std::string nalezeno = obsah(zorv(), "Listin01");
        EXPECT_TRUE(nalezeno == stare_ || nalezeno == prazdne_ || nalezeno == nove_)
            << "třetí stav:\n"
            << nalezeno.substr(0, 500);
        if (dokonceno) {
            EXPECT_EQ(nalezeno, nove_);
        }
        EXPECT_EQ(obsah(zorv(), "Zaporna"), "není");
        videno_.insert(nalezeno == nove_ ? 2 : nalezeno == stare_ ? 0 : 1);
    }
    std::string stare_, nove_, prazdne_;
    std::set<int> videno_;
};

TEST_F(OdolnostVypoctu, ZabityKdykoliNechaStarouPrazdnouNeboCelouListinu) {
    zabijej([this] { vypocti(); }, [this](bool dokonceno) { over(dokonceno); });
    EXPECT_EQ(videno_.size(), 3U);
}

TEST_F(OdolnostVypoctu, SelhaniZapisuNechaStarouPrazdnouNeboCelouListinu) {
    kaz([this] { vypocti(); }, [this](bool dokonceno) { over(dokonceno); });
}

}  // namespace
}  // namespace zkouska
