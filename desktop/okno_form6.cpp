#include "desktop/okno_form6.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QTableView>
#include <QVBoxLayout>
#include <fmt/format.h>
#include <utility>

#include "desktop/klavesy_tabulky.h"
#include "desktop/prvky.h"
#include "desktop/seznam_pracovniku.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using workers::TForm6;

struct TlacitkoStranky {
    const char* popisek;
    const char* jmeno;
    void (TForm6::*metoda)();
    const char* klavesa = "";
};

/// A page: a grid above a row of buttons, with `vlevo` at the row's beginning.
QWidget* stranka_s_mrizkou(Vazba& vazba, TForm6& form, QTableView* mrizka, QWidget* vlevo,
                           std::initializer_list<TlacitkoStranky> tlacitka) {
    auto* stranka = new QWidget;
    auto* svisle = new QVBoxLayout(stranka);
    svisle->addWidget(mrizka, 1);
    auto* radek = new QHBoxLayout;
    if (vlevo) radek->addWidget(vlevo);
    radek->addStretch(1);
    for (const TlacitkoStranky& t : tlacitka) {
        auto* tlacitko = new QPushButton(t.popisek);
        tlacitko->setObjectName(t.jmeno);
        tlacitko->setAutoDefault(false);
        tlacitko->setToolTip(t.klavesa);
        vazba.tlacitko(*tlacitko, [&form, metoda = t.metoda] { (form.*metoda)(); });
        radek->addWidget(tlacitko);
    }
    svisle->addLayout(radek);
    return stranka;
}

/// A text field of the filter that the screen answers at every key.
QLineEdit* pole_filtru(Vazba& vazba, const char* jmeno, const char* nazev, std::string& hodnota,
                       int znaku, TForm6& form) {
    auto* pole = new QLineEdit;
    pole->setObjectName(jmeno);
    pole->setAccessibleName(nazev);
    pole->setClearButtonEnabled(true);
    pole->setFixedWidth(pole->fontMetrics().horizontalAdvance(QString(znaku, '0')));
    vazba.pole(*pole, hodnota);
    QObject::connect(pole, &QLineEdit::textEdited, pole, [&form] { form.zmena_filtru(); });
    return pole;
}

QLabel* popisek_pole(const QString& text, QWidget* pole) {
    auto* popisek = new QLabel(text);
    popisek->setBuddy(pole);
    return popisek;
}

}  // namespace

OknoForm6::OknoForm6(workers::TForm6& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1340, 660);
    obsah().addWidget(filtr());
    obsah().addWidget(volitelne());
    auto* vedle_sebe = new QSplitter(Qt::Horizontal);
    vedle_sebe->setChildrenCollapsible(false);
    vedle_sebe->addWidget(seznam());
    QTabWidget* vpravo = stranky();
    vedle_sebe->addWidget(vpravo);
    vedle_sebe->setSizes({740, 580});
    obsah().addWidget(vedle_sebe, 1);
    tlacitka();
    klavesy(*vpravo);
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm6::filtr() {
    auto* panel = new QWidget;
    auto* radek = new QHBoxLayout(panel);
    radek->setContentsMargins(0, 0, 0, 0);
    workers::FiltrRegistru& f = form_.filtr;
    auto* cislo = pole_filtru(vazba(), "edCislo", "číslo pracovníka", f.cislo, 12, form_);
    radek->addWidget(popisek_pole("Čís&lo:", cislo));
    radek->addWidget(cislo);
    auto* jmeno = pole_filtru(vazba(), "edJmeno", "část příjmení nebo jména", f.jmeno, 22, form_);
    radek->addWidget(popisek_pole("&Jméno:", jmeno));
    radek->addWidget(jmeno);
    struct Volba {
        const char* popisek;
        const char* jmeno;
        bool& hodnota;
        void (TForm6::*metoda)();
    };
    for (const Volba& v :
         {Volba{"Mají &děti", "scMajiDeti", f.maji_deti, &TForm6::scMajiDetiClick},
          Volba{"Mají &ePodání", "scMajiEPodani", f.maji_epodani, &TForm6::scMajiEPodaniClick},
          Volba{"&Roční zúčtování", "scRocniZuctovani", f.rocni_zuctovani, &TForm6::zmena_filtru},
          Volba{"&Aktivní", "scAktivni", f.aktivni, &TForm6::zmena_filtru},
          Volba{"Nemá &kalendář", "scNemaKalendar", f.nema_kalendar, &TForm6::zmena_filtru}}) {
        auto* volba = new QCheckBox(v.popisek);
        volba->setObjectName(v.jmeno);
        volba->setAccessibleName(QString(v.popisek).remove('&'));
        vazba().zaskrtavatko(*volba, v.hodnota, [this, metoda = v.metoda] { (form_.*metoda)(); });
        radek->addWidget(volba);
    }
    radek->addStretch(1);
    auto* trideni = new QComboBox;
    trideni->setObjectName("cbTrideni");
    trideni->setAccessibleName("třídění");
    for (const char* polozka : workers::k_poradi_registru)
        trideni->addItem(polozka);
    connect(trideni, &QComboBox::activated, this, [this](int index) {
        form_.filtr.poradi = static_cast<workers::PoradiRegistru>(index);
        form_.zmena_filtru();
    });
    vazba().pri_obnove(
        [this, trideni] { trideni->setCurrentIndex(static_cast<int>(form_.filtr.poradi)); });
    radek->addWidget(popisek_pole("&Třídit podle:", trideni));
    radek->addWidget(trideni);
    return panel;
}

