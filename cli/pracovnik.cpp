// `pracovnik`: a worker's card for reading, or what the card's check says of one or all of them.
#include <algorithm>
#include <fmt/format.h>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"

#include "workers/unit7_napovedy.h"
#include "workers/unit7_vypis.h"

namespace cli {

namespace {

/// What was found on the cards looked at.
struct Nalezeno {
    int karet = 0, vadnych = 0, upozorneni = 0;
};

void vypis_nalezy(const workers::HodnotyKarty& karta, const std::vector<workers::ChybaKarty>& chyby,
                  const std::vector<workers::ChybaKarty>& napovedy, std::ostream& out) {
    if (chyby.empty() && napovedy.empty()) return;
    out << workers::nadpis_karty(karta) << '\n';
    for (const auto& chyba : chyby)
        out << "  " << chyba.text << '\n';
    for (const auto& napoveda : napovedy)
        out << "  upozornění: " << napoveda.text << '\n';
}

void vypis_souhrn(const Nalezeno& nalezeno, std::ostream& out) {
    out << fmt::format("Zkontrolováno karet: {}, s chybou: {}, upozornění: {}.\n", nalezeno.karet,
                       nalezeno.vadnych, nalezeno.upozorneni);
}

class Pracovnik final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "pracovnik", "Vypíše kartu pracovníka, nebo zkontroluje karty jako při jejich opravě.");
        pridej_cislo(*uzel, "CISLO", cislo_, k_nejvyssi_cislo_pracovnika,
                     "číslo pracovníka; s --over jinak všichni");
        uzel->add_flag("--over", over_, "zkontroluje kartu; chyba dává návratový stav 1");
        uzel->add_flag("--vse", vse_, "vypíše i prázdné údaje");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        if (cislo_ == 0 && !over_) {
            throw spatny_argument("Chybí CISLO pracovníka; všechny karty zkontroluje --over.");
        }
        kontext.otevri_firmu();
        store::Query karty(kontext.session.data(), std::string("SELECT * FROM Os_karty") +
                                                       (cislo_ ? " WHERE Cislo = :cislo" : "") +
                                                       " ORDER BY Cislo, Pocitadlo");
        if (cislo_) karty.set("cislo", cislo_);
        karty.open();
        if (cislo_ && karty.eof()) {
            throw odmitni(fmt::format("Pracovník {} v kartotéce není.", cislo_));
        }
        return over_ ? zkontroluj(karty, kontext) : vypis(karty, kontext);
    }

  private:
    int vypis(store::Query& karty, Kontext& kontext) const {
        const workers::CiselnikyKarty ciselniky(kontext.session);
        for (const workers::CtenarKaret ctenar(karty); !karty.eof(); karty.next()) {
            const workers::HodnotyKarty karta = ctenar.precti(ciselniky);
            kontext.out << "Pracovník " << workers::nadpis_karty(karta) << '\n';
            for (const auto& stranka :
                 workers::vypis_karty(karta, ciselniky, kontext.session, vse_)) {
                if (stranka.radky.empty()) continue;
                kontext.out << '\n';
                Tabulka tabulka({{stranka.nazev}, {""}});
                for (const auto& [popisek, hodnota] : stranka.radky)
                    tabulka.radek({popisek, hodnota});
                tabulka.vypis(kontext.out);
            }
        }
        return hotovo;
    }

    /// The lists are read once, the cards one after another.
    int zkontroluj(store::Query& karty, Kontext& kontext) const {
        auto& session = kontext.session;
        const workers::CiselnikyKarty ciselniky(session);
        const workers::PodkladyKarty podklady(session);
        const workers::OstatniPracovnici ostatni(session.data());
        const base::Datum dnes = session.hodiny().dnes();
        Nalezeno nalezeno;
        for (const workers::CtenarKaret ctenar(karty); !karty.eof(); karty.next()) {
            const workers::HodnotyKarty karta = ctenar.precti(ciselniky);
            const auto chyby = workers::hledej_chyby(karta, podklady);
            const auto napovedy = workers::najdi_napovedy(karta, podklady, ostatni, dnes);
            vypis_nalezy(karta, chyby, napovedy, kontext.out);
            ++nalezeno.karet;
            nalezeno.vadnych += chyby.empty() ? 0 : 1;
            nalezeno.upozorneni += static_cast<int>(napovedy.size());
        }
        vypis_souhrn(nalezeno, kontext.out);
        return nalezeno.vadnych == 0 ? hotovo : odmitnuto;
    }

    int cislo_ = 0;
    bool over_ = false, vse_ = false;
};

}  // namespace

std::unique_ptr<Sloveso> pracovnik() {
    return std::make_unique<Pracovnik>();
}

}  // namespace cli
