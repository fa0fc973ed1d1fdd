#include "shell/velmar_ini.h"

#include <system_error>

#include "base/ini.h"
#include "base/slozky.h"
#include "shell/disk.h"

namespace shell {

namespace {

namespace fs = std::filesystem;

constexpr const char* k_soubor = "Velmar.ini";

/// The values of one file; what it does not name stays as in `vychozi`.
VelmarIni cti_soubor(const fs::path& soubor, const VelmarIni& vychozi) {
    const base::IniSoubor ini(soubor);
    VelmarIni velmar;
    velmar.root = ini.hodnota("Data", "root").value_or(vychozi.root);
    velmar.font_size = ini.cislo("Vzhled", "font_size", vychozi.font_size);
    velmar.vzhled_id = ini.cislo("Vzhled", "vzhled_id", vychozi.vzhled_id);
    velmar.pamatovat_okna = ini.logicke("Vzhled", "pamatovat_okna", vychozi.pamatovat_okna);
    velmar.firma_mz = ini.hodnota("Firma", "mz").value_or(vychozi.firma_mz);
    velmar.logovat = ini.logicke("System", "logovat", vychozi.logovat);
    return velmar;
}

}  // namespace

SlozkyProgramu slozky_programu(const fs::path& slozka_programu) {
    if (base::lze_zapisovat(slozka_programu)) return {slozka_programu, {}};
    return {slozka_programu, base::slozka_konfigurace()};
}

fs::path vychozi_koren_dat(const SlozkyProgramu& slozky) {
    if (!slozky.vlastni.empty()) return base::domovska_slozka() / "zorv-data";
    const auto disk = pismeno_disku(slozky.programu);
    return disk ? fs::path(std::string{*disk, ':'}) : slozky.programu.root_path();
}

VelmarIni cti_velmar_ini(const SlozkyProgramu& slozky) {
    VelmarIni vychozi;
    vychozi.root = vychozi_koren_dat(slozky).string();
    const VelmarIni spolecne = cti_soubor(slozky.programu / k_soubor, vychozi);
    return slozky.vlastni.empty() ? spolecne : cti_soubor(slozky.vlastni / k_soubor, spolecne);
}

void zapis_velmar_ini(const SlozkyProgramu& slozky, std::string_view sekce, std::string_view klic,
                      std::string_view hodnota) {
    base::zapis_ini_text(slozka_pro_zapis(slozky) / k_soubor, sekce, klic, hodnota);
}

fs::path slozka_pro_zapis(const SlozkyProgramu& slozky) {
    if (slozky.vlastni.empty()) return slozky.programu;
    // A folder that cannot be made is told by whoever writes into it.
    std::error_code chyba;
    fs::create_directories(slozky.vlastni, chyba);
    return slozky.vlastni;
}

}  // namespace shell
