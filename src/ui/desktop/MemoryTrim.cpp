#include "ui/desktop/MemoryTrim.h"

#include <QCoreApplication>
#include <QTimer>

#include <malloc.h>

namespace lullet {

void MemoryTrim::configure()
{
    // A large block (the lines of a list of the whole history) gets pages of its own, given back
    // as soon as it is freed. Left to itself, the C library raises this threshold once such a
    // block is freed and puts the next ones in the heap, where whatever small block lands above
    // them keeps the heap from shrinking: each opening of a long list would leave more behind.
    constexpr int largeBlock = 128 * 1024;
    ::mallopt(M_MMAP_THRESHOLD, largeBlock);
    ::mallopt(M_TRIM_THRESHOLD, largeBlock);
    // A few threads that allocate little: an arena each per core would only hold freed memory.
    ::mallopt(M_ARENA_MAX, 2);
}

void MemoryTrim::soon()
{
    static QTimer* timer = [] {
        auto* made = new QTimer(QCoreApplication::instance());
        made->setSingleShot(true);
        made->setInterval(1000);
        QObject::connect(made, &QTimer::timeout, [] { ::malloc_trim(0); });
        return made;
    }();
    timer->start();
}

} // namespace lullet
