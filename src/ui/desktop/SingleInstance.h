#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <map>
#include <memory>

class QSocketNotifier;

namespace lullet {

// One Lullet per user. The first instance claims a lock file in a private folder and listens on
// a Unix socket beside it; a later launch finds the lock taken, hands its request ("show", or
// "quick-add" from a desktop shortcut) to the first, and ends. The claim is atomic, so a burst of
// launches leaves exactly one running, and a socket that a live instance owns is never removed.
class SingleInstance final : public QObject {
    Q_OBJECT
public:
    static constexpr char showRequest[] = "show";
    static constexpr char quickAddRequest[] = "quick-add";
    // "pause" until resumed, or "pause 30" for thirty minutes; "resume".
    static constexpr char pauseRequest[] = "pause";
    static constexpr char resumeRequest[] = "resume";
    // A request is a short line; a client that sends more is cut off.
    static constexpr int maxRequestBytes = 256;
    // A launch hands its line over as soon as it connects. More clients than this at once, or one
    // still silent after `patience`, are holding the line rather than using it: the oldest is let
    // go first.
    static constexpr std::size_t maxClients = 32;

    // XDG_RUNTIME_DIR, or, without one, a private "lullet" folder in the user's cache.
    static QString defaultFolder();

    explicit SingleInstance(QString folder,
                            std::chrono::milliseconds patience = std::chrono::seconds(2),
                            QObject* parent = nullptr);
    ~SingleInstance() override;

    enum class Role { Primary, Secondary, Failed };
    // Primary: this process is the one Lullet, and listens. Secondary: another one runs.
    // Failed: the folder or the socket can't be used safely; errorMessage() says why. With
    // patience, a lock held by an instance that is ending is waited for that long.
    Role claim(std::chrono::milliseconds patience = {});
    // Hands the request to the running instance, waiting a moment for it to listen; false when
    // none answers.
    bool forward(const QString& request) const;
    QString errorMessage() const { return m_error; }
    QString socketPath() const;

Q_SIGNALS:
    void requestReceived(const QString& request);

private:
    struct Client {
        int fd = -1;
        QByteArray pending;
        std::unique_ptr<QSocketNotifier> notifier;
        QDeadlineTimer deadline;
        ~Client();
    };

    bool usableFolder();
    bool listen();
    void accept();
    void read(int fd);
    void dropOldestClient();
    void dropSilentClients();

    QString m_folder;
    std::chrono::milliseconds m_patience;
    QString m_error;
    int m_lockFd = -1;
    int m_serverFd = -1;
    std::unique_ptr<QSocketNotifier> m_listening;
    std::map<int, std::unique_ptr<Client>> m_clients;
    QTimer m_sweep;
};

} // namespace lullet
