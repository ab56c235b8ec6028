#pragma once

#include <QObject>

class QSocketNotifier;

namespace lullet {

// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal on the main thread, so that a request to end
// from the session or a terminal takes the same path as Quit: the store is saved first.
class TerminationSignals final : public QObject {
    Q_OBJECT
public:
    // Installs the handlers. Called first thing in main: a signal that arrives while the program
    // is still starting waits, and is handled as soon as the event loop runs.
    static void install();

    // Watches for the signals installed before; install() must have run.
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void terminationRequested();

private:
    void onReadable();

    QSocketNotifier* m_notifier = nullptr;
};

} // namespace lullet
