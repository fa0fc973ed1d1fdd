#include "desktop/okno_form75.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QVBoxLayout>
#include <memory>

#include "desktop/prvky.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

using workers::TForm75;

enum Sloupec { pracovnik, jmeno, sloupec_vl, nazev, koruny, sloupcu };

/// The screen's rows; the crowns alone may be edited.
class ModelKorun final : public QAbstractTableModel {
  public:
    ModelKorun(TForm75& form, QObject* vlastnik) : QAbstractTableModel(vlastnik), form_(form) {}

    int rowCount(const QModelIndex& nadrazeny = {}) const override {
        return nadrazeny.isValid() ? 0 : static_cast<int>(form_.vety.size());
    }
    int columnCount(const QModelIndex& nadrazeny = {}) const override {
        return nadrazeny.isValid() ? 0 : sloupcu;
    }
    Qt::ItemFlags flags(const QModelIndex& misto) const override {
        const Qt::ItemFlags zakladni = QAbstractTableModel::flags(misto);
        return misto.column() == koruny ? zakladni | Qt::ItemIsEditable : zakladni;
    }
    QVariant data(const QModelIndex& misto, int role) const override {
        if (role == Qt::DisplayRole || role == Qt::EditRole) return do_qt(text(misto));
        const bool cislo = misto.column() != jmeno && misto.column() != nazev;
        if (role == Qt::TextAlignmentRole) {
            return QVariant(Qt::Alignment(cislo ? Qt::AlignRight : Qt::AlignLeft) |
                            Qt::AlignVCenter);
        }
        return {};
    }
    QVariant headerData(int cislo, Qt::Orientation smer, int role) const override {
        if (smer != Qt::Horizontal || role != Qt::DisplayRole) return {};
        static constexpr std::array<const char*, sloupcu> k_nadpisy{"číslo", "pracovník", "sloupec",
                                                                    "název", "Kč"};
        return k_nadpisy.at(static_cast<std::size_t>(cislo));
    }
    /// A value left as it stood is not written again.
    bool setData(const QModelIndex& misto, const QVariant& hodnota, int role) override {
        const std::string nova = z_qt(hodnota.toString());
        if (role != Qt::EditRole || misto.column() != koruny || nova == text(misto)) return false;
        if (!form_.zapis_koruny(misto.row(), nova)) return false;
        emit dataChanged(misto, misto);
        return true;
    }

  private:
    TForm75& form_;

    std::string text(const QModelIndex& misto) const {
        const auto& veta = form_.vety.at(static_cast<std::size_t>(misto.row()));
        switch (misto.column()) {
            case pracovnik:
                return std::to_string(veta.cislo_pracovnika);
            case jmeno:
                return veta.pracovnik;
            case sloupec_vl:
                return std::to_string(veta.sloupec);
            case nazev:
                return veta.text_sloupce;
            default:
                return veta.kcs.as_text();
        }
    }
};

/// The field in which crowns are typed. Enter and the arrows store it and go to the next row.
class EditorKorun final : public QStyledItemDelegate {
  public:
    EditorKorun(const TForm75& form, QTableView& tabulka)
        : QStyledItemDelegate(&tabulka), form_(form), tabulka_(tabulka) {}

    QWidget* createEditor(QWidget* rodic, const QStyleOptionViewItem&,
                          const QModelIndex& misto) const override {
        auto* pole = new QLineEdit(rodic);
        pole->setObjectName("Kcs");
        pole->setAccessibleName("Kč");
        pole->setAlignment(Qt::AlignRight);
        pole->setFrame(false);
        vazba_ = std::make_unique<Vazba>();
        vazba_->pole(*pole, napsano_,
                     [this, radek = misto.row()](char znak, std::string_view text) {
                         return form_.povol_klavesu(radek, znak, text);
                     });
        return pole;
    }

    bool eventFilter(QObject* prvek, QEvent* udalost) override {
        auto* pole = qobject_cast<QLineEdit*>(prvek);
        if (!pole || udalost->type() != QEvent::KeyPress) {
            return QStyledItemDelegate::eventFilter(prvek, udalost);
        }
        const int klavesa = static_cast<QKeyEvent*>(udalost)->key();
        const bool dolu =
            klavesa == Qt::Key_Return || klavesa == Qt::Key_Enter || klavesa == Qt::Key_Down;
        if (!dolu && klavesa != Qt::Key_Up) {
            return QStyledItemDelegate::eventFilter(prvek, udalost);
        }
        emit commitData(pole);
        emit closeEditor(pole);
        tabulka_.setFocus();
        jdi(dolu ? 1 : -1);
        return true;
    }
    /// To the crowns of another row, when there is one.
    void jdi(int o_kolik) const {
        const QModelIndex cil =
            tabulka_.currentIndex().sibling(tabulka_.currentIndex().row() + o_kolik, koruny);
        if (cil.isValid()) tabulka_.setCurrentIndex(cil);
    }

  private:
    const TForm75& form_;
    QTableView& tabulka_;
    mutable std::unique_ptr<Vazba> vazba_;  ///< of the open editor
    mutable std::string napsano_;
};

/// The grid; Enter outside the editor goes down, too.
class MrizkaKorun final : public QTableView {
  public:
    void keyPressEvent(QKeyEvent* klavesa) override {
        if (klavesa->key() == Qt::Key_Return || klavesa->key() == Qt::Key_Enter) {
            if (auto* editor = dynamic_cast<EditorKorun*>(itemDelegate())) editor->jdi(1);
            return;
        }
        QTableView::keyPressEvent(klavesa);
    }
};

}  // namespace

OknoForm75::OknoForm75(TForm75& form, const shell::Session&, QWidget* rodic) : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(860, 560);
    obsah().addWidget(new QLabel(TForm75::k_popis));
    obsah().addWidget(mrizka(form), 1);
    obsah().addWidget(udaj(vazba(), "lbOmezeni", form.lbOmezeni));
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
}

QTableView* OknoForm75::mrizka(TForm75& form) {
    auto* tabulka = new MrizkaKorun;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("koruny fixních položek");
    tabulka->setModel(new ModelKorun(form, tabulka));
    tabulka->setItemDelegate(new EditorKorun(form, *tabulka));
    tabulka->setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                             QAbstractItemView::DoubleClicked);
    tabulka->setSelectionMode(QAbstractItemView::SingleSelection);
    tabulka->setAlternatingRowColors(true);
    tabulka->setTabKeyNavigation(false);
    tabulka->verticalHeader()->hide();
    tabulka->verticalHeader()->setDefaultSectionSize(tabulka->fontMetrics().height() + 8);
    tabulka->horizontalHeader()->setHighlightSections(false);
    for (const int sirsi : {jmeno, nazev})
        tabulka->horizontalHeader()->setSectionResizeMode(sirsi, QHeaderView::Stretch);
    connect(tabulka->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [&form](const QModelIndex& nove) {
                if (nove.isValid() && nove.row() != form.radek) form.vyber_radek(nove.row());
            });
    tabulka->setCurrentIndex(tabulka->model()->index(0, koruny));
    tabulka->setFocus();
    return tabulka;
}

}  // namespace desktop
