// `firma stav`: the twelve months of a company at a glance.
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/tabulky_firmy.h"
#include "cli/texty.h"

#include "menu/prehled_roku.h"
#include "paysheet/listina.h"
#include "store/catalogue.h"

namespace cli {

namespace {

class FirmaStav final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        return skupina(program, "firma", k_popis_firem)
            .add_subcommand("stav", "Ukáže, které měsíce jsou zadané, spočtené a uzavřené.");
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        auto& session = kontext.session;
        kontext.out << session.radek_firmy
                    << "\nPracovníků v kartotéce: " << pocet_radku(session.data(), "Os_karty")
                    << "\n\n";
        Tabulka tabulka({{"měsíc"},
                         {"zadáno řádků", Strana::vpravo},
                         {"spočteno"},
                         {"uzavřeno"},
                         {"pracovníků", Strana::vpravo},
                         {"hrubé mzdy", Strana::vpravo},
                         {"pojištění", Strana::vpravo},
                         {"daň", Strana::vpravo},
                         {"k výplatě", Strana::vpravo}});
        const auto rok = menu::prehled_roku(session);
        for (const auto& mesic : rok)
            tabulka.radek(radek_mesice(session, mesic));
        tabulka.vypis(kontext.out);
        kontext.out << '\n' << menu::dalsi_krok(rok, session.aktivni_mesic) << ".\n";
        return hotovo;
    }

  private:
    static std::vector<std::string> radek_mesice(shell::Session& session,
                                                 const menu::PrehledMesice& mesic) {
        std::vector<std::string> radek{
            base::mesic_slovy(mesic.mesic, 0), mesic.radku > 0 ? std::to_string(mesic.radku) : "",
            spocteno(session, mesic.mesic),
            session.ridici_zorv.uzaverka[static_cast<std::size_t>(mesic.mesic - 1)]};
        if (!session.data().table_exists(store::month_table("Listin", mesic.mesic))) return radek;
        radek.push_back(std::to_string(mesic.pracovniku));
        radek.push_back(citelna_castka(mesic.hruba));
        for (const auto& [od, do_] : {std::pair{7, 8}, {9, 9}, {14, 14}}) {
            radek.push_back(
                citelna_castka(paysheet::zjisti_listin(session, 1, k_nejvyssi_cislo_pracovnika,
                                                       false, mesic.mesic, mesic.mesic, do_, od)));
        }
        return radek;
    }

    static std::string spocteno(shell::Session& session, int mesic) {
        if (!session.data().table_exists(store::month_table("Listin", mesic))) return "";
        return paysheet::is_prazdne_listin(session, mesic) ? "prázdná" : "ano";
    }
};

}  // namespace

std::unique_ptr<Sloveso> firma_stav() {
    return std::make_unique<FirmaStav>();
}

}  // namespace cli
