#include "desktop/okno_form133.h"

#include <QClipboard>
#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QShortcut>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

#include "base/castky_text.h"
#include "base/datum.h"
#include "desktop/filtr_pracovniku.h"
#include "desktop/model_seznamu.h"
#include "desktop/strom_vypoctu.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"
#include "paysheet/sloupce.h"

namespace desktop {

namespace {

using payrun::OblastMezd;
using payrun::PracovnikListiny;
using payrun::RadekListiny;
using payrun::SoucetMezd;

/// The explanation waits until the cursor rests, so that holding an arrow key is not slowed down.
constexpr int k_klid_kurzoru_ms = 80;
constexpr QSize k_velikost{1340, 690};

struct Cast {
    OblastMezd oblast;
    const char* prvek;
    const char* nazev;
    Qt::Key klavesa;
};
constexpr Cast k_casti[] = {
    {OblastMezd::pracovnici, "pracovnici", "Pracovníci", Qt::Key_F9},
    {OblastMezd::radky, "radky", "Výplatní listina pracovníka", Qt::Key_F10},
    {OblastMezd::vysvetleni, "vysvetleni", "Jak částka vznikla", Qt::Key_F11},
};

/// Modules whose rows are totals.
bool je_soucet(int modul) {
    return modul == 2 || modul == 6 || modul == 12 || modul == 14;
}

QString koruny(base::Castka castka) {
    return do_qt(base::castka_s_oddelovaci(castka)).replace(' ', QChar(0x00a0));
}
QString nebo_nic(const std::optional<base::Castka>& castka) {
    return castka ? do_qt(base::castka_prosta(*castka)) : QString();
}

QFont tucne() {
    QFont pismo;
    pismo.setBold(true);
    return pismo;
}

QWidget* s_nadpisem(const Cast& cast, QWidget* obsah) {
    auto* panel = new QWidget;
    auto* svisle = new QVBoxLayout(panel);
    svisle->setContentsMargins(0, 0, 0, 0);
    svisle->setSpacing(3);
    auto* nadpis =
        new QLabel(QString("%1  (%2)")
                       .arg(QString::fromUtf8(cast.nazev), QKeySequence(cast.klavesa).toString()));
    jako_dulezity(*nadpis);
    svisle->addWidget(nadpis);
    obsah->setObjectName(cast.prvek);
    obsah->setAccessibleName(QString::fromUtf8(cast.nazev));
    svisle->addWidget(obsah, 1);
    return panel;
}

}  // namespace

OknoForm133::OknoForm133(payrun::TForm133& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form), vysvetleni_brzy_(new QTimer(this)) {
    setSizeGripEnabled(true);
    resize(k_velikost);
    vazba().pri_obnove([this] { setWindowTitle(do_qt(form_.nadpis)); });
    if (form_.hlaska.empty()) {
        obsah().addWidget(hlavicka());
        auto* strany = new QSplitter(Qt::Horizontal);
        strany->addWidget(leva_strana());
        strany->addWidget(prava_strana());
        strany->setStretchFactor(0, 2);
        strany->setStretchFactor(1, 5);
        strany->setSizes({390, 930});
        strany->setChildrenCollapsible(false);
        obsah().addWidget(strany, 1);
        klavesy_casti();
        tlacitka();
    } else {
        auto* hlaska = new QLabel(do_qt(form_.hlaska));
        hlaska->setObjectName("hlaska");
        obsah().addWidget(hlaska, 1, Qt::AlignCenter);
    }
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
    odchod(form_.zavreno, [this] { form_.acZpetExecute(); });
    vazba().fokus(*this, form_.fokus);
    vysvetleni_brzy_->setSingleShot(true);
    vysvetleni_brzy_->setInterval(k_klid_kurzoru_ms);
    connect(vysvetleni_brzy_, &QTimer::timeout, this, [this] { form_.vysvetli(); });
    vazba().pri_obnove([this] {
        if (form_.ceka_na_vysvetleni) vysvetleni_brzy_->start();
    });
}

QWidget* OknoForm133::hlavicka() {
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    auto* nadpis = new QLabel;
    nadpis->setObjectName("pracovnik");
    jako_nadpis(*nadpis);
    vazba().text(*nadpis, [this] { return payrun::pracovnik_slovy(form_); });
    vodorovne->addWidget(nadpis, 1);

    auto* mesice = new QComboBox;
    mesice->setObjectName("mesic");
    mesice->setAccessibleName("měsíc");
    for (const int mesic : form_.mesice)
        mesice->addItem(do_qt(base::mesic_slovy(mesic, 0)));
    vazba().vyber(*mesice, form_.mesic_index, [this] { form_.vyber_mesic(form_.mesic_index); });
    auto* popisek = new QLabel("Mě&síc:");
    popisek->setBuddy(mesice);
    vodorovne->addWidget(popisek);
    vodorovne->addWidget(mesice);
    return radek;
}

QWidget* OknoForm133::leva_strana() {
    auto* strana = new QWidget;
    auto* svisle = new QVBoxLayout(strana);
    svisle->setContentsMargins(0, 0, 0, 0);
    svisle->addWidget(filtr());
    svisle->addWidget(s_nadpisem(k_casti[0], seznam_pracovniku()), 1);
    svisle->addWidget(soucty());
    return strana;
}

QWidget* OknoForm133::filtr() {
    return filtr_pracovniku(
        vazba(), {form_.filtr, payrun::k_trideni_pracovniku, [this] { return form_.trideni; },
                  [this](int jak) {
                      form_.trideni = jak;
                      form_.Filtruj_adresy();
                  },
                  [this] { form_.Filtruj_adresy(); }, [this] { form_.btXClick(); }});
}

QTableView* OknoForm133::seznam_pracovniku() {
    auto* tabulka = new QTableView;
    const auto kdo = [this](std::size_t i) -> const PracovnikListiny& {
        return form_.pracovnici.at(i);
    };
    auto* model = new ModelSeznamu(
        {{"Číslo", 6, true, [kdo](std::size_t i) { return QString::number(kdo(i).cislo); }},
         {"Příjmení", 0, false, [kdo](std::size_t i) { return do_qt(kdo(i).prijmeni); }},
         {"Jméno", 11, false, [kdo](std::size_t i) { return do_qt(kdo(i).jmeno); }},
         {"K výplatě", 11, true, [kdo](std::size_t i) { return koruny(kdo(i).soucet.k_vyplate); }}},
        [this] { return form_.pracovnici.size(); },
        [tabulka, kdo](std::size_t i, int, int role) {
            return role == Qt::ForegroundRole && kdo(i).odesel
                       ? QVariant(barva_upozorneni(tabulka->palette()))
                       : QVariant();
        },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, ukazano = 0U]() mutable {
        if (ukazano == form_.zmeny.pracovnici) return;
        ukazano = form_.zmeny.pracovnici;
        model->obnov();
    });
    vazba().radek(*tabulka, form_.pracovnik, [this](int novy) { form_.vyber_pracovnika(novy); });
    return tabulka;
}

