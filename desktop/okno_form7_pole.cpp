// The controls of the worker's card and their place on the pages.
#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <stdexcept>

#include "base/klavesy.h"
#include "desktop/okno_form7.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using workers::DruhPoleKarty;
using workers::PoleKarty;
using workers::TForm7;

constexpr int k_znaku_kratkeho = 9, k_znaku_dlouheho = 26, k_znaku_poznamky = 44;
constexpr int k_znaku_nejdelsiho = 48;  ///< from this length on a field is shown twice as wide
constexpr int k_znaku_seznamu = 30, k_znaku_kalendare = 30;

base::ZnamenkoRezim znamenko(const PoleKarty& pole) {
    return pole.minus ? base::ZnamenkoRezim::minus_na_zacatku : base::ZnamenkoRezim::bez_minus;
}

bool je_cislo(const PoleKarty& pole) {
    return pole.druh == DruhPoleKarty::cele || pole.druh == DruhPoleKarty::desetinne;
}

Vazba::Filtr filtr(const PoleKarty& pole) {
    switch (pole.druh) {
        case DruhPoleKarty::cele:
            return [&pole](char znak, std::string_view text) {
                return base::hlidej_cele_cislo_klavesy(znak, text, znamenko(pole), pole.delka);
            };
        case DruhPoleKarty::desetinne:
            return [&pole](char znak, std::string_view text) {
                return base::hlidej_desetinne_cislo_klavesy(znak, text, znamenko(pole), pole.delka,
                                                            pole.mist);
            };
        default:
            return [&pole](char znak, std::string_view text) {
                return base::hlidej_delku_klavesy(znak, text, pole.delka);
            };
    }
}

/// Lines of a note in a column of its width; the height counts also while the note is hidden.
void zalom(QLabel& poznamka) {
    const int sirka = poznamka.fontMetrics().averageCharWidth() * k_znaku_poznamky;
    poznamka.setWordWrap(true);
    poznamka.setFixedWidth(sirka);
    poznamka.setMinimumHeight(poznamka.heightForWidth(sirka));
}

void nastav_sirku(QLineEdit& vstup, const PoleKarty& pole) {
    const int znaku = pole.delka + pole.mist;
    if (je_cislo(pole) || znaku <= k_znaku_kratkeho) {
        const int ukazanych = std::max(znaku, 4) + 2;
        vstup.setFixedWidth(vstup.fontMetrics().horizontalAdvance(QString(ukazanych, '0')));
    } else {
        // The first page has no room for wide fields.
        const bool siroke =
            znaku >= k_znaku_nejdelsiho && pole.stranka != workers::StrankaKarty::osobni;
        const int ukazanych = siroke ? k_znaku_nejdelsiho : std::min(znaku, k_znaku_dlouheho);
        vstup.setMinimumWidth(vstup.fontMetrics().averageCharWidth() * ukazanych);
    }
}

}  // namespace

QWidget* OknoForm7::stranka(workers::StrankaKarty ktera) {
    auto* stranka = new QWidget;
    auto* vodorovne = new QHBoxLayout(stranka);
    vodorovne->setSpacing(12);
    std::vector<QVBoxLayout*> sloupce;
    for (const BlokKarty& popis : rozlozeni_karty()) {
        if (popis.stranka != ktera) continue;
        while (static_cast<int>(sloupce.size()) <= popis.sloupec) {
            sloupce.push_back(new QVBoxLayout);
            vodorovne->addLayout(sloupce.back());
        }
        sloupce.back()->addWidget(blok(popis));
    }
    if (ktera == workers::StrankaKarty::danove) sloupce.back()->addWidget(napoveda_sazby_pf());
    for (QVBoxLayout* sloupec : sloupce)
        sloupec->addStretch(1);
    vodorovne->addStretch(1);
    return stranka;
}

QWidget* OknoForm7::blok(const BlokKarty& popis) {
    auto* skupina = popis.nadpis.empty() ? nullptr : new QGroupBox(do_qt(popis.nadpis));
    if (popis.nadpis == k_blok_minuly_rok) skupina->setTitle(do_qt(form_.nadpis_minuly_rok));
    if (popis.nadpis == k_blok_aktualni_rok) skupina->setTitle(do_qt(form_.nadpis_aktualni_rok));
    QWidget* ramec = skupina ? skupina : new QWidget;
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setHorizontalSpacing(8);
    mrizka->setVerticalSpacing(2);
    mrizka->setContentsMargins(9, 4, 9, 4);
    int radek = 0;
    for (std::size_t i = 0; i < popis.hlavicka.size(); ++i) {
        mrizka->addWidget(new QLabel(do_qt(popis.hlavicka[i])), 0, static_cast<int>(i) + 1,
                          Qt::AlignBottom);
    }
    if (!popis.hlavicka.empty()) ++radek;
    for (const RadekKarty& jeden : popis.radky)
        radek_bloku(jeden, *mrizka, radek++, !popis.hlavicka.empty());
    mrizka->setColumnStretch(mrizka->columnCount(), 1);
    return ramec;
}

