#include "cli/obsluha_terminalu.h"

#include <istream>
#include <ostream>

#include "cli/konec.h"
#include "cli/texty.h"

#include "base/text.h"
#include "paysheet/unit2_struktura.h"

namespace cli {

ObsluhaTerminalu::ObsluhaTerminalu(std::istream& in, std::ostream& err, std::optional<bool> odpoved,
                                   bool ptat_se)
    : in_(in), err_(err), odpoved_(odpoved), ptat_se_(ptat_se) {}

void ObsluhaTerminalu::hlaska(const std::string& text) {
    err_ << radky_terminalu(text) << std::endl;
}

bool ObsluhaTerminalu::otazka_ano_ne(const std::string& text, const std::string& nadpis) {
    const std::string otazka = (nadpis.empty() ? "" : nadpis + "\n") + radky_terminalu(text);
    if (!odpoved_ && !ptat_se_) {
        throw Konec(bez_odpovedi, otazka + "\n(Odpovězte volbou --ano nebo --ne.)");
    }
    err_ << otazka << " [a/N] " << std::flush;
    if (!odpoved_) return zeptej_se();
    err_ << (*odpoved_ ? "ano" : "ne") << std::endl;
    return *odpoved_;
}

bool ObsluhaTerminalu::zeptej_se() {
    std::string radek;
    if (!std::getline(in_, radek)) {
        throw Konec(bez_odpovedi, "\nOtázka zůstala bez odpovědi.");
    }
    const std::string odpoved = base::malymi(base::orez(radek));
    return odpoved == "a" || odpoved == "ano";
}

void ObsluhaTerminalu::ukaz_hlasku(const std::string& text, int) {
    hlaska(text);
}

std::optional<std::string> ObsluhaTerminalu::vyber_slozku(const std::string&, const std::string&) {
    return {};
}

std::optional<std::string> ObsluhaTerminalu::vyber_soubor(const std::string&, const std::string&,
                                                          const std::string&) {
    return {};
}

void ObsluhaTerminalu::otevri_soubor(const std::string& cesta) {
    hlaska("Soubor: " + cesta);
}

void ObsluhaTerminalu::pust_udalosti() {
    if (pri_udalostech) pri_udalostech();
}

void ObsluhaTerminalu::ukaz_modalne(base::Obrazovka& obrazovka) {
    for (const auto& prace : prace_) {
        if (prace(obrazovka)) return;
    }
    if (dynamic_cast<paysheet::TForm2*>(&obrazovka)) {
        throw Konec(bez_odpovedi,
                    "Firma nemá strukturu výplatní listiny (chybí rid_zorv.idx).\n"
                    "Zadejte ji slovesem: zorvctl firma zaloz NAZEV --struktura \"1 2 3 ...\"");
    }
    throw Konec(bez_odpovedi, "Obrazovku " + std::string(obrazovka.jmeno()) +
                                  " nelze z příkazového řádku ovládat.");
}

}  // namespace cli
