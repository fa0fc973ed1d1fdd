// Reading of templates: from XML to PredpisSablony, each fault told with its place.
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "base/chyba.h"
#include "base/soubory.h"
#include "base/text.h"
#include "report/sablona.h"
#include "report/sablona_predpis.h"
#include "report/sablona_text.h"
#include "report/sablona_xml.h"

namespace report {

namespace {

constexpr std::size_t k_nejvetsi_soubor = 256 * 1024;
constexpr std::size_t k_nejvic_skupin = 8;
constexpr std::size_t k_nejvic_poli = 2000;

constexpr Meze k_pismo{4, 40};
constexpr Meze k_okraj{0, 50};

/// Which placeholders a band knows.
struct Dovoleno {
    bool soucty = false;
    bool strany = false;
};

class Cteni : private XmlSablony {
  public:
    Cteni(std::string_view xml, const std::string& soubor) : XmlSablony(xml, soubor, "sestava") {
        predpis_.soubor = soubor;
    }

    PredpisSablony precti() {
        sestava(koren());
        return std::move(predpis_);
    }

  private:
    void sestava(const Uzel& uzel) {
        atributy(uzel, {"nazev", "na_sirku", "okraj", "pismo"});
        predpis_.papir = papir_a4(ano_ne(uzel, "na_sirku"));
        predpis_.papir.okraj_mm = cislo(uzel, "okraj", k_okraj, predpis_.papir.okraj_mm);
        predpis_.pismo = cislo(uzel, "pismo", k_pismo, predpis_.pismo);
        predpis_.radek_nazvu = radek(uzel);
        predpis_.nazev = nazev(uzel);
        for (const Uzel& pas : uzel.children())
            cast_sestavy(pas);
        zkontroluj_vysku(uzel);
    }

    std::vector<Cast> nazev(const Uzel& uzel) const {
        auto casti = rozeber(uzel, povinny(uzel, "nazev"));
        for (const Cast& cast : casti) {
            if (cast.druh != Cast::Druh::text && cast.druh != Cast::Druh::parametr) {
                chyba(uzel, "v názvu sestavy smí být z polí jen {parametr:jméno}");
            }
        }
        return casti;
    }

    void cast_sestavy(const Uzel& uzel) {
        const std::string_view jmeno = uzel.name();
        if (jmeno == "titul") {
            prvni(uzel, predpis_.titul) = pas(uzel, {}, {.soucty = true});
        } else if (jmeno == "zahlavi_strany") {
            prvni(uzel, predpis_.zahlavi_strany) = pas(uzel, {}, {.strany = true});
        } else if (jmeno == "skupina") {
            skupina(uzel);
        } else if (jmeno == "detail") {
            prvni(uzel, predpis_.detail) = pas(uzel, {"stridat"}, {});
            predpis_.stridat = ano_ne(uzel, "stridat");
        } else if (jmeno == "souhrn") {
            prvni(uzel, predpis_.souhrn) = pas(uzel, {}, {.soucty = true});
        } else if (jmeno == "pata_strany") {
            prvni(uzel, predpis_.pata_strany) = pas(uzel, {}, {.strany = true});
        } else {
            neznamy(uzel,
                    "<titul>, <zahlavi_strany>, <skupina>, <detail>, <souhrn> nebo "
                    "<pata_strany>");
        }
    }

    void skupina(const Uzel& uzel) {
        atributy(uzel, {"podle", "kdyz", "nova_strana", "pohromade"});
        if (predpis_.skupiny.size() == k_nejvic_skupin) {
            chyba(uzel, "skupin smí být nejvýše " + std::to_string(k_nejvic_skupin));
        }
        Skupina skupina;
        skupina.radek_souboru = radek(uzel);
        skupina.podle = povinny(uzel, "podle");
        skupina.kdyz = podminka(uzel);
        skupina.nova_strana = ano_ne(uzel, "nova_strana");
        skupina.pohromade = ano_ne(uzel, "pohromade");
        for (const Uzel& cast : uzel.children()) {
            const std::string_view jmeno = cast.name();
            if (jmeno == "zahlavi") {
                prvni(cast, skupina.zahlavi) = pas(cast, {}, {.soucty = true});
            } else if (jmeno == "pata") {
                prvni(cast, skupina.pata) = pas(cast, {}, {.soucty = true});
            } else {
                neznamy(cast, "<zahlavi> nebo <pata>");
            }
        }
        predpis_.skupiny.push_back(std::move(skupina));
    }