QWidget* OknoForm6::volitelne() {
    auto* panel = new QWidget;
    auto* radek = new QHBoxLayout(panel);
    radek->setContentsMargins(0, 0, 0, 0);
    for (std::size_t i = 0; i < form_.filtr.volitelne.size(); ++i) {
        workers::VolitelneHledisko& v = form_.filtr.volitelne[i];
        auto* hlediska = new QComboBox;
        hlediska->setObjectName(do_qt(fmt::format("cbVolitelne{}", i + 1)));
        hlediska->setAccessibleName(do_qt(fmt::format("volitelné hledisko {}", i + 1)));
        for (const std::string& polozka : form_.hlediska)
            hlediska->addItem(do_qt(polozka));
        vazba().vyber(*hlediska, v.hledisko, [this, i] { form_.cbVolitelneChange(i); });
        radek->addWidget(popisek_pole(QString("&%1.").arg(i + 1), hlediska));
        radek->addWidget(hlediska);
        const std::string jmeno = fmt::format("edVolitelne{}", i + 1);
        auto* hodnota =
            pole_filtru(vazba(), jmeno.c_str(), "hodnota hlediska", v.hodnota, 12, form_);
        vazba().viditelne(*hodnota, [&v] { return v.hledisko > 0; });
        radek->addWidget(hodnota);
    }
    auto* vse = new QPushButton("&Všichni");
    vse->setObjectName("acVse");
    vse->setAutoDefault(false);
    vse->setToolTip("zruší výběr");
    vazba().tlacitko(*vse, [this] { form_.acVseExecute(); });
    radek->addWidget(vse);
    auto* chyba = udaj(vazba(), "chyba_filtru", form_.chyba_filtru);
    jako_upozorneni(*chyba);
    chyba->setWordWrap(true);
    radek->addWidget(chyba, 1);
    radek->addWidget(udaj(vazba(), "pocet", form_.pocet_slovy));
    return panel;
}

QWidget* OknoForm6::seznam() {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("pracovníci");
    ModelSeznamu* model = model_pracovniku(form_, *tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, tabulka, ukazane_vydani = -1]() mutable {
        if (std::exchange(ukazane_vydani, form_.vydani_seznamu) == form_.vydani_seznamu) return;
        model->obnov();
        // The scroll bar must know the new length before the cursor is led into view.
        tabulka->doItemsLayout();
    });
    vazba().radek(*tabulka, form_.radek, [this](int novy) { form_.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [this] { form_.seznam_dvojklik(); });
    return tabulka;
}

