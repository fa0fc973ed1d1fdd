// Letters by which captions are chosen together with Alt, given out where the captions are data.
#pragma once

#include <QString>

namespace desktop {

/// Captions of one menu or one form; no letter is given out twice.
class Mnemoniky {
  public:
    /// `obsazene` are letters that stand elsewhere on the form.
    explicit Mnemoniky(const QString& obsazene = {}) : obsazene_(obsazene.toLower()) {}

    /// The caption ("&" doubled) with its letter marked: the first letter of a word where one is
    /// left, else any letter without an accent; the caption as it is when none is left.
    QString pridej(const QString& popisek);

  private:
    QString obsazene_;
};

}  // namespace desktop
