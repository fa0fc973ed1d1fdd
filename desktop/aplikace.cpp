#include "desktop/aplikace.h"

#include <QDialog>

#include "base/obsluha.h"

namespace desktop {

Aplikace::Aplikace(int& pocet, char** argumenty) : QApplication(pocet, argumenty) {
    setApplicationName("zorv");
    setApplicationDisplayName("Velmar Zorv");
}

bool Aplikace::notify(QObject* prijemce, QEvent* udalost) {
    bool zpracovano = true;
    proved([&] { zpracovano = QApplication::notify(prijemce, udalost); });
    return zpracovano;
}

void Aplikace::proved(const std::function<void()>& krok) {
    try {
        krok();
    } catch (const base::UkonceniProgramu&) {
        ukonci();
    } catch (const std::exception& chyba) {
        if (ohlas_chybu) {
            ohlas_chybu(std::string("V programu nastala tato chyba:\r\n\r\n") + chyba.what());
        }
    }
}

void Aplikace::ukonci() {
    ukoncena_ = true;
    for (QWidget* okno : topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(okno);
        dialog ? dialog->done(QDialog::Rejected) : okno->hide();
    }
    quit();
}

}  // namespace desktop
