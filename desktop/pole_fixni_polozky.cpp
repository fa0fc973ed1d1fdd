#include "desktop/pole_fixni_polozky.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "workers/fixni.h"

namespace desktop {

namespace {

using workers::PolozkaFixnich;

constexpr const char* k_vysvetleni_uctu =
    "Účet začínající „NE“ se na bankovní příkaz neuvádí.\n"
    "Ve variabilním a specifickém symbolu se při příkazu nahradí:\n"
    "IČO organizací, dd dnem, mm měsícem zpracování, MM měsícem po něm,\n"
    "rr a rrrr rokem zpracování.";

class Stavba {
  public:
    Stavba(Vazba& vazba, PolozkaFixnich& form) : vazba_(vazba), form_(form) {}

    QWidget* postav() {
        auto* vse = new QWidget;
        auto* svisle = new QVBoxLayout(vse);
        svisle->setContentsMargins(0, 0, 0, 0);
        svisle->addLayout(polozka());
        svisle->addWidget(banka());
        return vse;
    }

  private:
    Vazba& vazba_;
    PolozkaFixnich& form_;

    QFormLayout* polozka() {
        auto* rozlozeni = new QFormLayout;
        QLineEdit* cislo =
            vstup("Cislo_pracovnika", "číslo pracovníka", form_.Cislo_pracovnika,
                  workers::k_cislic_pracovnika, PolozkaFixnich::Pole::Cislo_pracovnika,
                  [&form = form_] { form.Cislo_pracovnikaExit(); });
        vazba_.povolene(*cislo, [&form = form_] { return form.cislo_povoleno; });
        rozlozeni->addRow("Číslo &pracovníka:",
                          vedle(cislo, udaj(vazba_, "jmeno_pracovnika", form_.jmeno_pracovnika)));
        QLineEdit* sloupec =
            vstup("Sloupec", "sloupec výplatní listiny", form_.Sloupec, workers::k_cislic_sloupce,
                  PolozkaFixnich::Pole::Sloupec, [&form = form_] { form.SloupecExit(); });
        rozlozeni->addRow("&Sloupec VL:",
                          vedle(sloupec, udaj(vazba_, "text_sloupce", form_.text_sloupce)));
        rozlozeni->addRow("&Kč:", vedle(vstup("Kcs", "koruny měsíčně", form_.Kcs,
                                              workers::k_cislic_korun, PolozkaFixnich::Pole::Kcs),
                                        legenda()));
        return rozlozeni;
    }

    QGroupBox* banka() {
        auto* skupina = new QGroupBox("kam odeslat peníze");
        auto* rozlozeni = new QFormLayout(skupina);
        workers::BankovniSpojeni& spojeni = form_.spojeni;
        using Pole = PolozkaFixnich::Pole;
        rozlozeni->addRow("Úč&et:", vstup("Ucet", "účet", spojeni.Ucet, workers::k_delka_uctu,
                                          Pole::Ucet, {}, Qt::AlignLeft));
        rozlozeni->addRow("Kód &banky:",
                          vstup("Kod_banky", "kód banky", spojeni.Kod_banky,
                                workers::k_delka_kodu_banky, Pole::Kod_banky, {}, Qt::AlignLeft));
        rozlozeni->addRow("&Variabilní symbol:",
                          vstup("Variabilni", "variabilní symbol", spojeni.Variabilni,
                                workers::k_delka_symbolu, Pole::Symbol, {}, Qt::AlignLeft));
        rozlozeni->addRow(
            "Ko&nstantní symbol:",
            vstup("Konstantni", "konstantní symbol", spojeni.Konstantni,
                  workers::k_delka_konstantniho, Pole::Konstantni, {}, Qt::AlignLeft));
        rozlozeni->addRow("Spe&cifický symbol:",
                          vstup("Specificky", "specifický symbol", spojeni.Specificky,
                                workers::k_delka_symbolu, Pole::Symbol, {}, Qt::AlignLeft));
        auto* vysvetleni = new QLabel(k_vysvetleni_uctu);
        vysvetleni->setForegroundRole(QPalette::PlaceholderText);
        rozlozeni->addRow(vysvetleni);
        vazba_.povolene(*skupina, [&form = form_] { return form.banka_povolena; });
        return skupina;
    }

    QLabel* legenda() {
        auto* text = new QLabel;
        text->setObjectName("legenda");
        text->setForegroundRole(QPalette::PlaceholderText);
        vazba_.text(*text, [&form = form_] {
            std::string radky;
            for (const std::string& radek : form.legenda)
                radky += (radky.empty() ? "" : "   ") + radek;
            return radky;
        });
        return text;
    }

    QLineEdit* vstup(const char* jmeno, const char* pristupny_nazev, std::string& hodnota,
                     int znaku, PolozkaFixnich::Pole pole, Vazba::Metoda po_opusteni = {},
                     Qt::AlignmentFlag zarovnani = Qt::AlignRight) {
        QLineEdit* novy = ciselne_pole(jmeno, pristupny_nazev, znaku);
        novy->setAlignment(zarovnani);
        vazba_.pole(
            *novy, hodnota,
            [&form = form_, pole](char znak, std::string_view text) {
                return form.povol_klavesu(pole, znak, text);
            },
            std::move(po_opusteni));
        return novy;
    }

    static QWidget* vedle(QWidget* prvek, QLabel* text) {
        auto* oba = new QWidget;
        auto* vedle_sebe = new QHBoxLayout(oba);
        vedle_sebe->setContentsMargins(0, 0, 0, 0);
        vedle_sebe->addWidget(prvek);
        vedle_sebe->addWidget(text, 1);
        oba->setFocusProxy(prvek);
        return oba;
    }
};

}  // namespace

QWidget* pole_fixni_polozky(Vazba& vazba, workers::PolozkaFixnich& form) {
    return Stavba(vazba, form).postav();
}

}  // namespace desktop
