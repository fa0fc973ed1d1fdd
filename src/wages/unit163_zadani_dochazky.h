// TForm163: the attendance sheet of one worker in one month.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "wages/dochazka.h"

namespace wages {

class TForm163 final : public base::Obrazovka {
  public:
    /// `pracovnik` is the name as shown.
    TForm163(shell::Session& session, int mesic, std::string pracovnik, int cislo_pracovnika,
             const ListDochazky& list);
    std::string_view jmeno() const override { return "TForm163"; }

    static constexpr const char* k_poznamka_k_svatku =
        "Chcete-li posuzovat svátek jako odpracovaný den, pak musí být do Nepřítomnosti zapsáno "
        "\"S\"";

    /// What the row of a day looks like.
    struct Den {
        const char* zkratka;  ///< "Po" to "Ne"
        bool viditelny;       ///< the month has the day
        bool vikend;          ///< the field of hours is yellow
        bool svatek;          ///< the label of the day is yellow
    };
    enum class Sloupec { hodiny, kod };

    std::string nadpis;                                ///< "Docházka v měsíci leden"
    std::string pracovnik;                             ///< "Petr Vzorný"
    std::string cislo_pracovnika;                      ///< as text
    std::array<std::string, k_dnu_dochazky> Hod, Typ;  ///< as typed, by the day from 0
    std::string Poznamka;
    std::string Suma_hod, Suma_odprac, Suma_neodprac;
    bool kody_viditelne = false;  ///< the list of codes, while a code has the focus
    std::string fokus;            ///< "Hod1" to "Hod31", "Typ1" to "Typ31", "Suma_hod"
    bool vysledek_ok = false;
    bool zavreno = false;

    void FormShow();
    int dnu() const;
    /// By the day of the month from 1.
    Den den(int cislo) const;
    bool povol_klavesu_hodin(char znak, std::string_view dosud) const;
    bool povol_klavesu_souctu(char znak, std::string_view dosud) const;

    void vstup_do_kodu();
    /// A key typed into a day's code: a code replaces the old one, anything else is dropped.
    void klavesa_kodu(int cislo, char znak);
    void opusteni_kodu(int cislo);
    /// An arrow up (-1) or down (1) in a day's field.
    void sipka(int cislo, Sloupec sloupec, int kam);
    /// "Přepočítej".
    void acPrepocitejExecute();
    void acUlozitExecute();
    void acZpetExecute();

    /// The sheet as it is typed.
    ListDochazky list() const;

  private:
    shell::Session& session_;
    int mesic_;

    void ukaz_soucty(const ListDochazky& list);
};

}  // namespace wages
