#pragma once

#include <QObject>

class QSocketNotifier;

namespace lullet {

// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal on the main thread, so that a request to end
// from the session or a terminal takes the same path as Quit: the store is saved first.
class TerminationSignals final : public QObject {
    Q_OBJECT
public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void terminationRequested();

private:
    void onReadable();

    QSocketNotifier* m_notifier = nullptr;
};

} // namespace lullet
