#include "workers/fixni_sestava.h"

#include "report/sablona.h"

namespace workers {

namespace {

constexpr const char* k_sablona = "mz_fixni_polozky.fr3";

store::Rows vety_sestavy(const std::vector<RadekFixnich>& vety) {
    store::Rows radky{{"Cislo_pracovnika", "Pracovnik", "Sloupec", "Text_sloupce", "Kcs", "Ucet",
                       "Kod_banky", "Variabilni", "Konstantni", "Specificky"},
                      {}};
    for (const RadekFixnich& v : vety) {
        radky.rows.push_back({v.cislo_pracovnika, v.pracovnik, v.sloupec, v.text_sloupce, v.kcs,
                              v.spojeni.Ucet, v.spojeni.Kod_banky, v.spojeni.Variabilni,
                              v.spojeni.Konstantni, v.spojeni.Specificky});
    }
    return radky;
}

}  // namespace

report::Document sestava_fixnich(const shell::Session& session,
                                 const std::vector<RadekFixnich>& vety, TrideniFixnich trideni,
                                 const std::string& omezeni) {
    const auto sablona = report::nacti_sablonu(session.slozka_programu / "Sablony" / k_sablona);
    return report::vypln_sablonu(
        sablona, vety_sestavy(vety),
        {{"firma", session.radek_firmy},
         {"omezeni", omezeni},
         {"trideni", trideni == TrideniFixnich::sloupec_pracovnik ? "sloupec" : "pracovnik"},
         {"datum", base::datum_textem(session.hodiny().dnes())}});
}

}  // namespace workers
