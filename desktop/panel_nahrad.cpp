#include "desktop/panel_nahrad.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/klavesy.h"
#include "desktop/prvky.h"
#include "desktop/strom_vypoctu.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using wages::PoleNahrad;
using wages::StrankaNahrad;

constexpr int k_znaku_castky = 10, k_znaku_data = 11, k_znaku_casu = 7, k_znaku_dokladu = 10;
constexpr int k_znaku_dnu = 3, k_znaku_vysvetleni = 54;
constexpr int k_prvni_radek_fondu = 2;

void s_popiskem(QGridLayout& mrizka, int radek, int sloupec, const char* nazev, QLineEdit* pole) {
    auto* popisek = new QLabel(nazev);
    popisek->setBuddy(pole);
    mrizka.addWidget(popisek, radek, sloupec);
    mrizka.addWidget(pole, radek, sloupec + 1, Qt::AlignLeft);
}

bool znak_castky(char znak, std::string_view text) {
    return base::hlidej_desetinne_cislo_klavesy(znak, text, base::ZnamenkoRezim::minus_na_zacatku,
                                                7, 2);
}

bool znak_dnu(char znak, std::string_view text) {
    return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus, 2);
}

/// Hours and minutes; a comma or a point will do for the colon.
bool znak_casu(char znak, std::string_view text) {
    const bool je_oddelovac = text.find_first_of(":,.") != std::string_view::npos;
    if (znak == ':' || znak == ',' || znak == '.') return !je_oddelovac;
    return znak >= '0' && znak <= '9' && text.size() + 1 < k_znaku_casu;
}

/// What belongs to a fund; the third one is not compensated.
struct Fond {
    char pismeno;
    const char* nazev;
    std::string StrankaNahrad::*fond;
    PoleNahrad pole_fondu;
    std::string StrankaNahrad::*hodina;
    PoleNahrad pole_hodiny;
    std::string StrankaNahrad::*castka;
    PoleNahrad pole_castky;
};
constexpr Fond k_fondy[] = {
    {'A', "fond A", &StrankaNahrad::scFondA, PoleNahrad::fond_a, &StrankaNahrad::scHodNahradaA,
     PoleNahrad::hod_nahrada_a, &StrankaNahrad::scNahradaA, PoleNahrad::nahrada_a},
    {'B', "fond B", &StrankaNahrad::scFondB, PoleNahrad::fond_b, &StrankaNahrad::scHodNahradaB,
     PoleNahrad::hod_nahrada_b, &StrankaNahrad::scNahradaB, PoleNahrad::nahrada_b},
    {'C', "fond C", &StrankaNahrad::scFondC, PoleNahrad::fond_c, nullptr, PoleNahrad::fond_c,
     nullptr, PoleNahrad::fond_c}};

}  // namespace

PanelNahrad::PanelNahrad(Vazba& vazba, StrankaNahrad& stranka, Opusteni po_opusteni)
    : vazba_(vazba), stranka_(stranka), po_opusteni_(std::move(po_opusteni)) {
    auto* svisle = new QVBoxLayout(this);
    auto* nadpis = udaj(vazba_, "titulek", stranka_.titulek);
    jako_nadpis(*nadpis);
    svisle->addWidget(nadpis);
    svisle->addLayout(doklad_a_dny());
    svisle->addWidget(fondy());
    svisle->addWidget(vysvetleni(), 1);
    svisle->addStretch(0);
}

bool PanelNahrad::eventFilter(QObject* kdo, QEvent* udalost) {
    if (udalost->type() == QEvent::FocusIn) {
        stranka_.vstup();
        if (auto* pole = dynamic_cast<QLineEdit*>(kdo)) pole->selectAll();
    }
    return QWidget::eventFilter(kdo, udalost);
}

void PanelNahrad::hlidej_vstup(QLineEdit& pole) {
    pole.installEventFilter(this);
}

QLineEdit* PanelNahrad::pole(const std::string& jmeno, const char* nazev, std::string& hodnota,
                             int znaku, Vazba::Filtr filtr, Vazba::Metoda po_opusteni) {
    auto* nove = ciselne_pole(jmeno, nazev, znaku);
    vazba_.pole(*nove, hodnota, std::move(filtr), std::move(po_opusteni));
    connect(nove, &QLineEdit::textEdited, this, [this] { stranka_.zmena(); });
    return nove;
}

QLineEdit* PanelNahrad::datum(const char* jmeno, const char* nazev, std::string& hodnota,
                              PoleNahrad ktere) {
    auto* nove =
        pole(jmeno, nazev, hodnota, k_znaku_data, {}, [this, ktere] { po_opusteni_(ktere); });
    hlidej_vstup(*nove);
    connect(nove, &QLineEdit::textEdited, nove, [nove](const QString& text) {
        if (text.contains(',')) nove->setText(QString(text).replace(',', '.'));
    });
    return nove;
}

