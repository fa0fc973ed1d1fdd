#include "store/fault_vfs.h"

#include <cassert>
#include <sqlite3.h>
#include <unistd.h>

namespace zkouska {

namespace {

// The engine calls back through plain functions, so the plan has to be reachable from them.
struct Plan {
    Fault fault = Fault::none;
    long n = 0;
    long count = 0;
} plan;

struct WatchedFile {
    sqlite3_file base;
    sqlite3_file* real;
};

sqlite3_file* real_of(sqlite3_file* file) {
    return reinterpret_cast<WatchedFile*>(file)->real;
}

/// Counts an operation; an error code when it has to fail. `half` does a part of it before a kill.
template <class Half>
int strike(Half half) {
    ++plan.count;
    switch (plan.fault) {
        case Fault::none:
            break;
        case Fault::error_once:
            if (plan.count == plan.n) return SQLITE_IOERR_WRITE;
            break;
        case Fault::error_from:
            if (plan.count >= plan.n) return SQLITE_IOERR_WRITE;
            break;
        case Fault::full_from:
            if (plan.count >= plan.n) return SQLITE_FULL;
            break;
        case Fault::kill:
            if (plan.count == plan.n) {
                half();
                _exit(killed_status);
            }
            break;
    }
    return SQLITE_OK;
}

int strike() {
    return strike([] {});
}

int close_file(sqlite3_file* file) {
    return real_of(file)->pMethods->xClose(real_of(file));
}
int read_file(sqlite3_file* file, void* buffer, int size, sqlite3_int64 offset) {
    return real_of(file)->pMethods->xRead(real_of(file), buffer, size, offset);
}
int write_file(sqlite3_file* file, const void* buffer, int size, sqlite3_int64 offset) {
    sqlite3_file* real = real_of(file);
    const auto half = [&] { real->pMethods->xWrite(real, buffer, size / 2, offset); };
    if (const int error = strike(half)) return error;
    return real->pMethods->xWrite(real, buffer, size, offset);
}
int truncate_file(sqlite3_file* file, sqlite3_int64 size) {
    if (const int error = strike()) return error;
    return real_of(file)->pMethods->xTruncate(real_of(file), size);
}
int sync_file(sqlite3_file* file, int flags) {
    if (const int error = strike()) return error;
    return real_of(file)->pMethods->xSync(real_of(file), flags);
}
int file_size(sqlite3_file* file, sqlite3_int64* size) {
    return real_of(file)->pMethods->xFileSize(real_of(file), size);
}
int lock_file(sqlite3_file* file, int level) {
    return real_of(file)->pMethods->xLock(real_of(file), level);
}
int unlock_file(sqlite3_file* file, int level) {
    return real_of(file)->pMethods->xUnlock(real_of(file), level);
}
int check_reserved(sqlite3_file* file, int* result) {
    return real_of(file)->pMethods->xCheckReservedLock(real_of(file), result);
}
int control_file(sqlite3_file* file, int operation, void* argument) {
    return real_of(file)->pMethods->xFileControl(real_of(file), operation, argument);
}
int sector_size(sqlite3_file* file) {
    return real_of(file)->pMethods->xSectorSize(real_of(file));
}
int characteristics(sqlite3_file* file) {
    return real_of(file)->pMethods->xDeviceCharacteristics(real_of(file));
}

// Version 1: no shared memory and no mapping, so that every change of a file passes by.
const sqlite3_io_methods methods = {
    1,         close_file,  read_file,      write_file,   truncate_file, sync_file,       file_size,
    lock_file, unlock_file, check_reserved, control_file, sector_size,   characteristics, nullptr,
    nullptr,   nullptr,     nullptr,        nullptr,      nullptr};

sqlite3_vfs* real_vfs = nullptr;

int open_file(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* out_flags) {
    auto* watched = reinterpret_cast<WatchedFile*>(file);
    watched->real = reinterpret_cast<sqlite3_file*>(watched + 1);
    watched->base.pMethods = nullptr;
    const int code = real_vfs->xOpen(real_vfs, name, watched->real, flags, out_flags);
    if (watched->real->pMethods) watched->base.pMethods = &methods;
    return code;
}

int delete_file(sqlite3_vfs*, const char* name, int sync_folder) {
    if (const int error = strike()) return error;
    return real_vfs->xDelete(real_vfs, name, sync_folder);
}

/// Puts itself before the system's file layer; everything but opening and deleting is left to it.
void install() {
    if (real_vfs) return;
    real_vfs = sqlite3_vfs_find(nullptr);
    static sqlite3_vfs watched = *real_vfs;
    watched.zName = "zkouska-vadny-disk";
    watched.pNext = nullptr;
    watched.szOsFile = static_cast<int>(sizeof(WatchedFile)) + real_vfs->szOsFile;
    watched.xOpen = open_file;
    watched.xDelete = delete_file;
    sqlite3_vfs_register(&watched, 1);
}

}  // namespace

FaultyDisk::FaultyDisk(Fault fault, long n) {
    assert(plan.n == 0);
    install();
    plan = {fault, n, 0};
}

FaultyDisk::~FaultyDisk() {
    plan = {};
}

long FaultyDisk::operations() const {
    return plan.count;
}

bool FaultyDisk::struck() const {
    return plan.count >= plan.n;
}

}  // namespace zkouska
