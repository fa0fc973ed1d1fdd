// Errors of data and of the store: what the operator is shown when something is broken.
#pragma once

#include <stdexcept>
#include <string>

namespace base {

/// Broken data, a file that cannot be read or a failing store. The text is Czech and names the
/// file, table, row or field and what was expected. An operator's mistake is never thrown: it is a
/// message.
class ChybaDat : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

}  // namespace base
