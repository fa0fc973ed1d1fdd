// The list of workers kept in memory, so that typing into a filter answers at once: the cards'
// few listed fields are read once, the orders are taken from the store at their first use, and
// filters are decided here as the query of registr_dotaz.h decides them. What only the query can
// decide (a number that is an expression) is left to it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "workers/registr_dotaz.h"

namespace workers {

/// A worker as the list shows him.
struct RadekRegistru {
    std::int64_t Pocitadlo = 0;
    std::int64_t Cislo = 0;
    std::string Prijmeni, Jmeno, Titul, Rodne_cislo, Dat_nar_text, Stredisko, Zam_od, Zam_do;
    bool byvaly = false;  ///< `Zam_do` is filled
};

class RegistrVPameti {
  public:
    /// Reads all cards and forgets what was read before.
    void nacti(shell::Session& session);
    /// Reads anew who has children and submissions; lists given out stay as they are.
    void nacti_vazby(shell::Session& session);

    /// Workers of the filter in its order; the pointers are valid until the next `nacti`. Throws
    /// store::StoreError where a number or value of the filter is not one.
    std::vector<const RadekRegistru*> vyber(shell::Session& session, const FiltrRegistru& filtr);

    std::size_t pocet() const { return osoby_.size(); }

  private:
    using Cislo = std::optional<std::int64_t>;  ///< an empty field equals no number

    struct Osoba {
        RadekRegistru radek;
        std::string prijmeni_velkymi, jmeno_velkymi;
        Cislo cislo, id_rpd;
        std::array<Cislo, 10> volit;
        bool ma_deti = false, ma_epodani = false, rocni_zuctovani = false;
    };
    /// A filter whose typed numbers have been read.
    struct PrectenyFiltr {
        FiltrRegistru filtr;
        Cislo cislo;
        std::array<Cislo, 2> volitelne;
        std::string vzor_jmena;  ///< as of the query; empty restricts nothing
    };

    std::vector<Osoba> osoby_;
    std::unordered_map<std::int64_t, std::size_t> podle_pocitadla_;
    std::array<std::vector<std::size_t>, k_poradi_registru.size()> poradi_;

    static Osoba osoba(const store::Query& dotaz);
    static std::optional<PrectenyFiltr> precti(const FiltrRegistru& filtr);
    static bool vyhovuje(const Osoba& osoba, const PrectenyFiltr& precteny);
    const std::vector<std::size_t>& poradi(shell::Session& session, PoradiRegistru ktere);
    std::vector<std::size_t> radky_dotazu(const shell::Session& session,
                                          const FiltrRegistru& filtr) const;
};

}  // namespace workers
