// The program's own folder and the user's folders.
#include "base/slozky.h"

#include <gtest/gtest.h>
#include <stdlib.h>

namespace {

namespace fs = std::filesystem;

TEST(Slozky, ProgramZnaSvouSkutecnouSlozkuIPodJinymJmenem) {
    const fs::path skutecna = fs::canonical("/proc/self/exe").parent_path();
    for (const char* argument : {"test_base", "", "/usr/bin/odkaz"})
        EXPECT_EQ(base::slozka_programu(argument), skutecna) << argument;
    EXPECT_TRUE(fs::exists(skutecna / "test_base"));
}

TEST(Slozky, SlozkyUzivateleZProstrediAJinakZDomova) {
    const struct {
        const char *domov, *konfigurace, *data;
        fs::path ma_konfiguraci, ma_data;
    } pripady[] = {
        {"/home/eva", "", "", "/home/eva/.config/zorv", "/home/eva/.local/share"},
        {"/home/eva", "/k", "/d", "/k/zorv", "/d"},
        {"", "", "", "./.config/zorv", "./.local/share"},
    };
    const std::string domov = base::domovska_slozka().string();
    for (const auto& p : pripady) {
        setenv("HOME", p.domov, 1);
        setenv("XDG_CONFIG_HOME", p.konfigurace, 1);
        setenv("XDG_DATA_HOME", p.data, 1);
        EXPECT_EQ(base::slozka_konfigurace(), p.ma_konfiguraci);
        EXPECT_EQ(base::slozka_uzivatele(), p.ma_data);
    }
    setenv("HOME", domov.c_str(), 1);
    unsetenv("XDG_CONFIG_HOME");
    unsetenv("XDG_DATA_HOME");
}

}  // namespace
