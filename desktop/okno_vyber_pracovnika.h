// The window of TFVyberPracovnika: a worker picked from a list that narrows while one types.
#pragma once

#include "desktop/okno.h"
#include "workers/unit7_vyber_pracovnika.h"

namespace desktop {

class OknoVyberPracovnika final : public Okno {
  public:
    OknoVyberPracovnika(workers::TFVyberPracovnika& form, const shell::Session& session,
                        QWidget* rodic);

  protected:
    bool eventFilter(QObject* prvek, QEvent* udalost) override;

  private:
    workers::TFVyberPracovnika& form_;
    store::Rows vety_;  ///< the screen's rows under captions for people
};

}  // namespace desktop
