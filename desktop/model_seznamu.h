// A table of rows that a screen holds itself: the view asks for a cell's text only when it is
// drawn, so that ten thousand rows cost nothing.
#pragma once

#include <QAbstractTableModel>
#include <functional>
#include <vector>

class QTableView;

namespace desktop {

struct SloupecSeznamu {
    const char* nadpis;
    int znaku;   ///< width in characters; 0 takes what is left
    bool cislo;  ///< aligned to the right
    std::function<QString(std::size_t radek)> text;
};

class ModelSeznamu final : public QAbstractTableModel {
  public:
    /// `pocet` tells the number of rows; `vzhled` may give fonts, colours and tool tips.
    ModelSeznamu(std::vector<SloupecSeznamu> sloupce, std::function<std::size_t()> pocet,
                 std::function<QVariant(std::size_t radek, int sloupec, int role)> vzhled,
                 QObject* vlastnik);

    /// The rows are others than those shown.
    void obnov();

    int rowCount(const QModelIndex& nadrazeny = {}) const override;
    int columnCount(const QModelIndex& nadrazeny = {}) const override;
    QVariant data(const QModelIndex& misto, int role) const override;
    QVariant headerData(int cislo, Qt::Orientation smer, int role) const override;
    const std::vector<SloupecSeznamu>& sloupce() const { return sloupce_; }

  private:
    std::vector<SloupecSeznamu> sloupce_;
    std::function<std::size_t()> pocet_;
    std::function<QVariant(std::size_t, int, int)> vzhled_;
    int radku_ = 0;
};

/// Puts the model into the view: whole rows are chosen, columns are as wide as they say.
void nasad_model(QTableView& tabulka, ModelSeznamu& model);

}  // namespace desktop
