// A table of text with aligned columns, for the terminal.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace cli {

enum class Strana { vlevo, vpravo };

/// Widths count characters, not bytes. Line ends and other control characters inside a cell become
/// blanks, so that data cannot break the lines or steer the terminal.
class Tabulka {
  public:
    struct Sloupec {
        std::string nadpis;
        Strana strana = Strana::vlevo;
    };

    explicit Tabulka(std::vector<Sloupec> sloupce);
    /// Cells in the order of columns; missing ones are empty.
    void radek(std::vector<std::string> bunky);
    /// Heading, a rule and all rows, each line begun by `odsazeni` blanks.
    void vypis(std::ostream& out, int odsazeni = 0) const;

  private:
    std::vector<Sloupec> sloupce_;
    std::vector<std::vector<std::string>> radky_;
};

}  // namespace cli
