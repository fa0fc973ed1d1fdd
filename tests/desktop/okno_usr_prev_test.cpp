// The preview: pages shown, size by keys, files stored, printing.
#include "desktop/okno_usr_prev.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPdfDocument>
#include <QPdfView>
#include <QPrinter>
#include <gtest/gtest.h>

#include "base/soubory.h"
#include "desktop/okna.h"
#include "desktop/tisk_pdf.h"
#include "prostredi_qt.h"
#include "report/tabulkova.h"
#include "support/docasna_slozka.h"
#include "support/prazdna_relace.h"

namespace {

using namespace zkouska;

report::Document tri_strany() {
    report::TabulkovaSestava sestava{"Žďár - děti/matky",     {}, {{"Příjmení", 40}},
                                     {150, {"Říhová Ťuňďa"}}, {}, false};
    return report::sestav_tabulku(sestava);
}

class Nahled : public testing::Test {
  protected:
    DocasnaSlozka slozka;
    report::TFUsrPrev form{tri_strany()};
    PrazdnaRelace relace;
    std::unique_ptr<desktop::Okno> okno = desktop::vyrob_okno(form, relace.session, nullptr);

    void SetUp() override {
        aplikace();
        okno->show();
        QApplication::setActiveWindow(okno.get());
    }
    /// Presses the button and types the name of the file into the dialog that comes.
    QString uloz(const char* tlacitko, const char* jmeno) {
        const QString soubor = desktop::do_qt((slozka / jmeno).string());
        v_okne([soubor](QWidget& dialog) {
            auto& pole = prvek<QLineEdit>(dialog, "fileNameEdit");
            EXPECT_TRUE(pole.text().startsWith("Žďár - děti-matky")) << pole.text().toStdString();
            pole.setText(soubor);
            QTest::keyClick(&pole, Qt::Key_Return);
        });
        klikni(*okno, tlacitko);
        return soubor;
    }
    /// What of the letters is seen: pages are drawn in the background.
    static int cernych_bodu(QPdfView& pohled) {
        const QImage obraz = pohled.viewport()->grab().toImage();
        int pocet = 0;
        for (int y = 0; y < obraz.height(); ++y) {
            for (int x = 0; x < obraz.width(); ++x)
                pocet += qGray(obraz.pixel(x, y)) < 64 ? 1 : 0;
        }
        return pocet;
    }
    static int stran(const QString& soubor) {
        QPdfDocument pdf(nullptr);
        EXPECT_EQ(pdf.load(soubor), QPdfDocument::Error::None);
        return pdf.pageCount();
    }
};

TEST_F(Nahled, UkazujeStranyAMeniVelikostKlavesami) {
    auto& pohled = prvek<QPdfView>(*okno, "nahled");
    EXPECT_EQ(pohled.document()->pageCount(), 3);
    EXPECT_EQ(prvek<QLabel>(*okno, "strana").text(), "Strana 1 z 3");
    EXPECT_EQ(pohled.zoomMode(), QPdfView::ZoomMode::FitToWidth);
    EXPECT_TRUE(QTest::qWaitFor([&] { return cernych_bodu(pohled) > 500; })) << "prázdná strana";
    const auto klavesa = [&](Qt::Key k) {
        QTest::keyClick(okno.get(), k, Qt::ControlModifier);
        QTest::qWait(150);
        return pohled.zoomFactor();
    };
    const double vetsi = klavesa(Qt::Key_Plus);
    EXPECT_GT(klavesa(Qt::Key_Equal), vetsi);
    EXPECT_NEAR(klavesa(Qt::Key_Minus), vetsi, 0.001);
    klavesa(Qt::Key_0);
    EXPECT_EQ(pohled.zoomMode(), QPdfView::ZoomMode::FitToWidth);
    QTest::keyClick(&pohled, Qt::Key_PageDown);
    QTest::keyClick(&pohled, Qt::Key_PageDown);
    EXPECT_NE(prvek<QLabel>(*okno, "strana").text(), "Strana 1 z 3");
}

TEST_F(Nahled, UkladaPdfAText) {
    EXPECT_EQ(stran(uloz("acUlozitPdf", "sestava.pdf")), 3);
    uloz("acUlozitText", "sestava");  // the suffix is added
    EXPECT_NE(base::precti_soubor(slozka / "sestava.txt", 100000).find("Říhová Ťuňďa"),
              std::string::npos);
}

TEST_F(Nahled, TiskneZvoleneStrany) {
    const QString soubor = desktop::do_qt((slozka / "tisk.pdf").string());
    QPrinter tiskarna;
    tiskarna.setResolution(72);
    tiskarna.setOutputFileName(soubor);
    desktop::vytiskni(*prvek<QPdfView>(*okno, "nahled").document(), tiskarna, 2, 3);
    EXPECT_EQ(stran(soubor), 2);
}

TEST_F(Nahled, EscapeZavre) {
    QTest::keyClick(okno.get(), Qt::Key_Escape);
    EXPECT_TRUE(form.zavreno);
    EXPECT_FALSE(okno->isVisible());
}

}  // namespace
