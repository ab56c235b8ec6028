#include "ui/desktop/MemoryTrim.h"

#include <QCoreApplication>
#include <QTimer>

#include <malloc.h>

namespace lullet {

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