/// A label and its controls; a check box bears its caption itself.
void OknoForm7::radek_bloku(const RadekKarty& popis, QGridLayout& mrizka, int radek,
                            bool pod_hlavickou) {
    std::vector<QWidget*> prvky;
    for (const std::string& jmeno : popis.ovladace)
        prvky.push_back(ovladac(jmeno));
    QWidget* prvni = prvky.front();
    if (qobject_cast<QCheckBox*>(prvni) || qobject_cast<QLabel*>(prvni)) {
        mrizka.addWidget(prvni, radek, 0, 1, 3);
        return;
    }
    const std::string text =
        popis.popisek.empty()
            ? form_.popisek(workers::pole_karty()[workers::poradi_pole(popis.ovladace.front())])
            : popis.popisek;
    auto* popisek = new QLabel(do_qt(text));
    popisek->setBuddy(prvni);
    if (const QVariant kalendar = prvni->property(k_kalendar); kalendar.isValid()) {
        popisek->setProperty(k_kalendar, kalendar);
        popisek->installEventFilter(this);
    }
    mrizka.addWidget(popisek, radek, 0);
    if (pod_hlavickou) {
        for (std::size_t i = 0; i < prvky.size(); ++i)
            mrizka.addWidget(prvky[i], radek, static_cast<int>(i) + 1);
        return;
    }
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->setSpacing(6);
    for (QWidget* prvek : prvky)
        vedle_sebe->addWidget(prvek);
    // Fields of a fixed width keep to their caption.
    if (prvky.back()->maximumWidth() < QWIDGETSIZE_MAX) vedle_sebe->addStretch(1);
    mrizka.addLayout(vedle_sebe, radek, 1, 1, 2);
}

QWidget* OknoForm7::ovladac(const std::string& jmeno) {
    const auto& vsechna = workers::pole_karty();
    const auto pole = std::find_if(vsechna.begin(), vsechna.end(),
                                   [&](const PoleKarty& p) { return p.ovladac == jmeno; });
    QWidget* prvek = pole == vsechna.end() ? zvlastni(jmeno) : ovladac_pole(*pole);
    prvek->setObjectName(do_qt(jmeno));
    return prvek;
}

QWidget* OknoForm7::ovladac_pole(const PoleKarty& pole) {
    QWidget* prvek = pole.druh == DruhPoleKarty::logicke    ? zaskrtavatko(pole)
                     : pole.druh == DruhPoleKarty::seznam   ? seznam(pole)
                     : pole.druh == DruhPoleKarty::kalendar ? kalendar(pole)
                                                            : textove(pole);
    prvek->setAccessibleName(do_qt(form_.popisek(pole)));
    prvek->setToolTip(do_qt(pole.napoveda));
    prvek->setProperty(k_pole_karty, true);
    prvek->installEventFilter(this);
    return prvek;
}

QWidget* OknoForm7::textove(const PoleKarty& pole) {
    auto* vstup = new QLineEdit;
    nastav_sirku(*vstup, pole);
    if (je_cislo(pole)) vstup->setAlignment(Qt::AlignRight);
    if (pole.jen_cist) vstup->setEnabled(false);
    if (pole.ovladac == "CSSZ104") {
        vazba().povolene(*vstup, [this] { return form_.pocet_deti_povolen; });
    }
    std::string& hodnota = form_.hodnoty[pole.ovladac].text;
    vazba().pole(*vstup, hodnota, filtr(pole));
    // The screen may change what was typed; the cursor stays where the operator has it.
    connect(vstup, &QLineEdit::textEdited, this, [this, vstup, &pole](const QString& text) {
        const int kurzor = vstup->cursorPosition();
        form_.psani(pole.ovladac, z_qt(text));
        vstup->setCursorPosition(kurzor);
    });
    return vstup;
}

