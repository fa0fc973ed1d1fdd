#include "desktop/rok_okno.h"

#include <QHelpEvent>
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
constexpr int k_radku_popisu = 3;
constexpr int k_prouzek = 3;  ///< coloured line above the name of a month

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

QString koruny(base::Castka castka) {
    return do_qt(base::castka_do_sloupce(0, 2, castka)) + " Kč";
}

}  // namespace

QString tisice(base::Castka castka) {
    if (base::je_nula(castka)) return {};
    QString cislo = do_qt(base::castka_na_mista(0, castka / 1000));
    for (auto i = cislo.size() - 3; i > 0; i -= 3)
        cislo.insert(i, QChar(0x00a0));
    return cislo + " tis.";
}

RokOkno::RokOkno(QWidget* rodic) : QWidget(rodic) {
    setObjectName("rok");
    setAccessibleName("přehled měsíců roku");
    setCursor(Qt::PointingHandCursor);
    for (std::size_t i = 0; i < rok_.size(); ++i)
        rok_[i].mesic = static_cast<int>(i) + 1;
}

void RokOkno::ukaz(const std::array<PrehledMesice, 12>& rok) {
    rok_ = rok;
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
    return {1000, vyska_radku() * 13};
}

QSize RokOkno::minimumSizeHint() const {
    return {700, vyska_radku() * 9};
}

QRect RokOkno::sloupec(int mesic) const {
    const int od = (width() + k_mezera) * (mesic - 1) / 12;
    const int do_ = (width() + k_mezera) * mesic / 12 - k_mezera;
    return {od, vyska_radku() + k_okraj, do_ - od, height() - vyska_radku() - k_okraj};
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
    kresli_vysvetlivky(p);
    for (const PrehledMesice& mesic : rok_)
        kresli_mesic(p, mesic);
}

void RokOkno::kresli_vysvetlivky(QPainter& p) const {
    int x = 0;
    const int ctverec = vyska_radku() - 6;
    const auto polozka = [&](const QColor& barva, const char* text) {
        p.fillRect(QRect(x, 3, ctverec, ctverec), barva);
        x += ctverec + k_mezera;
        p.setPen(palette().color(QPalette::WindowText));
        p.drawText(QPoint(x, fontMetrics().ascent()), QString::fromUtf8(text));
        x += fontMetrics().horizontalAdvance(QString::fromUtf8(text)) + 4 * k_mezera;
    };
    polozka(barvy_roku().naklad, "náklad firmy na mzdy");
    polozka(barvy_roku().cista, "z toho k výplatě");
}

void RokOkno::kresli_mesic(QPainter& p, const PrehledMesice& mesic) const {
    const QRect cely = sloupec(mesic.mesic);
    const bool vybrany = mesic.mesic == vybrany_;
    p.setPen(vybrany ? QPen(barvy_roku().vybrany, 2) : QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(QRectF(cely).adjusted(1, 1, -1, -1), 4, 4);

    const int vyska_popisu = k_radku_popisu * vyska_radku() + k_okraj;
    const QRect graf = cely.adjusted(k_okraj, k_okraj, -k_okraj, -vyska_popisu - k_prouzek);
    kresli_sloupec(p, mesic, graf);

    const PopisStavu& stav = popis(mesic.stav);
    QRect radek(cely.left() + k_okraj, cely.bottom() - vyska_popisu, cely.width() - 2 * k_okraj,
                vyska_radku());
    const auto napis = [&](const QString& text, QPalette::ColorRole role, bool tucne) {
        QFont pismo = font();
        pismo.setBold(tucne);
        p.setFont(pismo);
        p.setPen(palette().color(role));
        p.drawText(radek, Qt::AlignHCenter | Qt::AlignVCenter, text);
        radek.translate(0, vyska_radku());
    };
    if (stav.barva) {
        p.fillRect(QRect(radek.left(), radek.top() - k_prouzek, radek.width(), k_prouzek),
                   barvy_roku().*stav.barva);
    }
    napis(do_qt(base::mesic_slovy(mesic.mesic, 0)), QPalette::Text, vybrany);
    napis(stav.slovy, QPalette::Text, false);
    napis(mesic.pracovniku > 0 ? QString("%1 prac.").arg(mesic.pracovniku) : QString(),
          QPalette::PlaceholderText, false);
}

void RokOkno::kresli_sloupec(QPainter& p, const PrehledMesice& mesic, const QRect& plocha) const {
    base::Castka nejvyssi = 1;
    for (const PrehledMesice& jiny : rok_)
        nejvyssi = std::max(nejvyssi, jiny.naklad);
    const int popisek = vyska_radku();
    const auto vyska = [&](base::Castka castka) {
        const double podil = static_cast<double>(castka / nejvyssi);
        return std::max(0.0, podil) * (plocha.height() - popisek);
    };
    const double sirka = plocha.width() * 0.6;
    const double x = plocha.left() + (plocha.width() - sirka) / 2;
    const double dno = plocha.bottom() + 1;
    p.fillRect(QRectF(x, dno - vyska(mesic.naklad), sirka, vyska(mesic.naklad)),
               barvy_roku().naklad);
    p.fillRect(QRectF(x, dno - vyska(mesic.cista), sirka, vyska(mesic.cista)), barvy_roku().cista);
    p.setFont(font());
    p.setPen(palette().color(QPalette::Text));
    p.drawText(QRectF(plocha.left(), dno - vyska(mesic.naklad) - popisek, plocha.width(), popisek),
               Qt::AlignCenter, tisice(mesic.naklad));
}

void RokOkno::mousePressEvent(QMouseEvent* udalost) {
    const int mesic = mesic_v(udalost->pos());
    if (mesic > 0 && pri_vyberu) pri_vyberu(mesic);
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
    QToolTip::showText(napoveda->globalPos(),
                       QString("%1: %2\nřádků hrubých mezd: %3\nhrubé mzdy: %4\nk výplatě: "
                               "%5\nnáklad: %6")
                           .arg(do_qt(base::mesic_slovy(m.mesic, 0)), popis(m.stav).slovy)
                           .arg(m.radku)
                           .arg(koruny(m.hruba), koruny(m.cista), koruny(m.naklad)),
                       this);
    return true;
}

}  // namespace desktop
