#include "desktop/mrizka_seznamu.h"

#include <QHeaderView>
#include <QKeyEvent>

namespace desktop {

namespace {

store::Rows pod_nadpisy(const store::Rows& vety, const std::vector<SloupecMrizky>& sloupce) {
    store::Rows nove;
    std::vector<std::size_t> zdroje;
    for (const SloupecMrizky& sloupec : sloupce) {
        nove.columns.push_back(sloupec.nadpis);
        if (!vety.columns.empty())
            zdroje.push_back(static_cast<std::size_t>(vety.column(sloupec.pole)));
    }
    for (const store::Row& veta : vety.rows) {
        store::Row& nova = nove.rows.emplace_back();
        for (const std::size_t zdroj : zdroje)
            nova.push_back(veta.at(zdroj));
    }
    return nove;
}

}  // namespace

MrizkaSeznamu::MrizkaSeznamu(Vazba& vazba, workers::SeznamVet& form,
                             std::vector<SloupecMrizky> sloupce, const QString& pristupny_nazev,
                             Vazba::Metoda pri_volbe)
    : sloupce_(std::move(sloupce)), pri_volbe_(std::move(pri_volbe)) {
    setObjectName("mrizka");
    setAccessibleName(pristupny_nazev);
    verticalHeader()->hide();
    vazba.pri_obnove([this, &form] { ukazane_ = pod_nadpisy(form.vety, sloupce_); });
    vazba.tabulka(*this, ukazane_);
    vazba.pri_obnove([this] { roztahni_sloupec(); });
    vazba.radek(*this, form.radek, [&form](int novy) { form.vyber_radek(novy); });
    connect(this, &QTableView::doubleClicked, this, [this] { pri_volbe_(); });
}

void MrizkaSeznamu::roztahni_sloupec() {
    const int sloupcu = horizontalHeader()->count();
    if (sloupcu == 0) return;
    const int sloupec = roztazeny_ < 0 ? sloupcu - 1 : roztazeny_;
    horizontalHeader()->setSectionResizeMode(sloupec, QHeaderView::Stretch);
}

void MrizkaSeznamu::keyPressEvent(QKeyEvent* klavesa) {
    if (klavesa->key() == Qt::Key_Return || klavesa->key() == Qt::Key_Enter) {
        pri_volbe_();
    } else {
        QTableView::keyPressEvent(klavesa);
    }
}

}  // namespace desktop
