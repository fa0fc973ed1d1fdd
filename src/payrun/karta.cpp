#include "payrun/karta.h"

#include "base/text.h"
#include "store/query.h"
#include "workers/prumery.h"

namespace payrun {
namespace {

constexpr std::size_t k_znaku_jmena = 20;

std::string dotaz_na_karty(int mesic) {
    std::string dotaz =
        "SELECT Cislo, Prijmeni, Jmeno, Titul, Ulice, Bydliste, Rodne_cislo, Zam_od, Zam_do,"
        " Jake_socialni, Jake_zdravotni, Jaka_dan, Kdo_plati_dan, Clenstvi_OS, Zamestnanec,"
        " Duchodce, Student, Odp_poplatnik, Odp_invalidita, Odp_ostatni, tpd, Staly_plat, Os_oh_1,"
        " Os_oh_2, Os_oh_3, Os_oh_4, Os_oh_5, KratitPlat, Id_rpd, Stredisko, Vykon, Osobni_ucet,"
        " Cely_plat_sporit, Cislo_zdrav_poj, Cislo_penz_fondu, penz_fond_podnik_sazba,"
        " penz_fond_podnik_smlouva, Volit_1, Volit_2, Volit_3, Volit_4, Volit_5, Volit_6, Volit_7,"
        " Volit_8, Volit_9, Volit_10, Prum_nemoc_";
    dotaz += std::to_string(mesic) + ", ";
    dotaz += workers::pole_prumeru_na_dovolenou(workers::DruhPrumeru::denni, mesic);
    return dotaz + ", Pocitadlo FROM Os_karty ORDER BY Cislo, Pocitadlo";
}

/// Reads the columns of the query one after another, in the order of its list.
class Ctenar {
  public:
    explicit Ctenar(const store::Query& dotaz) : dotaz_(dotaz) {}
    std::string text() { return dotaz_.text(sloupec_++); }
    int cislo() { return static_cast<int>(dotaz_.integer(sloupec_++)); }
    Castka castka() { return z_ulozeneho(dotaz_.number(sloupec_++)); }
    bool ano() { return dotaz_.boolean(sloupec_++); }
    std::optional<int> cislo_nebo_nic() {
        if (dotaz_.is_empty(sloupec_)) {
            ++sloupec_;
            return std::nullopt;
        }
        return cislo();
    }

  private:
    const store::Query& dotaz_;
    int sloupec_ = 0;
};

std::string jmeno_s_titulem(const std::string& jmeno, const std::string& titul) {
    if (!base::neprazdny(titul)) return jmeno;
    return base::nejvyse(jmeno + ", " + titul, k_znaku_jmena);
}

void nacti_pomer(Karta& karta, const std::string& zam_od, const std::string& zam_do) {
    karta.pomer = {mez_pomeru(zam_od), mez_pomeru(zam_do)};
    karta.zam_od = base::datum_z_textu(zam_od).value_or(base::Datum{});
    karta.zam_do = base::datum_z_textu(zam_do).value_or(base::Datum{});
}

Karta karta_z_vety(const store::Query& dotaz) {
    Ctenar veta(dotaz);
    Karta k;
    k.cislo = veta.cislo();
    k.prijmeni = veta.text();
    k.jmeno = veta.text();
    k.jmeno_s_titulem = jmeno_s_titulem(k.jmeno, veta.text());
    k.ulice = veta.text();
    k.bydliste = veta.text();
    k.rodne_cislo = veta.text();
    const std::string zam_od = veta.text();
    nacti_pomer(k, zam_od, veta.text());
    k.jake_socialni = static_cast<Socialni>(veta.cislo());
    k.jake_zdravotni = static_cast<Zdravotni>(veta.cislo());
    k.jaka_dan = static_cast<JakaDan>(veta.cislo());
    k.kdo_plati_dan = veta.cislo();
    k.clenstvi_os = veta.ano();
    k.zamestnanec = veta.ano();
    k.duchodce = veta.ano();
    k.student = veta.ano();
    k.odp_poplatnik = veta.cislo();
    k.odp_invalidita = veta.cislo();
    k.odp_ostatni = veta.cislo();
    k.tpd = veta.castka();
    k.staly_plat = veta.cislo();
    for (int& os_oh : k.os_oh)
        os_oh = veta.cislo();
    k.kratit_plat = veta.ano();
    k.id_rpd = veta.cislo();
    k.stredisko = veta.cislo();
    k.vykon = veta.cislo();
    k.osobni_ucet = veta.cislo();
    k.cely_plat_sporit = veta.cislo();
    k.cislo_zdrav_poj = veta.cislo();
    k.cislo_penz_fondu = veta.cislo();
    k.penz_fond_sazba = veta.castka();
    k.penz_fond_smlouva = veta.castka();
    for (auto& volit : k.volit)
        volit = veta.cislo_nebo_nic();
    k.prumer_na_nemoc = veta.castka();
    k.prumer_na_dovolenou = veta.castka();
    return k;
}

}  // namespace

std::vector<Karta> nacti_karty(store::Connection& data, int mesic) {
    std::vector<Karta> karty;
    store::Query dotaz(data, dotaz_na_karty(mesic));
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        karty.push_back(karta_z_vety(dotaz));
        // The average is looked up by the number, so a second card of it gets that of the first.
        if (karty.size() > 1 && karty[karty.size() - 2].cislo == karty.back().cislo) {
            karty.back().prumer_na_dovolenou = karty[karty.size() - 2].prumer_na_dovolenou;
        }
    }
    return karty;
}

}  // namespace payrun
