// `fixni`: fixed items of the company with the restriction and order of their screen.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"

#include "base/text.h"
#include "workers/unit11_fixni_polozky.h"

namespace cli {

namespace {

/// A range "10:20", "10:", ":20", or a number alone. Throws CLI::ValidationError.
void nacti_rozsah(const std::string& volba, const std::string& text, std::string& od,
                  std::string& do_) {
    const auto dvojtecka = text.find(':');
    od = text.substr(0, dvojtecka);
    do_ = dvojtecka == std::string::npos ? od : text.substr(dvojtecka + 1);
    for (const std::string& mez : {od, do_}) {
        if (base::jen_cislice(mez) == mez && mez.size() <= 6 && !(od.empty() && do_.empty())) {
            continue;
        }
        throw CLI::ValidationError(volba, "čekám číslo nebo rozsah OD:DO, zadáno \"" + text + "\"");
    }
}

void pridej_rozsah(CLI::App& sloveso, const std::string& volba, std::string& od, std::string& do_,
                   const std::string& popis) {
    sloveso
        .add_option_function<std::string>(
            volba,
            [volba, &od, &do_](const std::string& text) { nacti_rozsah(volba, text, od, do_); },
            popis)
        ->type_name("OD:DO");
}

void vypis_polozky(const std::vector<workers::RadekFixnich>& vety, std::ostream& out) {
    Tabulka tabulka({{"sloupec", Strana::vpravo},
                     {"název"},
                     {"pracovník", Strana::vpravo},
                     {"jméno"},
                     {"Kč", Strana::vpravo},
                     {"kam odeslat peníze"}});
    for (const workers::RadekFixnich& v : vety) {
        tabulka.radek({std::to_string(v.sloupec), v.text_sloupce,
                       std::to_string(v.cislo_pracovnika), v.pracovnik,
                       v.kcs.is_empty() ? "" : citelna_castka(v.kcs.as_number()),
                       workers::spojeni_slovy(v.spojeni)});
    }
    tabulka.vypis(out);
}

void vypis_soucty(const std::vector<workers::SoucetSloupce>& soucty, std::ostream& out) {
    Tabulka tabulka({{"sloupec", Strana::vpravo},
                     {"název"},
                     {"položek", Strana::vpravo},
                     {"Kč", Strana::vpravo}});
    for (const workers::SoucetSloupce& s : soucty) {
        tabulka.radek({std::to_string(s.sloupec), s.text_sloupce, std::to_string(s.polozek),
                       citelna_castka(s.kcs)});
    }
    tabulka.vypis(out);
}

class Fixni final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand("fixni", "Vypíše fixní položky pracovníků.");
        pridej_rozsah(*uzel, "--pracovnici", omezeni_.pracovnik_od, omezeni_.pracovnik_do,
                      "jen pracovníci s čísly OD až DO");
        pridej_rozsah(*uzel, "--sloupce", omezeni_.sloupec_od, omezeni_.sloupec_do,
                      "jen sloupce OD až DO");
        const auto nacti_trideni = [this](const std::string& text) {
            if (text != "sloupec" && text != "pracovnik") {
                throw CLI::ValidationError("--trideni",
                                           "čekám sloupec nebo pracovnik, zadáno \"" + text + "\"");
            }
            podle_pracovnika_ = text == "pracovnik";
        };
        uzel->add_option_function<std::string>("--trideni", nacti_trideni, "co jde první")
            ->type_name("sloupec|pracovnik");
        uzel->add_flag("--sumarizace", sumarizace_, "jen součty podle sloupců");
        uzel->add_flag("--sestava", sestava_, "jako tištěná sestava");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        workers::TForm11 form(kontext.session);
        form.omezeni = omezeni_;
        form.trideni =
            static_cast<int>(podle_pracovnika_ ? workers::TrideniFixnich::pracovnik_sloupec
                                               : workers::TrideniFixnich::sloupec_pracovnik);
        form.FormShow();
        if (sestava_ || kontext.tisk.chybi_pdf()) {
            form.acTiskExecute();
            return hotovo;
        }
        kontext.out << form.nadpis << '\n' << form.lbOmezeni << "\n\n";
        if (sumarizace_) {
            vypis_soucty(form.soucty, kontext.out);
        } else {
            vypis_polozky(form.vety, kontext.out);
        }
        return hotovo;
    }

  private:
    workers::OmezeniFixnich omezeni_;
    bool podle_pracovnika_ = false, sumarizace_ = false, sestava_ = false;
};

}  // namespace

std::unique_ptr<Sloveso> fixni() {
    return std::make_unique<Fixni>();
}

}  // namespace cli
