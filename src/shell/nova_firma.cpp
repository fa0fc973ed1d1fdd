#include "shell/nova_firma.h"

#include <algorithm>
#include <fmt/format.h>
#include <system_error>

#include "base/ini.h"
#include "base/kodova_stranka.h"
#include "base/soubory.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "store/table.h"
#include "store/transfer.h"

namespace shell {

namespace {

constexpr int k_stredisek_vykonu = 10;
constexpr int k_bez_strediska = -1;
constexpr int k_nejvyssi_stredisko = 99;

/// The newest version of the family's data: a company made now needs no upgrade.
constexpr int k_verze_dat = 6;
constexpr std::size_t k_nejvyse_rpd = std::size_t{16} * 1024 * 1024;

std::string chyba_nazvu(std::string_view nazev) {
    const std::string_view zakazane = "\\/:*?\"<>|";
    const bool rok_na_konci =
        nazev.size() > 2 && base::jen_cislice(nazev.substr(nazev.size() - 2)).size() == 2;
    if (!base::je_v_1250(nazev) || base::pocet_znaku(nazev) < 3 || !rok_na_konci) {
        return "Název firmy musí mít aspoň tři znaky a končit dvojčíslím roku, například FIRMA22.";
    }
    const bool ridici_znak = std::any_of(
        nazev.begin(), nazev.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
    if (nazev.find_first_of(zakazane) != std::string_view::npos || ridici_znak ||
        nazev.starts_with('.') || nazev.starts_with(' ')) {
        return fmt::format("Název firmy nesmí začínat tečkou ani mezerou a obsahovat znaky {}",
                           zakazane);
    }
    if (base::je_cele_cislo(nazev.substr(nazev.size() - 2)) < 9) {
        return "Mzdy lze zpracovávat od roku 2009, dvojčíslí roku musí být aspoň 09.";
    }
    return "";
}

void zaloz_setup(store::Connection& ucet, const UdajeFirmy& udaje) {
    ucet.create_table(store::definition_of("Setup"));
    store::Table setup;
    setup.set_connection(ucet);
    setup.set_table_name("Setup");
    setup.open();
    setup.append();
    setup.set("Adr1", udaje.nazev);
    setup.set("ICO", udaje.ico);
    setup.post();
}

/// Performance 0 with every cost centre: a card without a performance reads as 000, and a worker
/// with a fixed salary could not be saved if that were not allowed.
void zaloz_vykon_0(store::Connection& ucet) {
    store::Table vykony;
    vykony.set_connection(ucet);
    vykony.set_table_name("vykony");
    vykony.open();
    vykony.append();
    vykony.set("Vykon", 0);
    vykony.set("Text", "bez výkonu");
    for (int i = 1; i <= k_stredisek_vykonu; ++i)
        vykony.set("St" + std::to_string(i), k_bez_strediska);
    vykony.set("Stod", 0);
    vykony.set("Stdo", k_nejvyssi_stredisko);
    vykony.post();
}

void zaloz_ucetnictvi(const std::filesystem::path& slozka_ucet, const UdajeFirmy& udaje) {
    {
        store::Connection ucet(slozka_ucet);
        store::Transaction transakce(ucet);
        zaloz_setup(ucet, udaje);
        for (const char* tabulka : {"Uctovano", "vykony", "Adresy"}) {
            ucet.create_table(store::definition_of(tabulka));
        }
        zaloz_vykon_0(ucet);
        transakce.commit();
    }
    zapis_zaznam(slozka_ucet / "rid_ucet.idx", bajty(UcetniRidici{}));
    base::zapis_ini_cislo(slozka_ucet / "Firma.ini", "global", "verze", k_verze_dat);
}

/// Removes what was made of a company unless it was finished.
class Uklid {
  public:
    explicit Uklid(std::filesystem::path slozka) : slozka_(std::move(slozka)) {}
    ~Uklid() {
        if (hotovo_) return;
        std::error_code nevadi;
        std::filesystem::remove_all(slozka_, nevadi);
    }
    Uklid(const Uklid&) = delete;
    Uklid& operator=(const Uklid&) = delete;
    void hotovo() { hotovo_ = true; }

  private:
    std::filesystem::path slozka_;
    bool hotovo_ = false;
};

void zaloz_chybejici(store::Connection& slozka, store::Place misto) {
    store::Transaction transakce(slozka);
    for (const std::string& tabulka : store::tables_made_at_opening()) {
        const store::CatalogueEntry* zaznam = store::find_entry(tabulka);
        if (zaznam->place == misto && !slozka.table_exists(tabulka)) {
            slozka.create_table(zaznam->definition);
        }
    }
    transakce.commit();
}

/// Fills the new table of work calendars from the installation's `Sablony`, when it has any.
void napln_kalendare(Session& session) {
    const std::filesystem::path sablona = session.slozka_programu / "Sablony" / "Rpd.csv";
    if (!std::filesystem::exists(sablona)) return;
    const store::ImportResult vysledek =
        store::import_csv(session.data(), "Rpd", base::precti_soubor(sablona, k_nejvyse_rpd),
                          sablona.string(), false);
    if (!vysledek.errors.empty()) throw base::ChybaDat(vysledek.errors.front());
}

}  // namespace

std::string zaloz_slozku_firmy(const std::filesystem::path& koren_dat, std::string_view nazev,
                               const UdajeFirmy& udaje) {
    const std::string velky = base::velkymi(base::orez(nazev));
    if (std::string chyba = chyba_nazvu(velky); !chyba.empty()) return chyba;
    if (!std::filesystem::is_directory(koren_dat)) {
        return fmt::format("Kořenová složka dat \"{}\" neexistuje.", koren_dat.string());
    }
    const std::filesystem::path slozka = slozka_firmy(koren_dat, velky);
    if (std::filesystem::exists(slozka)) {
        return fmt::format("Složka \"{}\" již existuje.", slozka.string());
    }
    Uklid uklid(slozka);
    try {
        for (const char* podslozka : {"Zorv", "Ucet", "Faktury"}) {
            std::filesystem::create_directories(slozka / podslozka);
        }
        zaloz_ucetnictvi(slozka / "Ucet", udaje);
    } catch (const base::ChybaDat& chyba) {
        return fmt::format("Firma nebyla založena. {}", chyba.what());
    } catch (const std::filesystem::filesystem_error& chyba) {
        return fmt::format("Firma nebyla založena. Složku \"{}\" nelze vytvořit: {}",
                           slozka.string(), chyba.code().message());
    }
    uklid.hotovo();
    return "";
}

void zaloz_chybejici_tabulky(Session& session) {
    zaloz_chybejici(session.ucet(), store::Place::ucet);
    store::Transaction transakce(session.data());
    const bool chybi_kalendare = !session.data().table_exists("Rpd");
    zaloz_chybejici(session.data(), store::Place::zorv);
    if (chybi_kalendare) napln_kalendare(session);
    transakce.commit();
}

}  // namespace shell
