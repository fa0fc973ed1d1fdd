// The restart: the program started behind this one.
#include "desktop/restart.h"

#include <filesystem>

#include "base/soubory.h"
#include "prostredi_qt.h"
#include "support/docasna_slozka.h"

namespace {

using namespace zkouska;

TEST(Restart, SpusteciProgramDostaneArgumentyABezNejSeToRekne) {
    const DocasnaSlozka slozka;
    const auto program = slozka / "RestartZorv.exe", zapsano = slozka / "argumenty";
    base::zapis_soubor(program, "#!/bin/sh\nprintf '%s|' \"$@\" >\"$0.tmp\"\nmv \"$0.tmp\" " +
                                    zapsano.string() + "\n");
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    EXPECT_TRUE(desktop::spust_po_zavreni(program.string(), {"menu", "--root", "/moje data"}));
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(zapsano); }));
    EXPECT_EQ(base::precti_soubor(zapsano, 100), "menu|--root|/moje data|");

    QString zprava;
    v_okne([&](QWidget& okno) {
        zprava = okno.property("text").toString();
        QTest::keyClick(&okno, Qt::Key_Return);
    });
    EXPECT_FALSE(desktop::spust_po_zavreni((slozka / "neni").string(), {}));
    EXPECT_EQ(zprava, "Ukončete program a spusťte jej znovu.");
}

}  // namespace
