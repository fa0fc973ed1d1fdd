#include "desktop/aplikace.h"

#include <QDialog>
#include <QIcon>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <typeinfo>

#include "base/obsluha.h"
#include "desktop/text_qt.h"
#include "store/connection.h"

namespace desktop {

namespace {

/// The class of an error as the source names it, "base::ChybaDat".
std::string trida(const std::exception& chyba) {
    const char* jmeno = typeid(chyba).name();
    int stav = 0;
    const std::unique_ptr<char, void (*)(void*)> slovy(
        abi::__cxa_demangle(jmeno, nullptr, nullptr, &stav), std::free);
    return stav == 0 ? slovy.get() : jmeno;
}

/// Names of a control and its owners, from the inside out; those without a name are left out.
std::string vlastnici(const QObject* prvek) {
    QStringList jmena;
    for (; prvek; prvek = prvek->parent()) {
        const QString jmeno = prvek->objectName();
        // Qt gives names of its own to parts of its controls.
        if (!jmeno.isEmpty() && !jmeno.startsWith("qt_")) jmena += jmeno;
    }
    return z_qt(jmena.join("->"));
}

}  // namespace

Aplikace::Aplikace(int& pocet, char** argumenty) : QApplication(pocet, argumenty) {
    setApplicationName("zorv");
    setApplicationDisplayName("Velmar Zorv");
    // The name of the desktop entry; by it a desktop finds the icon of the windows.
    setDesktopFileName("zorv");
    setWindowIcon(QIcon::fromTheme("zorv"));
}

bool Aplikace::notify(QObject* prijemce, QEvent* udalost) {
    bool zpracovano = true;
    proved([&] { zpracovano = QApplication::notify(prijemce, udalost); }, prijemce);
    return zpracovano;
}

void Aplikace::proved(const std::function<void()>& krok, const QObject* prijemce) {
    try {
        krok();
    } catch (const base::UkonceniProgramu&) {
        ukonci();
    } catch (const store::StoreBusy& obsazeno) {
        if (ohlas_chybu) ohlas_chybu(obsazeno.what());
    } catch (const std::exception& chyba) {
        ohlas(chyba, prijemce);
    }
}

void Aplikace::ohlas(const std::exception& chyba, const QObject* prijemce) const {
    if (zapis_chybu) zapis_chybu({trida(chyba), chyba.what(), vlastnici(prijemce)});
    if (ohlas_chybu) {
        ohlas_chybu(std::string("V programu nastala tato chyba:\r\n\r\n") + chyba.what());
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
