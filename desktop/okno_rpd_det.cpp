#include "desktop/okno_rpd_det.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <fmt/format.h>

#include "base/datum.h"
#include "base/klavesy.h"
#include "desktop/barvy_dnu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using Den = wages::TFRpdDet::Den;
using wages::TFRpdDet;

constexpr int k_dnu_tydne = 7, k_nejvyse_tydnu = 6;
constexpr int k_znaku_nazvu = 30;
constexpr int k_nejmensi_rok = 1990, k_nejvetsi_rok = 2099;

/// A field of a day's fund: Enter is the screen's, and coming in selects the text.
class PoleFondu final : public QLineEdit {
  public:
    explicit PoleFondu(Vazba::Metoda pri_enteru) : pri_enteru_(std::move(pri_enteru)) {}

  protected:
    void keyPressEvent(QKeyEvent* klavesa) override {
        if (klavesa->key() == Qt::Key_Return || klavesa->key() == Qt::Key_Enter) {
            pri_enteru_();
        } else {
            QLineEdit::keyPressEvent(klavesa);
        }
    }
    void focusInEvent(QFocusEvent* udalost) override {
        QLineEdit::focusInEvent(udalost);
        if (udalost->reason() != Qt::MouseFocusReason) selectAll();
    }

  private:
    Vazba::Metoda pri_enteru_;
};

QColor pozadi(TFRpdDet::DruhDne druh, const QPalette& paleta) {
    switch (druh) {
        case TFRpdDet::DruhDne::vikend:
            return barva_vikendu(paleta);
        case TFRpdDet::DruhDne::svatek:
            return barva_svatku(paleta);
        default:
            return paleta.color(QPalette::Base);
    }
}

QCheckBox* volba(Vazba& vazba, const char* jmeno, const char* text, bool& hodnota,
                 Vazba::Metoda po_zmene = {}) {
    auto* nova = new QCheckBox(text);
    nova->setObjectName(jmeno);
    nova->setAccessibleName(QString(text).remove('&'));
    vazba.zaskrtavatko(*nova, hodnota, std::move(po_zmene));
    return nova;
}

}  // namespace

