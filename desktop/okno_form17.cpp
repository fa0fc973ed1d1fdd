#include "desktop/okno_form17.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include "base/castky_text.h"
#include "base/klavesy.h"
#include "desktop/filtr_pracovniku.h"
#include "desktop/model_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using wages::SloupecHrube;
using wages::TForm17;

constexpr QSize k_velikost{1320, 690};
constexpr int k_znaku_popisku = 15;
constexpr int k_radku_chyb = 7;

/// Labels of both panels of the form take the same width, so that their fields stand in a column.
void srovnej_popisky(QGridLayout& mrizka, const QWidget& panel) {
    mrizka.setColumnMinimumWidth(0, panel.fontMetrics().averageCharWidth() * k_znaku_popisku);
}

QString koruny(base::Castka castka) {
    return base::je_nula(castka) ? QString() : do_qt(base::castka_s_oddelovaci(castka));
}

QCheckBox* volba(Vazba& vazba, const char* text, const char* jmeno, const char* nazev,
                 bool& hodnota) {
    auto* prvek = new QCheckBox(text);
    prvek->setObjectName(jmeno);
    prvek->setAccessibleName(nazev);
    vazba.zaskrtavatko(*prvek, hodnota);
    return prvek;
}

QLabel* nadpis_panelu(const char* text) {
    auto* nadpis = new QLabel(text);
    jako_dulezity(*nadpis);
    return nadpis;
}

QWidget* pod_sebou(std::initializer_list<QWidget*> prvky, QWidget* roztazeny) {
    auto* panel = new QWidget;
    auto* svisle = new QVBoxLayout(panel);
    svisle->setContentsMargins(0, 0, 0, 0);
    svisle->setSpacing(4);
    for (QWidget* prvek : prvky)
        svisle->addWidget(prvek, prvek == roztazeny ? 1 : 0);
    return panel;
}

}  // namespace

OknoForm17::OknoForm17(wages::TForm17& form, const shell::Session& session, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setWindowTitle(do_qt("Hrubé zorv a náhrady - " + form.nadpis + " - " + session.firma));
    setSizeGripEnabled(true);
    resize(k_velikost);
    auto* leva = new QSplitter(Qt::Vertical);
    leva->addWidget(pracovnici());
    leva->addWidget(sloupce());
    leva->setChildrenCollapsible(false);
    auto* cast = new QSplitter(Qt::Horizontal);
    cast->addWidget(leva);
    QWidget* const stranka = stranky();
    cast->addWidget(pod_sebou({odkazy(), stranka, dole()}, stranka));
    cast->setStretchFactor(0, 3);
    cast->setStretchFactor(1, 4);
    cast->setSizes({560, 740});
    cast->setChildrenCollapsible(false);
    obsah().addWidget(cast, 1);
    tlacitka();
    klavesy();
    odchod(form.zavreno, [&form] { form.acZpet(); });
    vazba().fokus(*this, form.fokus);
}

void OknoForm17::pri_vstupu(QWidget& prvek, Vazba::Metoda metoda) {
    vstupy_.emplace_back(&prvek, std::move(metoda));
    prvek.installEventFilter(this);
}

bool OknoForm17::eventFilter(QObject* kdo, QEvent* udalost) {
    if (udalost->type() == QEvent::FocusIn) {
        for (const auto& [prvek, metoda] : vstupy_)
            if (prvek == kdo) metoda();
        if (auto* pole = dynamic_cast<QLineEdit*>(kdo)) pole->selectAll();
    }
    return Okno::eventFilter(kdo, udalost);
}

QWidget* OknoForm17::filtr() {
    return filtr_pracovniku(vazba(),
                            {form_.filtr, workers::k_poradi_registru,
                             [this] { return static_cast<int>(form_.trideni); },
                             [this](int jak) {
                                 form_.trideni = static_cast<workers::PoradiRegistru>(jak);
                                 form_.Filtruj_adresy();
                             },
                             [this] { form_.Filtruj_adresy(); }, [this] { form_.btXClick(); }});
}

