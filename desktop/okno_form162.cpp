#include "desktop/okno_form162.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <fmt/format.h>

#include "desktop/barvy_dnu.h"
#include "desktop/mrizka_seznamu.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

using wages::TForm162;

constexpr int k_dnu = static_cast<int>(wages::k_dnu_dochazky);
constexpr int k_prvni_den = 2;  ///< column of the grid
constexpr int k_nejsirsi_jmeno = 190;

std::vector<SloupecMrizky> sloupce(const TForm162& form) {
    std::vector<SloupecMrizky> sloupce{{"Cislo", "číslo"}, {"Pracovnik", "pracovník"}};
    for (int den = 1; den <= k_dnu; ++den)
        sloupce.push_back({fmt::format("Den{}", den), form.den(den).nadpis});
    sloupce.push_back({"Suma_hod", "hodin"});
    sloupce.push_back({"Suma_odprac", "odpr.\ndnů"});
    sloupce.push_back({"Suma_neodprac", "neodpr.\ndnů"});
    sloupce.push_back({"Poznamka", "pozn."});
    return sloupce;
}

/// Days stand in the middle of their columns; weekends and holidays have their backgrounds.
class KresleniDnu final : public QStyledItemDelegate {
  public:
    KresleniDnu(const TForm162& form, QObject* vlastnik)
        : QStyledItemDelegate(vlastnik), form_(form) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* volba, const QModelIndex& misto) const override {
        QStyledItemDelegate::initStyleOption(volba, misto);
        const int den = misto.column() - k_prvni_den + 1;
        if (den < 1 || den > k_dnu) return;
        volba->displayAlignment = Qt::AlignCenter;
        const TForm162::Den vzhled = form_.den(den);
        if (vzhled.svatek) {
            volba->backgroundBrush = barva_svatku(volba->palette);
        } else if (vzhled.vikend) {
            volba->backgroundBrush = barva_vikendu(volba->palette);
        }
    }

  private:
    const TForm162& form_;
};

}  // namespace

OknoForm162::OknoForm162(TForm162& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1350, 560);
    obsah().addWidget(filtry(form));
    pridej_mrizku(form);
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm162::filtry(TForm162& form) {
    auto* panel = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(panel);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    const auto pridej = [vedle_sebe](const char* popisek, QWidget* prvek) {
        auto* nadpis = new QLabel(popisek);
        nadpis->setBuddy(prvek);
        vedle_sebe->addWidget(nadpis);
        vedle_sebe->addWidget(prvek);
    };
    auto* mesice = new QComboBox;
    mesice->setObjectName("mesic");
    mesice->setAccessibleName("měsíc");
    for (int m = 1; m <= 12; ++m)
        mesice->addItem(do_qt(wages::mesic_v_seznamu(m)));
    mesice->setMaxVisibleItems(12);
    vazba().vyber(*mesice, form.mesic, [&form] { form.zmena_mesice(); });
    pridej("&Měsíc:", mesice);
    QLineEdit* cislo = filtr(
        "cislo", "číslo pracovníka", form.cislo,
        [&form](char znak, std::string_view text) { return form.povol_klavesu_cisla(znak, text); },
        form);
    cislo->setFixedWidth(cislo->fontMetrics().horizontalAdvance("000000000"));
    pridej("Čí&slo:", cislo);
    QLineEdit* prijmeni = filtr("prijmeni", "příjmení", form.prijmeni, {}, form);
    prijmeni->setFixedWidth(k_nejsirsi_jmeno);
    pridej("&Příjmení:", prijmeni);
    auto* vse = new QPushButton("&Vše");
    vse->setObjectName("acVse");
    vse->setAutoDefault(false);
    vazba().tlacitko(*vse, [&form] { form.acVseExecute(); });
    vedle_sebe->addWidget(vse);
    vedle_sebe->addStretch(1);
    return panel;
}

QLineEdit* OknoForm162::filtr(const char* jmeno, const char* nazev, std::string& hodnota,
                              Vazba::Filtr klavesy, TForm162& form) {
    auto* pole = new QLineEdit;
    pole->setObjectName(jmeno);
    pole->setAccessibleName(nazev);
    vazba().pole(*pole, hodnota, std::move(klavesy));
    connect(pole, &QLineEdit::textEdited, this, [&form] { form.zmena_filtru(); });
    return pole;
}

void OknoForm162::pridej_mrizku(TForm162& form) {
    // The columns' captions are the month's, so they are set before the grid is repainted.
    vazba().pri_obnove([this, &form] { mrizka_->nastav_sloupce(sloupce(form)); });
    mrizka_ = new MrizkaSeznamu(vazba(), form, sloupce(form), "docházka",
                                [&form] { form.acOpravitExecute(); });
    mrizka_->setTextElideMode(Qt::ElideNone);
    mrizka_->setItemDelegate(new KresleniDnu(form, mrizka_));
    vazba().pri_obnove([this, &form] { vymer_sloupce(form); });
    obsah().addWidget(mrizka_, 1);
}

/// All days of a month fit beside the names on a small screen.
void OknoForm162::vymer_sloupce(const TForm162& form) {
    mrizka_->horizontalHeader()->setMinimumSectionSize(10);
    mrizka_->setColumnWidth(1, std::min(mrizka_->columnWidth(1), k_nejsirsi_jmeno));
    const int sirka_dne = mrizka_->fontMetrics().horizontalAdvance("00,0") + 4;
    for (int den = 1; den <= k_dnu; ++den) {
        const int sloupec = k_prvni_den + den - 1;
        mrizka_->setColumnHidden(sloupec, form.den(den).nadpis.empty());
        mrizka_->setColumnWidth(sloupec, sirka_dne);
    }
}

void OknoForm162::tlacitka(TForm162& form) {
    vazba().povolene(tlacitko(
                         "&Opravit", "acOpravit", [&form] { form.acOpravitExecute(); }, Qt::Key_F2),
                     [&form] { return form.je_veta(); });
    QPushButton& prepinac = tlacitko("", "acOdpracovanoNepritomnost",
                                     [&form] { form.acOdpracovanoNepritomnostExecute(); });
    vazba().pri_obnove([&prepinac, &form] {
        // An access key that neither of the two captions shares with another button.
        prepinac.setText(do_qt(form.popisek_prepinace()).replace("Zob", "Zo&b"));
    });
    tlacitko("&Tisk", "acTisk", [&form] { form.acTiskExecute(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
}

}  // namespace desktop
