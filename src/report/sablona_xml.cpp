#include "report/sablona_xml.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fmt/format.h>

#include "base/chyba.h"
#include "base/text.h"

namespace report {

namespace {

std::string kratce(double cislo) {
    return fmt::format("{:g}", std::floor(cislo * 100) / 100);
}

}  // namespace

XmlSablony::XmlSablony(std::string_view xml, std::string soubor, const char* koren)
    : soubor_(std::move(soubor)) {
    if (!base::je_utf8(xml) || xml.find('\0') != std::string_view::npos) {
        throw base::ChybaDat("Sestava \"" + soubor_ + "\" není text v UTF-8.");
    }
    for (std::size_t i = 0; i < xml.size(); ++i) {
        if (xml[i] == '\n') konce_radku_.push_back(static_cast<std::ptrdiff_t>(i));
    }
    const auto vysledek =
        dokument_.load_buffer(xml.data(), xml.size(), pugi::parse_default, pugi::encoding_utf8);
    if (!vysledek) {
        throw base::ChybaDat(misto(radek(vysledek.offset)) + ": není správné XML (" +
                             vysledek.description() + ").");
    }
    if (this->koren().name() != std::string_view(koren)) {
        chyba(this->koren(), "čekám kořen <" + std::string(koren) + ">");
    }
}

int XmlSablony::radek(std::ptrdiff_t kde) const {
    const auto radek = std::ranges::lower_bound(konce_radku_, kde);
    return static_cast<int>(radek - konce_radku_.begin()) + 1;
}

int XmlSablony::radek(const Uzel& uzel) const {
    return radek(uzel.offset_debug());
}

std::string XmlSablony::misto(int radek) const {
    return "Sestava \"" + soubor_ + "\", řádek " + std::to_string(radek);
}

void XmlSablony::chyba(const Uzel& uzel, const std::string& co) const {
    throw base::ChybaDat(misto(radek(uzel)) + ", <" + uzel.name() + ">: " + co + ".");
}

void XmlSablony::neznamy(const Uzel& uzel, const std::string& cekam) const {
    const bool text = uzel.type() != pugi::node_element;
    chyba(text ? uzel.parent() : uzel, "čekám " + cekam + (text ? ", je tu text" : ""));
}

void XmlSablony::atributy(const Uzel& uzel, const std::vector<std::string_view>& zname) const {
    for (const auto& atribut : uzel.attributes()) {
        if (std::ranges::find(zname, std::string_view(atribut.name())) == zname.end()) {
            chyba(uzel, "neznámý atribut \"" + std::string(atribut.name()) + "\"");
        }
    }
}

std::string XmlSablony::povinny(const Uzel& uzel, const char* jmeno) const {
    const std::string hodnota = uzel.attribute(jmeno).value();
    if (!base::neprazdny(hodnota)) {
        chyba(uzel, "chybí atribut \"" + std::string(jmeno) + "\"");
    }
    return hodnota;
}

double XmlSablony::cislo(const Uzel& uzel, const char* jmeno, const Meze& meze,
                         std::optional<double> vychozi) const {
    if (vychozi && !uzel.attribute(jmeno)) return *vychozi;
    const std::string text = povinny(uzel, jmeno);
    double hodnota = 0;
    const auto [konec, stav] = std::from_chars(text.data(), text.data() + text.size(), hodnota);
    const bool cele = stav == std::errc() && konec == text.data() + text.size();
    constexpr double k_tolerance = 0.001;
    if (!cele || !(hodnota >= meze.od && hodnota <= meze.do_ + k_tolerance)) {
        chyba(uzel, std::string(jmeno) + "=\"" + text + "\": čekám číslo od " + kratce(meze.od) +
                        " do " + kratce(meze.do_));
    }
    return hodnota;
}

bool XmlSablony::ano_ne(const Uzel& uzel, const char* jmeno) const {
    return vyber<bool>(uzel, jmeno, {{"ne", false}, {"ano", true}});
}

}  // namespace report
