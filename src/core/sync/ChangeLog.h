#pragma once

#include "core/store/SaveObserver.h"

#include <QHash>
#include <QObject>
#include <QString>

namespace lullet {

class Clock;
class Store;

// Notes every change the store saves, with the time it was made, so that synchronisation knows
// what waits to be sent without comparing the whole store: a record made gets its UID, a record
// changed or deleted is marked as waiting. Main thread only.
class ChangeLog final : public QObject, public SaveObserver {
    Q_OBJECT
public:
    ChangeLog(const Clock& clock, Store& store, QObject* parent = nullptr);

    // A record made from the server keeps the server's UID at its first save.
    void assignUid(const Record* record, const QString& uid);

    bool saving(const Changes& changes) override;
    void saved() override;

Q_SIGNALS:
    // A save wrote changes.
    void changed();

private:
    const Clock& m_clock;
    Store& m_store;
    QHash<const Record*, QString> m_assigned;
    bool m_logged = false;
};

} // namespace lullet