QTabWidget* OknoForm6::stranky() {
    auto* zalozky = new QTabWidget;
    zalozky->setObjectName("stranky");
    zalozky->addTab(stranka_fixni(), "&Fixní");
    zalozky->addTab(stranka_deti(), "Děti");
    zalozky->addTab(stranka_epodani(), "ePodání");
    zalozky->addTab(stranka_info(), "Info");
    auto* ispv = new QLabel(do_qt(TForm6::k_ispv));
    ispv->setAlignment(Qt::AlignCenter);
    zalozky->addTab(ispv, "ISPV");
    vazba().stranka(
        *zalozky, [this] { return static_cast<int>(form_.stranka); },
        [this](int nova) {
            if (nova != static_cast<int>(form_.stranka)) {
                form_.vyber_stranku(static_cast<TForm6::Stranka>(nova));
            }
        });
    return zalozky;
}

QTableView* OknoForm6::mrizka(const char* jmeno, const char* nazev, workers::MrizkaStranky& vety) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName(jmeno);
    tabulka->setAccessibleName(nazev);
    tabulka->verticalHeader()->hide();
    vazba().tabulka(*tabulka, vety.vety);
    vazba().pri_obnove([tabulka] { tabulka->setColumnHidden(0, true); });
    vazba().radek(*tabulka, vety.radek, [&vety](int novy) { vety.radek = novy; });
    return tabulka;
}

QWidget* OknoForm6::stranka_fixni() {
    QTableView* tabulka = mrizka("mrizka_fixni", "fixní položky", form_.fixni);
    klavesy_seznamu(
        *tabulka, [this] { form_.acFixniPridatExecute(); },
        [this] { form_.acFixniOpravitExecute(); }, [this] { form_.acFixniSmazatExecute(); });
    connect(tabulka, &QTableView::doubleClicked, this, [this] { form_.acFixniOpravitExecute(); });
    return stranka_s_mrizkou(
        vazba(), form_, tabulka, nullptr,
        {{"Přidat položku", "acFixniPridat", &TForm6::acFixniPridatExecute, "Insert"},
         {"Opravit položku", "acFixniOpravit", &TForm6::acFixniOpravitExecute, "Enter"},
         {"Smazat položku", "acFixniSmazat", &TForm6::acFixniSmazatExecute, "Delete"}});
}

QWidget* OknoForm6::stranka_deti() {
    QTableView* tabulka = mrizka("mrizka_deti", "děti", form_.deti);
    klavesy_seznamu(
        *tabulka, [this] { form_.acDetiPridatExecute(); }, [this] { form_.acDetiOpravitExecute(); },
        [this] { form_.acDetiSmazatExecute(); });
    connect(tabulka, &QTableView::doubleClicked, this, [this] { form_.acDetiOpravitExecute(); });
    auto* soucet = new QLabel;
    soucet->setObjectName("suma_odpocitatelnych");
    vazba().text(*soucet, [this] {
        return fmt::format("Zvýhodnění celkem: {} Kč", form_.suma_odpocitatelnych);
    });
    return stranka_s_mrizkou(
        vazba(), form_, tabulka, soucet,
        {{"Přidat dítě", "acDetiPridat", &TForm6::acDetiPridatExecute, "Insert"},
         {"Opravit dítě", "acDetiOpravit", &TForm6::acDetiOpravitExecute, "Enter"},
         {"Smazat dítě", "acDetiSmazat", &TForm6::acDetiSmazatExecute, "Delete"}});
}

QWidget* OknoForm6::stranka_epodani() {
    QTableView* tabulka = mrizka("mrizka_epodani", "elektronická podání", form_.epodani);
    klavesy_seznamu(
        *tabulka, [this] { form_.acEpodPridatExecute(); }, [] {},
        [this] { form_.acEPodaniSmazatExecute(); });
    return stranka_s_mrizkou(
        vazba(), form_, tabulka, nullptr,
        {{"Nové ePodání", "acEpodPridat", &TForm6::acEpodPridatExecute, "Insert"},
         {"Smazat záznam", "acEPodaniSmazat", &TForm6::acEPodaniSmazatExecute, "Delete"},
         {"ePortál", "acEPortal", &TForm6::acEPortalExecute}});
}

