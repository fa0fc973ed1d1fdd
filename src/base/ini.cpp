// The file is kept line by line as it was read, so that writing changes only the lines that were
// asked for: comments, blank lines and keys of other programs stay where they are.
#include "base/ini.h"

#include <algorithm>
#include <system_error>

#include "base/kodova_stranka.h"
#include "base/soubory.h"
#include "base/text.h"

namespace base {
namespace {

constexpr std::size_t k_nejvetsi_ini = std::size_t{4} << 20U;
constexpr std::string_view k_bom = "\xEF\xBB\xBF";

enum class Druh { jiny, sekce, klic };

struct Radek {
    std::string text;  ///< without the line feed
    Druh druh = Druh::jiny;
    std::string jmeno;  ///< of the section or the key
    std::string hodnota;
};

Radek rozeber(std::string_view text) {
    Radek radek{std::string(text), Druh::jiny, "", ""};
    const std::string obsah = orez(text);
    if (obsah.empty() || obsah[0] == ';' || obsah[0] == '#') return radek;
    if (obsah[0] == '[') {
        const auto konec = obsah.find(']');
        if (konec == std::string::npos) return radek;
        radek.druh = Druh::sekce;
        radek.jmeno = orez(std::string_view(obsah).substr(1, konec - 1));
    } else if (const auto rovnitko = obsah.find('='); rovnitko != std::string::npos) {
        radek.druh = Druh::klic;
        radek.jmeno = orez(std::string_view(obsah).substr(0, rovnitko));
        radek.hodnota = orez(std::string_view(obsah).substr(rovnitko + 1));
    }
    return radek;
}

/// One line's worth of text: a line end inside would start another key.
std::string na_jeden_radek(std::string_view hodnota) {
    std::string text(hodnota);
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return text;
}

}  // namespace

struct IniSoubor::Obsah {
    std::vector<Radek> radky;
    std::string konec_radku;  ///< "\r" in a file with such line ends

    explicit Obsah(std::string_view text) {
        if (text.starts_with(k_bom)) text.remove_prefix(k_bom.size());
        while (!text.empty()) {
            const auto konec = std::min(text.find('\n'), text.size());
            radky.push_back(rozeber(text.substr(0, konec)));
            text.remove_prefix(std::min(konec + 1, text.size()));
        }
        if (!radky.empty() && radky[0].text.ends_with('\r')) konec_radku = "\r";
    }

    Radek novy(const std::string& text) const { return rozeber(text + konec_radku); }

    bool je_sekce(std::size_t i, std::string_view sekce) const {
        return radky[i].druh == Druh::sekce && stejne_bez_velikosti(radky[i].jmeno, sekce);
    }

    /// Calls `co` with the index of each key line of the section, until it returns false.
    template <typename F>
    void pro_klice(std::string_view sekce, F co) const {
        bool uvnitr = false;
        for (std::size_t i = 0; i < radky.size(); ++i) {
            if (radky[i].druh == Druh::sekce) uvnitr = je_sekce(i, sekce);
            if (uvnitr && radky[i].druh == Druh::klic && !co(i)) return;
        }
    }

    /// Index of the key's first line; the number of lines when there is none.
    std::size_t najdi(std::string_view sekce, std::string_view klic) const {
        std::size_t nalezeno = radky.size();
        pro_klice(sekce, [&](std::size_t i) {
            if (!stejne_bez_velikosti(radky[i].jmeno, klic)) return true;
            nalezeno = i;
            return false;
        });
        return nalezeno;
    }

    /// Where a new key of the section belongs: behind its last line that is not blank. The section
    /// is added when missing.
    std::size_t konec_sekce(std::string_view sekce) {
        std::size_t i = 0;
        while (i < radky.size() && !je_sekce(i, sekce))
            ++i;
        if (i == radky.size()) {
            if (i > 0 && neprazdny(radky.back().text)) radky.push_back(novy(""));
            radky.push_back(novy("[" + na_jeden_radek(sekce) + "]"));
            return radky.size();
        }
        std::size_t konec = i + 1;
        for (++i; i < radky.size() && radky[i].druh != Druh::sekce; ++i)
            if (neprazdny(radky[i].text)) konec = i + 1;
        return konec;
    }

