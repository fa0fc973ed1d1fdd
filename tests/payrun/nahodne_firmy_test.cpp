// Properties of the pay run over made-up companies: the rows add up to the payable amount, the
// explanation computes what is stored, a second run changes nothing.
#include <gtest/gtest.h>
#include <map>
#include <random>

#include "base/text.h"
#include "payrun/vypocet_mesice.h"
#include "payrun/vysvetleni.h"
#include "store/query.h"

namespace zkouska {
namespace {

constexpr int k_pracovniku = 60;

/// A company made by chance: every code, reliefs, children, blocked values, merged contracts,
/// second cards of a number, parts of months, amounts in hellers.
class NahodnaFirma : public ZkusebniFirma {
  public:
    explicit NahodnaFirma(unsigned semeno) : kostka_(semeno) {
        store::Transaction t(data());
        data().execute("UPDATE Ridici SET text = \"k výplatě ---\" WHERE Modul = 14");
        t.commit();
        session.ridici_zorv.sloupec_staly_plat = 1;
        session.ridici_zorv.sloupec_os_oh = {2, 0, 0, 0, 0};
        session.ridici_zorv.os_sazba1 = 0.01;
        session.nastaveni.nejde_do_pojisteni[0][0] = 2;
        session.nastaveni.max_vz_soc = 60000;
        vloz("Os_karty", karty());
        vloz("Hrube01", hrube());
        vloz("Fixni", fixni());
        vloz("Deti", deti());
        vloz("Blok01", blok());
        priprav_mesic(*this, 1);
        for (int i = 0; i < 2 * k_pracovniku; ++i)
            obsluha.odpovez("Přiznáme", padne(2));
    }

  private:
    std::mt19937 kostka_;

    int cislo(int od, int do_) { return std::uniform_int_distribution<>(od, do_)(kostka_); }
    bool padne(int jednou_z) { return cislo(1, jednou_z) == 1; }
    std::string halere(int do_) {
        return std::to_string(cislo(0, do_)) + "." + base::cislo_s_nulami(cislo(0, 99), 2);
    }
    std::string nekdy(int jednou_z, int od, int do_) {
        return padne(jednou_z) ? std::to_string(cislo(od, do_)) : "";
    }

