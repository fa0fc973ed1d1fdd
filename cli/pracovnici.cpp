// `pracovnici`: the list of workers by the filters of their register.
#include <algorithm>
#include <array>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"

#include "base/text.h"
#include "store/transfer.h"
#include "workers/unit6_registr.h"

namespace cli {

namespace {

constexpr const char* k_pole =
    "Cislo, Prijmeni, Jmeno, Titul, Dat_nar_text, Zam_od, Zam_do, Stredisko";
/// In the order of workers::PoradiRegistru.
const std::vector<std::string> k_trideni{"cislo", "prijmeni", "jmeno", "vek"};
constexpr int k_nejvyssi_hledisko = 10;

/// "N=H": criterion 1 to 10 and the whole number asked for.
workers::VolitelneHledisko volitelne_z_textu(const std::string& text) {
    const auto rovna_se = text.find('=');
    if (rovna_se != std::string::npos) {
        const auto hledisko = base::cele_cislo_z_textu(text.substr(0, rovna_se));
        const std::string hodnota = text.substr(rovna_se + 1);
        if (hledisko && *hledisko >= 1 && *hledisko <= k_nejvyssi_hledisko &&
            base::cele_cislo_z_textu(hodnota)) {
            return {*hledisko, hodnota};
        }
    }
    throw CLI::ValidationError(
        "--volit", "čekám číslo hlediska 1 až 10, rovná se a hodnotu, zadáno \"" + text + "\"");
}

Tabulka jako_tabulka(const store::Rows& pracovnici) {
    Tabulka tabulka({{"číslo", Strana::vpravo},
                     {"příjmení"},
                     {"jméno"},
                     {"titul"},
                     {"narozen"},
                     {"nástup"},
                     {"výstup"},
                     {"středisko", Strana::vpravo}});
    for (const store::Row& radek : pracovnici.rows) {
        std::vector<std::string> bunky;
        for (const store::Value& hodnota : radek)
            bunky.push_back(hodnota.as_text());
        tabulka.radek(std::move(bunky));
    }
    return tabulka;
}

class Pracovnici final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel =
            program.add_subcommand("pracovnici", "Vypíše pracovníky podle filtrů kartotéky.");
        uzel->add_flag("--deti", filtr_.maji_deti, "jen ti, kdo mají děti");
        uzel->add_flag("--epodani", filtr_.maji_epodani, "jen ti, kdo mají elektronická podání");
        uzel->add_flag("--rocni", filtr_.rocni_zuctovani, "jen s ročním zúčtováním");
        uzel->add_flag("--aktivni", filtr_.aktivni, "jen ti, jejichž poměr trvá");
        uzel->add_flag("--bez-kalendare", filtr_.nema_kalendar, "jen ti, kdo nemají kalendář");
        pridej_cislo(*uzel, "--cislo", cislo_, k_nejvyssi_cislo_pracovnika,
                     "jen pracovník s číslem N");
        uzel->add_option("--jmeno", filtr_.jmeno, "část příjmení nebo jména")->type_name("TEXT");
        pridej_volitelne(*uzel);
        pridej_trideni(*uzel);
        pridej_format(*uzel, format_, {"csv", "json", "tabulka"},
                      "tvar výpisu (jinak tabulka na obrazovce, csv do souboru)");
        uzel->add_flag("--sestava", sestava_, "jako tištěná sestava");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        if (cislo_ > 0) filtr_.cislo = std::to_string(cislo_);
        if (sestava_ || kontext.tisk.chybi_pdf()) {
            tiskni(kontext);
            return hotovo;
        }
        const store::Rows pracovnici =
            workers::pracovnici_registru(kontext.session, filtr_, k_pole);
        const bool tabulkou = format_.empty() ? kontext.terminaly.vystup : format_ == "tabulka";
        if (tabulkou) {
            jako_tabulka(pracovnici).vypis(kontext.out);
        } else {
            kontext.out << (format_ == "json" ? store::rows_to_json(pracovnici)
                                              : store::rows_to_csv(pracovnici));
        }
        return hotovo;
    }

  private:
    void pridej_volitelne(CLI::App& uzel) {
        const auto nacti = [this](const std::vector<std::string>& texty) {
            if (texty.size() > filtr_.volitelne.size()) {
                throw CLI::ValidationError("--volit", "lze zadat nejvýše dvakrát");
            }
            std::transform(texty.begin(), texty.end(), filtr_.volitelne.begin(), volitelne_z_textu);
        };
        uzel.add_option_function<std::vector<std::string>>(
                "--volit", nacti, "jen s hodnotou H volitelného hlediska N; nejvýše dvakrát")
            ->type_name("N=H");
    }

    void pridej_trideni(CLI::App& uzel) {
        const auto nacti = [this](const std::string& text) {
            const auto kde = std::find(k_trideni.begin(), k_trideni.end(), base::malymi(text));
            if (kde == k_trideni.end()) {
                throw CLI::ValidationError("--trideni", "čekám " + spoj(k_trideni, " nebo ") +
                                                            ", zadáno \"" + text + "\"");
            }
            filtr_.poradi = static_cast<workers::PoradiRegistru>(kde - k_trideni.begin());
        };
        uzel.add_option_function<std::string>("--trideni", nacti, "pořadí (jinak podle čísla)")
            ->type_name(spoj(k_trideni, "|"));
    }

    void tiskni(Kontext& kontext) const {
        workers::TForm6 registr(kontext.session, {});
        registr.FormShow();
        registr.filtr = filtr_;
        registr.zmena_filtru();
        registr.acTiskniExecute();
    }

    workers::FiltrRegistru filtr_;
    int cislo_ = 0;
    std::string format_;
    bool sestava_ = false;
};

}  // namespace

std::unique_ptr<Sloveso> pracovnici() {
    return std::make_unique<Pracovnici>();
}

}  // namespace cli