QLineEdit* PanelNahrad::castka(const std::string& jmeno, const char* nazev, std::string& hodnota,
                               PoleNahrad ktere) {
    auto* nove = pole(jmeno, nazev, hodnota, k_znaku_castky, znak_castky,
                      [this, ktere] { po_opusteni_(ktere); });
    hlidej_vstup(*nove);
    vazba_.povolene(*nove, [this] { return stranka_.castky_povolene; });
    return nove;
}

QGridLayout* PanelNahrad::doklad_a_dny() {
    auto* mrizka = new QGridLayout;
    auto* doklad =
        pole("scCisloDokladu", "číslo dokladu", stranka_.scCisloDokladu, k_znaku_data, {}, {});
    doklad->setMaxLength(k_znaku_dokladu);
    doklad->setAlignment(Qt::AlignLeft);
    hlidej_vstup(*doklad);
    s_popiskem(*mrizka, 0, 0, "Číslo &dokladu", doklad);
    s_popiskem(*mrizka, 1, 0, "&Trvání od",
               datum("scTrvaniOd", "trvání od", stranka_.scTrvaniOd, PoleNahrad::trvani_od));
    s_popiskem(*mrizka, 1, 2, "do",
               datum("scTrvaniDo", "trvání do", stranka_.scTrvaniDo, PoleNahrad::trvani_do));
    s_popiskem(*mrizka, 2, 0, "&Kalendářních dnů",
               pole("scDnuKalendarnich", "kalendářních dnů", stranka_.scDnuKalendarnich,
                    k_znaku_dnu, znak_dnu, {}));
    s_popiskem(*mrizka, 2, 2, "pracovních",
               pole("scDnuPracovnich", "pracovních dnů", stranka_.scDnuPracovnich, k_znaku_dnu,
                    znak_dnu, {}));
    mrizka->setColumnStretch(4, 1);
    return mrizka;
}

QWidget* PanelNahrad::fondy() {
    auto* panel = new QGroupBox("Fondy a náhrady");
    auto* mrizka = new QGridLayout(panel);
    s_popiskem(*mrizka, 0, 0, "&Průměrný hod. výdělek",
               castka("scPrumHodVydelek", "průměrný hodinový výdělek", stranka_.scPrumHodVydelek,
                      PoleNahrad::prum_hod_vydelek));
    s_popiskem(*mrizka, 0, 2, "&Redukovaný",
               castka("scRedHodVydelek", "redukovaný hodinový výdělek", stranka_.scRedHodVydelek,
                      PoleNahrad::red_hod_vydelek));
    int sloupec = 0;
    for (const char* nadpis : {"Dny", "Fond (h:mm)", "Náhrada za hodinu", "Náhrada"})
        mrizka->addWidget(new QLabel(nadpis), 1, sloupec++);
    int radek = k_prvni_radek_fondu;
    for (const Fond& f : k_fondy)
        radek_fondu(*mrizka, radek++, f.pismeno);
    s_popiskem(*mrizka, radek, 2, "&Celková náhrada",
               castka("scCelkovaNahrada", "celková náhrada", stranka_.scCelkovaNahrada,
                      PoleNahrad::celkova_nahrada));
    mrizka->setColumnStretch(4, 1);
    vazba_.viditelne(*panel, [this] { return stranka_.panel_viditelny; });
    return panel;
}

QWidget* PanelNahrad::vysvetleni() {
    auto* strom =
        new StromVypoctuPohled(stranka_.strom, [this](int uzel) { stranka_.rozbal(uzel); });
    strom->setObjectName("strom");
    strom->setAccessibleName("jak náhrada vznikla");
    strom->setColumnWidth(0, strom->fontMetrics().averageCharWidth() * k_znaku_vysvetleni);
    vazba_.viditelne(*strom, [this] { return stranka_.panel_viditelny; });
    vazba_.pri_obnove([this, strom, ukazano = 0U]() mutable {
        if (ukazano != stranka_.vydani_stromu) strom->ukaz();
        ukazano = stranka_.vydani_stromu;
    });
    return strom;
}

void PanelNahrad::radek_fondu(QGridLayout& mrizka, int radek, char pismeno) {
    const auto poradi = static_cast<std::size_t>(pismeno - 'A');
    const Fond& f = k_fondy[poradi];
    std::vector<QWidget*> prvky{
        udaj(vazba_, std::string("popisek_scFond") + pismeno, stranka_.popisky_fondu[poradi]),
        pole(std::string("scFond") + pismeno, f.nazev, stranka_.*f.fond, k_znaku_casu, znak_casu,
             [this, &f] { po_opusteni_(f.pole_fondu); })};
    if (f.hodina) {
        prvky.push_back(castka(std::string("scHodNahrada") + pismeno, "náhrada za hodinu",
                               stranka_.*f.hodina, f.pole_hodiny));
        prvky.push_back(castka(std::string("scNahrada") + pismeno, "náhrada", stranka_.*f.castka,
                               f.pole_castky));
    }
    for (std::size_t s = 0; s < prvky.size(); ++s) {
        mrizka.addWidget(prvky[s], radek, static_cast<int>(s), Qt::AlignLeft);
        if (pismeno == 'A')
            vazba_.viditelne(*prvky[s], [this] { return stranka_.fond_a_viditelny; });
    }
}

}  // namespace desktop
