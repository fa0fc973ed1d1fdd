// What the clerk confirmed is there: entry of gross items is killed at every write to the disk. An
// item whose write returned is found afterwards, the one on its way is there whole or not at all,
// and a compensation never lacks its detail.
#include <unistd.h>

#include "odolnost/odolnost.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "wages/kalendar.h"
#include "wages/unit17_zadani.h"

namespace zkouska {
namespace {

class OdolnostZadani : public Odolnost {
  protected:
    OdolnostZadani() {
        store::Connection& data = firma().session.data();
        store::Transaction transakce(data);
        data.execute("DELETE FROM Ridici");
        data.create_table(store::definition_of("Hrube03"));
        transakce.commit();
        firma().vloz("Ridici",
                     "Modul,Sloupec,text,nadpis_1,Min_1,Max_1,var_vyp\n"
                     "1,1,úkol,Kč,0,9999,1\n5,7,náhrada,,,,\n");
        firma().vloz("Os_karty",
                     "Cislo,Prijmeni,Jmeno,tpd,PdovH4min,Id_rpd\n20,Černá,Eva,40,200,1\n");
        std::string fondy = "Rok,Nazev,Fond3\n2022,K,";
        fondy += wages::mesic_na_text(wages::zakladni_kalendar(2022, 480)[2]) + "\n";
        firma().vloz("Rpd", fondy);
        zavri_firmu();
        pripravena();
    }

    /// Two items and a compensation; a byte goes to the pipe behind each write that returned.
    void zadavej(int roura) {
        SkriptovanaObsluha obsluha;
        base::PevneHodiny hodiny({{2022, 3, 15}, 8, 0, 0});
        base::SystemovaNahoda nahoda;
        shell::Session session({obsluha, hodiny, nahoda}, zkousena() / "program");
        session.koren_dat = zkousena();
        session.firma = "FIRMA22";
        shell::cti_konfiguracni_soubor(session);
        session.zpracovavany_mesic = 3;
        session.nastaveni.NahradaNemocSloupec = 7;
        wages::TForm17 form(session, {});
        form.FormShow();
        const auto potvrzeno = [roura] {
            if (write(roura, "x", 1) != 1) std::abort();
        };
        for (const char* kc : {"100", "200"}) {
            form.zadani.hodnoty[0] = kc;
            form.HodnotaExit(0);
            form.Button2Click();
            potvrzeno();
        }
        form.vyber_sloupec(1);
        form.nahrady.scCisloDokladu = "A1";
        form.nahrady.scTrvaniOd = "7.3.2022";
        form.nahrady.scTrvaniDo = "13.3.2022";
        form.nahrady.zmena();
        form.nahradyExit(wages::PoleNahrad::trvani_do);
        form.acZapsatNahrady();
        potvrzeno();
    }

    void over(int potvrzeno) {
        store::Connection data(zorv());
        ASSERT_EQ(data.integrity_check(), "ok");
        store::Query hrube(data, "SELECT Kc_cel, Modul, Pocitadlo FROM Hrube03 ORDER BY Pocitadlo");
        const store::Rows vety = store::read_all(hrube);
        const double kc[] = {100, 200, 4320};  // 40 hours at 60 % of 180 crowns
        const auto pocet = static_cast<int>(vety.rows.size());
        ASSERT_GE(pocet, potvrzeno) << "potvrzená položka chybí";
        ASSERT_LE(pocet, std::min(potvrzeno + 1, 3));
        for (std::size_t i = 0; i < vety.rows.size(); ++i)
            EXPECT_EQ(vety.rows[i][0].as_number(), kc[i]);
        store::Query nahrady(data, "SELECT Id_hrube, Celkova_nahrada FROM Nahrady");
        const store::Rows detaily = store::read_all(nahrady);
        ASSERT_EQ(detaily.rows.size(), pocet == 3 ? 1U : 0U) << "náhrada a její položka";
        if (pocet == 3) {
            EXPECT_EQ(detaily.rows[0][0].as_integer(), vety.rows[2][2].as_integer());
        }
    }
};

TEST_F(OdolnostZadani, PotvrzenaPolozkaPrezijeZabitiKdykoli) {
    int roura[2] = {-1, -1};
    zabijej([&] { zadavej(roura[1]); },
            [&](bool dokonceno) {
                close(roura[1]);
                int potvrzeno = 0;
                for (char znak = 0; read(roura[0], &znak, 1) == 1;)
                    ++potvrzeno;
                close(roura[0]);
                over(potvrzeno);
                if (dokonceno) {
                    EXPECT_EQ(potvrzeno, 3);
                }
            },
            [&] { ASSERT_EQ(pipe(roura), 0); });
}

}  // namespace
}  // namespace zkouska
