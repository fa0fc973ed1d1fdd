// A verb of `zorvctl`. Each stands in a file of its own, named after it; the list of them all is in
// slovesa.h.
#pragma once

namespace CLI {
class App;
}

namespace cli {

class Kontext;

class Sloveso {
  public:
    virtual ~Sloveso() = default;
    /// Adds the verb with its arguments and its help; returns its node, by which it is known to
    /// have been chosen.
    virtual CLI::App* pridej(CLI::App& program) = 0;
    /// Does the work; returns the exit status.
    virtual int proved(Kontext& kontext) = 0;
};

}  // namespace cli
