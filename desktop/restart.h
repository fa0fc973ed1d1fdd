// The restart: a program that is started once this one has closed.
#pragma once

#include <QStringList>
#include <string>

namespace desktop {

/// Starts the program apart from this one. Says so where that is not possible; returns whether it
/// was.
bool spust_po_zavreni(const std::string& program, const QStringList& argumenty);

}  // namespace desktop