QWidget* OknoForm133::soucty() {
    struct Polozka {
        const char* nazev;
        const char* jmeno;
        base::Castka (*castka)(const SoucetMezd&, const payrun::SazbyPodniku&);
    };
    static constexpr Polozka k_polozky[] = {
        {"Hrubá mzda", "hruba", [](const SoucetMezd& s, const auto&) { return s.hruba; }},
        {"Srážky", "srazky", [](const SoucetMezd& s, const auto&) { return s.srazky; }},
        {"K výplatě", "k_vyplate", [](const SoucetMezd& s, const auto&) { return s.k_vyplate; }},
        {"Náklad firmy", "naklad",
         [](const SoucetMezd& s, const auto& sazby) { return s.naklad(sazby); }},
    };
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(2, 2, 2, 0);
    mrizka->setVerticalSpacing(2);
    mrizka->addWidget(new QLabel("Součty"), 0, 0);
    mrizka->addWidget(new QLabel("pracovník"), 0, 1, Qt::AlignRight);
    auto* vsichni = new QLabel;
    vsichni->setObjectName("pocet");
    vazba().text(*vsichni,
                 [this] { return "zobrazení: " + std::to_string(form_.pracovnici.size()); });
    mrizka->addWidget(vsichni, 0, 2, Qt::AlignRight);
    int radek = 1;
    for (const Polozka& polozka : k_polozky) {
        mrizka->addWidget(new QLabel(QString::fromUtf8(polozka.nazev)), radek, 0);
        for (const bool vse : {false, true}) {
            auto* castka = new QLabel;
            castka->setObjectName(QString(polozka.jmeno) + (vse ? "_vsech" : "_pracovnika"));
            castka->setAlignment(Qt::AlignRight);
            castka->setTextInteractionFlags(Qt::TextSelectableByMouse);
            jako_dulezity(*castka);
            vazba().pri_obnove([this, castka, vse, &polozka] {
                const auto i = static_cast<std::size_t>(form_.pracovnik);
                const bool je = vse || form_.pracovnik >= 0;
                const SoucetMezd& s = vse || !je ? form_.soucet_vsech : form_.pracovnici[i].soucet;
                castka->setText(je ? koruny(polozka.castka(s, form_.sazby)) : QString());
            });
            mrizka->addWidget(castka, radek, vse ? 2 : 1);
        }
        ++radek;
    }
    mrizka->setColumnStretch(1, 1);
    mrizka->setColumnStretch(2, 1);
    return panel;
}