    std::optional<Podminka> podminka(const Uzel& uzel) const {
        const pugi::xml_attribute atribut = uzel.attribute("kdyz");
        if (!atribut) return {};
        const std::string text = atribut.value();
        const auto rovna_se = text.find('=');
        if (rovna_se == std::string::npos || rovna_se == 0) {
            chyba(uzel, "v kdyz čekám parametr=hodnota, je \"" + text + "\"");
        }
        return Podminka{text.substr(0, rovna_se), text.substr(rovna_se + 1)};
    }

    /// A band may stand in its place only once.
    PasSablony& prvni(const Uzel& uzel, PasSablony& pas) const {
        if (!pas.radky.empty()) chyba(uzel, "pás je v sestavě podruhé");
        return pas;
    }

    PasSablony pas(const Uzel& uzel, std::vector<std::string_view> vlastni_atributy,
                   const Dovoleno& dovoleno) {
        atributy(uzel, vlastni_atributy);
        PasSablony pas;
        for (const Uzel& uzel_radku : uzel.children()) {
            if (uzel_radku.name() != std::string_view("radek")) neznamy(uzel_radku, "<radek>");
            pas.radky.push_back(radek_pasu(uzel_radku, dovoleno));
        }
        if (pas.radky.empty()) chyba(uzel, "chybí <radek>");
        return pas;
    }

    RadekSablony radek_pasu(const Uzel& uzel, const Dovoleno& dovoleno) {
        atributy(uzel, {"vyska", "linka_nad", "linka_pod", "podbarveni"});
        RadekSablony vysledek;
        vysledek.ozdoba = ozdoba(uzel);
        double nejvetsi_pismo = uzel.first_child() ? 0 : predpis_.pismo;
        for (const Uzel& uzel_pole : uzel.children()) {
            if (uzel_pole.name() != std::string_view("pole")) neznamy(uzel_pole, "<pole>");
            pole(uzel_pole, dovoleno, vysledek.pole);
            const double velikost = vysledek.pole.back().bunka.velikost;
            nejvetsi_pismo = std::max(nejvetsi_pismo, velikost > 0 ? velikost : predpis_.pismo);
        }
        const double sama = vyska_radku(nejvetsi_pismo);
        vysledek.vyska_mm = cislo(uzel, "vyska", {0.5, predpis_.papir.vyska_sazby()}, sama);
        return vysledek;
    }

    void pole(const Uzel& uzel, const Dovoleno& dovoleno, std::vector<Pole>& kam) {
        atributy(uzel, {"x", "sirka", "zarovnat", "tucne", "velikost", "format", "nula", "opakuj",
                        "linka_nad", "linka_pod", "podbarveni"});
        const double sazba = predpis_.papir.sirka_sazby();
        Pole pole;
        pole.radek_souboru = radek(uzel);
        pole.bunka.x_mm = cislo(uzel, "x", {0, sazba}, {});
        const int opakovani = static_cast<int>(cislo(uzel, "opakuj", {1, 100}, 1));
        const double zbyva = (sazba - pole.bunka.x_mm) / opakovani;
        pole.bunka.sirka_mm = cislo(uzel, "sirka", {1, std::max(1.0, zbyva)}, {});
        pole.bunka.zarovnani = vyber<Zarovnani>(uzel, "zarovnat",
                                                {{"vlevo", Zarovnani::vlevo},
                                                 {"vpravo", Zarovnani::vpravo},
                                                 {"na_stred", Zarovnani::na_stred}});
        pole.bunka.tucne = ano_ne(uzel, "tucne");
        pole.bunka.velikost = cislo(uzel, "velikost", k_pismo, 0);
        pole.bunka.ozdoba = ozdoba(uzel);
        pole.format = vyber<Format>(uzel, "format",
                                    {{"bez", Format::bez},
                                     {"castka", Format::castka},
                                     {"koruny", Format::koruny},
                                     {"datum", Format::datum}});
        pole.prazdna_nula = vyber<bool>(uzel, "nula", {{"cislo", false}, {"prazdna", true}});
        const std::string text = text_pole(uzel);
        for (int i = 1; i <= opakovani; ++i) {
            pole.casti = rozeber(uzel, uzel.attribute("opakuj") ? s_cislem(text, i) : text);
            over_pole(uzel, pole.casti, dovoleno);
            if (++poli_ > k_nejvic_poli) {
                chyba(uzel, "polí smí být nejvýše " + std::to_string(k_nejvic_poli));
            }
            kam.push_back(pole);
            pole.bunka.x_mm += pole.bunka.sirka_mm;
        }
    }

