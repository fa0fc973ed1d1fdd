#include "base/text.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/coll.h>
#include <unicode/locid.h>

#include "base/chyba.h"
#include "base/utf8.h"

namespace base {
namespace {

constexpr std::string_view k_prazdne_znaky = " \t\r\n";

bool je_cislice(char c) {
    return c >= '0' && c <= '9';
}

bool je_cislice_nebo_mezera(char c) {
    return je_cislice(c) || c == ' ';
}

char male_ascii(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Length of the leading digits and blanks of an address line.
std::size_t delka_psc(std::string_view text) {
    const auto konec = std::find_if_not(text.begin(), text.end(), je_cislice_nebo_mezera);
    return static_cast<std::size_t>(konec - text.begin());
}

bool zacina_znak(char bajt) {
    return (static_cast<unsigned char>(bajt) & 0xC0U) != 0x80U;
}

/// Byte position of character `n`, counted from 0; the text's length when it is shorter.
std::size_t pozice_znaku(std::string_view text, std::size_t n) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (!zacina_znak(text[i])) continue;
        if (n == 0) return i;
        --n;
    }
    return text.size();
}

void over_icu(UErrorCode stav, const char* co) {
    if (U_FAILURE(stav)) throw ChybaDat(std::string(co) + ": " + u_errorName(stav));
}

icu::StringPiece kus(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

using PrevodVelikosti = void (*)(std::string_view, icu::ByteSink&, UErrorCode&);

std::string preved(std::string_view text, PrevodVelikosti prevod) {
    std::string vysledek;
    icu::StringByteSink<std::string> vystup(&vysledek, static_cast<std::int32_t>(text.size()));
    UErrorCode stav = U_ZERO_ERROR;
    prevod(text, vystup, stav);
    over_icu(stav, "Převod velikosti písmen");
    return vysledek;
}

std::string bez_velikosti(std::string_view text) {
    return preved(text, [](std::string_view t, icu::ByteSink& vystup, UErrorCode& stav) {
        icu::CaseMap::utf8Fold(0, kus(t), vystup, nullptr, stav);
    });
}

std::unique_ptr<const icu::Collator> vytvor_razeni(bool rozlisit_velikost) {
    UErrorCode stav = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> razeni(icu::Collator::createInstance(icu::Locale("cs"), stav));
    over_icu(stav, "České třídění není k dispozici");
    if (!rozlisit_velikost) razeni->setStrength(icu::Collator::SECONDARY);
    return razeni;
}

int porovnej(const icu::Collator& razeni, std::string_view a, std::string_view b) {
    if (a == b) return 0;
    UErrorCode stav = U_ZERO_ERROR;
    const UCollationResult vysledek = razeni.compareUTF8(kus(a), kus(b), stav);
    over_icu(stav, "České třídění");
    return vysledek;
}

}  // namespace

bool neprazdny(std::string_view text) {
    return text.find_first_not_of(k_prazdne_znaky) != std::string_view::npos;
}

std::string orez(std::string_view text) {
    const auto zacatek = text.find_first_not_of(k_prazdne_znaky);
    if (zacatek == std::string_view::npos) return "";
    const auto konec = text.find_last_not_of(k_prazdne_znaky);
    return std::string(text.substr(zacatek, konec - zacatek + 1));
}

std::optional<int> cele_cislo_z_textu(std::string_view text) {
    const std::string cislo = orez(text);
    const char* od = cislo.data();
    const char* const konec = od + cislo.size();
    if (cislo.size() > 1 && cislo[0] == '+' && je_cislice(cislo[1])) ++od;
    int hodnota = 0;
    const auto [kde, chyba] = std::from_chars(od, konec, hodnota);
    if (chyba != std::errc() || kde != konec) return std::nullopt;
    return hodnota;
}

int je_cele_cislo(std::string_view text) {
    return cele_cislo_z_textu(text).value_or(0);
}

Castka je_desetinne_cislo(std::string_view text) {
    std::string cislo = orez(text);
    const bool zaporne = cislo.starts_with('-');
    if (zaporne || cislo.starts_with('+')) cislo.erase(0, 1);
    if (const auto carka = cislo.find(','); carka != std::string::npos) cislo[carka] = '.';
    // The conversion also knows words such as "inf"; a number here is made of digits.
    if (!std::all_of(cislo.begin(), cislo.end(), [](char c) { return je_cislice(c) || c == '.'; }))
        return 0;
    Castka hodnota = 0;
    const char* const konec = cislo.data() + cislo.size();
    const auto [kde, chyba] =
        std::from_chars(cislo.data(), konec, hodnota, std::chars_format::fixed);
    if (chyba != std::errc() || kde != konec) return 0;
    return zaporne ? -hodnota : hodnota;
}

std::string cislo_s_nulami(long long n, int sirka) {
    const std::string cislo = std::to_string(n);
    return opakuj_znak('0', sirka - static_cast<int>(cislo.size())) + cislo;
}

std::string opakuj_znak(char c, int n) {
    return std::string(static_cast<std::size_t>(std::max(n, 0)), c);
}

std::string mezery(int n) {
    return opakuj_znak(' ', n);
}

std::string odstran_mezery(int rezim, std::string_view text) {
    const auto zacatek = text.find_first_not_of(' ');
    if (zacatek == std::string_view::npos) return "";
    if (rezim == 1) return std::string(text.substr(zacatek));
    return std::string(text.substr(0, text.find_last_not_of(' ') + 1));
}

std::vector<std::string> rozdel_text(std::string_view text, char oddelovac) {
    std::vector<std::string> kusy;
    for (auto konec = text.find(oddelovac); konec != std::string_view::npos;
         konec = text.find(oddelovac)) {
        kusy.push_back(orez(text.substr(0, konec)));
        text.remove_prefix(konec + 1);
    }
    if (neprazdny(text)) kusy.push_back(orez(text));
    return kusy;
}

std::string jen_cislice(std::string_view text) {
    std::string cislice;
    std::copy_if(text.begin(), text.end(), std::back_inserter(cislice), je_cislice);
    return cislice;
}

std::string psc_z_adresy(std::string_view text) {
    return jen_cislice(text.substr(0, delka_psc(text))).substr(0, 5);
}

std::string obec_z_adresy(std::string_view text) {
    return std::string(text.substr(delka_psc(text)));
}

std::pair<std::string, std::string> prijmeni_jmeno(std::string_view text) {
    const auto mezera = text.rfind(' ');
    if (mezera == std::string_view::npos) return {std::string(text), ""};
    return {std::string(text.substr(0, mezera)), std::string(text.substr(mezera + 1))};
}

std::size_t pocet_znaku(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), zacina_znak));
}

