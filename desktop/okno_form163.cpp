#include "desktop/okno_form163.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <fmt/format.h>

#include "desktop/barvy_dnu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using wages::TForm163;
using Sloupec = TForm163::Sloupec;

constexpr int k_dnu_ve_sloupci = 16;
constexpr int k_prvku_dne = 4;  ///< number, weekday, hours, code
constexpr int k_znaku_poznamky = 255;

/// A field of a day: arrows go to the day above or below, coming in selects the text.
class PoleDne : public QLineEdit {
  public:
    PoleDne(TForm163& form, int den, Sloupec sloupec) : form_(form), den_(den), sloupec_(sloupec) {
        setAlignment(Qt::AlignCenter);
    }

  protected:
    void keyPressEvent(QKeyEvent* klavesa) override {
        if (klavesa->key() == Qt::Key_Up || klavesa->key() == Qt::Key_Down) {
            form_.sipka(den_, sloupec_, klavesa->key() == Qt::Key_Up ? -1 : 1);
        } else {
            QLineEdit::keyPressEvent(klavesa);
        }
    }
    void focusInEvent(QFocusEvent* udalost) override {
        QLineEdit::focusInEvent(udalost);
        if (udalost->reason() != Qt::MouseFocusReason) selectAll();
    }
    TForm163& form_;
    const int den_;

  private:
    const Sloupec sloupec_;
};

/// A code is replaced by the key that is typed.
class PoleKodu final : public PoleDne {
  public:
    PoleKodu(TForm163& form, int den) : PoleDne(form, den, Sloupec::kod) {}

  protected:
    void keyPressEvent(QKeyEvent* klavesa) override {
        const QString text = klavesa->text();
        if (text.size() == 1 && text.at(0).isPrint() &&
            !(klavesa->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            form_.klavesa_kodu(den_, text.at(0).toLatin1());
        } else {
            PoleDne::keyPressEvent(klavesa);
        }
    }
    void focusInEvent(QFocusEvent* udalost) override {
        PoleDne::focusInEvent(udalost);
        form_.vstup_do_kodu();
    }
};

void podbarvi(QWidget& prvek, QPalette::ColorRole role, const QColor& barva) {
    QPalette paleta = prvek.palette();
    paleta.setColor(role, barva);
    prvek.setPalette(paleta);
}

QLabel* popisek_dne(const TForm163::Den& den, int cislo) {
    auto* popisek = new QLabel(QString::number(cislo));
    popisek->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    popisek->setAutoFillBackground(den.svatek);
    if (den.svatek) podbarvi(*popisek, QPalette::Window, barva_vikendu(popisek->palette()));
    return popisek;
}

}  // namespace

