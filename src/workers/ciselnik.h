// The screen of a code list: sorted, searched, edited row by row and printed. TForm26, TForm15 and
// TForm74 are this screen with their descriptions. The grid has a column for each described field.
#pragma once

#include <string>
#include <string_view>

#include "store/table.h"
#include "workers/ciselnik_popis.h"
#include "workers/ciselnik_seznam.h"

namespace workers {

class Ciselnik : public SeznamVet {
  public:
    Ciselnik(shell::Session& session, PopisCiselniku popis);
    std::string_view jmeno() const override { return popis_.obrazovka; }
    const PopisCiselniku& popis() const { return popis_; }

    std::string hledat;     ///< rows having it in any field are shown, whatever the case
    int trideni = 0;        ///< index of the field in whose order the rows stand
    bool sestupne = false;  ///< in the reverse order
    std::string pocet;      ///< "7 položek", "2 z 7 položek"

    virtual void FormShow();
    void zmena_hledani();
    /// Orders by a field; by the same one again reverses the order.
    void zmena_trideni(int pole);
    void acPridatExecute();
    void acOpravitExecute();
    void acKopirovatExecute();
    void acSmazatExecute();
    void acTiskExecute();

  protected:
    /// Reads the rows anew; the cursor moves to `pocitadlo`.
    void nacti(std::int64_t pocitadlo);
    const store::Rows& vsechny() const { return vsechny_; }

  private:
    PopisCiselniku popis_;
    store::Rows vsechny_;

    enum class Rezim { novy, oprava, kopie };
    void uprav(Rezim rezim);
    void ukaz(std::int64_t pocitadlo);
    void otevri(store::Table& tabulka);
    std::string otazka_smazani();
};

}  // namespace workers
