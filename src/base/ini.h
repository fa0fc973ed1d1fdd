// Ini files by section and key. Each helper opens the file by its full path, does its one step and
// closes; unknown sections, keys and comments are kept on writing. Texts are UTF-8; names are
// compared without regard to case.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/chyba.h"

namespace base {

/// An ini file held open for several steps.
class IniSoubor {
  public:
    /// A missing file is an empty one. Throws ChybaDat naming the file for one that cannot be read.
    explicit IniSoubor(std::filesystem::path soubor);
    /// From a text already read; `soubor` is where `uloz` writes to.
    static IniSoubor z_textu(std::string_view text, std::filesystem::path soubor);
    ~IniSoubor();
    IniSoubor(IniSoubor&&) noexcept;
    IniSoubor& operator=(IniSoubor&&) noexcept;

    std::optional<std::string> hodnota(std::string_view sekce, std::string_view klic) const;
    /// A value that is no number, or none, gives the default.
    int cislo(std::string_view sekce, std::string_view klic, int vychozi) const;
    /// "1", "true", "ano" are true, "0", "false", "ne" false, anything else the default.
    bool logicke(std::string_view sekce, std::string_view klic, bool vychozi) const;
    /// A line end inside the value becomes a blank.
    void nastav(std::string_view sekce, std::string_view klic, std::string_view hodnota);
    void smaz_klic(std::string_view sekce, std::string_view klic);
    /// Comments right above the next section stay with it.
    void smaz_sekci(std::string_view sekce);
    /// Keys of a section in file order.
    std::vector<std::string> klice(std::string_view sekce) const;
    std::string text() const;
    /// Writes the whole file, the old or the new one, never half.
    void uloz() const;

  private:
    struct Obsah;
    IniSoubor(std::filesystem::path soubor, std::unique_ptr<Obsah> obsah);
    std::filesystem::path soubor_;
    std::unique_ptr<Obsah> obsah_;
};

std::string cti_ini_text(const std::filesystem::path& soubor, std::string_view sekce,
                         std::string_view klic, std::string_view vychozi);
int cti_ini_cislo(const std::filesystem::path& soubor, std::string_view sekce,
                  std::string_view klic, int vychozi);
bool cti_ini_logicke(const std::filesystem::path& soubor, std::string_view sekce,
                     std::string_view klic, bool vychozi);
void zapis_ini_text(const std::filesystem::path& soubor, std::string_view sekce,
                    std::string_view klic, std::string_view hodnota);
void zapis_ini_cislo(const std::filesystem::path& soubor, std::string_view sekce,
                     std::string_view klic, int hodnota);
/// Writes "1" or "0".
void zapis_ini_logicke(const std::filesystem::path& soubor, std::string_view sekce,
                       std::string_view klic, bool hodnota);
/// Erases the section and writes the list as `predpona`1, `predpona`2 and so on.
void zapis_seznam_do_ini(const std::filesystem::path& soubor, std::string_view sekce,
                         std::string_view predpona, const std::vector<std::string>& seznam);
/// The values of a section in file order.
std::vector<std::string> cti_seznam_z_ini(const std::filesystem::path& soubor,
                                          std::string_view sekce);

}  // namespace base
