#include "desktop/okno_form9.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr int k_znaku_castky = 4, k_znaku_cisla = 6, k_znaku_jmena = 30, k_znaku_rc = 13,
              k_znaku_data = 10;

/// A control with a remark beside it.
QWidget* s_poznamkou(QWidget* prvek, QLabel* poznamka) {
    auto* oba = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(oba);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    vedle_sebe->addWidget(prvek);
    poznamka->setForegroundRole(QPalette::PlaceholderText);
    vedle_sebe->addWidget(poznamka, 1);
    oba->setFocusProxy(prvek);
    return oba;
}

}  // namespace

OknoForm9::OknoForm9(workers::TForm9& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    obsah().addLayout(pole(form));
    obsah().addStretch(1);
    tlacitko(
        "&OK", "acOk", [&form] { form.acOkExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QFormLayout* OknoForm9::pole(workers::TForm9& form) {
    auto* rozlozeni = new QFormLayout;
    auto* cislo = ciselne_pole("Cislo_pracovnika", "číslo pracovníka", k_znaku_cisla);
    vazba().pole(*cislo, form.Cislo_pracovnika);
    cislo->setEnabled(false);
    rozlozeni->addRow("Číslo pracovníka:", cislo);
    rozlozeni->addRow("&Jméno:", textove(form, "Jmeno", "jméno", form.Jmeno, k_znaku_jmena));
    rozlozeni->addRow("&Příjmení:",
                      textove(form, "Prijmeni", "příjmení", form.Prijmeni, k_znaku_jmena));
    rozlozeni->addRow("&Bydliště:",
                      textove(form, "Bydliste", "bydliště", form.Bydliste, k_znaku_jmena));
    rozlozeni->addRow("&Rodné číslo:",
                      s_poznamkou(textove(form, "Rodne_cislo", "rodné číslo", form.Rodne_cislo,
                                          k_znaku_rc, [&form] { form.Rodne_cisloExit(); }),
                                  new QLabel("rr-mm-dd/xxxx")));
    auto* datum =
        textove(form, "Datum_narozeni", "datum narození", form.Datum_narozeni, k_znaku_data);
    rozlozeni->addRow("&Datum narození:", s_poznamkou(datum, new QLabel("d.m.rrrr")));
    rozlozeni->addRow("Pořadí dítě&te:", poradi(form));
    rozlozeni->addRow("Daňové z&výhodnění:", castka(form));
    return rozlozeni;
}

QLineEdit* OknoForm9::textove(workers::TForm9& form, const char* jmeno, const char* pristupny_nazev,
                              std::string& hodnota, int znaku, Vazba::Metoda po_opusteni) {
    auto* vstup = new QLineEdit;
    vstup->setObjectName(jmeno);
    vstup->setAccessibleName(pristupny_nazev);
    vstup->setFixedWidth(vstup->fontMetrics().averageCharWidth() * (znaku + 3));
    vazba().pole(
        *vstup, hodnota,
        [&form, jmeno](char znak, std::string_view text) {
            return form.povol_klavesu_textu(jmeno, znak, text);
        },
        std::move(po_opusteni));
    return vstup;
}

QWidget* OknoForm9::poradi(workers::TForm9& form) {
    auto* vstup = new QSpinBox;
    vstup->setObjectName("Poradi");
    vstup->setAccessibleName("pořadí dítěte");
    vstup->setRange(1, workers::TForm9::k_nejvyssi_poradi);
    vazba().cislo(*vstup, form.Poradi, [&form] { form.PoradiZmena(); });
    vstup->setFixedWidth(vstup->sizeHint().width());
    return vstup;
}

QWidget* OknoForm9::castka(workers::TForm9& form) {
    auto* vstup = ciselne_pole("Odpocitatelna_dan", "daňové zvýhodnění, Kč", k_znaku_castky);
    vazba().pole(*vstup, form.Odpocitatelna_dan, [&form](char znak, std::string_view text) {
        return form.povol_klavesu_castky(znak, text);
    });
    return s_poznamkou(vstup, udaj(vazba(), "zakonna_castka", form.zakonna_castka));
}

}  // namespace desktop
