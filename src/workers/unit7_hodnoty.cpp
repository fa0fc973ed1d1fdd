#include "workers/unit7_hodnoty.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "shell/hodnota_text.h"
#include "workers/unit7_osoba.h"

namespace workers {
namespace {

/// Where the content of each control lies: controls of one field share the place of the first one.
const std::vector<std::size_t>& mista_hodnot() {
    static const std::vector<std::size_t> k_mista = [] {
        const auto& pole = pole_karty();
        std::vector<std::size_t> mista;
        for (const PoleKarty& jedno : pole) {
            const auto prvni = std::find_if(
                pole.begin(), pole.end(), [&](const PoleKarty& p) { return p.pole == jedno.pole; });
            mista.push_back(static_cast<std::size_t>(prvni - pole.begin()));
        }
        return mista;
    }();
    return k_mista;
}

/// Lists whose stored value is a number, an empty one reading as 0.
bool je_ciselny(CiselnikKarty ciselnik) {
    return ciselnik == CiselnikKarty::socialni || ciselnik == CiselnikKarty::zdravotni ||
           ciselnik == CiselnikKarty::dan || ciselnik == CiselnikKarty::invalidita;
}

std::string text_pole(const PoleKarty& pole, const store::Value& hodnota) {
    if (hodnota.is_empty()) return "";
    switch (pole.druh) {
        case DruhPoleKarty::cele:
        case DruhPoleKarty::desetinne:
            return base::castka_prosta(hodnota.as_number());
        default:
            return hodnota.as_text();
    }
}

void nacti_polozku(HodnotaPole& hodnota, const PoleKarty& pole, const store::Value& ulozena,
                   const CiselnikyKarty& ciselniky) {
    hodnota.text =
        je_ciselny(pole.ciselnik) ? std::to_string(ulozena.as_integer()) : ulozena.as_text();
    hodnota.index = index_v_ciselniku(ciselniky.polozky(pole.ciselnik), hodnota.text);
}

void nacti_kalendar(HodnotaPole& hodnota, std::int64_t pocitadlo, const CiselnikyKarty& ciselniky) {
    hodnota.cislo = pocitadlo;
    hodnota.text = ciselniky.kalendar_slovy(pocitadlo);
}

/// What a list shows when the stored value is none of its items.
void dosad_nahradni_polozky(HodnotyKarty& karta) {
    if (karta["CSSZ111"].index < 0) karta["CSSZ111"].index = 0;
    if (karta["CSSZ102"].index < 0) {
        karta["CSSZ102"].index = urci_pohlavi(karta.text("Rodne_cislo"));
    }
}

long long nejvetsi_cele(int cislic) {
    long long nejvetsi = 9;
    for (int i = 1; i < cislic; ++i)
        nejvetsi = nejvetsi * 10 + 9;
    return nejvetsi;
}

std::optional<long long> cele_pole(const PoleKarty& pole, std::string_view text) {
    const long long nejvetsi = nejvetsi_cele(pole.delka);
    return shell::presne_cele(text, pole.minus ? -nejvetsi : 0, nejvetsi);
}

store::Value hodnota_k_zapisu(const PoleKarty& pole, const std::string& text) {
    if (!base::neprazdny(text)) return {};
    if (pole.druh == DruhPoleKarty::cele) return std::int64_t{cele_pole(pole, text).value_or(0)};
    if (pole.druh == DruhPoleKarty::desetinne) return shell::presne_desetinne(text).value_or(0);
    return text;
}

void zapis_pole(const PoleKarty& pole, const HodnotaPole& hodnota, const CiselnikyKarty& ciselniky,
                store::Table& karty) {
    switch (pole.druh) {
        case DruhPoleKarty::logicke:
            karty.set(pole.pole, hodnota.ano);
            return;
        case DruhPoleKarty::kalendar:
            karty.set(pole.pole, hodnota.cislo);
            return;
        case DruhPoleKarty::seznam: {
            if (hodnota.index < 0) return;
            const auto& polozka =
                ciselniky.polozky(pole.ciselnik)[static_cast<std::size_t>(hodnota.index)];
            if (je_ciselny(pole.ciselnik)) {
                karty.set(pole.pole, base::je_cele_cislo(polozka.hodnota));
            } else {
                karty.set(pole.pole, polozka.hodnota);
            }
            return;
        }
        default:
            if (hodnota.text != hodnota.puvodni) {
                karty.set(pole.pole, hodnota_k_zapisu(pole, hodnota.text));
            }
    }
}

}  // namespace

bool HodnotaPole::je_zadana() const {
    return base::neprazdny(text);
}

HodnotyKarty::HodnotyKarty() : hodnoty_(pole_karty().size()) {}

HodnotaPole& HodnotyKarty::operator[](std::string_view ovladac) {
    return hodnoty_[mista_hodnot()[poradi_pole(ovladac)]];
}

const HodnotaPole& HodnotyKarty::operator[](std::string_view ovladac) const {
    return hodnoty_[mista_hodnot()[poradi_pole(ovladac)]];
}

int HodnotyKarty::cislo(std::string_view ovladac) const {
    return base::je_cele_cislo(text(ovladac));
}

CiselnikyKarty::CiselnikyKarty(shell::Session& session) {
    for (int i = 0; i <= static_cast<int>(CiselnikKarty::druh_cinnosti); ++i)
        polozky_.push_back(ciselnik_karty(static_cast<CiselnikKarty>(i), session));
    store::Query dotaz(session.data(), "SELECT Pocitadlo, Rok, Nazev FROM Rpd");
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        kalendare_.emplace_back(dotaz.integer(0),
                                kalendar_textem(static_cast<int>(dotaz.integer(1)), dotaz.text(2)));
    }
}