OknoForm163::OknoForm163(TForm163& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    auto* jmeno = new QLabel(do_qt(form.pracovnik + "  (" + form.cislo_pracovnika + ")"));
    jmeno->setTextFormat(Qt::PlainText);
    jako_nadpis(*jmeno);
    obsah().addWidget(jmeno);
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->addWidget(dny(form));
    auto* vpravo = new QVBoxLayout;
    vpravo->addWidget(kody(form), 1);
    vpravo->addWidget(soucty(form));
    vedle_sebe->addLayout(vpravo, 1);
    obsah().addLayout(vedle_sebe, 1);
    tlacitko(
        "&Přepočítej", "acPrepocitej", [&form] { form.acPrepocitejExecute(); }, Qt::Key_F5);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm163::dny(TForm163& form) {
    auto* panel = new QWidget;
    auto* mrizka = new QGridLayout(panel);
    mrizka->setContentsMargins(0, 0, 0, 0);
    mrizka->setVerticalSpacing(3);
    for (const int vlevo : {0, k_prvku_dne + 1}) {
        mrizka->addWidget(new QLabel("hodiny"), 0, vlevo + 2, Qt::AlignCenter);
        mrizka->addWidget(new QLabel("nepř."), 0, vlevo + 3, Qt::AlignCenter);
    }
    mrizka->setColumnMinimumWidth(k_prvku_dne, 24);
    for (int cislo = 1; cislo <= form.dnu(); ++cislo)
        pridej_den(form, *mrizka, cislo);
    mrizka->setRowStretch(k_dnu_ve_sloupci + 1, 1);
    return panel;
}

void OknoForm163::pridej_den(TForm163& form, QGridLayout& mrizka, int cislo) {
    const auto i = static_cast<std::size_t>(cislo - 1);
    const TForm163::Den den = form.den(cislo);
    const int radek = (cislo - 1) % k_dnu_ve_sloupci + 1;
    const int vlevo = (cislo - 1) / k_dnu_ve_sloupci * (k_prvku_dne + 1);
    const auto pridej = [&](PoleDne* pole, const char* jmeno, const char* nazev, const char* sirka,
                            int sloupec) {
        pole->setObjectName(do_qt(fmt::format("{}{}", jmeno, cislo)));
        pole->setAccessibleName(do_qt(fmt::format("{} {}. dne", nazev, cislo)));
        pole->setFixedWidth(pole->fontMetrics().horizontalAdvance(sirka));
        mrizka.addWidget(pole, radek, vlevo + sloupec);
    };
    mrizka.addWidget(popisek_dne(den, cislo), radek, vlevo);
    mrizka.addWidget(new QLabel(den.zkratka), radek, vlevo + 1);
    auto* hodiny = new PoleDne(form, cislo, Sloupec::hodiny);
    if (den.vikend) podbarvi(*hodiny, QPalette::Base, barva_vikendu(hodiny->palette()));
    pridej(hodiny, "Hod", "hodiny", "00,00000", 2);
    vazba().pole(*hodiny, form.Hod[i], [&form](char znak, std::string_view text) {
        return form.povol_klavesu_hodin(znak, text);
    });
    auto* kod = new PoleKodu(form, cislo);
    kod->setMaxLength(1);
    pridej(kod, "Typ", "nepřítomnost", "WWW", 3);
    vazba().pole(*kod, form.Typ[i], {}, [&form, cislo] { form.opusteni_kodu(cislo); });
}

QWidget* OknoForm163::kody(const TForm163& form) {
    auto* panel = new QGroupBox("Nepřítomnost");
    panel->setObjectName("kody");
    auto* svisle = new QVBoxLayout(panel);
    svisle->setSpacing(1);
    for (const wages::KodNepritomnosti& kod : wages::k_kody_nepritomnosti)
        svisle->addWidget(new QLabel(kod.popis));
    svisle->addStretch(1);
    QSizePolicy drzi_misto = panel->sizePolicy();
    drzi_misto.setRetainSizeWhenHidden(true);
    panel->setSizePolicy(drzi_misto);
    vazba().viditelne(*panel, [&form] { return form.kody_viditelne; });
    return panel;
}

QWidget* OknoForm163::soucty(TForm163& form) {
    auto* panel = new QGroupBox("Součty");
    auto* svisle = new QVBoxLayout(panel);
    auto* pole_pod_sebou = new QFormLayout;
    const auto pridej = [&](const char* popisek, const char* jmeno, const char* nazev,
                            std::string& hodnota) {
        QLineEdit* pole = ciselne_pole(jmeno, nazev, 7);
        vazba().pole(*pole, hodnota, [&form](char znak, std::string_view text) {
            return form.povol_klavesu_souctu(znak, text);
        });
        pole_pod_sebou->addRow(popisek, pole);
    };
    pridej("Odpracováno &hodin:", "Suma_hod", "odpracováno hodin", form.Suma_hod);
    pridej("&Odpracováno dnů:", "Suma_odprac", "odpracováno dnů", form.Suma_odprac);
    pridej("&Neodpracováno dnů:", "Suma_neodprac", "neodpracováno dnů", form.Suma_neodprac);
    auto* poznamka = new QLineEdit;
    poznamka->setObjectName("Poznamka");
    poznamka->setAccessibleName("poznámka");
    poznamka->setMaxLength(k_znaku_poznamky);
    vazba().pole(*poznamka, form.Poznamka);
    pole_pod_sebou->addRow("Pozná&mka:", poznamka);
    svisle->addLayout(pole_pod_sebou);
    auto* k_svatku = new QLabel(TForm163::k_poznamka_k_svatku);
    k_svatku->setWordWrap(true);
    svisle->addWidget(k_svatku);
    return panel;
}

}  // namespace desktop
