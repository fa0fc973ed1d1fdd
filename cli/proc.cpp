// `proc`: how every stored amount of a worker's month came to be.
#include <algorithm>
#include <fmt/format.h>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/texty.h"

#include "payrun/vysvetleni.h"

namespace cli {

namespace {

constexpr int k_odsazeni_stromu = 4;
constexpr int k_modul_k_vyplate = 14;

/// The amount, or how the computed and the stored one differ.
std::string castka_radku(const payrun::VysvetlenyRadek& radek) {
    const auto castka = [](const std::optional<base::Castka>& hodnota) {
        return citelna_castka(hodnota.value_or(0));
    };
    if (radek.souhlasi) return castka(radek.ulozeno);
    if (radek.vypocteno && radek.ulozeno) {
        return fmt::format("LIŠÍ SE: uloženo {}, nyní vychází {}", castka(radek.ulozeno),
                           castka(radek.vypocteno));
    }
    if (radek.vypocteno) {
        return fmt::format("V LISTINĚ NENÍ: nyní vychází {}", castka(radek.vypocteno));
    }
    return fmt::format("NYNÍ NEVYCHÁZÍ: uloženo {}, výpočet takový řádek nedává",
                       castka(radek.ulozeno));
}

class Proc final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "proc", "Vysvětlí částky výplaty pracovníka až k zadaným položkám.");
        pridej_mesic(*uzel, mesic_);
        pridej_cislo(*uzel, "CISLO", cislo_, k_nejvyssi_cislo_pracovnika, "číslo pracovníka")
            ->required();
        pridej_cislo(*uzel, "--modul", modul_, 99, "jen řádky jednoho modulu");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        auto vysvetleni = payrun::vysvetli_pracovnika(kontext.session, mesic_, cislo_);
        const auto obdobi = base::mesic_slovy(mesic_, kontext.session.rok);
        if (!vysvetleni.pracovnik_nalezen) {
            throw odmitni(fmt::format("Pracovník {} v kartotéce není.", cislo_));
        }
        if (!vysvetleni.listina_existuje) {
            throw odmitni(fmt::format(
                "Výplatní listina za  {} neexistuje; vytvoří ji sloveso vyplaty.", obdobi));
        }
        auto& radky = vysvetleni.radky;
        std::stable_partition(radky.begin(), radky.end(),
                              [](const auto& radek) { return radek.modul == k_modul_k_vyplate; });
        if (modul_) {
            std::erase_if(radky, [this](const auto& radek) { return radek.modul != modul_; });
        }
        if (radky.empty()) {
            throw odmitni(
                fmt::format("Pracovník {} nemá za  {} žádný takový řádek.", cislo_, obdobi));
        }
        kontext.out << fmt::format("Pracovník {}  {}, {}\n", cislo_, vysvetleni.jmeno, obdobi);
        for (const auto& radek : radky)
            vypis(radek, vysvetleni.stopa, kontext.out);
        for (const auto& chyba : vysvetleni.chyby)
            kontext.err << chyba << '\n';
        return hotovo;
    }

  private:
    static void vypis(const payrun::VysvetlenyRadek& radek, const base::Stopa& stopa,
                      std::ostream& out) {
        const auto misto = radek.sloupec
                               ? fmt::format("modul {}, sloupec {}", radek.modul, radek.sloupec)
                               : fmt::format("modul {}", radek.modul);
        out << fmt::format("\n{} ({}): {}\n", radek.co_je_to, misto, castka_radku(radek));
        if (!radek.poznamka.empty()) out << "    poznámka: " << radek.poznamka << '\n';
        if (radek.krok >= 0) out << stopa.strom(radek.krok, k_odsazeni_stromu);
    }

    int mesic_ = 0, cislo_ = 0, modul_ = 0;
};

}  // namespace

std::unique_ptr<Sloveso> proc() {
    return std::make_unique<Proc>();
}

}  // namespace cli
