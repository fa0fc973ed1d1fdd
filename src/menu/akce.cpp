#include "menu/akce.h"

#include <algorithm>

namespace menu {

const std::vector<Akce>& vsechny_akce() {
    constexpr int k_s_firmou = 1, k_vzdy = 0;
    using enum Skupina;
    static const std::vector<Akce> akce{
        {"acPracovnici", "Pracovníci", k_s_firmou, "", evidence},
        {"acEvidenceDochazky", "Evidence docházky", k_vzdy, "", evidence},
        {"acPracovniKalendar", "Pracovní kalendář", k_s_firmou, "", evidence},
        {"acPojistovnyFondy", "Pojišťovny a fondy", k_s_firmou, "", evidence},
        {"acExterniVstup", "Externí vstup", k_s_firmou, "", hrube_mzdy},
        {"acFixniPolozky", "Fixní položky", k_s_firmou, "", evidence},
        {"acStroje", "Stroje", k_s_firmou, "", evidence},
        {"acHrubeZorvNahrady", "Hrubé zorv a náhrady", k_s_firmou, "", hrube_mzdy},
        {"acVypocetVyplat", "Výpočet výplat", k_s_firmou, "", vypocet},
        {"acProhlizetZakladniSoubory", "Prohlížení mezd", k_s_firmou, "", vypocet},
        {"acZuctovaniMezd", "Zúčtování mezd", k_s_firmou, "", uzaverka},
        {"acZuctovaniMechanizace", "Zúčtování mechanizace", k_s_firmou, "", uzaverka},
        {"acUzaverky", "Uzávěrky", k_s_firmou, "", uzaverka},
        {"acPrumeryNaNahrady", "Průměry na náhrady", k_s_firmou, "", hrube_mzdy},
        {"acPrumeryNaNemoc", "Průměry na nemoc", k_s_firmou, "", hrube_mzdy},
        {"acRocniPrevod", "Roční převod", k_s_firmou, "", rok},
        {"acZakladniMesicniChody", "Základní měsíční chody", k_s_firmou, "", vystupy},
        {"acPolozkovaStatistika", "Položková statistika", k_s_firmou, "", vystupy},
        {"acSumarniStatistika", "Sumární statistika", k_s_firmou, "", vystupy},
        {"acMzdoveListySeznamyPracovniku", "Mzdové listy a seznamy pracovníků", k_s_firmou, "",
         vystupy},
        {"acPotvrzeni", "Hromadné oznámení zdrav. poj.", k_s_firmou, "", vykazy},
        {"acZapoctoveListy", "Zápočtové listy", k_s_firmou, "", vykazy},
        {"acSumarPodleStredisek", "Sumář podle středisek", k_s_firmou, "", vystupy},
        {"acRocniZuctovaniDane", "Výpočet daně a daňového zvýhodnění", k_s_firmou, "", rok},
        {"acPortalCssz", "ePortál", k_s_firmou, "", vykazy},
        {"acPrehledOVysiPojistneho", "Přehled o výši pojistného", k_s_firmou, "", vykazy},
        {"acNastaveniUcetnihoPredpisu", "Účetní předpis", k_s_firmou, "", nastaveni},
        {"acNastaveniVL", "Parametry výplatní listiny", k_s_firmou, "", nastaveni},
        {"acNastaveniParametru", "Nastavení mezd", k_s_firmou, "", nastaveni},
        {"acFunkce", "Mzdové funkce", k_vzdy, "", program},
        {"acSestavy2009", "Sestavy 2009", k_s_firmou, "", vystupy},
        {"acEditaceSestav", "", k_vzdy, "F12", program},
        {"acZmenitFirmu", "Změnit", k_vzdy, "", program},
        {"acRestart", "", k_s_firmou, "", program},
        {"acKonec", "Konec", k_vzdy, "Escape", program},
    };
    return akce;
}

const Akce* najdi_akci(std::string_view nazev) {
    const auto& akce = vsechny_akce();
    const auto nalezena = std::find_if(akce.begin(), akce.end(),
                                       [nazev](const Akce& jedna) { return jedna.nazev == nazev; });
    return nalezena == akce.end() ? nullptr : &*nalezena;
}

const char* skupina_slovy(Skupina skupina) {
    switch (skupina) {
        case Skupina::evidence:
            return "Evidence";
        case Skupina::hrube_mzdy:
            return "Hrubé mzdy";
        case Skupina::vypocet:
            return "Výpočet výplat";
        case Skupina::vystupy:
            return "Výstupy";
        case Skupina::uzaverka:
            return "Zúčtování a uzávěrka";
        case Skupina::rok:
            return "Roční práce";
        case Skupina::vykazy:
            return "Výkazy";
        case Skupina::nastaveni:
            return "Nastavení";
        case Skupina::program:
            return "Program";
    }
    return "";
}

}  // namespace menu
