// The XML of a template: elements, their attributes with bounds, and faults told with their place.
// Only for the files sablona_*.cpp.
#pragma once

#include <cstddef>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace report {

struct Meze {
    double od, do_;
};

class XmlSablony {
  public:
    using Uzel = pugi::xml_node;

    /// Throws base::ChybaDat when the text is no XML with this root; `soubor` is for messages. The
    /// readers below throw the same for what they do not find.
    XmlSablony(std::string_view xml, std::string soubor, const char* koren);

    Uzel koren() const { return dokument_.document_element(); }
    /// Line of the element in the file.
    int radek(const Uzel& uzel) const;

    [[noreturn]] void chyba(const Uzel& uzel, const std::string& co) const;
    /// A child that should not be there; `cekam` names those that may.
    [[noreturn]] void neznamy(const Uzel& uzel, const std::string& cekam) const;
    /// Refuses attributes other than these.
    void atributy(const Uzel& uzel, const std::vector<std::string_view>& zname) const;
    std::string povinny(const Uzel& uzel, const char* jmeno) const;
    /// A number within bounds; without a default it has to be there.
    double cislo(const Uzel& uzel, const char* jmeno, const Meze& meze,
                 std::optional<double> vychozi) const;
    bool ano_ne(const Uzel& uzel, const char* jmeno) const;
    /// One of the words; the first when the attribute is not there.
    template <class T>
    T vyber(const Uzel& uzel, const char* jmeno,
            const std::vector<std::pair<std::string_view, T>>& slova) const {
        const pugi::xml_attribute atribut = uzel.attribute(jmeno);
        if (!atribut) return slova.front().second;
        std::string cekam;
        for (const auto& [slovo, hodnota] : slova) {
            if (slovo == atribut.value()) return hodnota;
            cekam += (cekam.empty() ? "" : ", ") + std::string(slovo);
        }
        chyba(uzel, std::string(jmeno) + "=\"" + atribut.value() + "\": čekám " + cekam);
    }

  private:
    int radek(std::ptrdiff_t kde) const;
    std::string misto(int radek) const;

    std::string soubor_;
    std::vector<std::ptrdiff_t> konce_radku_;
    pugi::xml_document dokument_;
};

}  // namespace report