OknoRpdDet::OknoRpdDet(TFRpdDet& form, const shell::Session&, QWidget* rodic) : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    obsah().addWidget(zahlavi(form));
    obsah().addWidget(mesic(form), 1);
    obsah().addWidget(soucty(form));
    obsah().addWidget(volby(form));
    tlacitko(
        "&OK", "acOK", [&form] { form.acOKExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoRpdDet::zahlavi(TFRpdDet& form) {
    auto* zahlavi = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(zahlavi);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    const auto pridej = [&](const char* popisek, QWidget* prvek, const char* jmeno,
                            const char* pristupny_nazev) {
        auto* nadpis = new QLabel(popisek);
        nadpis->setBuddy(prvek);
        prvek->setObjectName(jmeno);
        prvek->setAccessibleName(pristupny_nazev);
        vedle_sebe->addWidget(nadpis);
        vedle_sebe->addWidget(prvek);
    };
    auto* nazev = new QLineEdit;
    nazev->setMaxLength(k_znaku_nazvu);
    nazev->setMinimumWidth(nazev->fontMetrics().averageCharWidth() * k_znaku_nazvu);
    vazba().pole(*nazev, form.Nazev);
    pridej("&Název:", nazev, "Nazev", "název");
    auto* rok = new QSpinBox;
    rok->setRange(std::min(k_nejmensi_rok, form.Rok), std::max(k_nejvetsi_rok, form.Rok));
    vazba().cislo(*rok, form.Rok, [&form] { form.zmena_roku(); });
    pridej("&Rok:", rok, "Rok", "rok");
    auto* typ = new QComboBox;
    typ->addItems({wages::typ_kalendare_slovy(0), wages::typ_kalendare_slovy(1)});
    vazba().vyber(*typ, form.Typ);
    pridej("&Typ:", typ, "Typ", "typ");
    auto* mesice = new QComboBox;
    for (int m = 1; m <= 12; ++m)
        mesice->addItem(do_qt(base::mesic_slovy(m, 0)));
    mesice->setMaxVisibleItems(12);
    connect(mesice, &QComboBox::activated, this, [&form](int novy) { form.zmena_mesice(novy); });
    vazba().pri_obnove([mesice, &form] { mesice->setCurrentIndex(form.mesic); });
    pridej("&Měsíc:", mesice, "mesic", "měsíc");
    vedle_sebe->addStretch(1);
    return zahlavi;
}

QWidget* OknoRpdDet::mesic(TFRpdDet& form) {
    auto* panel = new QWidget;
    tydny_ = new QGridLayout(panel);
    tydny_->setContentsMargins(0, 0, 0, 0);
    tydny_->setSpacing(4);
    for (int cislo = 1; cislo <= static_cast<int>(dny_.size()); ++cislo)
        dny_[static_cast<std::size_t>(cislo - 1)] = den(form, cislo);
    const int vyska = dny_[0].ramecek->sizeHint().height();
    for (int tyden = 0; tyden < k_nejvyse_tydnu; ++tyden)
        tydny_->setRowMinimumHeight(tyden, vyska);
    for (int sloupec = 0; sloupec < k_dnu_tydne; ++sloupec)
        tydny_->setColumnStretch(sloupec, 1);
    vazba().pri_obnove([this, &form] { ukaz_dny(form); });
    return panel;
}

OknoRpdDet::Misto OknoRpdDet::den(TFRpdDet& form, int cislo) {
    Misto misto{new QFrame, new QLabel,
                new PoleFondu([&form, cislo] { form.enter_v_bunce(cislo); })};
    misto.ramecek->setAutoFillBackground(true);
    misto.nazev->setMinimumWidth(misto.nazev->fontMetrics().horizontalAdvance("31. Čtvrtek  "));
    misto.fond->setObjectName(do_qt(fmt::format("den_{}", cislo)));
    misto.fond->setAccessibleName(do_qt(fmt::format("fond {}. dne", cislo)));
    misto.fond->setAlignment(Qt::AlignCenter);
    auto* svisle = new QVBoxLayout(misto.ramecek);
    svisle->setContentsMargins(6, 3, 6, 4);
    svisle->setSpacing(2);
    svisle->addWidget(misto.nazev);
    svisle->addWidget(misto.fond);
    vazba().pole(
        *misto.fond, form.bunky[static_cast<std::size_t>(cislo - 1)],
        [&form](char znak, std::string_view text) { return form.povol_klavesu(znak, text); },
        [&form, cislo] { form.opusteni_bunky(cislo); });
    return misto;
}

/// Puts the days of the month under their weekdays.
void OknoRpdDet::ukaz_dny(const TFRpdDet& form) {
    const int posun = form.den(1).den_v_tydnu - 1;
    for (int cislo = 1; cislo <= static_cast<int>(dny_.size()); ++cislo) {
        const Misto& misto = dny_[static_cast<std::size_t>(cislo - 1)];
        const Den den = form.den(cislo);
        const int poradi = posun + cislo - 1;
        tydny_->addWidget(misto.ramecek, poradi / k_dnu_tydne, poradi % k_dnu_tydne);
        misto.ramecek->setVisible(den.druh != TFRpdDet::DruhDne::neni);
        misto.nazev->setText(do_qt(fmt::format("{}. {}", cislo, den.nazev)));
        QPalette paleta = palette();
        paleta.setColor(QPalette::Window, pozadi(den.druh, paleta));
        misto.ramecek->setPalette(paleta);
        QPalette paleta_fondu = palette();
        if (den.bez_prace) paleta_fondu.setColor(QPalette::Text, barva_bez_prace(paleta_fondu));
        misto.fond->setPalette(paleta_fondu);
    }
}

QWidget* OknoRpdDet::soucty(const TFRpdDet& form) {
    auto* panel = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(panel);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    for (const auto& [popisek, jmeno, hodnota] :
         {std::tuple{"Součet roku:", "soucet_roku", &form.soucet_roku},
          std::tuple{"Součet měsíce:", "soucet_mesice", &form.soucet_mesice}}) {
        vedle_sebe->addWidget(new QLabel(popisek));
        QLabel* soucet = udaj(vazba(), jmeno, *hodnota);
        jako_dulezity(*soucet);
        vedle_sebe->addWidget(soucet);
        vedle_sebe->addSpacing(24);
    }
    vedle_sebe->addStretch(1);
    return panel;
}

QWidget* OknoRpdDet::volby(TFRpdDet& form) {
    auto* panel = new QWidget;
    auto* svisle = new QVBoxLayout(panel);
    svisle->setContentsMargins(0, 0, 0, 0);
    svisle->addWidget(
        volba(vazba(), "scVkladatDoNasledujiciho",
              "Po &Enteru vkládat do následujícího dne naposledy upravovanou hodnotu fondu",
              form.scVkladatDoNasledujiciho, [&form] { form.zmena_roku(); }));
    auto* dalsi = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(dalsi);
    vedle_sebe->setContentsMargins(20, 0, 0, 0);
    vedle_sebe->addWidget(volba(vazba(), "scPrepisovatSvatky",
                                "Přepisovat &soboty, neděle a svátky", form.scPrepisovatSvatky));
    vedle_sebe->addWidget(volba(vazba(), "scPrepisovatVyplnene", "Přepisovat &vyplněné pole",
                                form.scPrepisovatVyplnene));
    vedle_sebe->addStretch(1);
    vazba().viditelne(*dalsi, [&form] { return form.dalsi_volby_viditelne(); });
    svisle->addWidget(dalsi);
    return panel;
}

}  // namespace desktop
