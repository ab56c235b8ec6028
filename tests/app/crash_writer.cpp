// Saves numbered items into a store, one transaction each, and prints each number once it is
// committed, until it is killed; or, given two store files, restores them in turn for ever. The
// crash-consistency tests kill it at random moments.
#include "core/store/Store.h"
#include "support/FakeClock.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

using namespace lullet;

namespace {

// crash_writer FOLDER restore A B
int restoreForEver(Store& store, const QString& first, const QString& second)
{
    for (int n = 0;; ++n) {
        const QString& source = n % 2 ? second : first;
        QFile::remove(store.preparedPath());
        if (!QFile::copy(source, store.preparedPath()) ||
            store.replaceWith(store.preparedPath()).outcome != Store::Outcome::Opened)
            return 1;
        std::printf("%d\n", n);
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    if (argc != 2 && argc != 5)
        return 2;
    const test::FakeClock clock;
    Store store(QString::fromLocal8Bit(argv[1]), clock);
    if (store.open().outcome != Store::Outcome::Opened)
        return 1;
    if (argc == 5)
        return restoreForEver(store, QString::fromLocal8Bit(argv[3]),
                              QString::fromLocal8Bit(argv[4]));
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
