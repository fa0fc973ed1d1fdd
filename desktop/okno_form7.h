// The window of TForm7: the worker's card on seven pages, the messages under them. What stands
// where is the table of okno_form7_rozlozeni.h; what a control is, that of workers/unit7_pole.h.
#pragma once

#include "desktop/okno.h"
#include "desktop/okno_form7_rozlozeni.h"
#include "workers/unit7_karta.h"

class QGridLayout;
class QListWidget;

namespace desktop {

/// Property of a control that edits a field of the card.
inline constexpr const char* k_pole_karty = "pole karty";
/// Property of a calendar's field and label: the field's name.
inline constexpr const char* k_kalendar = "kalendar";

class OknoForm7 final : public Okno {
  public:
    OknoForm7(workers::TForm7& form, const shell::Session& session, QWidget* rodic);

  protected:
    bool eventFilter(QObject* prvek, QEvent* udalost) override;

  private:
    QWidget* stranka(workers::StrankaKarty ktera);
    QWidget* blok(const BlokKarty& popis);
    void radek_bloku(const RadekKarty& popis, QGridLayout& mrizka, int radek, bool pod_hlavickou);
    QWidget* ovladac(const std::string& jmeno);
    QWidget* ovladac_pole(const workers::PoleKarty& pole);
    QWidget* textove(const workers::PoleKarty& pole);
    QWidget* zaskrtavatko(const workers::PoleKarty& pole);
    QWidget* seznam(const workers::PoleKarty& pole);
    QWidget* kalendar(const workers::PoleKarty& pole);
    /// Buttons, names and notes beside the fields.
    QWidget* zvlastni(const std::string& jmeno);
    QWidget* tlacitko_vedle(const QString& popisek, const QString& pristupny_nazev,
                            Vazba::Metoda metoda);
    QWidget* napoveda_sazby_pf();
    void zpravy();
    void vypln_zpravy(QListWidget& seznam) const;
    void prubeh();
    void zvol_kalendar(const QObject* prvek);

    workers::TForm7& form_;
};

}  // namespace desktop
