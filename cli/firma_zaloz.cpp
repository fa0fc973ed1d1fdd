// `firma zaloz`: makes a company's folder, its pay-sheet structure and its tables.
#include <algorithm>
#include <filesystem>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/texty.h"

#include "base/text.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"
#include "workers/pojistovny.h"
#include "workers/unit26_pojistovny.h"

namespace cli {

namespace {

namespace fs = std::filesystem;

using PoleStruktury = decltype(paysheet::TForm2::pole);

/// The folder made for a company that could not be opened goes away again.
class RozdelanaSlozka {
  public:
    RozdelanaSlozka(shell::Session& session, fs::path slozka)
        : session_(session), slozka_(std::move(slozka)) {}
    RozdelanaSlozka(const RozdelanaSlozka&) = delete;
    RozdelanaSlozka& operator=(const RozdelanaSlozka&) = delete;
    ~RozdelanaSlozka() {
        if (slozka_.empty()) return;
        session_.zavri_spojeni();
        std::error_code chyba;
        fs::remove_all(slozka_, chyba);
    }
    void ponech() { slozka_.clear(); }

  private:
    shell::Session& session_;
    fs::path slozka_;
};

class FirmaZaloz final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = skupina(program, "firma", k_popis_firem)
                         .add_subcommand("zaloz",
                                         "Založí firmu a strukturu její výplatní listiny; firmě "
                                         "založené účetnictvím doplní jen strukturu.");
        uzel->add_option("NAZEV", nazev_, "složka firmy; poslední dvě číslice jsou rok")
            ->required();
        uzel->add_option("--nazev", udaje_.nazev, "název firmy")->type_name("TEXT");
        uzel->add_option("--ico", udaje_.ico, "IČO")->type_name("N");
        uzel->add_option("--struktura", struktura_,
                         "osmnáct čísel: sloupce modulů 1 od, 1 do, 2, 3 od, 3 do, 4, 5 od, 5 do, "
                         "6, 7, 8, 9, 10 od, 10 do, 11, 12, 13, 14; 0 je modul, který není "
                         "(jinak 1 až 18)")
            ->type_name("\"1 2 3 ...\"");
        uzel->add_flag("--pojistovny", pojistovny_,
                       "doplní zdravotní pojišťovny České republiky (111 až 213)");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        zadane_pole_ = pole_struktury();
        auto& session = kontext.session;
        session.firma = base::velkymi(base::orez(nazev_));
        kontext.priprav_koren_dat();
        const fs::path slozka = kontext.koren_dat() / session.firma;
        const bool nova = !ceka_na_strukturu(kontext);
        if (nova) {
            const auto proc_ne = shell::zaloz_slozku_firmy(session.koren_dat, nazev_, udaje_);
            if (!proc_ne.empty()) throw odmitni(proc_ne);
        } else if (!udaje_.nazev.empty() || !udaje_.ico.empty()) {
            throw odmitni("Firma \"" + session.firma +
                          "\" už je založená; volby --nazev a --ico patří jen nové firmě.");
        }
        RozdelanaSlozka rozdelana(session, nova ? slozka : fs::path());
        kontext.obsluha.pri_obrazovce<paysheet::TForm2>(
            [this](paysheet::TForm2& form) { vypln(form); });
        if (!kontext.hlavni_okno.zaloz_soubory()) throw odmitni(spoj(chyby_, "\n"));
        rozdelana.ponech();
        if (pojistovny_ && workers::Nacti_pojistovny(session).empty())
            workers::dopln_zdravotni_pojistovny(session);
        kontext.out << "Firma " << session.firma << " je založená ve složce "
                    << shell::slozka_firmy(session.koren_dat, session.firma).string() << ".\n";
        return hotovo;
    }

  private:
    /// The company exists, but without the record of its pay-sheet structure.
    static bool ceka_na_strukturu(Kontext& kontext) {
        const auto& session = kontext.session;
        for (const auto& firma : shell::seznam_firem(session.koren_dat)) {
            if (firma == session.firma) {
                const auto slozka = shell::slozka_firmy(session.koren_dat, firma);
                return !fs::exists(slozka / "Zorv" / "rid_zorv.idx");
            }
        }
        return false;
    }

    PoleStruktury pole_struktury() const {
        PoleStruktury pole;
        std::vector<std::string> cisla;
        for (const auto& cislo : base::rozdel_text(struktura_, ' ')) {
            if (!cislo.empty()) cisla.push_back(cislo);
        }
        const bool cislice = struktura_.find_first_not_of("0123456789 ") == std::string::npos;
        const bool kratka = std::all_of(cisla.begin(), cisla.end(),
                                        [](const auto& cislo) { return cislo.size() <= 2; });
        if (!cislice || !kratka || cisla.size() != pole.size()) {
            throw spatny_argument("--struktura: čekám " + std::to_string(pole.size()) +
                                  " čísel 0 až 99 oddělených mezerou, zadáno \"" + struktura_ +
                                  "\".");
        }
        std::copy(cisla.begin(), cisla.end(), pole.begin());
        return pole;
    }

    void vypln(paysheet::TForm2& form) {
        form.pole = zadane_pole_;
        form.opusteni_pole();
        form.btOKClick();
        chyby_ = form.scChyby;
        if (!form.ulozeno) form.btZpetClick();
    }

    std::string nazev_;
    shell::UdajeFirmy udaje_;
    std::string struktura_ = "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18";
    bool pojistovny_ = false;
    PoleStruktury zadane_pole_;
    std::vector<std::string> chyby_;
};

}  // namespace

std::unique_ptr<Sloveso> firma_zaloz() {
    return std::make_unique<FirmaZaloz>();
}

}  // namespace cli
