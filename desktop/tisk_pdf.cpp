#include "desktop/tisk_pdf.h"

#include <QImage>
#include <QPainter>
#include <QPdfDocument>
#include <QPrinter>

#include "base/chyba.h"

namespace desktop {

void vytiskni(QPdfDocument& pdf, QPrinter& tiskarna, int od, int do_) {
    tiskarna.setFullPage(true);
    QPainter kresba;
    if (!kresba.begin(&tiskarna)) throw base::ChybaDat("Na tiskárnu nelze tisknout.");
    const QRect papir = tiskarna.pageLayout().fullRectPixels(tiskarna.resolution());
    for (int strana = od; strana <= do_; ++strana) {
        if (strana > od) tiskarna.newPage();
        kresba.drawImage(papir, pdf.render(strana - 1, papir.size()));
    }
}

}  // namespace desktop
