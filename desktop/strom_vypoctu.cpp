#include "desktop/strom_vypoctu.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <algorithm>

#include "desktop/text_qt.h"

namespace desktop {

namespace {

using base::DruhUzlu;
using base::UzelVypoctu;

enum Sloupec { nazev, hodnota, odkud };
constexpr int k_index_uzlu = Qt::UserRole;

/// Thousands of a number parted for the eye; of what was read only long ones, so that a year or a
/// number of a row stays as it is. Other texts stay, too.
QString pro_oko(const UzelVypoctu& u) {
    const qsizetype nejmene = u.druh == DruhUzlu::udaj ? 5 : 4;
    QString cislo = do_qt(u.hodnota);
    const qsizetype zacatek = cislo.startsWith('-') ? 1 : 0;
    qsizetype konec = zacatek;
    while (konec < cislo.size() && cislo[konec].isDigit())
        ++konec;
    const bool je_cislo = konec == cislo.size() || cislo[konec] == ',';
    if (!je_cislo || konec - zacatek < nejmene) return cislo;
    for (qsizetype i = konec - 3; i > zacatek; i -= 3)
        cislo.insert(i, QChar(0x00a0));
    return cislo;
}

QString popis(const UzelVypoctu& u) {
    QString text = do_qt(u.nazev);
    if (!u.pravidlo.empty()) text += QStringLiteral(" – ") + do_qt(u.pravidlo);
    return text;
}

QString puvod(const UzelVypoctu& u) {
    QStringList casti;
    for (const std::string& cast : {u.zdroj, u.zaokrouhleni, u.predpis}) {
        if (!cast.empty()) casti += do_qt(cast);
    }
    if (u.znovu) casti += QStringLiteral("rozepsáno výše");
    return casti.join(QStringLiteral("  ·  "));
}

}  // namespace

const std::vector<PopisUzlu>& popisy_uzlu() {
    static const std::vector<PopisUzlu> popisy{
        {DruhUzlu::vypocet, "výpočet", "#3f7d6a"},
        {DruhUzlu::udaj, "zadaný údaj", "#2b6a8c"},
        {DruhUzlu::nastaveni, "nastavení", "#c98b1f"},
        {DruhUzlu::konstanta, "pevná hodnota", "#8b6fae"},
        {DruhUzlu::poznamka, "jak se počítalo", "#9aa59f"},
    };
    return popisy;
}

QPixmap znacka_uzlu(DruhUzlu druh, int velikost) {
    const auto& popisy = popisy_uzlu();
    const auto it = std::find_if(popisy.begin(), popisy.end(),
                                 [druh](const PopisUzlu& p) { return p.druh == druh; });
    const qreal bodu = qApp->devicePixelRatio();
    QPixmap obrazek(QSize(velikost, velikost) * bodu);
    obrazek.setDevicePixelRatio(bodu);
    obrazek.fill(Qt::transparent);
    QPainter p(&obrazek);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(it->barva));
    const double okraj = velikost * 0.22;
    p.drawEllipse(QRectF(okraj, okraj, velikost - 2 * okraj, velikost - 2 * okraj));
    return obrazek;
}

StromVypoctuPohled::StromVypoctuPohled(const base::StromVypoctu& strom,
                                       std::function<void(int uzel)> rozbal)
    : strom_(strom), rozbal_(std::move(rozbal)) {
    setColumnCount(3);
    setHeaderLabels({"Jak částka vznikla", "Hodnota", "Odkud a jak"});
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setStyleSheet("QTreeView::item { padding: 1px 0; }");
    const QFontMetrics pismo = fontMetrics();
    header()->setStretchLastSection(true);
    setColumnWidth(nazev, pismo.horizontalAdvance(QString(56, '0')));
    setColumnWidth(hodnota, pismo.horizontalAdvance(QString(13, '0')));
    headerItem()->setTextAlignment(hodnota, Qt::AlignRight | Qt::AlignVCenter);
    connect(this, &QTreeWidget::itemExpanded, this,
            [this](QTreeWidgetItem* polozka) { pridej_vetve(*polozka); });
}

void StromVypoctuPohled::ukaz() {
    clear();
    if (strom_.uzly().empty()) return;
    pridej(*invisibleRootItem(), 0);
    QTreeWidgetItem& koren = *topLevelItem(0);
    QFont tucne = font();
    tucne.setBold(true);
    koren.setFont(nazev, tucne);
    koren.setFont(hodnota, tucne);
    koren.setExpanded(true);
    for (int i = 0; i < koren.childCount(); ++i)
        koren.child(i)->setExpanded(true);
    setCurrentItem(&koren);
}

void StromVypoctuPohled::pridej(QTreeWidgetItem& rodic, int uzel) {
    const UzelVypoctu& u = strom_.uzel(uzel);
    auto* polozka = new QTreeWidgetItem(&rodic);
    polozka->setData(nazev, k_index_uzlu, uzel);
    polozka->setText(nazev, popis(u));
    polozka->setText(hodnota, pro_oko(u));
    polozka->setText(odkud, puvod(u));
    polozka->setTextAlignment(hodnota, Qt::AlignRight | Qt::AlignVCenter);
    polozka->setIcon(nazev, znacka_uzlu(u.druh, fontMetrics().height()));
    for (const int sloupec : {nazev, odkud})
        polozka->setToolTip(sloupec, polozka->text(sloupec));
    if (u.znovu || u.druh == DruhUzlu::poznamka) {
        QFont kurziva = font();
        kurziva.setItalic(true);
        polozka->setFont(u.znovu ? odkud : nazev, kurziva);
    }
    polozka->setChildIndicatorPolicy(strom_.ma_vetve(uzel) ? QTreeWidgetItem::ShowIndicator
                                                           : QTreeWidgetItem::DontShowIndicator);
}

void StromVypoctuPohled::pridej_vetve(QTreeWidgetItem& polozka) {
    if (polozka.childCount() > 0) return;
    const int uzel = polozka.data(nazev, k_index_uzlu).toInt();
    rozbal_(uzel);
    for (const int vetev : strom_.uzel(uzel).vetve)
        pridej(polozka, vetev);
}

}  // namespace desktop
