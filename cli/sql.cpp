// `sql`: a SELECT over the tables of one folder of the company, on a connection that cannot write.
#include <algorithm>
#include <filesystem>
#include <optional>
#include <ostream>

#include "cli/konec.h"
#include "cli/kontext.h"
#include "cli/parametry.h"
#include "cli/slovesa.h"
#include "cli/tabulka.h"

#include "store/dialect.h"
#include "store/transfer.h"

namespace cli {

namespace {

/// The company's folders opened for reading; a folder without tables is passed over.
class SpojeniProCteni {
  public:
    explicit SpojeniProCteni(const shell::Session& session) {
        for (const auto& slozka : {session.cesta_dat, session.cesta_ucet, session.cesta_faktury}) {
            if (std::filesystem::exists(slozka / store::Connection::file_name())) {
                spojeni_.push_back(
                    std::make_unique<store::Connection>(slozka, store::Access::read_only));
            }
        }
    }

    /// The first folder that has the table, or null.
    store::Connection* s_tabulkou(std::string_view tabulka) const {
        for (const auto& spojeni : spojeni_) {
            if (spojeni->table_exists(tabulka)) return spojeni.get();
        }
        return nullptr;
    }

    /// The one folder of all tables of the statement. Ends the verb for a statement that is not of
    /// the dialect, does not only read, or joins tables of two folders.
    store::Connection& pro_dotaz(const std::string& dotaz) const {
        const auto preklad = preloz(dotaz);
        if (preklad.kind != store::StatementKind::select) {
            throw odmitni("Sloveso sql jen čte: zadejte SELECT.");
        }
        if (!preklad.parameters.empty()) {
            throw spatny_argument("Parametr \":" + preklad.parameters.front() +
                                  "\" zde nelze zadat; napište přímo hodnotu.");
        }
        store::Connection* spojeni = nullptr;
        for (const auto& tabulka : preklad.tables) {
            auto* jeji = s_tabulkou(tabulka);
            if (spojeni && jeji != spojeni) {
                throw odmitni("Tabulky dotazu neleží v jedné složce firmy: \"" +
                              preklad.tables.front() + "\" a \"" + tabulka + "\".");
            }
            spojeni = jeji;
        }
        if (!spojeni) throw spatny_argument("V dotazu chybí tabulka.");
        return *spojeni;
    }

  private:
    store::Translation preloz(const std::string& dotaz) const {
        const auto schema = [this](std::string_view tabulka) -> std::optional<store::TableDef> {
            const auto* spojeni = s_tabulkou(tabulka);
            if (!spojeni) return {};
            return spojeni->describe(tabulka);
        };
        try {
            return store::translate(dotaz, schema);
        } catch (const store::StoreError& chyba) {
            throw spatny_argument(chyba.what());
        }
    }

    std::vector<std::unique_ptr<store::Connection>> spojeni_;
};

Tabulka jako_tabulka(const store::Rows& vysledek) {
    const auto je_cislo = [](const store::Value& hodnota) {
        return std::holds_alternative<std::int64_t>(hodnota.variant()) ||
               std::holds_alternative<double>(hodnota.variant());
    };
    std::vector<Tabulka::Sloupec> sloupce;
    for (std::size_t i = 0; i < vysledek.columns.size(); ++i) {
        const bool cisla = std::any_of(vysledek.rows.begin(), vysledek.rows.end(),
                                       [&](const auto& radek) { return je_cislo(radek[i]); });
        sloupce.push_back({vysledek.columns[i], cisla ? Strana::vpravo : Strana::vlevo});
    }
    Tabulka tabulka(std::move(sloupce));
    for (const auto& radek : vysledek.rows) {
        std::vector<std::string> bunky;
        bunky.reserve(radek.size());
        for (const auto& hodnota : radek)
            bunky.push_back(hodnota.as_text());
        tabulka.radek(std::move(bunky));
    }
    return tabulka;
}

class Sql final : public Sloveso {
  public:
    CLI::App* pridej(CLI::App& program) override {
        auto* uzel = program.add_subcommand("sql", "Vypíše výsledek dotazu SELECT; jen čte.");
        uzel->add_option("DOTAZ", dotaz_, "příkaz SELECT")->required();
        pridej_format(*uzel, format_, {"csv", "json", "tabulka"},
                      "tvar výpisu (jinak tabulka na obrazovce, csv do souboru)");
        return uzel;
    }

    int proved(Kontext& kontext) override {
        kontext.vyber_firmu();
        shell::cti_konfiguracni_soubor(kontext.session);
        const SpojeniProCteni firma(kontext.session);
        store::Query dotaz(firma.pro_dotaz(dotaz_), dotaz_);
        const auto vysledek = store::read_all(dotaz);
        const bool tabulkou = format_.empty() ? kontext.terminaly.vystup : format_ == "tabulka";
        if (tabulkou) {
            jako_tabulka(vysledek).vypis(kontext.out);
        } else {
            kontext.out << (format_ == "json" ? store::rows_to_json(vysledek)
                                              : store::rows_to_csv(vysledek));
        }
        return hotovo;
    }

  private:
    std::string dotaz_, format_;
};

}  // namespace

std::unique_ptr<Sloveso> sql() {
    return std::make_unique<Sql>();
}

}  // namespace cli
