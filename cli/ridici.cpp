// `ridici`: fields of the pay-sheet control record rid_zorv.idx.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"

#include "base/text.h"
#include "paysheet/unit2_struktura.h"

namespace cli {

namespace {

class RidiciZaznam final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "ridici", "Vypíše řídicí záznam rid_zorv.idx, ukáže jedno pole, nebo ho změní.");
        uzel->add_option("POLE", pole_, "které pole, třeba sloupec_os_oh.1; bez něho všechna");
        hodnota_volba_ = uzel->add_option("HODNOTA", hodnota_, "nová hodnota");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        auto& session = kontext.session;
        const auto pole = shell::vypis_pole(session.ridici_zorv);
        if (pole_.empty()) {
            vypis_vse(kontext, pole);
            return hotovo;
        }
        const auto& jedno = najdi(pole);
        if (hodnota_volba_->empty()) {
            kontext.out << jedno.hodnota << '\n';
            return hotovo;
        }
        auto zmeneny = session.ridici_zorv;
        const auto proc_ne = shell::nastav_pole(zmeneny, jedno.nazev, hodnota_);
        if (!proc_ne.empty()) throw odmitni(proc_ne);
        shell::zapis_zaznam(session.soubor_ridici_zorv(), shell::bajty(zmeneny));
        session.ridici_zorv = zmeneny;
        if (jedno.nazev.starts_with("modul")) {
            const auto nesoulad = paysheet::nesoulad_sloupcu(session.data(), zmeneny);
            if (!nesoulad.empty()) kontext.err << "Pozor: " << nesoulad << '\n';
        }
        return hotovo;
    }

  private:
    static void vypis_vse(Kontext& kontext, const std::vector<shell::PoleZaznamu>& pole) {
        Tabulka tabulka({{"pole"}, {"hodnota", Strana::vpravo}, {"typ"}});
        for (const auto& jedno : pole)
            tabulka.radek({jedno.nazev, jedno.hodnota, jedno.typ});
        tabulka.vypis(kontext.out);
    }

    const shell::PoleZaznamu& najdi(const std::vector<shell::PoleZaznamu>& pole) const {
        std::vector<std::string> nazvy;
        for (const auto& jedno : pole) {
            nazvy.push_back(jedno.nazev);
            if (base::stejne_bez_velikosti(jedno.nazev, pole_)) return jedno;
        }
        throw spatny_argument("Pole \"" + pole_ + "\" v řídicím záznamu není." +
                              veta_o_podobnych(pole_, nazvy));
    }

    std::string pole_, hodnota_;
    CLI::Option* hodnota_volba_ = nullptr;
};

}  // namespace

std::unique_ptr<Sloveso> ridici() {
    return std::make_unique<RidiciZaznam>();
}

}  // namespace cli
