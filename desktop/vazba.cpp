#include "desktop/vazba.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QShortcut>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableView>
#include <QValidator>

#include "desktop/tabulka_vet.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

/// Stands for a character beyond ASCII, which number fields refuse and length limits count.
constexpr char k_cizi_znak = '?';

/// Asks the key filter character by character, so that text which is pasted or typed into the
/// middle passes by the same rule.
class HlidacZnaku final : public QValidator {
  public:
    HlidacZnaku(Vazba::Filtr filtr, QObject* vlastnik)
        : QValidator(vlastnik), filtr_(std::move(filtr)) {}

    State validate(QString& text, int&) const override {
        QString predchozi;
        for (const QChar znak : text) {
            const char ascii = znak.unicode() < 0x80 ? znak.toLatin1() : k_cizi_znak;
            if (!filtr_(ascii, z_qt(predchozi))) return Invalid;
            predchozi += znak;
        }
        return Acceptable;
    }

  private:
    Vazba::Filtr filtr_;
};

/// Calls a method whenever the focus leaves a control.
class HlidacOpusteni final : public QObject {
  public:
    HlidacOpusteni(Vazba::Metoda metoda, QObject* vlastnik)
        : QObject(vlastnik), metoda_(std::move(metoda)) {}

    bool eventFilter(QObject* prvek, QEvent* udalost) override {
        if (udalost->type() == QEvent::FocusOut) metoda_();
        return QObject::eventFilter(prvek, udalost);
    }

  private:
    Vazba::Metoda metoda_;
};

}  // namespace

void Vazba::pole(QLineEdit& pole, std::string& hodnota, Filtr filtr, Metoda po_opusteni) {
    if (filtr) {
        pole.setValidator(new HlidacZnaku(std::move(filtr), &pole));
        QObject::connect(&pole, &QLineEdit::inputRejected, &pole, [] { QApplication::beep(); });
    }
    QObject::connect(&pole, &QLineEdit::textEdited, &pole,
                     [&hodnota](const QString& text) { hodnota = z_qt(text); });
    if (po_opusteni) {
        pole.installEventFilter(new HlidacOpusteni(std::move(po_opusteni), &pole));
    }
    pri_obnove([&pole, &hodnota] {
        const QString text = do_qt(hodnota);
        if (pole.text() != text) pole.setText(text);
    });
}

void Vazba::zaskrtavatko(QCheckBox& zaskrtavatko, bool& hodnota, Metoda po_zmene) {
    QObject::connect(&zaskrtavatko, &QCheckBox::clicked, &zaskrtavatko,
                     [&hodnota, po_zmene = std::move(po_zmene)](bool ano) {
                         hodnota = ano;
                         if (po_zmene) po_zmene();
                     });
    pri_obnove([&zaskrtavatko, &hodnota] { zaskrtavatko.setChecked(hodnota); });
}

void Vazba::cislo(QSpinBox& pole, int& hodnota, Metoda po_zmene) {
    QObject::connect(&pole, &QSpinBox::valueChanged, &pole,
                     [&hodnota, po_zmene = std::move(po_zmene)](int nova) {
                         if (nova == hodnota) return;
                         hodnota = nova;
                         if (po_zmene) po_zmene();
                     });
    pri_obnove([&pole, &hodnota] { pole.setValue(hodnota); });
}

void Vazba::vyber(QComboBox& vyber, int& index, Metoda po_zmene) {
    QObject::connect(&vyber, &QComboBox::activated, &vyber,
                     [&index, po_zmene = std::move(po_zmene)](int nova) {
                         index = nova;
                         if (po_zmene) po_zmene();
                     });
    pri_obnove([&vyber, &index] { vyber.setCurrentIndex(index); });
}

void Vazba::vyber_nebo_text(QComboBox& seznam, std::string& hodnota) {
    seznam.setEditable(true);
    seznam.setInsertPolicy(QComboBox::NoInsert);
    seznam.setCurrentText(do_qt(hodnota));
    QObject::connect(&seznam, &QComboBox::currentTextChanged, &seznam,
                     [&hodnota](const QString& text) { hodnota = z_qt(text); });
    pri_obnove([&seznam, &hodnota] {
        const QString text = do_qt(hodnota);
        if (seznam.currentText() != text) seznam.setCurrentText(text);
    });
}

