#include "desktop/rok_okno.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "base/castky_text.h"
#include "base/datum.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using menu::PrehledMesice;
using Stav = PrehledMesice::Stav;

constexpr int k_mezera = 6, k_okraj = 5;
constexpr int k_prouzek = 3;      ///< coloured line above the name of a month
constexpr int k_radku_grafu = 4;  ///< the least height of the chart, in lines of text
constexpr auto k_tvrda = QChar(0x00a0);

struct PopisStavu {
    Stav stav;
    const char* slovy;
    QColor BarvyRoku::*barva;
};
constexpr PopisStavu k_stavy[] = {
    {Stav::nic, "nezadáno", nullptr},
    {Stav::zadano, "zadáno", &BarvyRoku::zadano},
    {Stav::spocteno, "spočteno", &BarvyRoku::cista},
    {Stav::uzavreno, "uzavřeno", &BarvyRoku::uzavreno},
};

const PopisStavu& popis(Stav stav) {
    return *std::find_if(std::begin(k_stavy), std::end(k_stavy),
                         [stav](const PopisStavu& p) { return p.stav == stav; });
}

/// A line under the month's bar. Amounts have a member of the overview, the others a text.
struct RadekMesice {
    const char* nadpis;
    QString (*text)(const PrehledMesice&) = nullptr;
    base::Castka PrehledMesice::*castka = nullptr;
    bool cislo = castka != nullptr;
};
const RadekMesice k_radky[] = {
    {"", [](const PrehledMesice& m) { return do_qt(base::mesic_slovy(m.mesic, 0)); }},
    {"stav", [](const PrehledMesice& m) { return QString::fromUtf8(popis(m.stav).slovy); }},
    {"pracovníků",
     [](const PrehledMesice& m) {
         return m.pracovniku > 0 ? QString::number(m.pracovniku) : QString();
     },
     nullptr, true},
    {"hrubé mzdy", nullptr, &PrehledMesice::hruba},
    {"k výplatě", nullptr, &PrehledMesice::cista},
    {"náklad firmy", nullptr, &PrehledMesice::naklad},
};
constexpr int k_radku = static_cast<int>(std::size(k_radky));

}  // namespace

QString v_jednotkach(base::Castka castka, bool v_tisicich) {
    if (base::je_nula(castka)) return {};
    QString cislo = do_qt(base::castka_na_mista(0, v_tisicich ? castka / 1000 : castka));
    const qsizetype zacatek = cislo.startsWith('-') ? 1 : 0;
    for (auto i = cislo.size() - 3; i > zacatek; i -= 3)
        cislo.insert(i, k_tvrda);
    return cislo;
}

RokOkno::RokOkno(QWidget* rodic) : QWidget(rodic) {
    setObjectName("rok");
    setAccessibleName("přehled měsíců roku");
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    for (std::size_t i = 0; i < rok_.size(); ++i)
        rok_[i].mesic = static_cast<int>(i) + 1;
}

void RokOkno::ukaz(const std::array<PrehledMesice, 12>& rok) {
    rok_ = rok;
    setAccessibleDescription(slovy());
    update();
}

void RokOkno::vyber(int mesic) {
    vybrany_ = mesic;
    update();
}

int RokOkno::vyska_radku() const {
    return fontMetrics().height();
}

QSize RokOkno::sizeHint() const {
    return {1000, vyska_radku() * (k_radku + 2 * k_radku_grafu)};
}

QSize RokOkno::minimumSizeHint() const {
    const int nejdelsi = fontMetrics().horizontalAdvance("nezadáno ");
    return {sirka_nadpisu() + 12 * (nejdelsi + k_mezera),
            vyska_radku() * (k_radku + 1 + k_radku_grafu) + 4 * k_okraj};
}

int RokOkno::sirka_nadpisu() const {
    int nejsirsi = 0;
    for (const RadekMesice& radek : k_radky)
        nejsirsi = std::max(nejsirsi, fontMetrics().horizontalAdvance(radek.nadpis));
    return nejsirsi + 2 * k_mezera;
}

