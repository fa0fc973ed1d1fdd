#include "desktop/model_seznamu.h"

#include <QHeaderView>
#include <QTableView>

namespace desktop {

ModelSeznamu::ModelSeznamu(std::vector<SloupecSeznamu> sloupce, std::function<std::size_t()> pocet,
                           std::function<QVariant(std::size_t, int, int)> vzhled, QObject* vlastnik)
    : QAbstractTableModel(vlastnik),
      sloupce_(std::move(sloupce)),
      pocet_(std::move(pocet)),
      vzhled_(std::move(vzhled)),
      radku_(static_cast<int>(pocet_())) {}

void ModelSeznamu::obnov() {
    beginResetModel();
    radku_ = static_cast<int>(pocet_());
    endResetModel();
}

int ModelSeznamu::rowCount(const QModelIndex& nadrazeny) const {
    return nadrazeny.isValid() ? 0 : radku_;
}

int ModelSeznamu::columnCount(const QModelIndex& nadrazeny) const {
    return nadrazeny.isValid() ? 0 : static_cast<int>(sloupce_.size());
}

QVariant ModelSeznamu::data(const QModelIndex& misto, int role) const {
    const auto radek = static_cast<std::size_t>(misto.row());
    // The screen may have changed its rows since; the view learns of it at the next redrawing.
    if (radek >= pocet_()) return {};
    const SloupecSeznamu& sloupec = sloupce_.at(static_cast<std::size_t>(misto.column()));
    if (role == Qt::DisplayRole) return sloupec.text(radek);
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::Alignment(sloupec.cislo ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    }
    return vzhled_(radek, misto.column(), role);
}

QVariant ModelSeznamu::headerData(int cislo, Qt::Orientation smer, int role) const {
    if (smer == Qt::Vertical) return {};
    const SloupecSeznamu& sloupec = sloupce_.at(static_cast<std::size_t>(cislo));
    if (role == Qt::DisplayRole) return QString::fromUtf8(sloupec.nadpis);
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::Alignment(sloupec.cislo ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    }
    return {};
}

void nasad_model(QTableView& tabulka, ModelSeznamu& model) {
    constexpr int k_okraj = 14, k_vyska_navic = 6;
    tabulka.setModel(&model);
    tabulka.setSelectionBehavior(QAbstractItemView::SelectRows);
    tabulka.setSelectionMode(QAbstractItemView::SingleSelection);
    tabulka.setEditTriggers(QAbstractItemView::NoEditTriggers);
    tabulka.setAlternatingRowColors(true);
    tabulka.setShowGrid(false);
    tabulka.setTabKeyNavigation(false);
    tabulka.setWordWrap(false);
    tabulka.verticalHeader()->hide();
    const QFontMetrics pismo = tabulka.fontMetrics();
    tabulka.verticalHeader()->setDefaultSectionSize(pismo.height() + k_vyska_navic);
    QHeaderView* hlavicka = tabulka.horizontalHeader();
    hlavicka->setHighlightSections(false);
    for (int i = 0; i < model.columnCount(); ++i) {
        const SloupecSeznamu& sloupec = model.sloupce()[static_cast<std::size_t>(i)];
        if (sloupec.znaku == 0) {
            hlavicka->setSectionResizeMode(i, QHeaderView::Stretch);
        } else {
            tabulka.setColumnWidth(i,
                                   pismo.horizontalAdvance(QString(sloupec.znaku, '0')) + k_okraj);
        }
    }
}

}  // namespace desktop
