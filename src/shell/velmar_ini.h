// `Velmar.ini`: what the program knows about itself before a company is open. It lies beside the
// program file. Where that folder takes no writes, as in an installed package, it is read there
// first and every choice goes to the user's own file, which wins.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/chyba.h"

namespace shell {

struct VelmarIni {
    std::string root;  ///< "Data"/"root"
    int font_size = 9;
    int vzhled_id = 0;
    bool pamatovat_okna = true;
    std::string firma_mz;  ///< "Firma"/"mz", the last company
    bool logovat = true;
};

struct SlozkyProgramu {
    std::filesystem::path programu;  ///< the folder of the program file
    std::filesystem::path vlastni;   ///< the user's folder; empty when the program's takes writes
};
SlozkyProgramu slozky_programu(const std::filesystem::path& slozka_programu);

/// The data root of a program that was told none: the root of the program folder's drive;
/// `~/zorv-data` where the program folder takes no writes.
std::filesystem::path vychozi_koren_dat(const SlozkyProgramu& slozky);

/// A file that is missing, or a key of it, has the default. Throws base::ChybaDat naming a file
/// that cannot be read.
VelmarIni cti_velmar_ini(const SlozkyProgramu& slozky);
/// Throws base::ChybaDat naming the file that cannot be written.
void zapis_velmar_ini(const SlozkyProgramu& slozky, std::string_view sekce, std::string_view klic,
                      std::string_view hodnota);

/// The folder for what the program writes for itself; the user's one is made when missing.
std::filesystem::path slozka_pro_zapis(const SlozkyProgramu& slozky);

}  // namespace shell