QWidget* OknoForm7::zaskrtavatko(const PoleKarty& pole) {
    auto* policko = new QCheckBox(popisek(form_.popisek(pole)));
    vazba().zaskrtavatko(*policko, form_.hodnoty[pole.ovladac].ano,
                         [this, &pole] { form_.zmena_volby(pole.ovladac); });
    return policko;
}

QWidget* OknoForm7::seznam(const PoleKarty& pole) {
    auto* vyber = new QComboBox;
    for (const auto& polozka : form_.polozky(pole.ciselnik))
        vyber->addItem(do_qt(polozka.text));
    vyber->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    int nejdelsi = 0;
    for (int i = 0; i < vyber->count(); ++i)
        nejdelsi = std::max(nejdelsi, static_cast<int>(vyber->itemText(i).size()));
    vyber->setMinimumContentsLength(std::min(nejdelsi, k_znaku_seznamu));
    // The open list shows its items whole, however narrow the field is.
    vyber->view()->setMinimumWidth(vyber->fontMetrics().averageCharWidth() * (nejdelsi + 4));
    vazba().vyber(*vyber, form_.hodnoty[pole.ovladac].index,
                  [this, &pole] { form_.zmena_volby(pole.ovladac); });
    return vyber;
}

QWidget* OknoForm7::kalendar(const PoleKarty& pole) {
    auto* vstup = new QLineEdit;
    vstup->setReadOnly(true);
    vstup->setCursor(Qt::PointingHandCursor);
    vstup->setProperty(k_kalendar, do_qt(pole.ovladac));
    vstup->setMinimumWidth(vstup->fontMetrics().averageCharWidth() * k_znaku_kalendare);
    vazba().pole(*vstup, form_.hodnoty[pole.ovladac].text);
    vazba().pri_obnove([vstup] { vstup->setCursorPosition(0); });
    return vstup;
}

QWidget* OknoForm7::tlacitko_vedle(const QString& popisek, const QString& pristupny_nazev,
                                   Vazba::Metoda metoda) {
    auto* nove = new QPushButton(popisek);
    nove->setAccessibleName(pristupny_nazev);
    nove->setToolTip(pristupny_nazev);
    nove->setAutoDefault(false);
    if (popisek.size() <= 2) {
        nove->setFixedWidth(nove->fontMetrics().horizontalAdvance("MMM") + 14);
    }
    vazba().tlacitko(*nove, std::move(metoda));
    return nove;
}

QWidget* OknoForm7::zvlastni(const std::string& jmeno) {
    if (jmeno == "acPrepocet") {
        return tlacitko_vedle("Př&epočet", "Přepočítá stav nároku na dovolenou.",
                              [this] { form_.acPrepocetExecute(); });
    }
    if (jmeno == "btRpdX") {
        return tlacitko_vedle("X", "zrušit kalendář běžného roku", [this] { form_.btRpdXClick(); });
    }
    if (jmeno == "btRpdMinX") {
        return tlacitko_vedle("X", "zrušit kalendář minulého roku",
                              [this] { form_.btRpdMinXClick(); });
    }
    if (jmeno == "btKdoPlatiDan") {
        return tlacitko_vedle("...", "vybrat pracovníka ze seznamu",
                              [this] { form_.btKdoPlatiDanClick(); });
    }
    if (jmeno == "jmeno_pojistovny") return udaj(vazba(), jmeno, form_.jmeno_pojistovny);
    if (jmeno == "jmeno_fondu") return udaj(vazba(), jmeno, form_.jmeno_fondu);
    if (jmeno == "jmeno_platce_dane") return udaj(vazba(), jmeno, form_.jmeno_platce_dane);
    if (jmeno != "poznamka_dane" && jmeno != "poznamka_skolam") {
        throw std::logic_error("na kartě není " + jmeno);
    }
    const bool dan = jmeno == "poznamka_dane";
    auto* poznamka = new QLabel(dan ? TForm7::k_poznamka_dane : TForm7::k_poznamka_skolam);
    zalom(*poznamka);
    if (dan) vazba().viditelne(*poznamka, [this] { return form_.poznamka_dane_viditelna; });
    return poznamka;
}

QWidget* OknoForm7::napoveda_sazby_pf() {
    auto* panel = new QGroupBox(TForm7::k_nadpis_sazby_pf);
    panel->setObjectName("napoveda_sazby_pf");
    auto* text = new QLabel(radky(TForm7::k_napoveda_sazby_pf));
    zalom(*text);
    (new QVBoxLayout(panel))->addWidget(text);
    vazba().viditelne(*panel, [this] { return form_.panel_sazby_pf_viditelny; });
    return panel;
}

}  // namespace desktop
