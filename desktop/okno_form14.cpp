#include "desktop/okno_form14.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVBoxLayout>
#include <array>
#include <limits>
#include <stdexcept>

#include "base/klavesy.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

using paysheet::PoleNastaveni;
using paysheet::Stranka;

constexpr std::array k_stranky{Stranka::legislativa, Stranka::zakladni_parametry,
                               Stranka::pojisteni_dane_uctovani, Stranka::cssz};
constexpr int k_celych = 9, k_desetinnych = 4;  ///< of a rate: crowns, a percentage or a share
constexpr int k_cislic_kratkeho = 5;
constexpr int k_znaku_ukazanych = 40;

/// How a field is typed: its filter, its side and how many characters it shows.
struct Psani {
    Vazba::Filtr filtr;
    Qt::Alignment strana = Qt::AlignRight;
    int znaku = 0;
};

Psani cele_cislo(long long nejvyse) {
    const int cislic = static_cast<int>(std::to_string(nejvyse).size());
    return {[cislic](char znak, std::string_view text) {
                return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus,
                                                       cislic);
            },
            Qt::AlignRight, cislic};
}

Psani desetinne_cislo() {
    return {[](char znak, std::string_view text) {
                return base::hlidej_desetinne_cislo_klavesy(
                    znak, text, base::ZnamenkoRezim::bez_minus, k_celych, k_desetinnych);
            },
            Qt::AlignRight, k_celych};
}

Psani text(int delka) {
    return {[delka](char znak, std::string_view text) {
                return base::hlidej_delku_klavesy(znak, text, delka);
            },
            Qt::AlignLeft, delka};
}

/// By the type of the place where the value is kept.
Psani psani(const PoleNastaveni& pole) {
    shell::RidiciZorv zaznam;
    shell::Nastaveni nastaveni;
    return std::visit(
        [&pole](const auto* misto) {
            using T = std::decay_t<decltype(*misto)>;
            if constexpr (std::is_same_v<T, std::string>) {
                return text(pole.nejvyse);
            } else if constexpr (std::is_integral_v<T>) {
                return cele_cislo(pole.nejvyse > 0 ? pole.nejvyse : std::numeric_limits<T>::max());
            } else {
                return desetinne_cislo();
            }
        },
        pole.misto({zaznam, nastaveni}));
}

QLineEdit* nove_pole(const std::string& jmeno, const std::string& pristupny_nazev,
                     const Psani& psani) {
    auto* pole = new QLineEdit;
    pole->setObjectName(do_qt(jmeno));
    pole->setAccessibleName(do_qt(pristupny_nazev));
    pole->setAlignment(psani.strana);
    const QFontMetrics pismo = pole->fontMetrics();
    if (psani.strana == Qt::AlignLeft) {
        pole->setMinimumWidth(std::min(psani.znaku, k_znaku_ukazanych) * pismo.averageCharWidth());
    } else {
        const int znaku = psani.znaku <= k_cislic_kratkeho ? k_cislic_kratkeho : k_celych;
        pole->setFixedWidth(pismo.horizontalAdvance(QString(znaku + 2, '0')));
    }
    return pole;
}

const PoleNastaveni* najdi_pole(std::string_view jmeno) {
    for (const PoleNastaveni& pole : paysheet::pole_nastaveni()) {
        if (jmeno == pole.ovladac) return &pole;
    }
    return nullptr;
}

/// Rates of the union fee are read in two ways; their fields say which.
bool je_sazba_svazu(std::string_view jmeno) {
    return jmeno == "Edit43" || jmeno == "Edit46";
}

}  // namespace

