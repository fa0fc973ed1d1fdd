// A folder of its own for one test, removed at the end.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <stdlib.h>
#include <string>

namespace zkouska {

class DocasnaSlozka {
  public:
    DocasnaSlozka() {
        std::string vzor = (std::filesystem::temp_directory_path() / "zorv-test-XXXXXX").string();
        if (!mkdtemp(vzor.data())) throw std::runtime_error("mkdtemp: " + vzor);
        cesta_ = vzor;
    }
    ~DocasnaSlozka() {
        std::error_code chyba;
        std::filesystem::remove_all(cesta_, chyba);
    }
    DocasnaSlozka(const DocasnaSlozka&) = delete;
    DocasnaSlozka& operator=(const DocasnaSlozka&) = delete;

    const std::filesystem::path& cesta() const { return cesta_; }
    std::filesystem::path operator/(const std::string& jmeno) const { return cesta_ / jmeno; }

  private:
    std::filesystem::path cesta_;
};

}  // namespace zkouska
