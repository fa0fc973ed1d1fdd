// TForm12: one fixed item on the list of the whole company, with the archive of connections.
#pragma once

#include <vector>

#include "workers/fixni_polozka.h"

namespace workers {

class TForm12 final : public PolozkaFixnich {
  public:
    /// `pocitadlo` is the row of `Fixni`, 0 for a new item.
    TForm12(shell::Session& session, std::int64_t pocitadlo);
    std::string_view jmeno() const override { return "TForm12"; }

    std::vector<std::string> archiv;  ///< lines of fixed columns
    int radek_archivu = -1;           ///< the selected line from 0, -1 none

    void FormShow() override;
    void vyber_radek_archivu(int novy);
    void acArchivujExecute();   ///< "Archivuj": the connection of the form becomes the last line
    void acDosadExecute();      ///< "Dosaď": the selected line goes into the form
    void acSmazatVseExecute();  ///< "Smazat vše"

  private:
    void uloz_archiv();
};

}  // namespace workers
