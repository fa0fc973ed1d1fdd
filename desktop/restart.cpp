#include "desktop/restart.h"

#include <QMessageBox>
#include <QProcess>

#include "desktop/text_qt.h"
#include "menu/unit1_hlavni.h"

namespace desktop {

bool spust_po_zavreni(const std::string& program, const QStringList& argumenty) {
    if (QProcess::startDetached(do_qt(program), argumenty)) return true;
    QMessageBox::warning(nullptr, menu::k_nadpis_odmitnuti, menu::k_spustte_znovu);
    return false;
}

}  // namespace desktop
