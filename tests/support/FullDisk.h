#pragma once

#include <sqlite3.h>

#include <cerrno>

namespace lullet::test {

// A disk that fills up on demand, under every SQLite connection of the process: a file system
// between SQLite and the real one which, once full, refuses what a disk without room refuses
// (writing, growing a file, growing the shared memory of a log) and reads as before.
class FullDisk {
public:
    FullDisk() { install(); }
    ~FullDisk() { full() = false; }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

    void fill() { full() = true; }
    void empty() { full() = false; }

private:
    struct File {
        sqlite3_file base;
        sqlite3_file* real;
    };

    static bool& full()
    {
        static bool value = false;
        return value;
    }
    static sqlite3_vfs*& real()
    {
        static sqlite3_vfs* value = nullptr;
        return value;
    }
    static sqlite3_file* inner(sqlite3_file* f) { return reinterpret_cast<File*>(f)->real; }

    static int write(sqlite3_file* f, const void* data, int amount, sqlite3_int64 offset)
    {
        return full() ? SQLITE_FULL : inner(f)->pMethods->xWrite(inner(f), data, amount, offset);
    }
    static int truncate(sqlite3_file* f, sqlite3_int64 size)
    {
        sqlite3_int64 now = 0;
        inner(f)->pMethods->xFileSize(inner(f), &now);
        return full() && size > now ? SQLITE_FULL : inner(f)->pMethods->xTruncate(inner(f), size);
    }
    static int mapShared(sqlite3_file* f, int region, int size, int extend, void volatile** at)
    {
        const int rc = inner(f)->pMethods->xShmMap(inner(f), region, size, full() ? 0 : extend, at);
        return rc == SQLITE_OK && extend && !*at ? SQLITE_IOERR_SHMSIZE : rc;
    }

    static const sqlite3_io_methods* methods()
    {
        static const sqlite3_io_methods table = {
            3,
            [](sqlite3_file* f) {
                const int rc = inner(f)->pMethods->xClose(inner(f));
                f->pMethods = nullptr;
                return rc;
            },
            [](sqlite3_file* f, void* data, int amount, sqlite3_int64 offset) {
                return inner(f)->pMethods->xRead(inner(f), data, amount, offset);
            },
            write,
            truncate,
            [](sqlite3_file* f, int flags) { return inner(f)->pMethods->xSync(inner(f), flags); },
            [](sqlite3_file* f, sqlite3_int64* size) {
                return inner(f)->pMethods->xFileSize(inner(f), size);
            },
            [](sqlite3_file* f, int lock) { return inner(f)->pMethods->xLock(inner(f), lock); },
            [](sqlite3_file* f, int lock) { return inner(f)->pMethods->xUnlock(inner(f), lock); },
            [](sqlite3_file* f, int* out) {
                return inner(f)->pMethods->xCheckReservedLock(inner(f), out);
            },
            [](sqlite3_file* f, int op, void* arg) {
                return inner(f)->pMethods->xFileControl(inner(f), op, arg);
            },
            [](sqlite3_file* f) { return inner(f)->pMethods->xSectorSize(inner(f)); },
            [](sqlite3_file* f) { return inner(f)->pMethods->xDeviceCharacteristics(inner(f)); },
            mapShared,
            [](sqlite3_file* f, int offset, int n, int flags) {
                return inner(f)->pMethods->xShmLock(inner(f), offset, n, flags);
            },
            [](sqlite3_file* f) { inner(f)->pMethods->xShmBarrier(inner(f)); },
            [](sqlite3_file* f, int remove) {
                return inner(f)->pMethods->xShmUnmap(inner(f), remove);
            },
            // Memory-mapped reads are left to plain reads.
            [](sqlite3_file*, sqlite3_int64, int, void** at) {
                *at = nullptr;
                return SQLITE_OK;
            },
            [](sqlite3_file*, sqlite3_int64, void*) { return SQLITE_OK; },
        };
        return &table;
    }

    static void install()
    {
        static sqlite3_vfs vfs = [] {
            real() = sqlite3_vfs_find(nullptr);
            sqlite3_vfs shim = *real();
            shim.zName = "lullet-test-full-disk";
            shim.szOsFile = int(sizeof(File)) + real()->szOsFile;
            shim.pNext = nullptr;
            shim.xOpen = [](sqlite3_vfs*, sqlite3_filename name, sqlite3_file* f, int flags,
                            int* outFlags) {
                auto* file = reinterpret_cast<File*>(f);
                file->real = reinterpret_cast<sqlite3_file*>(file + 1);
                const int rc = real()->xOpen(real(), name, file->real, flags, outFlags);
                f->pMethods = file->real->pMethods ? methods() : nullptr;
                return rc;
            };
            shim.xDelete = [](sqlite3_vfs*, const char* name, int sync) {
                return real()->xDelete(real(), name, sync);
            };
            shim.xAccess = [](sqlite3_vfs*, const char* name, int flags, int* out) {
                return real()->xAccess(real(), name, flags, out);
            };
            shim.xFullPathname = [](sqlite3_vfs*, const char* name, int n, char* out) {
                return real()->xFullPathname(real(), name, n, out);
            };
            shim.xGetLastError = [](sqlite3_vfs*, int n, char* out) {
                return full() ? ENOSPC : real()->xGetLastError(real(), n, out);
            };
            return shim;
        }();
        // The default from now on, for every connection the process opens.
        sqlite3_vfs_register(&vfs, 1);
    }
};

} // namespace lullet::test
