// TForm123: the printed list of compensations for a range of months, of one worker or of all.
#pragma once

#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"

namespace wages {

class TForm123 final : public base::Obrazovka {
  public:
    explicit TForm123(shell::Session& session) : session_(session) {}
    std::string_view jmeno() const override { return "TForm123"; }

    int mesic_od = 0, mesic_do = 0;  ///< from 0 January
    bool vsichni = true;
    std::string cislo;  ///< of the only worker, as typed
    std::string kdo;    ///< his name, or that there is none of that number
    std::string fokus;
    bool zavreno = false;

    /// Offers January to the month worked on, all workers.
    void FormShow();
    void vsichniClick();
    void cisloExit();
    /// Shows the list in the preview; what stands against it is a message.
    void acTiskExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    bool ceka_ = false;

    std::string chyba() const;
};

}  // namespace wages
