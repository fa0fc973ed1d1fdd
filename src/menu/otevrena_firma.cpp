#include "menu/otevrena_firma.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace menu {

bool OtevrenaFirma::obsad(const std::filesystem::path& slozka) {
    uvolni();
    slozka_ = ::open(slozka.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (slozka_ < 0) return true;
    return ::flock(slozka_, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void OtevrenaFirma::uvolni() {
    if (slozka_ >= 0) ::close(slozka_);
    slozka_ = -1;
}

}  // namespace menu
