#include "menu/prehled_roku.h"

#include <set>
#include <utility>

#include "base/datum.h"
#include "base/text.h"
#include "payrun/presnost.h"
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
        : sporici_(sporici),
          sazba_socialni_(session.nastaveni.proc_soc2),
          sazba_zdravotni_(payrun::z_ulozeneho(session.ridici_zorv.proc_zdr_zamestnavatel)) {}

    /// A row of a module; the worker and the column belong to a deduction.
    void pridej(std::int64_t modul, base::Castka hodnota,
                std::pair<std::int64_t, std::int64_t> kam) {
        switch (modul) {
            case 2:
                hruba_ += hodnota;
                break;
            case 10:
                if (sporici_.contains(kam)) cista_ += hodnota;
                break;
            case 14:
                cista_ += hodnota;
                ++pracovniku_;
                break;
            case 61:
                zaklad_socialniho_ += hodnota;
                break;
            case 62:
                zdravotni_ += podil_podniku(hodnota, sazba_zdravotni_);
                break;
            default:
                break;
        }
    }

    void zapis(PrehledMesice& prehled) const {
        prehled.pracovniku = pracovniku_;
        prehled.hruba = hruba_;
        prehled.cista = cista_;
        prehled.naklad = hruba_ + podil_podniku(zaklad_socialniho_, sazba_socialni_) + zdravotni_;
    }

  private:
    static base::Castka podil_podniku(base::Castka zaklad, base::Castka sazba) {
        return base::na_koruny_podil_podniku(base::procenta(zaklad, sazba));
    }

    const Sporici& sporici_;
    base::Castka sazba_socialni_, sazba_zdravotni_;
    base::Castka hruba_ = 0, cista_ = 0, zaklad_socialniho_ = 0, zdravotni_ = 0;
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
