// TFHromadneZadani: gross items of a file, shown before they are written.
#pragma once

#include <string>

#include "base/obsluha.h"
#include "shell/session.h"
#include "wages/hromadne_zadani.h"

namespace wages {

/// For `session.zpracovavany_mesic`, whose table exists.
class TFHromadneZadani final : public base::Obrazovka {
  public:
    explicit TFHromadneZadani(shell::Session& session);
    std::string_view jmeno() const override { return "TFHromadneZadani"; }

    std::string nadpis;
    std::string soubor;    ///< name of the file read last
    HromadneZadani davka;  ///< its rows and faults
    std::string lbSouhrn;  ///< how many rows, how many faults, their total
    bool zapsat_povoleno = false;
    bool zmeneno = false;  ///< rows were written
    std::string fokus;
    bool zavreno = false;
    unsigned vydani = 0;  ///< grows whenever `davka` has changed

    void FormShow();
    void acVybratExecute();  ///< picks a file and reads it
    void nacti(const std::string& cesta);
    void acZapsatExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    bool ceka_na_obsluhu_ = false;
};

}  // namespace wages