OknoForm14::OknoForm14(paysheet::TForm14& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    vazba().pri_obnove([this] { setWindowTitle(do_qt(form_.nadpis)); });
    auto* stranky = new QTabWidget;
    stranky->setObjectName("stranky");
    for (const Stranka ktera : k_stranky)
        stranky->addTab(stranka(ktera), do_qt(paysheet::stranka_slovy(ktera)));
    obsah().addWidget(stranky, 1);
    auto* poznamka = new QLabel(paysheet::TForm14::k_poznamka);
    poznamka->setObjectName("poznamka");
    obsah().addWidget(poznamka);

    tlacitko(
        "&Uložit", "acUlozit", [this] { form_.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
    odchod(form_.zavreno, [this] { form_.acZpetExecute(); });

    findChild<QWidget*>(do_qt(rozlozeni_nastaveni().front().radky.front().ovladace.front()))
        ->setFocus();
    // The page first: a field of a hidden page would not take the focus.
    vazba().stranka(
        *stranky, [this] { return static_cast<int>(form_.stranka); },
        [this](int ktera) { form_.stranka = static_cast<Stranka>(ktera); });
    vazba().fokus(*this, form_.fokus);
}

QWidget* OknoForm14::stranka(Stranka ktera) {
    auto* stranka = new QWidget;
    auto* vodorovne = new QHBoxLayout(stranka);
    vodorovne->setSpacing(16);
    std::vector<QVBoxLayout*> sloupce;
    for (const BlokNastaveni& popis : rozlozeni_nastaveni()) {
        if (popis.stranka != ktera) continue;
        while (static_cast<int>(sloupce.size()) <= popis.sloupec) {
            sloupce.push_back(new QVBoxLayout);
            vodorovne->addLayout(sloupce.back());
        }
        sloupce.back()->addWidget(blok(popis));
    }
    for (QVBoxLayout* sloupec : sloupce)
        sloupec->addStretch(1);
    vodorovne->addStretch(1);
    return stranka;
}

QWidget* OknoForm14::blok(const BlokNastaveni& popis) {
    QWidget* ramec = popis.nadpis.empty() ? new QWidget : new QGroupBox(do_qt(popis.nadpis));
    auto* mrizka = new QGridLayout(ramec);
    mrizka->setHorizontalSpacing(10);
    int radek = 0;
    for (std::size_t i = 0; i < popis.hlavicka.size(); ++i)
        mrizka->addWidget(new QLabel(do_qt(popis.hlavicka[i])), 0, static_cast<int>(i) + 1,
                          Qt::AlignBottom);
    if (!popis.hlavicka.empty()) ++radek;
    for (const RadekNastaveni& jeden : popis.radky) {
        std::string nazev = jeden.popisek;
        int sloupec = 1;
        QWidget* prvni = nullptr;
        for (const std::string& jmeno : jeden.ovladace) {
            QWidget* prvek = ovladac(jmeno, nazev);
            mrizka->addWidget(prvek, radek, sloupec++);
            if (!prvni) prvni = prvek;
        }
        auto* popisek = new QLabel(do_qt(nazev));
        popisek->setBuddy(prvni);
        mrizka->addWidget(popisek, radek++, 0);
    }
    // A column of single fields keeps to the right edge, several fields to their captions.
    mrizka->setColumnStretch(popis.hlavicka.empty() ? 0 : mrizka->columnCount(), 1);
    return ramec;
}

QWidget* OknoForm14::ovladac(const std::string& jmeno, std::string& popisek) {
    if (const PoleNastaveni* popis = najdi_pole(jmeno)) {
        if (popisek.empty()) popisek = popis->popisek;
        return pole(*popis);
    }
    if (jmeno.starts_with("scNejdou")) return cislo_sloupce(jmeno, popisek);
    return zvlastni(jmeno, popisek);
}

QWidget* OknoForm14::pole(const PoleNastaveni& popis) {
    const Psani jak = psani(popis);
    QLineEdit* pole = nove_pole(popis.ovladac, popis.popisek, jak);
    if (je_sazba_svazu(popis.ovladac)) {
        pole->setToolTip(radky(paysheet::TForm14::k_napoveda_sazby_os));
    }
    vazba().pole(*pole, form_.*popis.text, jak.filtr);
    return pole;
}

QWidget* OknoForm14::cislo_sloupce(const std::string& jmeno, const std::string& radek) {
    for (std::size_t r = 0; r < form_.scNejdou.size(); ++r) {
        for (std::size_t c = 0; c < form_.scNejdou[r].size(); ++c) {
            if (paysheet::ovladac_nejdou(r, c) != jmeno) continue;
            const Psani jak = cele_cislo(std::numeric_limits<std::int16_t>::max());
            QLineEdit* pole =
                nove_pole(jmeno, "NEJDE do " + radek + " - " + std::to_string(c + 1), jak);
            vazba().pole(*pole, form_.scNejdou[r][c], jak.filtr);
            return pole;
        }
    }
    throw std::logic_error("v nastavení není " + jmeno);
}

// Boxes and lists.
QWidget* OknoForm14::zvlastni(const std::string& jmeno, const std::string& popisek) {
    QWidget* prvek = nullptr;
    if (jmeno == "scKodSazbyPojistneho") {
        auto* seznam = new QComboBox;
        for (const char* sazba : paysheet::TForm14::k_sazby_pojistneho)
            seznam->addItem(sazba);
        vazba().vyber(*seznam, form_.scKodSazbyPojistneho);
        prvek = seznam;
    } else if (jmeno == "scCsszOkres") {
        auto* seznam = new QComboBox;
        for (const std::string& okres : form_.okresy)
            seznam->addItem(do_qt(okres));
        vazba().vyber_nebo_text(*seznam, form_.scCsszOkres);
        prvek = seznam;
    } else if (jmeno == "scNemocenskeDavky") {
        auto* policko = new QCheckBox;
        vazba().zaskrtavatko(*policko, form_.scNemocenskeDavky);
        prvek = policko;
    } else if (jmeno == "scVstupDoUzavrenychMesicu") {
        auto* policko = new QCheckBox;
        vazba().zaskrtavatko(*policko, form_.scVstupDoUzavrenychMesicu,
                             [this] { form_.scVstupDoUzavrenychMesicuClick(); });
        prvek = policko;
    } else {
        throw std::logic_error("v nastavení není " + jmeno);
    }
    prvek->setObjectName(do_qt(jmeno));
    prvek->setAccessibleName(do_qt(popisek));
    return prvek;
}

}  // namespace desktop
