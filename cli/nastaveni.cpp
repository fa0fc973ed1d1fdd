// `nastaveni`: the year's legislative values and the company's choices of Nastaveni.ini.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"

#include "base/text.h"

namespace cli {

namespace {

class NastaveniMezd final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "nastaveni", "Vypíše nastavení mezd, ukáže jeden klíč, nebo ho změní.");
        uzel->add_option("SEKCE/KLIC", klic_, "který klíč; bez něho se vypíší všechny");
        hodnota_volba_ = uzel->add_option("HODNOTA", hodnota_, "nová hodnota");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        auto& session = kontext.session;
        const auto klice = shell::vypis_nastaveni(session.nastaveni);
        if (klic_.empty()) {
            vypis_vse(kontext, klice);
            return hotovo;
        }
        const auto& klic = najdi(klice);
        if (hodnota_volba_->empty()) {
            kontext.out << klic.hodnota << '\n';
            return hotovo;
        }
        auto zmenene = session.nastaveni;
        const auto proc_ne = shell::nastav_klic(zmenene, klic.sekce, klic.klic, hodnota_);
        if (!proc_ne.empty()) throw odmitni(proc_ne);
        shell::zapis_nastaveni(session.soubor_nastaveni(), zmenene);
        session.nastaveni = zmenene;
        return hotovo;
    }

  private:
    static std::string cely_nazev(const shell::KlicNastaveni& klic) {
        return klic.sekce + "/" + klic.klic;
    }

    static void vypis_vse(Kontext& kontext, const std::vector<shell::KlicNastaveni>& klice) {
        Tabulka tabulka(
            {{"klíč"}, {"hodnota", Strana::vpravo}, {"výchozí", Strana::vpravo}, {"význam"}});
        for (const auto& klic : klice)
            tabulka.radek({cely_nazev(klic), klic.hodnota, klic.vychozi, klic.vyznam});
        tabulka.vypis(kontext.out);
    }

    const shell::KlicNastaveni& najdi(const std::vector<shell::KlicNastaveni>& klice) const {
        std::vector<std::string> nazvy;
        for (const auto& klic : klice) {
            nazvy.push_back(cely_nazev(klic));
            if (base::stejne_bez_velikosti(nazvy.back(), klic_)) return klic;
        }
        throw spatny_argument("Klíč \"" + klic_ + "\" v nastavení mezd není." +
                              veta_o_podobnych(klic_, nazvy));
    }

    std::string klic_, hodnota_;
    CLI::Option* hodnota_volba_ = nullptr;
};

}  // namespace

std::unique_ptr<Sloveso> nastaveni() {
    return std::make_unique<NastaveniMezd>();
}

}  // namespace cli