    std::string karty() {
        std::string csv =
            "Cislo,Prijmeni,Jmeno,Titul,Jake_socialni,Jake_zdravotni,Jaka_dan,tpd,Kdo_plati_dan,"
            "Odp_poplatnik,Odp_invalidita,Odp_ostatni,Duchodce,Student,Clenstvi_OS,Zam_od,Zam_do,"
            "Staly_plat,Os_oh_1,Cely_plat_sporit\n";
        for (int c = 1; c <= k_pracovniku; ++c) {
            // Odd numbers are taxed under the even one behind them, so that every entry is used.
            const bool sloucen = c % 2 == 1 && padne(4);
            for (int karet = padne(10) ? 2 : 1; karet > 0; --karet) {
                csv += std::to_string(c) + ",Novák,Jan," + (padne(3) ? "Ing.," : ",");
                for (int kod = 0; kod < 3; ++kod)
                    csv += std::to_string(cislo(1, 5)) + ",";
                csv += "40," + (sloucen ? std::to_string(c + 1) : "") + ",";
                csv += nekdy(2, 0, 2570) + "," + nekdy(5, 0, 420) + "," + nekdy(5, 0, 335) + ",";
                csv += padne(5) ? "true," : "false,";
                csv += padne(5) ? "true," : "false,";
                csv += padne(2) ? "true," : "false,";
                csv += padne(4) ? std::to_string(cislo(1, 28)) + ".1.2022," : ",";
                csv += padne(6) ? std::to_string(cislo(1, 31)) + ".1.2022," : ",";
                csv += nekdy(2, 0, 60000) + "," + nekdy(3, 0, 5000) + "," + (padne(8) ? "13" : "");
                csv += "\n";
            }
        }
        return csv;
    }
    std::string hrube() {
        std::string csv = "Cislo_pracovnika,Modul,Sloupec,Kc_cel,Hod_neod,Dny_neod\n";
        for (int c = 1; c <= k_pracovniku; ++c) {
            const std::string pracovnik = std::to_string(c);
            csv += pracovnik + ",1," + std::to_string(cislo(1, 2)) + "," + halere(30000) + ",,\n";
            csv += pracovnik + ",1," + std::to_string(cislo(1, 2)) + "," + halere(9000) + ",8,1\n";
            if (padne(3)) csv += pracovnik + ",3,4," + halere(3000) + ",,\n";
            if (padne(4)) csv += pracovnik + ",4,6," + std::to_string(cislo(0, 900)) + ",,\n";
            if (padne(3)) csv += pracovnik + ",5,7," + halere(2000) + ",16,2\n";
        }
        return csv;
    }
    std::string fixni() {
        std::string csv = "Cislo_pracovnika,Sloupec,Kcs\n";
        for (int i = 0; i < 2 * k_pracovniku; ++i) {
            const int sloupce[] = {8, 13, 14, 17};
            csv += std::to_string(cislo(1, k_pracovniku)) + "," +
                   std::to_string(sloupce[cislo(0, 3)]) + "," + std::to_string(cislo(-500, 4000)) +
                   "\n";
        }
        return csv;
    }
    std::string deti() {
        std::string csv = "Cislo_pracovnika,Jmeno,Rodne_cislo,Odpocitatelna_dan\n";
        for (int i = 0; i < k_pracovniku; ++i) {
            csv += std::to_string(cislo(1, k_pracovniku)) + ",Eva," + std::to_string(cislo(1, 99)) +
                   "," + std::to_string(cislo(0, 2320)) + "\n";
        }
        return csv;
    }
    std::string blok() {
        std::string csv =
            "Cislo_pracovnika,socialni_zaklad_abs,socialni_dif,zdravotni_zaklad_dif,zdravotni_abs,"
            "dan_zaklad_dif,dan_abs,dan_dif\n";
        for (int c = 1; c <= k_pracovniku; c += 7) {
            csv += std::to_string(c) + "," + nekdy(2, -500, 9000) + "," + nekdy(2, -50, 50) + "," +
                   nekdy(2, -500, 500) + "," + nekdy(2, 0, 900) + "," + nekdy(2, -500, 500) + "," +
                   nekdy(2, -2000, 900) + "," + nekdy(2, -50, 50) + "\n";
        }
        return csv;
    }
};

/// The payable amount of every worker follows from the stored rows: the whole pay may go to savings
/// (then it stands in module 10), each row is rounded by half a crown at most.
void zkontroluj_soucty(ZkusebniFirma& firma) {
    struct Soucet {
        double rozdil = 0;
        int vet = 0;
    };
    std::map<std::int64_t, Soucet> soucty;
    store::Query q(firma.data(), "SELECT Cislo_pracovnika, Modul, Hodnota FROM Listin01");
    for (q.open(); !q.eof(); q.next()) {
        const auto modul = q.integer(1);
        Soucet& s = soucty[q.integer(0)];
        if (modul == 2 || modul == 4 || modul == 5) {
            s.rozdil += q.number(2);
        } else if ((modul >= 7 && modul <= 11) || modul == 13 || modul == 14 || modul == 90) {
            s.rozdil -= q.number(2);
        } else {
            continue;
        }
        ++s.vet;
    }
    EXPECT_GT(soucty.size(), 10U);
    for (const auto& [cislo, s] : soucty) {
        EXPECT_LE(std::abs(s.rozdil), 0.5 * s.vet) << "pracovník " << cislo;
    }
}

class NahodneFirmy : public testing::TestWithParam<unsigned> {};

TEST_P(NahodneFirmy, SouctyVysvetleniAOpakovaniSouhlasi) {
    NahodnaFirma firma(GetParam());
    const auto odpovedi = firma.obsluha.odpovedi;
    ASSERT_EQ(spocti_mesic(firma), std::vector<std::string>{});
    zkontroluj_soucty(firma);
    const std::string poprve = listina(firma);

    int vysvetleno = 0;
    for (int cislo = 1; cislo <= k_pracovniku; ++cislo) {
        // Two cards of a number answer the question apart; the stored rows cannot tell which.
        if (firma.vypis("SELECT COUNT(*) FROM Os_karty WHERE Cislo = " + std::to_string(cislo)) !=
            "1\n") {
            continue;
        }
        const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, 1, cislo);
        for (const payrun::VysvetlenyRadek& r : v.radky) {
            EXPECT_TRUE(r.souhlasi && r.krok >= 0)
                << "pracovník " << cislo << ", modul " << r.modul;
        }
        vysvetleno += static_cast<int>(v.radky.size());
    }
    EXPECT_GT(vysvetleno, 500);

    firma.obsluha.odpovedi = odpovedi;
    ASSERT_EQ(spocti_mesic(firma), std::vector<std::string>{});
    EXPECT_EQ(listina(firma), poprve);
}

INSTANTIATE_TEST_SUITE_P(Semena, NahodneFirmy, testing::Values(1U, 22U, 2022U));

}  // namespace
}  // namespace zkouska
