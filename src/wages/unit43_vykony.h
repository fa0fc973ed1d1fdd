// TForm43: performances with the cost centres allowed for each; one may be chosen into the field of
// the screen that opened the list.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"

namespace wages {

struct RadekVykonu {
    std::string vykon;      ///< three digits
    std::string strediska;  ///< "12, 15, 50 až 60", "žádné"
};
/// From a text of `workers::Nacti_vykony`.
RadekVykonu radek_vykonu(std::string_view povoleny_vykon);

class TForm43 final : public base::Obrazovka {
  public:
    TForm43(const shell::Session& session, const std::vector<std::string>& vykony);
    std::string_view jmeno() const override { return "TForm43"; }

    std::string nadpis;
    std::vector<RadekVykonu> radky;
    int radek = -1;  ///< from 0, -1 none
    std::string fokus;
    bool zavreno = false;
    std::optional<std::string> zvoleny;  ///< three digits, when one was chosen

    bool je_radek() const { return radek >= 0; }
    /// Stands on the performance given, by its number; without it on the first one.
    void FormShow(std::string_view vykon);
    void vyber_radek(int novy);
    void acVybratExecute();
    void acZpetExecute();
};

}  // namespace wages
