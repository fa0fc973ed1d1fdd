#include "desktop/okno_form4.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <fmt/format.h>

#include "base/text.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "store/catalogue.h"

namespace desktop {

namespace {

using paysheet::TForm4;

/// A text field as long as the table's field of that name.
QLineEdit* textove_pole(const std::string& jmeno, const std::string& pristupny_nazev) {
    const store::TableDef ridici = store::definition_of("Ridici");
    const auto pole = std::find_if(ridici.fields.begin(), ridici.fields.end(),
                                   [&](const store::FieldDef& f) { return f.name == jmeno; });
    auto* vstup = new QLineEdit;
    vstup->setObjectName(do_qt(jmeno));
    vstup->setAccessibleName(do_qt(pristupny_nazev));
    if (pole != ridici.fields.end()) vstup->setMaxLength(pole->size);
    return vstup;
}

template <std::size_t N>
QComboBox* seznam(const char* jmeno, const char* pristupny_nazev,
                  const std::array<const char*, N>& polozky) {
    auto* vyber = new QComboBox;
    vyber->setObjectName(jmeno);
    vyber->setAccessibleName(pristupny_nazev);
    for (const char* polozka : polozky)
        vyber->addItem(polozka);
    return vyber;
}

QWidget* legenda_predrazeni() {
    auto* panel = new QGroupBox("předřadit");
    auto* mrizka = new QGridLayout(panel);
    mrizka->setVerticalSpacing(3);
    int hodnota = 0;
    for (const char* vyznam : TForm4::k_predrazeno) {
        auto* cislo = new QLabel(QString::number(hodnota));
        cislo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        mrizka->addWidget(cislo, hodnota, 0);
        mrizka->addWidget(new QLabel(vyznam), hodnota++, 1);
    }
    mrizka->setRowStretch(hodnota, 1);
    mrizka->setColumnStretch(1, 1);
    return panel;
}

}  // namespace

OknoForm4::OknoForm4(TForm4& form, const shell::Session&, QWidget* rodic) : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    obsah().addWidget(hlavicka(form));
    obsah().addWidget(detail(form));
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "Button2", [this, &form] { uloz(form); }, Qt::Key_F2);
    tlacitko("&Zpět", "Button1", [&form] { form.Button1Click(); });
    odchod(form.zavreno, [&form] { form.Button1Click(); });
    vazba().fokus(*this, form.fokus);
    // Hidden parts are known before the window takes its size.
    obnov();
}

QWidget* OknoForm4::hlavicka(TForm4& form) {
    auto* hlavicka = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(hlavicka);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    vedle_sebe->addWidget(new QLabel("Modul:"));
    vedle_sebe->addWidget(udaj(vazba(), "modul", form.modul));
    vedle_sebe->addSpacing(16);
    vedle_sebe->addWidget(new QLabel("Sloupec:"));
    vedle_sebe->addWidget(udaj(vazba(), "sloupec", form.sloupec));
    vedle_sebe->addSpacing(16);
    auto* text = textove_pole("text", "text sloupce");
    text->setMinimumWidth(text->fontMetrics().horizontalAdvance(QString(32, 'n')));
    vazba().pole(*text, form.text);
    vazba().povolene(*text, [&form] { return form.text_povolen; });
    auto* popisek = new QLabel("&Text:");
    popisek->setBuddy(text);
    vedle_sebe->addWidget(popisek);
    vedle_sebe->addWidget(text, 1);
    return hlavicka;
}

QWidget* OknoForm4::detail(TForm4& form) {
    auto* detail = new QWidget;
    detail->setObjectName("detail");
    auto* mrizka = new QGridLayout(detail);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->addWidget(vyplata(form), 0, 0);
    mrizka->addWidget(podrobnosti(form), 0, 1);
    mrizka->addWidget(hodnoty(form), 1, 0, 1, 2);
    mrizka->addWidget(legenda_predrazeni(), 0, 2, 2, 1);
    mrizka->setColumnStretch(0, 1);
    vazba().viditelne(*detail, [&form] { return form.detail_viditelny; });
    return detail;
}

