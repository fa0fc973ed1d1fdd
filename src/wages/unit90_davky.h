// TForm90: crowns a day of an old benefit (module 4, before 2009) corrected by hand. The row's text
// keeps days and crowns of four day bands at fixed positions; its total follows from them.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "wages/nemoc_2008.h"

namespace wages {

/// The bands as a row's text holds them.
struct PasmaDavky {
    std::array<int, 4> dnu{};
    std::array<Castka, 4> kc_denne{};
    Castka celkem() const;
};
/// Nothing for a text that bears no bands: maternity aid, a row of another kind, a text cut short.
std::optional<PasmaDavky> pasma_z_textu(std::string_view text);
/// The text with other crowns a day, all else as it was. Needs a text that bears bands.
std::string text_s_korunami(std::string_view text, const std::array<Castka, 4>& kc_denne);

class TForm90 final : public base::Obrazovka {
  public:
    /// Needs a text that bears bands.
    TForm90(shell::Session& session, std::string text_vety);
    std::string_view jmeno() const override { return "TForm90"; }

    std::string nadpis = "Ruční oprava sociálních dávek";
    struct Pasmo {
        std::string popisek, dnu;
        std::string kc_denne;  ///< as typed, whole crowns
        std::string kc;
    };
    std::array<Pasmo, 4> pasma;
    std::string lbCelkem;
    std::string fokus;
    bool ulozeno = false;
    bool zavreno = false;

    std::string text;   ///< of the row; the corrected one when `ulozeno`
    Castka celkem = 0;  ///< crowns of the row

    void FormShow();
    void poleExit();
    void acUlozitExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;

    PasmaDavky zadana() const;
};

}  // namespace wages
