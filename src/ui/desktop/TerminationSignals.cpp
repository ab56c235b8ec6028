#include "ui/desktop/TerminationSignals.h"

#include <QSocketNotifier>

#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

namespace lullet {

namespace {

int pipeEnds[2] = {-1, -1};

void onSignal(int)
{
    const char byte = 1;
    // Only async-signal-safe work here: wake the main loop through the socket.
    [[maybe_unused]] const ssize_t written = ::write(pipeEnds[0], &byte, 1);
}

} // namespace

void TerminationSignals::install()
{
    if (pipeEnds[0] >= 0 || ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pipeEnds) != 0)
        return;
    struct sigaction action = {};
    action.sa_handler = onSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int sig : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(sig, &action, nullptr);
}

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
{
    if (pipeEnds[1] < 0)
        return;
    m_notifier = new QSocketNotifier(pipeEnds[1], QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &TerminationSignals::onReadable);
}

TerminationSignals::~TerminationSignals()
{
    struct sigaction action = {};
    action.sa_handler = SIG_DFL;
    for (const int sig : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(sig, &action, nullptr);
    for (int& end : pipeEnds) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

void TerminationSignals::onReadable()
{
    char byte = 0;
    [[maybe_unused]] const ssize_t got = ::read(pipeEnds[1], &byte, 1);
    Q_EMIT terminationRequested();
}

} // namespace lullet
