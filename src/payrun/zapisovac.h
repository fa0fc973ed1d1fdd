// Writing of the pay sheet: which values become a row, how a row looks, how its amount is rounded.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/stopa.h"
#include "payrun/karta.h"
#include "payrun/presnost.h"
#include "store/connection.h"
#include "store/table.h"

namespace payrun {

/// One row of the pay sheet. The texts are valid only during the call that hands the row over.
struct Veta {
    const Karta* pracovnik = nullptr;
    int modul = 0;
    int sloupec = 0;  ///< 0: the field stays empty
    std::string_view co_je_to;
    std::optional<double> hodnota;  ///< nothing: the field stays empty
    std::string_view poznamka;
    int krok = -1;  ///< step of the trace behind the amount
};

/// Where rows go.
class CilVet {
  public:
    virtual ~CilVet() = default;
    virtual void pridej(const Veta& veta) = 0;
};

/// Appends to the month's `ListinMM`. A Transaction must be open meanwhile.
class TabulkaVet final : public CilVet {
  public:
    TabulkaVet(store::Connection& data, int mesic);
    void pridej(const Veta& veta) override;

  private:
    int mesic_;
    store::Inserter vkladac_;
};

/// A row kept in memory.
struct PametVeta {
    int modul = 0;
    int sloupec = 0;
    std::string co_je_to;
    std::string poznamka;
    Castka hodnota = 0;
    int krok = -1;
};

/// Keeps the rows of one calculation.
class PametVet final : public CilVet {
  public:
    void pridej(const Veta& veta) override;
    std::vector<PametVeta> vety;
};

/// Throws rows away.
class ZadnyCil final : public CilVet {
  public:
    void pridej(const Veta&) override {}
};

/// Sums of the stored amounts of a run, by the modules that the results show.
struct SoucetMesice {
    Castka hrube_mzdy = 0, naturalni_mzda = 0, socialni_davky = 0, zaklad_socialniho = 0,
           zaklad_zdravotniho = 0;
};

/// What is to be written.
struct Polozka {
    int modul = 0;
    int sloupec = 0;
    std::string_view co_je_to;
    Castka hodnota = 0;
    std::string_view poznamka = {};
    std::string_view promenna = {};  ///< variable of the trace that holds the amount
    std::string_view zdroj = {};     ///< where the amount was read from when there is no variable
};

/// True for a value that makes a row only in the modules that keep empty rows.
bool je_zanedbatelna(Castka hodnota);
/// The amount as a row stores it: time rows to hundredths, all others to whole crowns, ties to
/// even.
Castka ulozena_hodnota(int modul, Castka hodnota);

/// The only writer of rows.
class Zapisovac {
  public:
    /// `chyby` takes the lines about missing columns.
    explicit Zapisovac(std::vector<std::string>& chyby) : chyby_(chyby) {}

    /// From now on rows are this worker's; resets `neco_zapsano`.
    void zacni_pracovnika(const Karta& pracovnik, CilVet& cil, base::Stopa* stopa);

    /// Appends the row when it is to be kept and its column is known. Returns the stored amount (0
    /// for an empty field), or nothing when no row was made.
    std::optional<Castka> zapis_vetu_do_vyplatni_listiny(const Polozka& polozka);

    bool neco_zapsano() const { return neco_zapsano_; }
    const SoucetMesice& soucet_mesice() const { return soucet_; }

  private:
    int krok_vety(const Polozka& polozka, Castka ulozeno);
    void pricti_k_mesici(int modul, Castka ulozeno);

    std::vector<std::string>& chyby_;
    const Karta* pracovnik_ = nullptr;
    CilVet* cil_ = nullptr;
    base::Stopa* stopa_ = nullptr;
    bool neco_zapsano_ = false;
    SoucetMesice soucet_;
};

}  // namespace payrun
