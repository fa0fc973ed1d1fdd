// Failing and killed writes: everything that the database engine does to its files passes through
// here, and the n-th operation that changes a file can fail or end the process.
#pragma once

namespace zkouska {

enum class Fault {
    none,
    error_once,  ///< the n-th operation fails with an I/O error, later ones work again
    error_from,  ///< the n-th and all later operations fail, as on a broken disk
    full_from,   ///< the same with "disk full"
    kill         ///< the n-th operation is done by half, then the process ends as by a kill
};

/// Exit status of a process that `Fault::kill` ended.
inline constexpr int killed_status = 77;

/// Armed for its lifetime. Operations are writes, syncs, truncations and deletions of files,
/// counted from 1 over all databases. Only one may live at a time; databases opened before the
/// first one was made are not watched.
class FaultyDisk {
  public:
    FaultyDisk(Fault fault, long n);
    ~FaultyDisk();
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;

    /// Operations since the arming.
    long operations() const;
    /// Whether the n-th operation came.
    bool struck() const;
};

}  // namespace zkouska
