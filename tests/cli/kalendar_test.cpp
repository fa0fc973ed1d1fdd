// Work calendars and insurers of a new company from the command line.
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

class Kalendare : public Prikaz {};

TEST_F(Kalendare, SeznamUkazeRocniFondy) {
    zaloz_firmu("PEKARNA22");
    projde({"kalendar", "zakladni"});
    const std::string seznam = projde({"kalendar", "seznam"});
    for (const char* cast : {"fond hodin", "2022  Základní  Základní 7:30 hodin     1890:00",
                             "2022  Základní  Základní 8:00 hodin     2016:00"})
        EXPECT_NE(seznam.find(cast), std::string::npos) << seznam;
}

TEST_F(Kalendare, NovaFirmaDostanePojistovnyJenNaPrani) {
    projde({"firma", "zaloz", "PRVNI22"});
    projde({"firma", "zaloz", "DRUHA22", "--pojistovny"});
    const std::vector<std::string> dotaz{"sql", "SELECT Cislo, Kod_zp FROM Zdr_poj"};
    firma = "PRVNI22";
    EXPECT_EQ(projde(dotaz).find("111"), std::string::npos);
    firma = "DRUHA22";
    const std::string vypis = projde(dotaz);
    for (const char* kod : {"111", "201", "205", "207", "209", "211", "213"})
        EXPECT_NE(vypis.find(kod), std::string::npos) << vypis;
}

}  // namespace

}  // namespace zkouska
