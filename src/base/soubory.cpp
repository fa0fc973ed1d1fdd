#include "base/soubory.h"

#include <cerrno>
#include <fcntl.h>
#include <fmt/format.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace base {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void selhalo(const fs::path& soubor, const char* co) {
    const int chyba = errno;
    if (chyba == ENOENT)
        throw ChybaDat(
            fmt::format("Soubor \"{}\" nebo jeho složka nebyly nalezeny.", soubor.string()));
    throw ChybaDat(fmt::format("Soubor \"{}\" {}: {}", soubor.string(), co,
                               std::generic_category().message(chyba)));
}

/// An open file that closes itself.
class Popisovac {
  public:
    explicit Popisovac(int cislo) : cislo_(cislo) {}
    ~Popisovac() {
        if (cislo_ >= 0) ::close(cislo_);
    }
    Popisovac(const Popisovac&) = delete;
    Popisovac& operator=(const Popisovac&) = delete;

    int cislo() const { return cislo_; }
    bool zavri() {
        const int vysledek = ::close(cislo_);
        cislo_ = -1;
        return vysledek == 0;
    }

  private:
    int cislo_;
};

/// A new file beside the target; removed unless it was renamed to its place.
class Soused {
  public:
    explicit Soused(const fs::path& cil) : cil_(cil), jmeno_(cil.string() + ".XXXXXX") {
        cislo_ = ::mkostemp(jmeno_.data(), O_CLOEXEC);  // exclusive, readable by its owner alone
    }
    ~Soused() {
        if (cislo_ >= 0 && !na_miste_) ::unlink(jmeno_.c_str());
    }
    Soused(const Soused&) = delete;
    Soused& operator=(const Soused&) = delete;

    int cislo() const { return cislo_; }
    bool prejmenuj() {
        na_miste_ = ::rename(jmeno_.c_str(), cil_.c_str()) == 0;
        return na_miste_;
    }

  private:
    fs::path cil_;
    std::string jmeno_;
    int cislo_ = -1;
    bool na_miste_ = false;
};

bool zapis_vse(int cislo, std::string_view obsah) {
    while (!obsah.empty()) {
        const ssize_t zapsano = ::write(cislo, obsah.data(), obsah.size());
        if (zapsano < 0 && errno == EINTR) continue;
        if (zapsano < 0) return false;
        obsah.remove_prefix(static_cast<std::size_t>(zapsano));
    }
    return true;
}

/// Makes the renaming itself last. The new content stands by then, so a folder that cannot be
/// flushed is no reason to tell the operator that writing failed.
void uloz_slozku_na_disk(const fs::path& slozka) {
    const Popisovac popisovac(
        ::open(slozka.empty() ? "." : slozka.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (popisovac.cislo() >= 0) ::fsync(popisovac.cislo());
}

}  // namespace

std::string precti_soubor(const fs::path& soubor, std::size_t nejvyse) {
    const Popisovac vstup(::open(soubor.c_str(), O_RDONLY | O_CLOEXEC));
    if (vstup.cislo() < 0) selhalo(soubor, "nelze otevřít");
    std::string obsah;
    char blok[16384];
    for (;;) {
        const ssize_t precteno = ::read(vstup.cislo(), blok, sizeof blok);
        if (precteno < 0 && errno == EINTR) continue;
        if (precteno < 0) selhalo(soubor, "nelze přečíst");
        if (precteno == 0) return obsah;
        obsah.append(blok, static_cast<std::size_t>(precteno));
        if (obsah.size() > nejvyse)
            throw ChybaDat(fmt::format("Soubor \"{}\" je delší než nejvýše čekaných {} bajtů.",
                                       soubor.string(), nejvyse));
    }
}

void zapis_soubor(const fs::path& soubor, std::string_view obsah) {
    Soused soused(soubor);
    if (soused.cislo() < 0) selhalo(soubor, "nelze zapsat");
    Popisovac vystup(soused.cislo());
    if (!zapis_vse(vystup.cislo(), obsah) || ::fsync(vystup.cislo()) != 0 || !vystup.zavri() ||
        !soused.prejmenuj())
        selhalo(soubor, "nelze zapsat");
    uloz_slozku_na_disk(soubor.parent_path());
}

}  // namespace base