QWidget* OknoForm17::pracovnici() {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("pracovnici");
    tabulka->setAccessibleName("Pracovníci");
    const auto kdo = [this](std::size_t i) -> const wages::PracovnikZadani& {
        return form_.pracovnici.at(i);
    };
    auto* model = new ModelSeznamu(
        {{"Číslo", 6, true, [kdo](std::size_t i) { return QString::number(kdo(i).karta->Cislo); }},
         {"Příjmení", 0, false, [kdo](std::size_t i) { return do_qt(kdo(i).karta->Prijmeni); }},
         {"Jméno", 12, false, [kdo](std::size_t i) { return do_qt(kdo(i).karta->Jmeno); }},
         {"Koruny", 11, true, [kdo](std::size_t i) { return koruny(kdo(i).koruny); }},
         {"Narozen", 10, true, [kdo](std::size_t i) { return do_qt(kdo(i).karta->Dat_nar_text); }}},
        [this] { return form_.pracovnici.size(); },
        [tabulka, kdo](std::size_t i, int, int role) {
            return role == Qt::ForegroundRole && kdo(i).karta->byvaly
                       ? QVariant(barva_upozorneni(tabulka->palette()))
                       : QVariant();
        },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, ukazano = 0U]() mutable {
        if (ukazano == form_.vydani_pracovniku) return;
        ukazano = form_.vydani_pracovniku;
        model->obnov();
    });
    vazba().radek(*tabulka, form_.pracovnik, [this](int novy) { form_.vyber_pracovnika(novy); });
    return pod_sebou({filtr(), nadpis_panelu("Pracovníci  (F9)"), tabulka}, tabulka);
}

QWidget* OknoForm17::sloupce() {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("sloupce");
    tabulka->setAccessibleName("Druhy mezd");
    const auto s = [this](std::size_t i) -> const wages::SloupecZadani& {
        return form_.sloupce.at(i);
    };
    auto* model = new ModelSeznamu(
        {{"Sl.", 4, true, [s](std::size_t i) { return QString::number(s(i).sloupec.sloupec); }},
         {"Text", 0, false, [s](std::size_t i) { return do_qt(s(i).sloupec.text); }},
         {"Koruny", 13, true, [s](std::size_t i) { return koruny(s(i).koruny); }}},
        [this] { return form_.sloupce.size(); }, [](std::size_t, int, int) { return QVariant(); },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, ukazano = 0U]() mutable {
        if (ukazano == form_.vydani_sloupcu) return;
        ukazano = form_.vydani_sloupcu;
        model->obnov();
    });
    vazba().radek(*tabulka, form_.sloupec, [this](int novy) { form_.vyber_sloupec(novy); });
    return pod_sebou({nadpis_panelu("Druhy mezd  (F10)"), tabulka}, tabulka);
}

QWidget* OknoForm17::stranky() {
    auto* stranky = new QStackedWidget;
    stranky->addWidget(stranka_ostatni());
    stranky->addWidget(stranka_karantena());
    stranky->addWidget(stranka_nahrady());
    stranky->addWidget(stranka_nemoci());
    vazba().pri_obnove(
        [this, stranky] { stranky->setCurrentIndex(static_cast<int>(form_.stranka)); });
    return stranky;
}

QLineEdit* OknoForm17::pole_bezneho(QGridLayout& mrizka, int radek, const char* jmeno,
                                    const char* nazev, std::string& hodnota, int znaku,
                                    Vazba::Filtr filtr, Vazba::Metoda po_opusteni,
                                    bool (*zadava_se)(const SloupecHrube&)) {
    auto* pole = ciselne_pole(jmeno, nazev, znaku);
    vazba().pole(*pole, hodnota, std::move(filtr), std::move(po_opusteni));
    auto* popisek = new QLabel(nazev);
    popisek->setBuddy(pole);
    mrizka.addWidget(popisek, radek, 0);
    mrizka.addWidget(pole, radek, 1, Qt::AlignLeft);
    const auto viditelne = [this, zadava_se] {
        return form_.zvoleny() && zadava_se(*form_.zvoleny());
    };
    vazba().viditelne(*popisek, viditelne);
    vazba().viditelne(*pole, viditelne);
    return pole;
}

