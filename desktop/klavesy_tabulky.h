// Keys of a list that has more than one in its window: Insert, Enter, Delete and the like act on
// the list with the focus, and typing in it may go to a filter.
#pragma once

#include <QObject>
#include <functional>
#include <map>

#include "desktop/vazba.h"

class QKeyEvent;
class QLineEdit;

namespace desktop {

/// Lives as long as the control that it was made for.
class KlavesyPrvku final : public QObject {
  public:
    explicit KlavesyPrvku(QWidget& prvek);

    /// What the key does; it goes before a shortcut of the window.
    KlavesyPrvku& na(Qt::Key klavesa, Vazba::Metoda metoda);
    /// Where a typed character goes; null keeps it. The field is written over.
    KlavesyPrvku& psani(std::function<QLineEdit*(QChar znak)> kam);

    bool eventFilter(QObject* prvek, QEvent* udalost) override;

  private:
    std::map<int, Vazba::Metoda> metody_;
    std::function<QLineEdit*(QChar)> kam_;

    bool presmeruj(QKeyEvent& klavesa) const;
};

/// Insert, Enter with F2, and Delete of a list.
void klavesy_seznamu(QWidget& seznam, const Vazba::Metoda& pridat, const Vazba::Metoda& opravit,
                     const Vazba::Metoda& smazat);

}  // namespace desktop
