// What a verb works with: the streams, the operator and the session of the chosen company.
#pragma once

#include <filesystem>
#include <iosfwd>
#include <memory>
#include <string>

#include "cli/hlavni.h"
#include "cli/obsluha_terminalu.h"
#include "cli/tisk_nahledu.h"

#include "base/hodiny.h"
#include "menu/unit1_hlavni.h"
#include "shell/session.h"
#include "store/connection.h"

namespace cli {

/// Options common to all verbs, as they were given; empty means not given.
struct Volby {
    std::string root;
    std::string firma;
    base::Datum datum;  ///< today, when given
    bool ano = false, ne = false;
    std::string pdf;  ///< file for the reports that the verb prints
};

class Kontext {
    Volby volby_;
    std::unique_ptr<base::Hodiny> hodiny_;
    base::SystemovaNahoda nahoda_;

  public:
    /// `Velmar.ini` is read; no company is open yet.
    Kontext(const std::filesystem::path& slozka_programu, Volby volby, std::istream& in_,
            std::ostream& out_, std::ostream& err_, Terminaly terminaly_);

    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    const Terminaly terminaly;
    ObsluhaTerminalu obsluha;
    TiskNahledu tisk;
    shell::Session session;
    menu::TForm1 hlavni_okno;

    /// Makes the default data root of an installed program when it is missing; any other has to
    /// be there.
    void priprav_koren_dat() const;
    /// The data root; ends the verb when it is no folder.
    const std::filesystem::path& koren_dat() const;
    /// Puts the company of --firma (or of `Velmar.ini`) into the session. Ends the verb when there
    /// is none of that name.
    void vyber_firmu();
    /// Chooses and opens the company; ends the verb when it cannot be worked with.
    void otevri_firmu();
};

}  // namespace cli
