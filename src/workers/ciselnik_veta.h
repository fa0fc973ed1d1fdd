// The record form of a code list: Tfmz003, TForm16, TForm132.
#pragma once

#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "store/table.h"
#include "workers/ciselnik_popis.h"

namespace workers {

class VetaCiselniku final : public base::Obrazovka {
  public:
    /// `tabulka` has a row in append or edit; saving posts it, leaving cancels it.
    VetaCiselniku(shell::Session& session, const PopisCiselniku& popis, store::Table& tabulka,
                  std::string nadpis_, TextyPoli hodnoty_);
    std::string_view jmeno() const override { return popis_.obrazovka_vety; }
    const PopisCiselniku& popis() const { return popis_; }

    std::string nadpis;  ///< "Nový záznam", "Oprava záznamu", "Kopie záznamu"
    TextyPoli hodnoty;   ///< as typed, in the order of the description
    std::string fokus;   ///< name of a field
    bool ulozeno = false;
    bool zavreno = false;

    /// True when `znak` may be typed into the field at the end of `dosud`; otherwise beeps.
    bool povol_klavesu(std::size_t pole, char znak, std::string_view dosud) const;
    void acUlozitExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    const PopisCiselniku& popis_;
    store::Table& tabulka_;
    bool ceka_ = false;

    long long cislo() const;
    bool meni_se_cislo() const;
    bool cislo_je_v_seznamu() const;
    std::string chyba_cisla() const;
    bool bez_chyb();
    bool obsluha_souhlasi();
    void zapis();
};

}  // namespace workers