QWidget* OknoForm133::prava_strana() {
    auto* casti = new QSplitter(Qt::Vertical);
    casti->addWidget(radky_pracovnika());
    casti->addWidget(vysvetleni());
    casti->setSizes({300, 330});
    casti->setChildrenCollapsible(false);
    return casti;
}

QWidget* OknoForm133::radky_pracovnika() {
    auto* tabulka = new QTableView;
    const auto r = [this](std::size_t i) -> const RadekListiny& { return form_.radky.at(i); };
    auto* model = new ModelSeznamu(
        {{"Modul", 6, true, [r](std::size_t i) { return QString::number(r(i).modul); }},
         {"Sl.", 4, true,
          [r](std::size_t i) { return r(i).sloupec ? QString::number(r(i).sloupec) : QString(); }},
         {"Text", 30, false, [r](std::size_t i) { return do_qt(r(i).co_je_to); }},
         {"Dny", 7, true, [r](std::size_t i) { return nebo_nic(r(i).dny); }},
         {"Hodiny", 8, true, [r](std::size_t i) { return nebo_nic(r(i).hodiny); }},
         {"Částka", 13, true,
          [r](std::size_t i) { return r(i).hodnota ? koruny(*r(i).hodnota) : QString(); }},
         {"Poznámka", 0, false, [r](std::size_t i) { return do_qt(r(i).poznamka).simplified(); }}},
        [this] { return form_.radky.size(); },
        [this, tabulka, r](std::size_t i, int, int role) -> QVariant {
            if (role == Qt::FontRole && je_soucet(r(i).modul)) return tucne();
            if (role == Qt::ForegroundRole && form_.lisi_se(static_cast<int>(i))) {
                return barva_upozorneni(tabulka->palette());
            }
            if (role == Qt::ToolTipRole) return do_qt(paysheet::modul_slovy(r(i).modul));
            return {};
        },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, tabulka, ukazano = 0U]() mutable {
        if (ukazano != form_.zmeny.radky) model->obnov();
        ukazano = form_.zmeny.radky;
        tabulka->viewport()->update();
    });
    vazba().radek(*tabulka, form_.radek, [this](int novy) { form_.vyber_radek(novy); });
    return s_nadpisem(k_casti[1], tabulka);
}