QTableView* OknoForm6::prehled(const char* jmeno, const char* nazev, const store::Rows& udaje) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName(jmeno);
    tabulka->setAccessibleName(nazev);
    tabulka->verticalHeader()->hide();
    tabulka->horizontalHeader()->hide();
    tabulka->horizontalHeader()->setStretchLastSection(true);
    vazba().tabulka(*tabulka, udaje);
    return tabulka;
}

QWidget* OknoForm6::stranka_info() {
    auto* zalozky = new QTabWidget;
    zalozky->setObjectName("stranky_info");
    zalozky->addTab(prehled("mrizka_osobni", "osobní údaje", form_.osobni), "Osobní");
    zalozky->addTab(prehled("mrizka_plat", "platové údaje", form_.plat), "Plat");
    vazba().stranka(
        *zalozky, [this] { return static_cast<int>(form_.stranka_info); },
        [this](int nova) {
            if (nova != static_cast<int>(form_.stranka_info)) {
                form_.vyber_stranku_info(static_cast<TForm6::StrankaInfo>(nova));
            }
        });
    return zalozky;
}

void OknoForm6::tlacitka() {
    const auto je_pracovnik = [this] { return form_.pracovnik() != nullptr; };
    tlacitko("&Přidat", "acPridat", [this] { form_.acPridatExecute(); }).setToolTip("Insert");
    QPushButton& opravit = tlacitko(
        "&Opravit", "acOpravit", [this] { form_.acOpravitExecute(); }, Qt::Key_F2);
    vazba().povolene(opravit, je_pracovnik);
    QPushButton& smazat = tlacitko("&Smazat", "acSmazat", [this] { form_.acSmazatExecute(); });
    smazat.setToolTip("Delete");
    vazba().povolene(smazat, je_pracovnik);
    tlacitko(
        "T&isk", "acTiskni", [this] { form_.acTiskniExecute(); }, QKeySequence::Print);
    tlacitko("Přepočet dovole&né", "acPrepocetDovolene",
             [this] { form_.acPrepocetDovoleneExecute(); });
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
}

/// The list is where the clerk's hands rest: letters typed in it search, an arrow or Enter leads
/// from a filter back to it.
void OknoForm6::klavesy(QTabWidget& stranky) {
    auto* seznam = findChild<QTableView*>("mrizka");
    auto* cislo = findChild<QLineEdit*>("edCislo");
    auto* jmeno = findChild<QLineEdit*>("edJmeno");
    klavesy_seznamu(
        *seznam, [this] { form_.acPridatExecute(); }, [this] { form_.acOpravitExecute(); },
        [this] { form_.acSmazatExecute(); });
    (new KlavesyPrvku(*seznam))->psani([cislo, jmeno](QChar znak) -> QLineEdit* {
        if (znak.isDigit()) return cislo;
        return znak.isLetter() ? jmeno : nullptr;
    });
    for (QLineEdit* pole : {cislo, jmeno}) {
        auto* zpet = new KlavesyPrvku(*pole);
        for (const Qt::Key klavesa : {Qt::Key_Down, Qt::Key_Return, Qt::Key_Enter})
            zpet->na(klavesa, [seznam] { seznam->setFocus(); });
    }
    for (const auto& [zkratka, krok] :
         {std::pair{"Ctrl+Tab", 1}, std::pair{"Ctrl+Shift+Tab", stranky.count() - 1}}) {
        auto* dalsi = new QShortcut(QKeySequence(zkratka), this);
        connect(dalsi, &QShortcut::activated, &stranky, [&stranky, krok = krok] {
            stranky.setCurrentIndex((stranky.currentIndex() + krok) % stranky.count());
        });
    }
    connect(new QShortcut(Qt::Key_F3, this), &QShortcut::activated, jmeno, [jmeno] {
        jmeno->setFocus();
        jmeno->selectAll();
    });
}

}  // namespace desktop
