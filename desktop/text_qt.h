// Texts between the core (UTF-8) and Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace desktop {

inline QString do_qt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string z_qt(const QString& text) {
    return text.toStdString();
}

/// A message's text with its line ends (CR LF, or CR alone) as Qt draws them.
inline QString radky(std::string_view text) {
    return do_qt(text).replace("\r\n", "\n").replace('\r', '\n');
}

/// A caption in which "&" is a character, no mnemonic.
inline QString popisek(std::string_view text) {
    return do_qt(text).replace("&", "&&");
}

}  // namespace desktop