QWidget* OknoForm133::vysvetleni() {
    auto* panel = new QWidget;
    auto* svisle = new QVBoxLayout(panel);
    svisle->setContentsMargins(0, 0, 0, 0);
    auto* rozdil = new QLabel;
    rozdil->setObjectName("rozdil");
    rozdil->setWordWrap(true);
    jako_upozorneni(*rozdil);
    vazba().text(*rozdil, [this] { return form_.rozdil; });
    vazba().viditelne(*rozdil, [this] { return !form_.rozdil.empty(); });
    svisle->addWidget(rozdil);

    strom_ = new StromVypoctuPohled(form_.strom, [this](int uzel) { form_.rozbal(uzel); });
    vazba().pri_obnove([this, ukazano = 0U]() mutable {
        if (ukazano != form_.zmeny.vysvetleni) strom_->ukaz();
        ukazano = form_.zmeny.vysvetleni;
    });
    svisle->addWidget(s_nadpisem(k_casti[2], strom_), 1);
    svisle->addWidget(legenda());

    auto* chyby = new QListWidget;
    chyby->setObjectName("scChyby");
    chyby->setAccessibleName("chyby a rozdíly výpočtu");
    chyby->setMaximumHeight(4 * chyby->fontMetrics().height());
    vazba().seznam(*chyby, form_.scChyby);
    vazba().viditelne(*chyby, [this] { return !form_.scChyby.empty(); });
    svisle->addWidget(chyby);
    return panel;
}

QWidget* OknoForm133::legenda() {
    auto* radek = new QWidget;
    auto* vodorovne = new QHBoxLayout(radek);
    vodorovne->setContentsMargins(0, 0, 0, 0);
    vodorovne->setSpacing(4);
    const int velikost = radek->fontMetrics().height();
    for (const PopisUzlu& popis : popisy_uzlu()) {
        auto* znacka = new QLabel;
        znacka->setPixmap(znacka_uzlu(popis.druh, velikost));
        vodorovne->addWidget(znacka);
        vodorovne->addWidget(new QLabel(QString::fromUtf8(popis.slovy)));
        vodorovne->addSpacing(12);
    }
    vodorovne->addStretch(1);
    return radek;
}

void OknoForm133::klavesy_casti() {
    for (const Cast& cast : k_casti) {
        connect(new QShortcut(cast.klavesa, this), &QShortcut::activated, this,
                [this, &cast] { form_.jdi_na(cast.oblast); });
        if (auto* prvek = findChild<QWidget*>(cast.prvek)) prvek->installEventFilter(this);
    }
}

bool OknoForm133::eventFilter(QObject* prvek, QEvent* udalost) {
    if (udalost->type() == QEvent::FocusIn) {
        for (const Cast& cast : k_casti) {
            if (prvek->objectName() == cast.prvek) form_.oblast = cast.oblast;
        }
    }
    return Okno::eventFilter(prvek, udalost);
}

void OknoForm133::tlacitka() {
    tlacitko(
        "&Kopírovat", "acKopirovat", [this] { kopiruj(); }, QKeySequence::Copy);
    tlacitko(
        "&Export CSV", "acExport", [this] { form_.acExportExecute(); },
        QKeySequence(Qt::CTRL | Qt::Key_E));
    tlacitko(
        "&Tisk", "acTisk", [this] { form_.acTiskExecute(); }, QKeySequence::Print);
    tlacitko(
        "&Blok", "acBlok", [this] { form_.acBlokExecute(); }, Qt::Key_F7);
}

void OknoForm133::kopiruj() const {
    QGuiApplication::clipboard()->setText(do_qt(form_.kopie()));
}

}  // namespace desktop
