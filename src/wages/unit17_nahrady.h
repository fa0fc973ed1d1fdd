// The page "Náhrady 2011" of gross-wage entry: compensation of incapacity. Leaving a field runs the
// steps of the calculation that follow it, so that what was corrected by hand further on survives
// until an earlier field is changed.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/stopa.h"
#include "base/strom_vypoctu.h"
#include "shell/session.h"
#include "wages/nahrada_vypocet.h"
#include "wages/zapis_hrubych.h"

namespace wages {

/// Fields of the page whose leaving computes.
enum class PoleNahrad {
    trvani_od,
    trvani_do,
    prum_hod_vydelek,
    red_hod_vydelek,
    fond_a,
    fond_b,
    fond_c,
    hod_nahrada_a,
    hod_nahrada_b,
    nahrada_a,
    nahrada_b,
    celkova_nahrada  ///< computes nothing, what was typed is only explained so
};

class StrankaNahrad {
  public:
    explicit StrankaNahrad(shell::Session& session);
    // The tree points into the trace beside it.
    StrankaNahrad(const StrankaNahrad&) = delete;
    StrankaNahrad& operator=(const StrankaNahrad&) = delete;

    std::string titulek;  ///< "> " and the column's text
    // Inputs as typed: dates d.m.yyyy, times h:mm, amounts with a decimal comma.
    std::string scCisloDokladu, scTrvaniOd, scTrvaniDo;
    std::string scDnuKalendarnich, scDnuPracovnich;
    std::string scFondA, scFondB, scFondC;
    std::string scPrumHodVydelek, scRedHodVydelek, scHodNahradaA, scHodNahradaB, scNahradaA,
        scNahradaB, scCelkovaNahrada;

    bool panel_viditelny = false;  ///< funds and amounts; hidden until both dates are filled
    bool castky_povolene = true;   ///< average to total; only where something is paid
    bool fond_a_viditelny = true;
    std::array<std::string, 3> popisky_fondu;
    TypNahrady NahradaTyp = TypNahrady::nemoc;
    std::string fokus;
    /// How the total on the page came to be; a value that no step computed is told as typed.
    base::StromVypoctu strom;
    unsigned vydani_stromu = 0;  ///< grows whenever `strom` has changed

    /// A column of module 5 came under the cursor; a column that is none of the four configured
    /// ones keeps the type.
    void zvol_sloupec(const SloupecHrube& sloupec);
    /// Another kind of compensation; the page is cleared.
    void zvol_typ(TypNahrady typ);
    void vymaz();

    /// Any field was changed by hand.
    void zmena() { zmeneno_ = true; }
    /// The certificate, a date or an amount was entered.
    void vstup() { zmeneno_ = false; }
    /// A field was left: runs the steps behind it for the worker.
    void opusteni(PoleNahrad pole, const KartaZadani& karta);
    /// Makes the branches of a node of the tree that was met before.
    void rozbal(int uzel) { strom.rozbal(uzel); }
    /// The tree as lines of text; "" when nothing was computed.
    std::string vysvetleni(int odsazeni) const;

    /// What stands against writing, in order.
    std::vector<std::string> kontrola() const;
    /// The same shown in one dialog; true when nothing stands against it.
    bool over() const;
    /// Appends the gross-wage row and its detail in one transaction. Needs an empty `kontrola`.
    void zapis(const KartaZadani& karta);

    /// Shows a stored compensation of the column, a row of `Nahrady`, as it was written.
    void nacti(const SloupecHrube& sloupec, std::int64_t pocitadlo_detailu);
    /// Writes the page over that detail and over its gross-wage row in one transaction. Needs an
    /// empty `kontrola`.
    void oprav(std::int64_t id_hrube);

  private:
    shell::Session& session_;
    SloupecHrube sloupec_;
    bool zmeneno_ = false;
    std::int64_t detail_ = 0;  ///< row of `Nahrady` shown by `nacti`

    base::Stopa stopa_;
    int krok_celkove_ = -1;  ///< step of the trace that the total came from

    void proved_kroky(PoleNahrad pole, const KartaZadani& karta);
    Castka vstup_kroku(const char* promenna, Castka hodnota);
    Castka castka_pole(const char* promenna, const std::string& text);
    void vysvetli();
    void prevezmi_ulozene();
    bool krok_fondy(const KartaZadani& karta);
    bool krok_prumer(const KartaZadani& karta);
    void krok_redukce();
    void krok_hodinova(char fond);
    void krok_castka(char fond);
    void krok_celkem();
    KalendareNahrady nacti_kalendare(const KartaZadani& karta, int rok_od);
    void ukaz_rezim(const base::Datum& od);
    void nastav_castky(VetaHrube& veta) const;
    void pridej_detail(const KartaZadani& karta, std::int64_t id_hrube);
    void napln_detail(store::Table& nahrady) const;
};

}  // namespace wages