QRect RokOkno::sloupec(int mesic) const {
    const int vlevo = sirka_nadpisu(), sirka = width() - vlevo + k_mezera;
    const int od = vlevo + sirka * (mesic - 1) / 12;
    const int do_ = vlevo + sirka * mesic / 12 - k_mezera;
    return {od, vyska_radku() + k_okraj, do_ - od, height() - vyska_radku() - k_okraj};
}

QRect RokOkno::radek(const QRect& sloupec, int poradi) const {
    const int prvni = sloupec.bottom() - k_radku * vyska_radku() - k_okraj;
    return {sloupec.left() + k_okraj, prvni + poradi * vyska_radku(), sloupec.width() - 2 * k_okraj,
            vyska_radku()};
}

// Whole crowns where they fit into the columns, else thousands.
bool RokOkno::v_tisicich() const {
    const int misto = radek(sloupec(1), 0).width();
    return std::ranges::any_of(rok_, [&](const PrehledMesice& m) {
        return std::ranges::any_of(k_radky, [&](const RadekMesice& r) {
            return r.castka &&
                   fontMetrics().horizontalAdvance(v_jednotkach(m.*r.castka, false)) > misto;
        });
    });
}

QString RokOkno::slovy() const {
    QStringList mesice;
    for (const PrehledMesice& m : rok_) {
        QString popis_mesice = do_qt(base::mesic_slovy(m.mesic, 0)) + ":";
        for (const RadekMesice& r : k_radky) {
            if (!*r.nadpis) continue;
            const QString text = r.text ? r.text(m) : v_jednotkach(m.*r.castka, false);
            if (!text.isEmpty()) popis_mesice += QString(" %1 %2").arg(r.nadpis, text);
        }
        mesice += popis_mesice;
    }
    return mesice.join("; ");
}

int RokOkno::mesic_v(const QPoint& misto) const {
    for (const PrehledMesice& mesic : rok_) {
        if (sloupec(mesic.mesic).contains(misto)) return mesic.mesic;
    }
    return 0;
}

void RokOkno::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const bool tisice = v_tisicich();
    kresli_vysvetlivky(p, tisice);
    kresli_nadpisy(p);
    for (const PrehledMesice& mesic : rok_)
        kresli_mesic(p, mesic, tisice);
}

void RokOkno::kresli_vysvetlivky(QPainter& p, bool tisice) const {
    int x = sirka_nadpisu();
    const int ctverec = vyska_radku() - 6;
    const auto napis = [&](const QString& text) {
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QPoint(x, fontMetrics().ascent()), text);
        x += fontMetrics().horizontalAdvance(text) + 4 * k_mezera;
    };
    const auto polozka = [&](const QColor& barva, const QString& text) {
        p.fillRect(QRect(x, 3, ctverec, ctverec), barva);
        x += ctverec + k_mezera;
        napis(text);
    };
    polozka(barvy_roku(palette()).naklad, "náklad firmy na mzdy");
    polozka(barvy_roku(palette()).cista, "z toho k výplatě");
    napis(tisice ? "částky v tisících Kč" : "částky v Kč");
}

void RokOkno::kresli_nadpisy(QPainter& p) const {
    p.setPen(palette().color(QPalette::WindowText));
    for (int i = 0; i < k_radku; ++i) {
        const QRect misto(0, radek(sloupec(1), i).top(), sirka_nadpisu() - k_mezera, vyska_radku());
        p.drawText(misto, Qt::AlignRight | Qt::AlignVCenter, QString::fromUtf8(k_radky[i].nadpis));
    }
}