    /// "#" stands for the number of the repetition.
    static std::string s_cislem(std::string text, int cislo) {
        for (auto kde = text.find('#'); kde != std::string::npos; kde = text.find('#', kde))
            text.replace(kde, 1, std::to_string(cislo));
        return text;
    }

    std::string text_pole(const Uzel& uzel) const {
        std::string text;
        for (const Uzel& cast : uzel.children()) {
            if (cast.type() == pugi::node_element) {
                chyba(cast, "v <pole> čekám jen text");
            }
            text += cast.value();
        }
        return base::orez(text);
    }

    void over_pole(const Uzel& uzel, const std::vector<Cast>& casti,
                   const Dovoleno& dovoleno) const {
        for (const Cast& cast : casti) {
            const bool soucet = cast.druh == Cast::Druh::soucet || cast.druh == Cast::Druh::pocet;
            const bool strana = cast.druh == Cast::Druh::strana || cast.druh == Cast::Druh::stran;
            if (soucet && !dovoleno.soucty) {
                chyba(uzel,
                      "{soucet:...} a {pocet} patří jen do titulu, souhrnu a do záhlaví a "
                      "paty skupiny");
            }
            if (strana && !dovoleno.strany) {
                chyba(uzel, "{strana} a {stran} patří jen do <zahlavi_strany> a <pata_strany>");
            }
        }
    }

    std::vector<Cast> rozeber(const Uzel& uzel, const std::string& text) const {
        try {
            return rozeber_text(text);
        } catch (const base::ChybaDat& duvod) {
            chyba(uzel, duvod.what());
        }
    }

    Ozdoba ozdoba(const Uzel& uzel) const {
        return {ano_ne(uzel, "linka_nad"), ano_ne(uzel, "linka_pod"), ano_ne(uzel, "podbarveni")};
    }

    void zkontroluj_vysku(const Uzel& uzel) const {
        const auto vyska = [](const PasSablony& pas) {
            double soucet = 0;
            for (const auto& jeden : pas.radky)
                soucet += jeden.vyska_mm;
            return soucet;
        };
        double vety = vyska(predpis_.detail);
        double nejvyssi = std::max(vyska(predpis_.titul), vyska(predpis_.souhrn));
        for (const Skupina& skupina : predpis_.skupiny) {
            vety += vyska(skupina.zahlavi);
            nejvyssi = std::max(nejvyssi, vyska(skupina.pata));
        }
        const double celkem =
            std::max(vety, nejvyssi) + vyska(predpis_.zahlavi_strany) + vyska(predpis_.pata_strany);
        if (celkem > predpis_.papir.vyska_sazby()) {
            chyba(uzel, "pásy se nevejdou na stranu: mají " + mm(celkem) + " a strana " +
                            mm(predpis_.papir.vyska_sazby()));
        }
    }

    static std::string mm(double delka) { return std::to_string(std::lround(delka)) + " mm"; }

    PredpisSablony predpis_;
    std::size_t poli_ = 0;
};

}  // namespace

Sablona::Sablona(std::shared_ptr<const PredpisSablony> predpis) : predpis_(std::move(predpis)) {}

Sablona sablona_z_textu(std::string_view xml, const std::string& soubor) {
    return Sablona(std::make_shared<const PredpisSablony>(Cteni(xml, soubor).precti()));
}

Sablona nacti_sablonu(const std::filesystem::path& soubor) {
    return sablona_z_textu(base::precti_soubor(soubor, k_nejvetsi_soubor), soubor.string());
}

}  // namespace report
