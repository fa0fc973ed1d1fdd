// The session: the open company, its year, and everything about it that screens and calculations
// read. There is no global variable: whoever needs the session is given it.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/hodiny.h"
#include "base/obsluha.h"
#include "shell/control_files.h"
#include "shell/nastaveni.h"
#include "shell/velmar_ini.h"
#include "store/connection.h"

namespace shell {

/// The services of the face in use; they outlive the session.
struct Prostredi {
    base::Obsluha& obsluha;
    base::Hodiny& hodiny;
    base::Nahoda& nahoda;
};

class Session {
  public:
    Session(Prostredi prostredi, std::filesystem::path slozka_programu_);

    base::Obsluha& obsluha() const { return prostredi_.obsluha; }
    base::Hodiny& hodiny() const { return prostredi_.hodiny; }
    base::Nahoda& nahoda() const { return prostredi_.nahoda; }

    std::filesystem::path slozka_programu;
    std::filesystem::path koren_dat;
    std::string firma;  ///< empty: no company is open
    int rok = 0;
    std::filesystem::path cesta_dat, cesta_minuly_rok, cesta_faktury, cesta_ucet, cesta_ucet_hlavni;
    std::string radek_firmy;
    int aktivni_mesic = 1;       ///< first month not closed, 1 to 13
    int zpracovavany_mesic = 1;  ///< set at the start of a monthly action, 1 to 12
    int mesic_v_poli = 1;        ///< the month box of the main form, 1 to 12
    VelmarIni velmar;

    RidiciZorv ridici_zorv;
    PomocnyRidici pomocny_ridici;
    BankovniRidici bankovni_ridici;
    UcetniRidici ucetni_ridici;
    Nastaveni nastaveni;
    std::array<std::string, 3> sazby_dph;  ///< company values "dphs1" to "dphs3", VAT in percent
    /// Lines of pay-sheet columns, see paysheet/sloupce.h: two digits and the caption.
    std::vector<std::string> sloupce_slovy;

    /// The connection of `cesta_dat` (the payroll's tables); opened at first use. Throws when no
    /// company is open.
    store::Connection& data();
    /// The connection of `cesta_ucet`.
    store::Connection& ucet();
    /// Closes both, as before a change of company.
    void zavri_spojeni();

    std::filesystem::path soubor_ridici_zorv() const { return cesta_dat / "rid_zorv.idx"; }
    std::filesystem::path soubor_nastaveni() const { return cesta_dat / "Nastaveni.ini"; }

  private:
    Prostredi prostredi_;
    std::unique_ptr<store::Connection> data_, ucet_;
};

/// Derives year and paths from root and company, carries the old `Firma` folder over, opens
/// `Setup`. A year below 2009 shows its message and throws base::UkonceniProgramu.
void cti_konfiguracni_soubor(Session& session);

/// The record of a company that has none yet; the drive is the program folder's, "C" when its path
/// has no drive letter.
RidiciZorv vychozi_ridici_zorv(const std::filesystem::path& slozka_programu);
/// Derives what follows from the record in `ridici_zorv`: the active month, the month box, the
/// accounting folder of the main computer.
void uplatni_ridici_zorv(Session& session);

/// The folder of a company, its name found without regard to case; the name as given when there is
/// none.
std::filesystem::path slozka_firmy(const std::filesystem::path& koren_dat, std::string_view nazev);
/// True when the folder's database holds the table; makes nothing.
bool tabulka_existuje(const std::filesystem::path& slozka, std::string_view tabulka);

/// Company folders under the root, upper-cased and sorted: named by more than two characters, two
/// digits last, with a `Setup` table in `Ucet` (or `Firma`). `po_slozce` is called after every
/// folder looked at: a network root may be slow.
std::vector<std::string> seznam_firem(const std::filesystem::path& koren_dat,
                                      const std::function<void()>& po_slozce = {});

/// The name with the year's two digits one less or one more.
std::string firma_minuly_rok(std::string_view nazev);
std::string firma_pristi_rok(std::string_view nazev);

/// A company value of `Hodnoty`, found without regard to case, or `vychozi`.
std::string hodnota_firmy(Session& session, std::string_view nazev, std::string_view vychozi);
/// Edits the row or appends one.
void uloz_hodnotu_firmy(Session& session, std::string_view nazev, std::string_view hodnota);

/// Guards of the monthly actions on `zpracovavany_mesic` against `aktivni_mesic`; true means go on.
/// A month ahead only warns.
bool test_aktivniho_mesice_hrube(Session& session);
bool test_aktivniho_mesice_predani(Session& session);

/// True when any of `Listin01` to `Listin12` exists, looked up in month order.
bool je_nejaka_vyplatni_listina(Session& session);

}  // namespace shell