QWidget* OknoForm17::panel_mnozstvi() {
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(0, 0, 0, 0);
    wages::ZadaniPolozky& z = form_.zadani;
    const auto kontrola = [this] { form_.poleExit(); };
    pole_bezneho(
        *mrizka, 0, "scDny", "Dny", z.dny, 6, klavesy_desetinne(2), [this] { form_.DnyExit(); },
        [](const SloupecHrube& s) { return s.jake_dny != 0; });
    pole_bezneho(*mrizka, 1, "scHodiny", "Hodiny", z.hodiny, 7, klavesy_desetinne(3), kontrola,
                 [](const SloupecHrube& s) { return s.jake_hodiny != 0; });
    pole_bezneho(
        *mrizka, 2, "scDatum", "Datum (ddmm)", z.datum, 5, klavesy_cele(4),
        [this] { form_.DatumExit(); }, [](const SloupecHrube& s) { return s.datum; });
    auto* stredisko =
        pole_bezneho(*mrizka, 3, "scStredisko", "Středisko", z.stredisko, 3, klavesy_cele(2),
                     kontrola, [](const SloupecHrube& s) { return s.stredisko; });
    auto* vykon = pole_bezneho(*mrizka, 4, "scVykon", "Výkon", z.vykon, 4, klavesy_cele(3),
                               kontrola, [](const SloupecHrube& s) { return s.vykon; });
    pole_bezneho(*mrizka, 5, "scStroj", "Stroj", z.stroj, 7, klavesy_cele(6), kontrola,
                 [](const SloupecHrube& s) { return s.stroj; });
    pri_vstupu(*stredisko, [this] { form_.StrediskoEnter(); });
    pri_vstupu(*vykon, [this] { form_.VykonEnter(); });

    const auto volby = [&](int radek, QWidget* z_karty, QWidget* nech,
                           bool (*zadava_se)(const SloupecHrube&)) {
        mrizka->addWidget(z_karty, radek, 2);
        mrizka->addWidget(nech, radek, 3);
        for (QWidget* prvek : {z_karty, nech})
            vazba().viditelne(*prvek, [this, zadava_se] {
                return form_.zvoleny() && zadava_se(*form_.zvoleny());
            });
    };
    volby(3,
          volba(vazba(), "z karty", "stredisko_z_karty", "středisko z karty",
                form_.stredisko_z_karty),
          volba(vazba(), "po F2 nech", "stredisko_po_f2_nech", "středisko po F2 nechat",
                form_.stredisko_po_f2_nech),
          [](const SloupecHrube& s) { return s.stredisko; });
    volby(4, volba(vazba(), "z karty", "vykon_z_karty", "výkon z karty", form_.vykon_z_karty),
          volba(vazba(), "po F2 nech", "vykon_po_f2_nech", "výkon po F2 nechat",
                form_.vykon_po_f2_nech),
          [](const SloupecHrube& s) { return s.vykon; });
    mrizka->setColumnStretch(4, 1);
    srovnej_popisky(*mrizka, *panel);
    return panel;
}

QWidget* OknoForm17::panel_hodnot() {
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(0, 0, 0, 0);
    for (std::size_t n = 0; n < wages::k_hodnot; ++n) {
        const auto cislo = QString::number(n + 1);
        auto* pole = ciselne_pole("scHodnota" + std::to_string(n + 1),
                                  "hodnota " + std::to_string(n + 1), 11);
        vazba().pole(*pole, form_.zadani.hodnoty[n], klavesy_desetinne(7),
                     [this, n] { form_.HodnotaExit(n); });
        pri_vstupu(*pole, [this, n] { form_.HodnotaEnter(n); });
        auto* popisek = new QLabel;
        popisek->setTextFormat(Qt::PlainText);
        popisek->setBuddy(pole);
        vazba().text(*popisek, [this, n] {
            return form_.zvoleny() ? form_.zvoleny()->hodnoty[n].nadpis : std::string();
        });
        const auto viditelne = [this, n] {
            return form_.zvoleny() && form_.zvoleny()->hodnoty[n].zadava_se();
        };
        vazba().viditelne(*popisek, viditelne);
        vazba().viditelne(*pole, viditelne);
        mrizka->addWidget(popisek, static_cast<int>(n), 0);
        mrizka->addWidget(pole, static_cast<int>(n), 1, Qt::AlignLeft);
    }
    mrizka->setColumnStretch(2, 1);
    srovnej_popisky(*mrizka, *panel);
    return panel;
}

QWidget* OknoForm17::stranka_ostatni() {
    auto* nadpis = new QLabel;
    nadpis->setObjectName("sloupec_slovy");
    jako_nadpis(*nadpis);
    vazba().text(*nadpis,
                 [this] { return form_.zvoleny() ? "> " + form_.zvoleny()->text : std::string(); });
    auto* text = new QLineEdit;
    text->setObjectName("scText");
    text->setAccessibleName("text");
    vazba().pole(*text, form_.zadani.text, [](char znak, std::string_view napsano) {
        return base::hlidej_delku_klavesy(znak, napsano, static_cast<int>(wages::k_znaku_textu));
    });
    auto* popisek = new QLabel("T&ext:");
    popisek->setBuddy(text);
    auto* celkem = udaj(vazba(), "lbCelkem", form_.lbCelkem);
    jako_nadpis(*celkem);
    auto* stranka = pod_sebou(
        {nadpis, panel_mnozstvi(), panel_hodnot(), pod_sebou({popisek, text}, nullptr), celkem},
        nullptr);
    static_cast<QVBoxLayout*>(stranka->layout())->addStretch(1);
    return stranka;
}

