// A worker's new number reaches all tables or none: saving the card is killed at every write to the
// disk, and every write fails once.
#include <fmt/format.h>
#include <set>

#include "odolnost/odolnost.h"
#include "store/query.h"
#include "workers/unit7_karta.h"

namespace zkouska {
namespace {

class OdolnostKarty : public Odolnost {
  protected:
    OdolnostKarty() {
        firma().vloz("Zdr_poj", "Cislo,Nazev\n1,Všeobecná\n");
        firma().vloz("Os_karty",
                     "Cislo,Prijmeni,Jmeno,Dat_nar_text,tpd,Cislo_zdrav_poj\n"
                     "7,Novák,Petr,1.1.1980,40,1\n8,Malá,Eva,1.1.1980,40,1\n");
        for (const int mesic : {1, 12}) {
            const std::string vety = "Cislo_pracovnika,Prijmeni,Jmeno\n7,Novák,Petr\n8,Malá,Eva\n";
            firma().vloz(fmt::format("Hrube{:02}", mesic), vety);
            firma().vloz(fmt::format("Listin{:02}", mesic), vety);
        }
        firma().vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n7,13,200\n");
        zavri_firmu();
        pripravena();
        obnov();
        stare_ = obsah();
        uloz_kartu();
        nove_ = obsah();
    }
    /// Worker 7 becomes 77 with another name.
    void uloz_kartu() {
        SkriptovanaObsluha obsluha;
        base::PevneHodiny hodiny({{2022, 1, 15}, 8, 0, 0});
        base::SystemovaNahoda nahoda;
        shell::Session session({obsluha, hodiny, nahoda}, zkousena() / "program");
        session.koren_dat = zkousena();
        session.firma = "FIRMA22";
        shell::cti_konfiguracni_soubor(session);
        workers::TForm7 karta(session, {});
        karta.acOpravitExecute(1);
        karta.FormShow();
        karta.psani("Cislo", "77");
        karta.psani("Jmeno", "Pavel");
        karta.acUlozitExecute();
        if (!karta.ulozeno) throw std::logic_error("karta se neuložila");
    }
    std::string obsah() const {
        store::Connection data(zkousena() / "FIRMA22" / "Zorv");
        EXPECT_EQ(data.integrity_check(), "ok");
        std::string vse;
        for (const std::string& tabulka : data.tables()) {
            if (data.describe(tabulka).field_index("Cislo_pracovnika") < 0 && tabulka != "Os_karty")
                continue;
            store::Query q(data, "SELECT * FROM " + tabulka);
            const store::Rows vety = store::read_all(q);
            for (const store::Row& veta : vety.rows) {
                for (const store::Value& hodnota : veta)
                    vse += hodnota.as_text() + "|";
            }
        }
        return vse;
    }
    void over(bool dokonceno) {
        const std::string nalezeno = obsah();
        EXPECT_TRUE(nalezeno == stare_ || nalezeno == nove_) << "zčásti staré, zčásti nové";
        if (dokonceno) {
            EXPECT_EQ(nalezeno, nove_);
        }
        videno_.insert(nalezeno == nove_);
    }

    std::string stare_, nove_;
    std::set<bool> videno_;
};

TEST_F(OdolnostKarty, ZabityKdykoliNechaStareNeboNoveCisloVsude) {
    ASSERT_NE(stare_, nove_);
    zabijej([this] { uloz_kartu(); }, [this](bool dokonceno) { over(dokonceno); });
    EXPECT_EQ(videno_.size(), 2U);
}

TEST_F(OdolnostKarty, SelhaniZapisuNechaStareNeboNoveCisloVsude) {
    kaz([this] { uloz_kartu(); }, [this](bool dokonceno) { over(dokonceno); });
}

}  // namespace
}  // namespace zkouska