void RokOkno::kresli_mesic(QPainter& p, const PrehledMesice& mesic, bool tisice) const {
    const QRect cely = sloupec(mesic.mesic);
    const BarvyRoku& barvy = barvy_roku(palette());
    const bool vybrany = mesic.mesic == vybrany_;
    p.setPen(vybrany ? QPen(barvy.vybrany, hasFocus() ? 3 : 2) : QPen(barva_hrany(palette()), 1));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(QRectF(cely).adjusted(1, 1, -1, -1), 4, 4);

    const QRect prvni = radek(cely, 0);
    kresli_sloupec(p, mesic,
                   QRect(cely.topLeft() + QPoint(k_okraj, k_okraj),
                         prvni.topRight() - QPoint(0, k_prouzek + k_okraj)));
    if (const auto barva = popis(mesic.stav).barva) {
        p.fillRect(QRect(prvni.left(), prvni.top() - k_prouzek, prvni.width(), k_prouzek),
                   barvy.*barva);
    }
    p.setPen(palette().color(QPalette::Text));
    for (int i = 0; i < k_radku; ++i) {
        const RadekMesice& r = k_radky[i];
        QFont pismo = font();
        pismo.setBold(vybrany && i == 0);
        p.setFont(pismo);
        p.drawText(radek(cely, i), Qt::AlignVCenter | (r.cislo ? Qt::AlignRight : Qt::AlignHCenter),
                   r.castka ? v_jednotkach(mesic.*r.castka, tisice) : r.text(mesic));
    }
    p.setFont(font());
}

void RokOkno::kresli_sloupec(QPainter& p, const PrehledMesice& mesic, const QRect& plocha) const {
    base::Castka nejvyssi = 1;
    for (const PrehledMesice& jiny : rok_)
        nejvyssi = std::max(nejvyssi, jiny.naklad);
    const double sirka = plocha.width() * 0.6;
    const double x = plocha.left() + (plocha.width() - sirka) / 2;
    const auto sloupec = [&](base::Castka castka, const QColor& barva) {
        const double podil = static_cast<double>(castka / nejvyssi);
        const double vyska = std::max(0.0, podil) * plocha.height();
        p.fillRect(QRectF(x, plocha.bottom() + 1 - vyska, sirka, vyska), barva);
    };
    sloupec(mesic.naklad, barvy_roku(palette()).naklad);
    sloupec(mesic.cista, barvy_roku(palette()).cista);
}

void RokOkno::mousePressEvent(QMouseEvent* udalost) {
    const int mesic = mesic_v(udalost->pos());
    if (mesic > 0 && pri_vyberu) pri_vyberu(mesic);
}

void RokOkno::mouseDoubleClickEvent(QMouseEvent* udalost) {
    const int mesic = mesic_v(udalost->pos());
    if (mesic > 0 && pri_otevreni) pri_otevreni(mesic);
}

void RokOkno::keyPressEvent(QKeyEvent* klavesa) {
    const int smer = klavesa->key() == Qt::Key_Left ? -1 : klavesa->key() == Qt::Key_Right ? 1 : 0;
    const bool enter = klavesa->key() == Qt::Key_Return || klavesa->key() == Qt::Key_Enter;
    if (smer != 0 && pri_vyberu) {
        pri_vyberu(std::clamp(vybrany_ + smer, 1, 12));
    } else if (enter && pri_otevreni) {
        pri_otevreni(vybrany_);
    } else {
        QWidget::keyPressEvent(klavesa);
    }
}

bool RokOkno::event(QEvent* udalost) {
    if (udalost->type() != QEvent::ToolTip) return QWidget::event(udalost);
    auto* napoveda = static_cast<QHelpEvent*>(udalost);
    const int mesic = mesic_v(napoveda->pos());
    if (mesic == 0) {
        QToolTip::hideText();
        return true;
    }
    const PrehledMesice& m = rok_[static_cast<std::size_t>(mesic - 1)];
    QString text = do_qt(base::mesic_slovy(m.mesic, 0));
    text += QString("\nřádků hrubých mezd: %1").arg(m.radku);
    for (const RadekMesice& r : k_radky) {
        if (r.castka)
            text += QString("\n%1: %2 Kč").arg(r.nadpis, v_jednotkach(m.*r.castka, false));
    }
    QToolTip::showText(napoveda->globalPos(), text, this);
    return true;
}

}  // namespace desktop