QWidget* OknoForm17::dole() {
    auto* chyby = new QListWidget;
    chyby->setObjectName("scChyby");
    chyby->setAccessibleName("chyby zadání");
    chyby->setFocusPolicy(Qt::NoFocus);
    chyby->setMaximumHeight(k_radku_chyb * chyby->fontMetrics().height());
    vazba().seznam(*chyby, form_.scChyby);
    vazba().viditelne(*chyby, [this] { return form_.scChyby_viditelne; });

    auto* kam = new QWidget;
    auto* vodorovne = new QHBoxLayout(kam);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    auto* vyber = new QComboBox;
    vyber->setObjectName("po_zapisu_zvolit");
    vyber->setAccessibleName("po zápisu zvolit");
    vyber->addItems({"Panel pracovníků", "Panel sloupců", "Zadání hrubých mezd"});
    vazba().pri_obnove(
        [this, vyber] { vyber->setCurrentIndex(static_cast<int>(form_.po_zapisu_zvolit) - 1); });
    connect(vyber, &QComboBox::activated, this, [this](int index) {
        form_.po_zapisu_zvolit = static_cast<wages::PoZapisu>(index + 1);
    });
    auto* popisek = new QLabel("&Po zápisu zvolit:");
    popisek->setBuddy(vyber);
    vodorovne->addWidget(popisek);
    vodorovne->addWidget(vyber);
    vodorovne->addStretch(1);
    vazba().viditelne(*kam, [this] { return form_.po_zapisu_viditelne; });
    return pod_sebou({chyby, kam}, nullptr);
}

/// Screens beside the entry, in a row above the page.
QWidget* OknoForm17::odkazy() {
    struct Odkaz {
        const char *popisek, *jmeno;
        void (TForm17::*metoda)();
        QKeySequence zkratka;
    };
    const Odkaz odkazy[] = {
        {"Pro&hlížení", "acProhlizeni", &TForm17::acProhlizeni, {}},
        {"&Sumarizace", "acSumarizace", &TForm17::acSumarizace, {}},
        {"Vý&kony", "acVykony", &TForm17::acVykony, {}},
        {"Náhra&dy", "acNahrady", &TForm17::acNahrady, {}},
        {"&Blok", "acBlok", &TForm17::acBlok, Qt::Key_F7},
        {"&Výplatní listina", "acProhlizeniMezd", &TForm17::acProhlizeniMezd, {}},
        {"Ze so&uboru", "acZeSouboru", &TForm17::acZeSouboru, {}},
    };
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    vodorovne->setSpacing(2);
    for (const Odkaz& odkaz : odkazy) {
        auto* prvek = new QPushButton(odkaz.popisek);
        prvek->setObjectName(odkaz.jmeno);
        prvek->setAutoDefault(false);
        prvek->setFlat(true);
        if (!odkaz.zkratka.isEmpty())
            prvek->setToolTip(odkaz.zkratka.toString(QKeySequence::NativeText));
        vazba().tlacitko(
            *prvek, [this, metoda = odkaz.metoda] { (form_.*metoda)(); }, odkaz.zkratka);
        vodorovne->addWidget(prvek);
    }
    vodorovne->addStretch(1);
    return radek;
}

void OknoForm17::tlacitka() {
    auto& zapsat = tlacitko("Zapsat", "Button2", [this] { form_.Button2Click(); });
    auto& nemazat = tlacitko("Zapsat a &nemazat", "Button3", [this] { form_.Button3Click(); });
    for (QPushButton* zapis : {&zapsat, &nemazat})
        vazba().viditelne(*zapis, [this] { return form_.zapsat_viditelne; });
    vazba().povolene(zapsat, [this] { return form_.zapsat_povoleno; });
    vazba().povolene(nemazat, [this] {
        return form_.zapsat_povoleno || form_.stranka == TForm17::Stranka::karantena;
    });
    auto& nahrady = tlacitko("Zapsat", "acZapsatNahrady", [this] { form_.acZapsatNahrady(); });
    vazba().viditelne(nahrady, [this] { return form_.stranka == TForm17::Stranka::nahrady; });
    tlacitko("S&mazat zadání", "smazat_zadani", [this] { form_.smazat_zadani(); });
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpet(); });
}

void OknoForm17::klavesy() {
    const auto klavesa = [this](Qt::Key ktera, void (TForm17::*metoda)()) {
        connect(new QShortcut(ktera, this), &QShortcut::activated, this,
                [this, metoda] { (form_.*metoda)(); });
    };
    klavesa(Qt::Key_F2, &TForm17::acKlavesaF2);
    klavesa(Qt::Key_F9, &TForm17::acVolitPracovnika);
    klavesa(Qt::Key_F10, &TForm17::acVolitDruh);
    klavesa(Qt::Key_F11, &TForm17::acZadavatUdaje);
}

}  // namespace desktop
