// Rows of a query as a model of Qt's table view.
#pragma once

#include <QAbstractTableModel>

#include "store/query.h"

namespace desktop {

class TabulkaVet final : public QAbstractTableModel {
  public:
    explicit TabulkaVet(QObject* vlastnik) : QAbstractTableModel(vlastnik) {}

    /// Takes the rows over; the view is drawn anew only when they differ from those shown.
    void ukaz(const store::Rows& vety);

    int rowCount(const QModelIndex& nadrazeny = {}) const override;
    int columnCount(const QModelIndex& nadrazeny = {}) const override;
    QVariant data(const QModelIndex& misto, int role) const override;
    QVariant headerData(int cislo, Qt::Orientation smer, int role) const override;

  private:
    store::Rows vety_;
};

/// A value as screens show it: decimal comma, date d.m.yyyy, "ano" and "ne".
std::string text_hodnoty(const store::Value& hodnota);

}  // namespace desktop