    std::string text() const {
        std::string vysledek;
        for (const Radek& radek : radky)
            vysledek += radek.text + "\n";
        return vysledek;
    }
};

namespace {

std::string precti_ini(const std::filesystem::path& soubor) {
    std::error_code chyba;
    if (!std::filesystem::exists(soubor, chyba)) return "";
    std::string text = precti_soubor(soubor, k_nejvetsi_ini);
    // Files of older installations are in the code page of their time.
    return je_utf8(text) ? text : z_1250(text);
}

}  // namespace

IniSoubor::IniSoubor(std::filesystem::path soubor)
    : soubor_(std::move(soubor)), obsah_(std::make_unique<Obsah>(precti_ini(soubor_))) {}

IniSoubor::IniSoubor(std::filesystem::path soubor, std::unique_ptr<Obsah> obsah)
    : soubor_(std::move(soubor)), obsah_(std::move(obsah)) {}

IniSoubor::~IniSoubor() = default;
IniSoubor::IniSoubor(IniSoubor&&) noexcept = default;
IniSoubor& IniSoubor::operator=(IniSoubor&&) noexcept = default;

IniSoubor IniSoubor::z_textu(std::string_view text, std::filesystem::path soubor) {
    return {std::move(soubor), std::make_unique<Obsah>(text)};
}

std::optional<std::string> IniSoubor::hodnota(std::string_view sekce, std::string_view klic) const {
    const std::size_t i = obsah_->najdi(sekce, klic);
    if (i == obsah_->radky.size()) return std::nullopt;
    return obsah_->radky[i].hodnota;
}

int IniSoubor::cislo(std::string_view sekce, std::string_view klic, int vychozi) const {
    return cele_cislo_z_textu(hodnota(sekce, klic).value_or("")).value_or(vychozi);
}

bool IniSoubor::logicke(std::string_view sekce, std::string_view klic, bool vychozi) const {
    const std::string slovo = malymi(hodnota(sekce, klic).value_or(""));
    if (slovo == "1" || slovo == "true" || slovo == "ano") return true;
    if (slovo == "0" || slovo == "false" || slovo == "ne") return false;
    return vychozi;
}

void IniSoubor::nastav(std::string_view sekce, std::string_view klic, std::string_view hodnota) {
    auto& radky = obsah_->radky;
    const std::size_t i = obsah_->najdi(sekce, klic);
    if (i < radky.size()) {
        radky[i] = obsah_->novy(radky[i].jmeno + "=" + na_jeden_radek(hodnota));
        return;
    }
    const auto kam = static_cast<std::ptrdiff_t>(obsah_->konec_sekce(sekce));
    radky.insert(radky.begin() + kam,
                 obsah_->novy(na_jeden_radek(klic) + "=" + na_jeden_radek(hodnota)));
}

void IniSoubor::smaz_klic(std::string_view sekce, std::string_view klic) {
    auto& radky = obsah_->radky;
    for (std::size_t i; (i = obsah_->najdi(sekce, klic)) < radky.size();)
        radky.erase(radky.begin() + static_cast<std::ptrdiff_t>(i));
}

void IniSoubor::smaz_sekci(std::string_view sekce) {
    auto& radky = obsah_->radky;
    for (std::size_t od = 0; od < radky.size();) {
        if (!obsah_->je_sekce(od, sekce)) {
            ++od;
            continue;
        }
        std::size_t do_ = od + 1;
        while (do_ < radky.size() && radky[do_].druh != Druh::sekce)
            ++do_;
        // Comments right above the next section belong to that one.
        while (do_ > od + 1 && radky[do_ - 1].druh == Druh::jiny)
            --do_;
        radky.erase(radky.begin() + static_cast<std::ptrdiff_t>(od),
                    radky.begin() + static_cast<std::ptrdiff_t>(do_));
    }
}

std::vector<std::string> IniSoubor::klice(std::string_view sekce) const {
    std::vector<std::string> jmena;
    obsah_->pro_klice(sekce, [&](std::size_t i) {
        jmena.push_back(obsah_->radky[i].jmeno);
        return true;
    });
    return jmena;
}

std::string IniSoubor::text() const {
    return obsah_->text();
}

void IniSoubor::uloz() const {
    zapis_soubor(soubor_, text());
}

std::string cti_ini_text(const std::filesystem::path& soubor, std::string_view sekce,
                         std::string_view klic, std::string_view vychozi) {
    return IniSoubor(soubor).hodnota(sekce, klic).value_or(std::string(vychozi));
}

int cti_ini_cislo(const std::filesystem::path& soubor, std::string_view sekce,
                  std::string_view klic, int vychozi) {
    return IniSoubor(soubor).cislo(sekce, klic, vychozi);
}

bool cti_ini_logicke(const std::filesystem::path& soubor, std::string_view sekce,
                     std::string_view klic, bool vychozi) {
    return IniSoubor(soubor).logicke(sekce, klic, vychozi);
}

void zapis_ini_text(const std::filesystem::path& soubor, std::string_view sekce,
                    std::string_view klic, std::string_view hodnota) {
    IniSoubor ini(soubor);
    ini.nastav(sekce, klic, hodnota);
    ini.uloz();
}

void zapis_ini_cislo(const std::filesystem::path& soubor, std::string_view sekce,
                     std::string_view klic, int hodnota) {
    zapis_ini_text(soubor, sekce, klic, std::to_string(hodnota));
}

void zapis_ini_logicke(const std::filesystem::path& soubor, std::string_view sekce,
                       std::string_view klic, bool hodnota) {
    zapis_ini_text(soubor, sekce, klic, hodnota ? "1" : "0");
}

void zapis_seznam_do_ini(const std::filesystem::path& soubor, std::string_view sekce,
                         std::string_view predpona, const std::vector<std::string>& seznam) {
    IniSoubor ini(soubor);
    ini.smaz_sekci(sekce);
    for (std::size_t i = 0; i < seznam.size(); ++i)
        ini.nastav(sekce, std::string(predpona) + std::to_string(i + 1), seznam[i]);
    ini.uloz();
}

std::vector<std::string> cti_seznam_z_ini(const std::filesystem::path& soubor,
                                          std::string_view sekce) {
    const IniSoubor ini(soubor);
    std::vector<std::string> hodnoty;
    for (const std::string& klic : ini.klice(sekce))
        hodnoty.push_back(ini.hodnota(sekce, klic).value_or(""));
    return hodnoty;
}

}  // namespace base