void Vazba::stranka(QTabWidget& stranky, std::function<int()> ktera,
                    std::function<void(int)> zmena) {
    QObject::connect(&stranky, &QTabWidget::currentChanged, &stranky, std::move(zmena));
    pri_obnove([&stranky, ktera = std::move(ktera)] { stranky.setCurrentIndex(ktera()); });
}

void Vazba::text(QLabel& popisek, std::function<std::string()> text) {
    pri_obnove([&popisek, text = std::move(text)] { popisek.setText(radky(text())); });
}

void Vazba::seznam(QListWidget& seznam, const std::vector<std::string>& radky_) {
    pri_obnove([&seznam, &radky_] {
        QStringList nove, stare;
        for (const std::string& radek : radky_)
            nove += do_qt(radek);
        for (int i = 0; i < seznam.count(); ++i)
            stare += seznam.item(i)->text();
        if (nove == stare) return;
        seznam.clear();
        seznam.addItems(nove);
    });
}

void Vazba::dvojice(QFormLayout& rozlozeni,
                    const std::vector<std::pair<std::string, std::string>>& radky_) {
    pri_obnove([&rozlozeni, &radky_, ukazane = radky_]() mutable {
        if (ukazane == radky_ && rozlozeni.rowCount() == static_cast<int>(radky_.size())) return;
        ukazane = radky_;
        while (rozlozeni.rowCount() > 0)
            rozlozeni.removeRow(0);
        for (const auto& [nazev, hodnota] : radky_) {
            auto* castka = new QLabel(do_qt(hodnota));
            castka->setAlignment(Qt::AlignRight);
            castka->setTextInteractionFlags(Qt::TextSelectableByMouse);
            rozlozeni.addRow(do_qt(nazev), castka);
        }
    });
}

void Vazba::tabulka(QTableView& tabulka, const store::Rows& vety) {
    auto* model = new TabulkaVet(&tabulka);
    tabulka.setModel(model);
    tabulka.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabulka.setSelectionMode(QAbstractItemView::SingleSelection);
    tabulka.setAlternatingRowColors(true);
    tabulka.setTabKeyNavigation(false);
    tabulka.horizontalHeader()->setHighlightSections(false);
    tabulka.verticalHeader()->setDefaultSectionSize(tabulka.fontMetrics().height() + 8);
    pri_obnove([&tabulka, model, &vety] {
        model->ukaz(vety);
        tabulka.resizeColumnsToContents();
    });
}

void Vazba::radek(QTableView& tabulka, const int& radek, std::function<void(int novy)> presun) {
    QObject::connect(tabulka.selectionModel(), &QItemSelectionModel::currentRowChanged, &tabulka,
                     [&radek, presun = std::move(presun)](const QModelIndex& nove) {
                         if (nove.isValid() && nove.row() != radek) presun(nove.row());
                     });
    pri_obnove([&tabulka, &radek] {
        if (tabulka.currentIndex().row() == radek) return;
        if (radek < 0) {
            tabulka.setCurrentIndex({});
        } else {
            tabulka.selectRow(radek);
        }
    });
}

void Vazba::tlacitko(QAbstractButton& tlacitko, Metoda metoda, const QKeySequence& zkratka) {
    if (!zkratka.isEmpty()) {
        // A shortcut of the button itself would take its mnemonic away and act a tenth of a second
        // later.
        auto* klavesa = new QShortcut(zkratka, &tlacitko);
        QObject::connect(klavesa, &QShortcut::activated, &tlacitko,
                         [&tlacitko] { tlacitko.click(); });
    }
    QObject::connect(&tlacitko, &QAbstractButton::clicked, &tlacitko,
                     [metoda = std::move(metoda)] { metoda(); });
}

void Vazba::viditelne(QWidget& prvek, Podminka kdy) {
    pri_obnove([&prvek, kdy = std::move(kdy)] { prvek.setVisible(kdy()); });
}

void Vazba::povolene(QWidget& prvek, Podminka kdy) {
    pri_obnove([&prvek, kdy = std::move(kdy)] { prvek.setEnabled(kdy()); });
}

void Vazba::fokus(QWidget& okno, std::string& jmeno) {
    pri_obnove([&okno, &jmeno] {
        if (jmeno.empty()) return;
        if (auto* prvek = okno.findChild<QWidget*>(do_qt(std::exchange(jmeno, {})))) {
            prvek->setFocus();
        }
    });
}

void Vazba::pri_obnove(Metoda obnova) {
    obnovy_.push_back(std::move(obnova));
}

void Vazba::obnov() const {
    for (const Metoda& obnova : obnovy_)
        obnova();
}

}  // namespace desktop