QWidget* OknoForm4::vyplata(TForm4& form) {
    auto* skupina = new QGroupBox("zadání a výpočet");
    auto* radky = new QFormLayout(skupina);
    auto* dny = seznam("scDny", "dny", TForm4::k_dny);
    auto* hodiny = seznam("scHodiny", "hodiny", TForm4::k_hodiny);
    auto* vypocet = seznam("scVypocet", "výpočet", TForm4::k_vypocty);
    vypocet->setPlaceholderText("vyberte výpočet");
    vypocet->setMaxVisibleItems(static_cast<int>(TForm4::k_vypocty.size()));
    vazba().vyber(*dny, form.scDny);
    vazba().vyber(*hodiny, form.scHodiny);
    vazba().vyber(*vypocet, form.scVypocet);
    radky->addRow("&dny:", dny);
    radky->addRow("&hodiny:", hodiny);
    radky->addRow("&výpočet:", vypocet);
    return skupina;
}

QWidget* OknoForm4::podrobnosti(TForm4& form) {
    struct Podrobnost {
        const char *popisek, *jmeno;
        bool* hodnota;
    };
    auto* skupina = new QGroupBox("zadává se také");
    auto* svisle = new QVBoxLayout(skupina);
    for (const Podrobnost& p : {Podrobnost{"datum", "scDatum", &form.scDatum},
                                {"středisko", "scStredisko", &form.scStredisko},
                                {"výkon", "scVykon", &form.scVykon},
                                {"stroj", "scStroj", &form.scStroj}}) {
        auto* zaskrtavatko = new QCheckBox(p.popisek);
        zaskrtavatko->setObjectName(p.jmeno);
        zaskrtavatko->setAccessibleName(p.popisek);
        vazba().zaskrtavatko(*zaskrtavatko, *p.hodnota);
        svisle->addWidget(zaskrtavatko);
    }
    return skupina;
}

QWidget* OknoForm4::hodnoty(TForm4& form) {
    auto* skupina = new QGroupBox("zadávané hodnoty");
    auto* mrizka = new QGridLayout(skupina);
    int sloupec = 1;
    for (const char* nadpis : {"nadpis", "předřadit", "min", "max", "standardně"})
        mrizka->addWidget(new QLabel(nadpis), 0, sloupec++);
    for (std::size_t i = 0; i < form.hodnoty.size(); ++i)
        radek_hodnoty(form, i, *mrizka);
    mrizka->setColumnStretch(1, 1);
    return skupina;
}

void OknoForm4::radek_hodnoty(TForm4& form, std::size_t poradi, QGridLayout& mrizka) {
    struct Cislo {
        const char *jmeno, *popisek;
        int znaku;
        TForm4::Pole pole;
        std::string* hodnota;
    };
    TForm4::Hodnota& h = form.hodnoty[poradi];
    const int radek = static_cast<int>(poradi) + 1;
    const auto nazev = [radek](const char* co) { return fmt::format("{} hodnoty {}", co, radek); };
    mrizka.addWidget(new QLabel(QString("%1.").arg(radek)), radek, 0);

    auto* nadpis = textove_pole(fmt::format("nadpis_{}", radek), nazev("nadpis"));
    nadpis->setMinimumWidth(nadpis->fontMetrics().horizontalAdvance(QString(17, 'n')));
    vazba().pole(*nadpis, h.nadpis, {}, [&form, poradi] { form.opusteni_nadpisu(poradi); });
    // The value's fields open while the caption is being typed, so that Enter reaches them.
    connect(nadpis, &QLineEdit::textEdited, this, [this] { obnov(); });
    mrizka.addWidget(nadpis, radek, 1);

    using Pole = TForm4::Pole;
    int sloupec = 2;
    for (const Cislo& c : {Cislo{"predrazeno", "předřadit", 4, Pole::predrazeno, &h.predrazeno},
                           {"Min", "min", 9, Pole::min, &h.min},
                           {"Max", "max", 9, Pole::max, &h.max},
                           {"Konstanta", "standardně", 13, Pole::konstanta, &h.konstanta}}) {
        auto* pole = ciselne_pole(fmt::format("{}_{}", c.jmeno, radek), nazev(c.popisek), c.znaku);
        vazba().pole(*pole, *c.hodnota, [&form, druh = c.pole](char znak, std::string_view text) {
            return form.povol_klavesu(druh, znak, text);
        });
        vazba().povolene(*pole, [&h] { return base::neprazdny(h.nadpis); });
        mrizka.addWidget(pole, radek, sloupec++);
    }
}

// A shortcut does not take the focus from a field, which has its own say when it is left.
void OknoForm4::uloz(TForm4& form) {
    if (QWidget* pole = focusWidget()) {
        pole->clearFocus();
        pole->setFocus();
    }
    form.Button2Click();
}

}  // namespace desktop
