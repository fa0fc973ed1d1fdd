#include "menu/prehled_roku.h"

#include <set>
#include <utility>

#include "base/datum.h"
#include "base/text.h"
#include "payrun/soucty_listiny.h"
#include "paysheet/listina.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace menu {

namespace {

using Stav = PrehledMesice::Stav;

/// Workers whose whole pay is saved, each with the column that it goes to.
using Sporici = std::set<std::pair<std::int64_t, std::int64_t>>;

Sporici sporici_pracovnici(store::Connection& data) {
    Sporici sporici;
    // A company whose first structure was not saved has no tables yet.
    if (!data.table_exists("Os_karty")) return sporici;
    store::Query karty(data,
                       "SELECT Cislo, Cely_plat_sporit FROM Os_karty WHERE Cely_plat_sporit <> 0");
    for (karty.open(); !karty.eof(); karty.next())
        sporici.emplace(karty.integer(0), karty.integer(1));
    return sporici;
}

int pocet_zadanych(store::Connection& data, int mesic) {
    const std::string hrube = store::month_table("Hrube", mesic);
    if (!data.table_exists(hrube)) return 0;
    store::Query pocet(data, "SELECT COUNT(*) AS Pocet FROM " + hrube);
    pocet.open();
    return static_cast<int>(pocet.integer(0));
}

/// One month's sheet on its way into the overview.
class SouctyListiny {
  public:
    SouctyListiny(const shell::Session& session, const Sporici& sporici)
        : sporici_(sporici), sazby_(payrun::sazby_podniku(session)) {}

    /// A row of a module; the worker and the column belong to a deduction.
    void pridej(std::int64_t modul, base::Castka hodnota,
                std::pair<std::int64_t, std::int64_t> kam) {
        soucet_.pridej(modul, hodnota, sazby_);
        if (modul == 10 && sporici_.contains(kam)) cista_ += hodnota;
        if (modul == 14) {
            cista_ += hodnota;
            ++pracovniku_;
        }
    }

    void zapis(PrehledMesice& prehled) const {
        prehled.pracovniku = pracovniku_;
        prehled.hruba = soucet_.hruba;
        prehled.cista = cista_;
        prehled.naklad = soucet_.naklad(sazby_);
    }

  private:
    const Sporici& sporici_;
    payrun::SazbyPodniku sazby_;
    payrun::SoucetMezd soucet_;
    base::Castka cista_ = 0;
    int pracovniku_ = 0;
};

/// Reads what the overview needs of the month's sheet; false when it is missing or has no rows.
bool precti_listinu(shell::Session& session, const Sporici& sporici, PrehledMesice& prehled) {
    const std::string listina = store::month_table("Listin", prehled.mesic);
    if (!session.data().table_exists(listina)) return false;
    SouctyListiny soucty(session, sporici);
    bool ma_radky = false;
    store::Query radky(session.data(), "SELECT Modul, Hodnota, Cislo_pracovnika, Sloupec FROM " +
                                           listina + " WHERE Modul IN (2, 10, 14, 61, 62)");
    for (radky.open(); !radky.eof(); radky.next()) {
        ma_radky = true;
        soucty.pridej(radky.integer(0), radky.number(1), {radky.integer(2), radky.integer(3)});
    }
    soucty.zapis(prehled);
    return ma_radky || !paysheet::is_prazdne_listin(session, prehled.mesic);
}

Stav stav_mesice(bool uzavreno, bool spocteno, bool zadano) {
    if (uzavreno) return Stav::uzavreno;
    if (spocteno) return Stav::spocteno;
    return zadano ? Stav::zadano : Stav::nic;
}

const char* co_udelat(Stav stav) {
    switch (stav) {
        case Stav::nic:
            return "zadejte hrubé mzdy";
        case Stav::zadano:
            return "zadány hrubé mzdy, vypočtěte výplaty";
        case Stav::spocteno:
            return "výplaty spočteny, zkontrolujte je a uzavřete měsíc";
        case Stav::uzavreno:
            return "měsíc je uzavřen";
    }
    return "";
}

}  // namespace

std::array<PrehledMesice, 12> prehled_roku(shell::Session& session) {
    const Sporici sporici = sporici_pracovnici(session.data());
    std::array<PrehledMesice, 12> rok;
    for (int mesic = 1; mesic <= 12; ++mesic) {
        const auto poradi = static_cast<std::size_t>(mesic - 1);
        PrehledMesice& prehled = rok[poradi];
        prehled.mesic = mesic;
        prehled.radku = pocet_zadanych(session.data(), mesic);
        const bool spocteno = precti_listinu(session, sporici, prehled);
        prehled.stav = stav_mesice(base::neprazdny(session.ridici_zorv.uzaverka[poradi]), spocteno,
                                   prehled.radku > 0);
    }
    return rok;
}

std::string dalsi_krok(const std::array<PrehledMesice, 12>& mesice, int aktivni_mesic) {
    if (aktivni_mesic > 12) return "Všechny měsíce jsou uzavřeny, proveďte roční převod";
    std::string mesic = base::mesic_slovy(aktivni_mesic, 0);
    mesic = base::velkymi(base::znaky(mesic, 1, 1)) + base::znaky(mesic, 2, mesic.size());
    return mesic + ": " + co_udelat(mesice[static_cast<std::size_t>(aktivni_mesic - 1)].stav);
}

}  // namespace menu