const std::vector<PolozkaCiselniku>& CiselnikyKarty::polozky(CiselnikKarty ciselnik) const {
    return polozky_[static_cast<std::size_t>(ciselnik)];
}

std::string CiselnikyKarty::kalendar_slovy(std::int64_t pocitadlo) const {
    if (pocitadlo == 0) return k_vyberte_kalendar;
    for (const auto& [klic, text] : kalendare_) {
        if (klic == pocitadlo) return text;
    }
    return fmt::format("kalendář {} neexistuje", pocitadlo);
}

std::string kalendar_textem(int rok, std::string_view nazev) {
    return fmt::format("{}  ({})", rok, nazev);
}

CtenarKaret::CtenarKaret(const store::Query& dotaz)
    : dotaz_(dotaz), pocitadlo_(dotaz.column("Pocitadlo")) {
    for (const PoleKarty& pole : pole_karty())
        sloupce_.push_back(dotaz.column(pole.pole));
}

HodnotyKarty CtenarKaret::precti(const CiselnikyKarty& ciselniky) const {
    HodnotyKarty karta;
    karta.pocitadlo = dotaz_.integer(pocitadlo_);
    for (std::size_t i = 0; i < sloupce_.size(); ++i) {
        const PoleKarty& pole = pole_karty()[i];
        HodnotaPole& hodnota = karta[pole.ovladac];
        switch (pole.druh) {
            case DruhPoleKarty::logicke:
                hodnota.ano = dotaz_.boolean(sloupce_[i]);
                break;
            case DruhPoleKarty::seznam:
                nacti_polozku(hodnota, pole, dotaz_.value(sloupce_[i]), ciselniky);
                break;
            case DruhPoleKarty::kalendar:
                nacti_kalendar(hodnota, dotaz_.integer(sloupce_[i]), ciselniky);
                break;
            default:
                hodnota.puvodni = hodnota.text = text_pole(pole, dotaz_.value(sloupce_[i]));
        }
    }
    dosad_nahradni_polozky(karta);
    return karta;
}

HodnotyKarty nova_karta(const shell::Session& session, const CiselnikyKarty& ciselniky) {
    HodnotyKarty karta;
    for (const PoleKarty& pole : pole_karty()) {
        if (pole.druh == DruhPoleKarty::seznam) karta[pole.ovladac].index = 0;
        if (pole.druh == DruhPoleKarty::kalendar) nacti_kalendar(karta[pole.ovladac], 0, ciselniky);
    }
    karta["CSSZ102"].index = urci_pohlavi("");
    karta["Zamestnanec"].ano = karta["Splnuje_slevy"].ano = true;
    karta["tpd"].text = "40";
    karta["Odp_poplatnik"].text = std::to_string(session.nastaveni.SlevaNaDani_Mesicni_Zakladni);
    return karta;
}

std::string nadpis_karty(const HodnotyKarty& karta) {
    std::string jmena;
    for (const char* ovladac : {"Titul", "Jmeno", "Prijmeni"}) {
        if (!karta.zadano(ovladac)) continue;
        if (!jmena.empty()) jmena += ' ';
        jmena += base::orez(karta.text(ovladac));
    }
    const std::string cislo = base::orez(karta.text("Cislo"));
    return cislo + (cislo.empty() || jmena.empty() ? "" : " - ") + jmena;
}

std::string chyba_zapisu(const PoleKarty& pole, const HodnotaPole& hodnota,
                         std::string_view popisek) {
    const std::string& text = hodnota.text;
    switch (pole.druh) {
        case DruhPoleKarty::logicke:
        case DruhPoleKarty::seznam:
        case DruhPoleKarty::kalendar:
            return "";
        case DruhPoleKarty::cele:
            if (text == hodnota.puvodni || !base::neprazdny(text) || cele_pole(pole, text)) break;
            return fmt::format("Údaj \"{}\" musí být celé číslo, nejvýše {} číslic.", popisek,
                               pole.delka);
        case DruhPoleKarty::desetinne:
            if (!base::neprazdny(text) || shell::presne_desetinne(text)) break;
            return fmt::format("Údaj \"{}\" musí být číslo.", popisek);
        default:
            if (base::pocet_znaku(text) > static_cast<std::size_t>(pole.delka)) {
                return fmt::format("Údaj \"{}\" smí mít nejvýše {} znaků.", popisek, pole.delka);
            }
            if (!base::je_v_1250(text)) {
                return fmt::format("Údaj \"{}\" obsahuje znak, který nelze uložit.", popisek);
            }
    }
    return "";
}

void Zapis_konecne_hodnoty(const HodnotyKarty& hodnoty, const CiselnikyKarty& ciselniky,
                           store::Table& karty) {
    for (const PoleKarty& pole : pole_karty()) {
        // A second control of a field has the same content as the first.
        if (pole.pole == pole.ovladac) zapis_pole(pole, hodnoty[pole.ovladac], ciselniky, karty);
    }
}

}  // namespace workers
