#include "desktop/tabulka_vet.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

std::string text_dne(const base::Datum& den) {
    return den.je_prazdne() ? "" : fmt::format("{}.{}.{}", den.den, den.mesic, den.rok);
}

bool je_cislo(const store::Value& hodnota) {
    return std::holds_alternative<std::int64_t>(hodnota.variant()) ||
           std::holds_alternative<double>(hodnota.variant());
}

}  // namespace

std::string text_hodnoty(const store::Value& hodnota) {
    if (std::holds_alternative<double>(hodnota.variant())) {
        return base::castka_prosta(hodnota.as_number());
    }
    if (std::holds_alternative<bool>(hodnota.variant())) return hodnota.as_boolean() ? "ano" : "ne";
    if (std::holds_alternative<base::Datum>(hodnota.variant())) return text_dne(hodnota.as_date());
    return hodnota.as_text();
}

void TabulkaVet::ukaz(const store::Rows& vety) {
    if (vety.columns == vety_.columns && vety.rows == vety_.rows) return;
    beginResetModel();
    vety_ = vety;
    endResetModel();
}

int TabulkaVet::rowCount(const QModelIndex& nadrazeny) const {
    return nadrazeny.isValid() ? 0 : static_cast<int>(vety_.rows.size());
}

int TabulkaVet::columnCount(const QModelIndex& nadrazeny) const {
    return nadrazeny.isValid() ? 0 : static_cast<int>(vety_.columns.size());
}

QVariant TabulkaVet::data(const QModelIndex& misto, int role) const {
    const auto& hodnota = vety_.rows.at(static_cast<std::size_t>(misto.row()))
                              .at(static_cast<std::size_t>(misto.column()));
    if (role == Qt::DisplayRole) return do_qt(text_hodnoty(hodnota));
    if (role == Qt::TextAlignmentRole) {
        return QVariant(Qt::Alignment(je_cislo(hodnota) ? Qt::AlignRight : Qt::AlignLeft) |
                        Qt::AlignVCenter);
    }
    return {};
}

QVariant TabulkaVet::headerData(int cislo, Qt::Orientation smer, int role) const {
    if (role != Qt::DisplayRole) return {};
    if (smer == Qt::Vertical) return cislo + 1;
    return do_qt(vety_.columns.at(static_cast<std::size_t>(cislo)));
}

}  // namespace desktop
