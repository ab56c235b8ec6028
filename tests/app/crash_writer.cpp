// Saves numbered items into a store, one transaction each, and prints each number once it is
// committed, until it is killed. The crash-consistency test kills it at random moments.
#include "core/store/Store.h"
#include "support/FakeClock.h"

#include <QCoreApplication>

#include <cstdio>

using namespace lullet;

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 2)
        return 2;
    const test::FakeClock clock;
    Store store(QString::fromLocal8Bit(argv[1]), clock);
    if (store.open().outcome != Store::Outcome::Opened)
        return 1;
    const int start = int(store.context().items().size());
    for (int n = start + 1;; ++n) {
        Item* item = store.context().insertItem();
        item->setTitle(QString::number(n));
        item->setNotes(QString(200, u'x'));
        if (!store.context().save())
            return 1;
        std::printf("%d\n", n);
        std::fflush(stdout);
    }
}
