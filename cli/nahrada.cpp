// `nahrada`: the compensation of one incapacity, computed as on its page of the entry, without
// writing anything.
#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"
#include "cli/texty.h"

#include "base/castky_text.h"
#include "base/text.h"
#include "wages/unit17_nahrady.h"

namespace cli {

namespace {

constexpr int k_odsazeni_stromu = 4;

struct Typ {
    const char* slovo;
    const char* nazev;
    wages::TypNahrady typ;
};
constexpr std::array<Typ, 4> k_typy{
    {{"nemoc", "Náhrada za nemoc", wages::TypNahrady::nemoc},
     {"karantena", "Náhrada za karanténu", wages::TypNahrady::karantena},
     {"ocr", "Ošetřování člena rodiny", wages::TypNahrady::ocr},
     {"ppm", "Peněžitá pomoc v mateřství", wages::TypNahrady::ppm}}};

/// The worker's card by his number; ends the verb when there is none.
wages::KartaZadani karta_pracovnika(shell::Session& session, int cislo) {
    store::Query q(session.data(), "SELECT Pocitadlo FROM Os_karty WHERE Cislo = :cislo");
    q.set("cislo", cislo);
    q.open();
    if (q.eof()) throw odmitni(fmt::format("Pracovník {} v kartotéce není.", cislo));
    return wages::nacti_kartu_zadani(session, q.integer("Pocitadlo"));
}

class Nahrada final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand(
            "nahrada", "Spočte náhradu za pracovní neschopnost, nic nezapisuje.");
        pridej_cislo(*uzel, "CISLO", cislo_, k_nejvyssi_cislo_pracovnika, "číslo pracovníka")
            ->required();
        const auto nacti_typ = [this](const std::string& text) {
            typ_ = std::find_if(k_typy.begin(), k_typy.end(),
                                [&](const Typ& t) { return t.slovo == base::malymi(text); });
            if (typ_ == k_typy.end()) {
                throw CLI::ValidationError(
                    "--typ", "čekám nemoc, karantena, ocr nebo ppm, zadáno \"" + text + "\"");
            }
        };
        uzel->add_option_function<std::string>("--typ", nacti_typ, "druh nepřítomnosti")
            ->type_name("nemoc|karantena|ocr|ppm")
            ->required();
        pridej_den(*uzel, "--od", od_, "první den neschopnosti");
        pridej_den(*uzel, "--do", do_, "poslední den, který se započte");
        pridej_cislo(*uzel, "--mesic", mesic_, 12, "měsíc zadání, jinak měsíc posledního dne");
        const auto nacti_prumer = [this](const std::string& text) {
            prumer_ = text;
            if (base::je_desetinne_cislo(text) <= 0) {
                throw CLI::ValidationError("--prumer",
                                           "čekám koruny za hodinu, zadáno \"" + text + "\"");
            }
        };
        uzel->add_option_function<std::string>("--prumer", nacti_prumer,
                                               "průměrný hodinový výdělek místo průměru z karty")
            ->type_name("KC");
        uzel->add_flag("--proc", proc_, "vysvětlí, jak částka vznikla");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.otevri_firmu();
        const wages::KartaZadani karta = karta_pracovnika(kontext.session, cislo_);
        kontext.session.zpracovavany_mesic = mesic_ != 0 ? mesic_ : do_.mesic;
        wages::StrankaNahrad stranka(kontext.session);
        vypln(stranka, karta);
        if (od_ <= do_ && base::vyloucene_dny(kontext.session.zpracovavany_mesic,
                                              kontext.session.rok, od_, do_) == 0) {
            throw odmitni(fmt::format(
                "Doba od {} do {} nezasahuje do měsíce  {}.", stranka.scTrvaniOd,
                stranka.scTrvaniDo,
                base::mesic_slovy(kontext.session.zpracovavany_mesic, kontext.session.rok)));
        }
        // A certificate is asked for only where the compensation is written.
        stranka.scCisloDokladu = "-";
        if (const auto chyby = stranka.kontrola(); !chyby.empty()) throw odmitni(spoj(chyby, "\n"));
        vypis(stranka, karta, kontext);
        return hotovo;
    }

  private:
    static void pridej_den(CLI::App& uzel, const std::string& volba, base::Datum& den,
                           const char* popis) {
        const auto nacti = [volba, &den](const std::string& text) {
            const auto datum = base::datum_z_textu(text);
            if (!datum) {
                throw CLI::ValidationError(volba,
                                           "čekám den jako D.M.RRRR, zadáno \"" + text + "\"");
            }
            den = *datum;
        };
        uzel.add_option_function<std::string>(volba, nacti, popis)
            ->type_name("D.M.RRRR")
            ->required();
    }

    /// Types into the page what a clerk would.
    void vypln(wages::StrankaNahrad& stranka, const wages::KartaZadani& karta) const {
        stranka.zvol_typ(typ_->typ);
        stranka.scTrvaniOd = base::datum_textem(od_);
        stranka.scTrvaniDo = base::datum_textem(do_);
        stranka.zmena();
        stranka.opusteni(wages::PoleNahrad::trvani_do, karta);
        if (prumer_.empty() || !stranka.castky_povolene) return;
        stranka.scPrumHodVydelek = prumer_;
        stranka.opusteni(wages::PoleNahrad::prum_hod_vydelek, karta);
    }

    void vypis(const wages::StrankaNahrad& s, const wages::KartaZadani& karta,
               Kontext& kontext) const {
        kontext.out << fmt::format(
            "{}: pracovník {}  {} {}, {}\n", typ_->nazev, karta.cislo, karta.prijmeni, karta.jmeno,
            base::mesic_slovy(kontext.session.zpracovavany_mesic, kontext.session.rok));
        kontext.out << fmt::format(
            "Trvání {} až {}, v měsíci dnů kalendářních {}, pracovních {}\n\n", s.scTrvaniOd,
            s.scTrvaniDo, s.scDnuKalendarnich, s.scDnuPracovnich);
        Tabulka tabulka({{"dny"},
                         {"fond", Strana::vpravo},
                         {"za hodinu", Strana::vpravo},
                         {"náhrada Kč", Strana::vpravo}});
        if (s.fond_a_viditelny)
            tabulka.radek({s.popisky_fondu[0], s.scFondA, s.scHodNahradaA, s.scNahradaA});
        tabulka.radek({s.popisky_fondu[1], s.scFondB, s.scHodNahradaB, s.scNahradaB});
        tabulka.radek({s.popisky_fondu[2], s.scFondC, "", ""});
        tabulka.vypis(kontext.out);
        kontext.out << fmt::format(
            "\nPrůměrný hodinový výdělek {}, redukovaný {}\nNáhrada celkem: {} Kč\n",
            s.scPrumHodVydelek, s.scRedHodVydelek, s.scCelkovaNahrada);
        if (proc_) kontext.out << '\n' << s.vysvetleni(k_odsazeni_stromu);
    }

    int cislo_ = 0, mesic_ = 0;
    const Typ* typ_ = nullptr;
    base::Datum od_, do_;
    std::string prumer_;
    bool proc_ = false;
};

}  // namespace

std::unique_ptr<Sloveso> nahrada() {
    return std::make_unique<Nahrada>();
}

}  // namespace cli
