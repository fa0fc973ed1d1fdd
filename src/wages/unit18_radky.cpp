#include "wages/unit18_radky.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "store/catalogue.h"

namespace wages {
namespace {

/// Conditions of the filter; texts are the parameters :pracovnik, :sloupec and :text.
class Podminky {
  public:
    explicit Podminky(const FiltrHrubych& filtr) {
        cisla_nebo_text(filtr.pracovnik, "pracovnik", "Cislo_pracovnika",
                        "(UPPER(Prijmeni) LIKE :pracovnik OR UPPER(Jmeno) LIKE :pracovnik)");
        cisla_nebo_text(filtr.sloupec, "sloupec", "Sloupec",
                        "(UPPER(Sloupec_slovy) LIKE :sloupec)");
        if (base::neprazdny(filtr.text)) text(filtr.text, "text", "(UPPER(Text) LIKE :text)");
        if (base::neprazdny(filtr.stredisko)) stredisko(filtr.stredisko);
    }

    std::string where() const {
        return podminky_.empty() ? "" : fmt::format(" WHERE {}", fmt::join(podminky_, " AND "));
    }
    void nastav(store::Query& dotaz) const {
        for (const auto& [nazev, vzor] : vzory_)
            dotaz.set(nazev, vzor);
    }

  private:
    std::vector<std::string> podminky_;
    std::vector<std::pair<const char*, std::string>> vzory_;

    void cisla_nebo_text(const std::string& hodnota, const char* nazev, const char* pole,
                         const char* podminka_textu) {
        if (!base::neprazdny(hodnota)) return;
        if (je_vyber_cisel(hodnota)) {
            cisla(hodnota, pole);
        } else {
            text(hodnota, nazev, podminka_textu);
        }
    }
    void cisla(const std::string& vyber, const char* pole) {
        const std::string podminka = base::vyber_hodnot(vyber, pole);
        if (!podminka.empty()) podminky_.push_back("(" + podminka + ")");
    }
    void text(const std::string& hodnota, const char* nazev, const char* podminka) {
        podminky_.emplace_back(podminka);
        vzory_.emplace_back(nazev, "%" + base::velkymi(base::orez(hodnota)) + "%");
    }
    void stredisko(const std::string& hodnota) {
        if (base::cele_cislo_z_textu(hodnota) == 0) {
            podminky_.emplace_back("(Stredisko=0 OR Stredisko IS NULL)");
        } else if (je_vyber_cisel(hodnota)) {
            cisla(hodnota, "Stredisko");
        } else {
            podminky_.emplace_back("(Stredisko<0)");  // no cost centre has a name
        }
    }
};

}  // namespace

bool je_vyber_cisel(std::string_view text) {
    if (base::orez(text) == "*") return true;
    const auto kusy = base::rozdel_text(text, ',');
    return !kusy.empty() && std::all_of(kusy.begin(), kusy.end(), [](const std::string& kus) {
        const auto meze = base::rozdel_text(kus, ':');
        return !meze.empty() && meze.size() <= 2 && kus.back() != ':' &&
               std::all_of(meze.begin(), meze.end(), [](const std::string& mez) {
                   return base::cele_cislo_z_textu(mez).has_value();
               });
    });
}

std::optional<base::RozsahMesicu> mesice_filtru(std::string_view mesice) {
    const base::RozsahMesicu rozsah = base::rozsah_mesicu(mesice);
    if (rozsah.od < 1 || rozsah.do_ > 12 || rozsah.od > rozsah.do_) return std::nullopt;
    return rozsah;
}

std::vector<UlozenaVeta> najdi_vety(shell::Session& session, const base::RozsahMesicu& mesice,
                                    const FiltrHrubych& filtr) {
    const Podminky podminky(filtr);
    std::vector<UlozenaVeta> vety;
    for (int mesic = mesice.od; mesic <= mesice.do_; ++mesic) {
        const std::string hrube = store::month_table("Hrube", mesic);
        if (!session.data().table_exists(hrube)) continue;
        store::Query q(session.data(), "SELECT * FROM " + hrube + podminky.where() +
                                           " ORDER BY Cislo_pracovnika, Modul, Sloupec, Pocitadlo");
        podminky.nastav(q);
        for (q.open(); !q.eof(); q.next())
            vety.push_back(ulozena_veta(q, mesic));
    }
    return vety;
}

void SoucetHrubych::pridej(const SoucetHrubych& dalsi) {
    pocet += dalsi.pocet;
    dny += dalsi.dny;
    hodiny += dalsi.hodiny;
    koruny += dalsi.koruny;
}

SoucetHrubych secti_vety(const std::vector<UlozenaVeta>& vety) {
    SoucetHrubych soucet;
    for (const UlozenaVeta& v : vety)
        soucet.pridej({1, v.dny(), v.hodiny(), v.veta.kc_cel});
    return soucet;
}

std::string soucet_slovy(const SoucetHrubych& soucet) {
    return fmt::format("Položek: {}   Dny: {}   Hodiny: {}   Koruny: {}", soucet.pocet,
                       base::castka_prosta(soucet.dny), base::castka_prosta(soucet.hodiny),
                       base::castka_s_oddelovaci(soucet.koruny));
}

}  // namespace wages
