// Key filters of input fields: which character may be typed into which text. A refused key is
// dropped by the caller with a beep.
#pragma once

#include <string_view>

namespace base {

/// Sign rule of number fields.
enum class ZnamenkoRezim {
    minus_na_zacatku = 1,  ///< a minus only as first character
    bez_minus = 2,
    minus_povinne = 3  ///< a minus required as first character
};

inline constexpr char k_backspace = '\b';
inline constexpr char k_enter = '\r';

/// True when `znak`, typed at the end of `text`, passes: digits up to `cislic`, backspace, Enter,
/// and a minus by the rule.
bool hlidej_cele_cislo_klavesy(char znak, std::string_view text, ZnamenkoRezim rezim, int cislic);
/// The same for decimals: one decimal separator ("," or "."), at most `celych` integer digits and
/// `desetinnych` decimals.
bool hlidej_desetinne_cislo_klavesy(char znak, std::string_view text, ZnamenkoRezim rezim,
                                    int celych, int desetinnych);
/// Limits the length to `delka` characters; backspace and Enter pass.
bool hlidej_delku_klavesy(char znak, std::string_view text, int delka);

}  // namespace base
