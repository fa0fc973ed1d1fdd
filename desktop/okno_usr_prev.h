// The window of TFUsrPrev: the report as its PDF looks, with printing and storing.
#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPdfDocument>

#include "desktop/okno.h"
#include "report/nahled.h"

class QLabel;
class QPdfView;

namespace desktop {

class OknoUsrPrev final : public Okno {
  public:
    OknoUsrPrev(report::TFUsrPrev& form, const shell::Session& session, QWidget* rodic);
    ~OknoUsrPrev() override;

  private:
    void pridej_zvetsovani();
    /// Times the present size; the first change leaves the width of the window.
    void zvetsi(double kolikrat);
    void na_sirku();
    void ukaz_stranu();
    void tiskni();
    void uloz_pdf();
    void uloz_text();
    /// The file chosen by the operator, offered under the report's name; empty when he gave up.
    QString vyber_soubor(const QString& nadpis, const QString& pripona);

    report::TFUsrPrev& form_;
    QByteArray data_;
    QBuffer zdroj_;
    QPdfDocument pdf_;
    QPdfView* pohled_;
    QLabel* strana_;
};

}  // namespace desktop