std::string znaky(std::string_view text, std::size_t od, std::size_t kolik) {
    const std::string_view zbytek = text.substr(pozice_znaku(text, od > 0 ? od - 1 : 0));
    return std::string(zbytek.substr(0, pozice_znaku(zbytek, kolik)));
}

std::string na_sirku(std::string_view text, std::size_t sirka) {
    std::string pole = nejvyse(text, sirka);
    pole.append(sirka - pocet_znaku(pole), ' ');
    return pole;
}

std::string nejvyse(std::string_view text, std::size_t sirka) {
    return std::string(text.substr(0, pozice_znaku(text, sirka)));
}

std::string velkymi(std::string_view text) {
    return preved(text, [](std::string_view t, icu::ByteSink& vystup, UErrorCode& stav) {
        icu::CaseMap::utf8ToUpper("cs", 0, kus(t), vystup, nullptr, stav);
    });
}

std::string malymi(std::string_view text) {
    return preved(text, [](std::string_view t, icu::ByteSink& vystup, UErrorCode& stav) {
        icu::CaseMap::utf8ToLower("cs", 0, kus(t), vystup, nullptr, stav);
    });
}

bool stejne_bez_velikosti(std::string_view a, std::string_view b) {
    if (je_ascii(a) && je_ascii(b))
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [](char x, char y) { return male_ascii(x) == male_ascii(y); });
    return bez_velikosti(a) == bez_velikosti(b);
}

bool je_utf8(std::string_view text) {
    for (std::size_t i = 0; i < text.size();)
        if (dalsi_znak(text, i) < 0) return false;
    return true;
}

int porovnej_cesky(std::string_view a, std::string_view b) {
    static const auto razeni = vytvor_razeni(true);
    return porovnej(*razeni, a, b);
}

int porovnej_cesky_bez_velikosti(std::string_view a, std::string_view b) {
    static const auto razeni = vytvor_razeni(false);
    return porovnej(*razeni, a, b);
}

std::int32_t verze_ceskeho_trideni() {
    static const auto razeni = vytvor_razeni(true);
    UVersionInfo verze;
    razeni->getVersion(verze);
    std::uint32_t cislo = 0;
    for (const std::uint8_t cast : verze)
        cislo = cislo << 8U | cast;
    return static_cast<std::int32_t>(cislo);
}

}  // namespace base
