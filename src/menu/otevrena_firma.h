// A mark that a company is open, by which a second start of the program learns of the first.
#pragma once

#include <filesystem>

namespace menu {

/// Forbids nothing: the store's own locks guard the data. The mark leaves no file behind and goes
/// away with the process, also with one that was killed.
class OtevrenaFirma {
  public:
    OtevrenaFirma() = default;
    ~OtevrenaFirma() { uvolni(); }
    OtevrenaFirma(const OtevrenaFirma&) = delete;
    OtevrenaFirma& operator=(const OtevrenaFirma&) = delete;

    /// Marks the company's folder in place of the one marked before. False when somebody else has
    /// it open; true also where the file system knows no such marks.
    bool obsad(const std::filesystem::path& slozka);
    void uvolni();

  private:
    int slozka_ = -1;  ///< descriptor of the marked folder
};

}  // namespace menu
