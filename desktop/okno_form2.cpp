#include "desktop/okno_form2.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <fmt/format.h>

#include "base/klavesy.h"
#include "desktop/text_qt.h"
#include "paysheet/sloupce.h"

namespace desktop {

namespace {

constexpr int k_modulu = 14;
constexpr int k_radku_ve_sloupci = 7;
constexpr int k_cislic = 2;

/// Modules that are a range of columns and have two fields.
bool je_rozsah(int modul) {
    return modul == 1 || modul == 3 || modul == 5 || modul == 10;
}

bool dve_cislice(char znak, std::string_view text) {
    return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus, k_cislic);
}

QLineEdit* kratke_pole(std::size_t poradi, const std::string& pristupny_nazev) {
    auto* pole = new QLineEdit;
    pole->setObjectName(QString("pole%1").arg(poradi + 1));
    pole->setAccessibleName(do_qt(pristupny_nazev));
    pole->setAlignment(Qt::AlignRight);
    pole->setFixedWidth(pole->fontMetrics().horizontalAdvance("000000"));
    return pole;
}

}  // namespace

OknoForm2::OknoForm2(paysheet::TForm2& form, const shell::Session& session, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle("struktura výplatní listiny");
    obsah().addWidget(pole_modulu(form));

    auto* chyby = new QGroupBox("chyby");
    auto* seznam = new QListWidget;
    seznam->setObjectName("scChyby");
    seznam->setAccessibleName("chyby");
    (new QVBoxLayout(chyby))->addWidget(seznam);
    obsah().addWidget(chyby, 1);
    vazba().seznam(*seznam, form.scChyby);
    vazba().viditelne(*chyby, [&form] { return !form.scChyby.empty(); });

    auto* stav = new QLabel(do_qt("struktura výplatní pásky | " + session.radek_firmy));
    stav->setObjectName("stav");
    obsah().addWidget(stav);

    QPushButton& ulozit = tlacitko(
        "&uložit", "btOK", [&form] { form.btOKClick(); }, Qt::Key_F2);
    vazba().povolene(ulozit, [&form] { return form.scChyby.empty(); });
    tlacitko("&zpět", "btZpet", [&form] { form.btZpetClick(); });
    odchod(form.zavreno, [&form] { form.btZpetClick(); });
}

// Two columns of seven modules; the fields stand in the order of the record, so is their focus.
QWidget* OknoForm2::pole_modulu(paysheet::TForm2& form) {
    auto* skupina = new QGroupBox("prvotní rozsah sloupců ve výplatní listině");
    auto* mrizka = new QGridLayout(skupina);
    mrizka->setHorizontalSpacing(10);
    std::size_t poradi = 0;
    const auto pridej = [&](int modul, const char* mez, int radek, int sloupec) {
        const std::string nazev =
            fmt::format("modul {} {}{}", modul, paysheet::modul_slovy(modul), mez);
        QLineEdit* pole = kratke_pole(poradi, nazev);
        vazba().pole(*pole, form.pole.at(poradi++), dve_cislice, [&form] { form.opusteni_pole(); });
        mrizka->addWidget(pole, radek, sloupec);
    };
    for (int modul = 1; modul <= k_modulu; ++modul) {
        const int radek = (modul - 1) % k_radku_ve_sloupci;
        const int vlevo = (modul - 1) / k_radku_ve_sloupci * 5;
        auto* cislo = new QLabel(QString::number(modul));
        cislo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        mrizka->addWidget(cislo, radek, vlevo);
        mrizka->addWidget(new QLabel(do_qt(paysheet::modul_slovy(modul))), radek, vlevo + 1);
        pridej(modul, je_rozsah(modul) ? " od" : "", radek, vlevo + 2);
        if (!je_rozsah(modul)) continue;
        mrizka->addWidget(new QLabel("až"), radek, vlevo + 3);
        pridej(modul, " do", radek, vlevo + 4);
    }
    mrizka->setColumnMinimumWidth(5, 50);
    mrizka->setColumnStretch(10, 1);
    return skupina;
}

}  // namespace desktop
