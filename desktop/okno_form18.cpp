#include "desktop/okno_form18.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

#include "base/castky_text.h"
#include "desktop/klavesy_tabulky.h"
#include "desktop/model_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

constexpr QSize k_velikost{1240, 640};

QString nebo_nic(base::Castka castka) {
    return base::je_nula(castka) ? QString() : do_qt(base::castka_prosta(castka));
}

QString nebo_nic(const std::optional<int>& cislo) {
    return cislo ? QString::number(*cislo) : QString();
}

}  // namespace

OknoForm18::OknoForm18(wages::TForm18& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form), tabulka_(new QTableView) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(k_velikost);
    obsah().addWidget(filtry());
    auto* hlaska = udaj(vazba(), "lbHlaska", form.lbHlaska);
    jako_upozorneni(*hlaska);
    vazba().viditelne(*hlaska, [&form] { return !form.lbHlaska.empty(); });
    obsah().addWidget(hlaska);
    vypln_tabulku();
    obsah().addWidget(tabulka_, 1);
    // Enter in the last field of the filter goes to the rows.
    setTabOrder(findChild<QLineEdit*>("text"), tabulka_);
    auto* soucty = udaj(vazba(), "lbSoucty", form.lbSoucty);
    jako_dulezity(*soucty);
    obsah().addWidget(soucty);
    tlacitka();
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QLineEdit* OknoForm18::filtr(const char* jmeno, const char* nazev, std::string& hodnota, int znaku,
                             const char* napoveda) {
    auto* pole = new QLineEdit;
    pole->setObjectName(jmeno);
    pole->setAccessibleName(nazev);
    pole->setToolTip(napoveda);
    pole->setFixedWidth(pole->fontMetrics().horizontalAdvance(QString(znaku, '0')));
    vazba().pole(*pole, hodnota, {}, [this] { form_.filtrExit(); });
    (new KlavesyPrvku(*pole))->na(Qt::Key_Down, [this] { tabulka_->setFocus(); });
    return pole;
}

QWidget* OknoForm18::filtry() {
    auto* panel = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(panel);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    const auto pridej = [vedle_sebe](const char* popisek, QLineEdit* pole) {
        auto* nadpis = new QLabel(popisek);
        nadpis->setBuddy(pole);
        vedle_sebe->addWidget(nadpis);
        vedle_sebe->addWidget(pole);
        return pole;
    };
    wages::FiltrHrubych& f = form_.filtr;
    pridej("&Měsíce:", filtr("mesice", "měsíce", f.mesice, 8, "3, 1:3 nebo * (celý rok)"));
    pridej("&Pracovník:", filtr("pracovnik", "pracovník", f.pracovnik, 18,
                                "čísla jako 1,3,5:9 nebo část příjmení či jména"));
    pridej("S&loupec:",
           filtr("sloupec", "sloupec", f.sloupec, 16, "čísla jako 1,3,5:9 nebo část názvu"));
    pridej("Středis&ko:",
           filtr("stredisko", "středisko", f.stredisko, 8, "čísla; 0 hledá bez střediska"));
    pridej("Te&xt:", filtr("text", "text", f.text, 18, "část textu položky"));
    auto* vse = new QPushButton("&Vše");
    vse->setObjectName("acVse");
    vse->setAutoDefault(false);
    vazba().tlacitko(*vse, [this] { form_.acVse(); });
    vedle_sebe->addWidget(vse);
    vedle_sebe->addStretch(1);
    return panel;
}

void OknoForm18::vypln_tabulku() {
    tabulka_->setObjectName("mrizka");
    tabulka_->setAccessibleName("položky hrubých mezd");
    const auto v = [this](std::size_t i) -> const wages::UlozenaVeta& { return form_.vety.at(i); };
    auto* model = new ModelSeznamu(
        {{"Měs.", 4, true, [v](std::size_t i) { return QString::number(v(i).mesic); }},
         {"Číslo", 6, true, [v](std::size_t i) { return QString::number(v(i).cislo); }},
         {"Příjmení a jméno", 24, false,
          [v](std::size_t i) { return do_qt(v(i).prijmeni + " " + v(i).jmeno); }},
         {"Sl.", 3, true, [v](std::size_t i) { return QString::number(v(i).veta.sloupec); }},
         {"Druh", 0, false, [v](std::size_t i) { return do_qt(v(i).veta.sloupec_slovy); }},
         {"Dny", 6, true, [v](std::size_t i) { return nebo_nic(v(i).dny()); }},
         {"Hodiny", 7, true, [v](std::size_t i) { return nebo_nic(v(i).hodiny()); }},
         {"Datum", 6, false, [v](std::size_t i) { return do_qt(v(i).veta.datum); }},
         {"Stř.", 3, true, [v](std::size_t i) { return nebo_nic(v(i).veta.stredisko); }},
         {"Výk.", 4, true, [v](std::size_t i) { return nebo_nic(v(i).veta.vykon); }},
         {"Stroj", 6, true, [v](std::size_t i) { return nebo_nic(v(i).veta.stroj); }},
         {"Koruny", 12, true,
          [v](std::size_t i) { return do_qt(base::castka_s_oddelovaci(v(i).veta.kc_cel)); }},
         {"Text", 20, false, [v](std::size_t i) { return do_qt(v(i).veta.text); }}},
        [this] { return form_.vety.size(); }, [](std::size_t, int, int) { return QVariant(); },
        tabulka_);
    nasad_model(*tabulka_, *model);
    vazba().pri_obnove([this, model, ukazano = 0U]() mutable {
        if (ukazano == form_.vydani) return;
        ukazano = form_.vydani;
        model->obnov();
    });
    vazba().radek(*tabulka_, form_.radek, [this](int novy) { form_.vyber_radek(novy); });
    connect(tabulka_, &QTableView::doubleClicked, this, [this] { form_.acOpravitExecute(); });
    (new KlavesyPrvku(*tabulka_))
        ->na(Qt::Key_Return, [this] { form_.acOpravitExecute(); })
        .na(Qt::Key_Enter, [this] { form_.acOpravitExecute(); })
        .na(Qt::Key_Delete, [this] { form_.acSmazatExecute(); });
}

void OknoForm18::tlacitka() {
    const auto pri_vete = [this] { return form_.je_veta(); };
    vazba().povolene(tlacitko(
                         "&Opravit", "acOpravit", [this] { form_.acOpravitExecute(); }, Qt::Key_F2),
                     pri_vete);
    vazba().povolene(
        tlacitko("Opravit &ručně", "acOpravitRucne", [this] { form_.acOpravitRucneExecute(); }),
        pri_vete);
    vazba().povolene(tlacitko("&Smazat", "acSmazat", [this] { form_.acSmazatExecute(); }),
                     pri_vete);
    vazba().povolene(tlacitko(
                         "&Tisk", "acTisk", [this] { form_.acTiskExecute(); }, Qt::Key_F6),
                     pri_vete);
    vazba().povolene(tlacitko("&Export CSV", "acExport", [this] { form_.acExportExecute(); }),
                     pri_vete);
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
}

}  // namespace desktop
