#include "desktop/okno_form19.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "desktop/panel_nahrad.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using wages::TForm19;

constexpr int k_radku_chyb = 5;
constexpr QSize k_nejmensi{520, 320};
constexpr QSize k_s_nahradou{760, 560};

}  // namespace

OknoForm19::OknoForm19(TForm19& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setWindowTitle(do_qt(form.nadpis));
    resize(form.stranka == TForm19::Stranka::nahrady ? k_s_nahradou : k_nejmensi);
    auto* pracovnik = udaj(vazba(), "lbPracovnik", form.lbPracovnik);
    jako_nadpis(*pracovnik);
    obsah().addWidget(pracovnik);
    obsah().addWidget(udaj(vazba(), "lbPolozka", form.lbPolozka));
    obsah().addWidget(udaj(vazba(), "lbPuvodni", form.lbPuvodni));
    obsah().addWidget(stranka());
    if (form.stranka != TForm19::Stranka::nahrady) {
        auto* celkem = udaj(vazba(), "lbCelkem", form.lbCelkem);
        jako_dulezity(*celkem);
        obsah().addWidget(celkem);
        obsah().addWidget(chyby());
    }
    obsah().addStretch(1);
    tlacitka();
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QLineEdit* OknoForm19::pole(QGridLayout& mrizka, const std::string& jmeno, const std::string& nazev,
                            std::string& hodnota, int znaku, Vazba::Filtr filtr,
                            Vazba::Metoda po_opusteni) {
    auto* nove = ciselne_pole(jmeno, nazev, znaku);
    vazba().pole(*nove, hodnota, std::move(filtr), std::move(po_opusteni));
    auto* popisek = new QLabel(mnemoniky_.pridej(do_qt(nazev)));
    popisek->setTextFormat(Qt::PlainText);
    popisek->setBuddy(nove);
    const int radek = mrizka.rowCount();
    mrizka.addWidget(popisek, radek, 0);
    mrizka.addWidget(nove, radek, 1, Qt::AlignLeft);
    mrizka.setColumnStretch(2, 1);
    return nove;
}

QWidget* OknoForm19::stranka() {
    switch (form_.stranka) {
        case TForm19::Stranka::ostatni:
            return stranka_ostatni();
        case TForm19::Stranka::castka:
            return stranka_castka();
        default:
            return new PanelNahrad(vazba(), form_.nahrady,
                                   [this](wages::PoleNahrad ktere) { form_.nahradyExit(ktere); });
    }
}

QWidget* OknoForm19::stranka_ostatni() {
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(0, 0, 0, 0);
    const wages::SloupecHrube& s = form_.sloupec;
    wages::ZadaniPolozky& z = form_.zadani;
    const auto kontrola = [this] { form_.poleExit(); };
    if (s.jake_dny != 0)
        pole(*mrizka, "scDny", "Dny", z.dny, 6, klavesy_desetinne(2), [this] { form_.DnyExit(); });
    if (s.jake_hodiny != 0)
        pole(*mrizka, "scHodiny", "Hodiny", z.hodiny, 7, klavesy_desetinne(3), kontrola);
    if (s.datum) {
        pole(*mrizka, "scDatum", "Datum (ddmm)", z.datum, 5, klavesy_cele(4),
             [this] { form_.DatumExit(); });
    }
    if (s.stredisko)
        pole(*mrizka, "scStredisko", "Středisko", z.stredisko, 3, klavesy_cele(2), kontrola);
    if (s.vykon) pole(*mrizka, "scVykon", "Výkon", z.vykon, 4, klavesy_cele(3), kontrola);
    if (s.stroj) pole(*mrizka, "scStroj", "Stroj", z.stroj, 7, klavesy_cele(6), kontrola);
    for (std::size_t n = 0; n < wages::k_hodnot; ++n) {
        if (!s.hodnoty[n].zadava_se()) continue;
        pole(*mrizka, "scHodnota" + std::to_string(n + 1), s.hodnoty[n].nadpis, z.hodnoty[n], 11,
             klavesy_desetinne(7), kontrola);
    }
    auto* text = pole(*mrizka, "scText", "Text", z.text, wages::k_znaku_textu, {}, kontrola);
    text->setAlignment(Qt::AlignLeft);
    text->setMaxLength(wages::k_znaku_textu);
    return panel;
}

QWidget* OknoForm19::stranka_castka() {
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(0, 0, 0, 0);
    const auto kontrola = [this] { form_.poleExit(); };
    if (form_.dny_hodiny_viditelne) {
        pole(*mrizka, "scDny", "Dny", form_.scDny, 6, klavesy_desetinne(2), kontrola);
        pole(*mrizka, "scHodiny", "Hodiny", form_.scHodiny, 7, klavesy_desetinne(3), kontrola);
    }
    pole(*mrizka, "scKoruny", "Koruny", form_.scKoruny, 11, klavesy_desetinne(7), kontrola);
    return panel;
}

QWidget* OknoForm19::chyby() {
    auto* seznam = new QListWidget;
    seznam->setObjectName("scChyby");
    seznam->setAccessibleName("chyby opravy");
    seznam->setFocusPolicy(Qt::NoFocus);
    seznam->setMaximumHeight(k_radku_chyb * seznam->fontMetrics().height());
    vazba().seznam(*seznam, form_.scChyby);
    vazba().viditelne(*seznam, [this] { return form_.scChyby_viditelne; });
    return seznam;
}

void OknoForm19::tlacitka() {
    if (form_.davky_povolene) {
        tlacitko("&Dávky po pásmech", "acDavky", [this] { form_.acDavkyExecute(); });
    }
    tlacitko(
        "&Uložit", "acUlozit", [this] { form_.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
}

}  // namespace desktop
