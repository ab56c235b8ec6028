#pragma once

#include <QObject>
#include <QString>

class QLocalServer;

namespace lullet {

// One Lullet per user. The first instance listens on a local socket in the user's runtime
// folder; a later launch hands its request ("show", or "quick-add" from a desktop shortcut) to it
// and ends. A socket left behind by an instance that died is recognised and replaced.
class SingleInstance final : public QObject {
    Q_OBJECT
public:
    static constexpr char showRequest[] = "show";
    static constexpr char quickAddRequest[] = "quick-add";

    explicit SingleInstance(QString socketPath, QObject* parent = nullptr);
    ~SingleInstance() override;

    // "lullet.socket" in XDG_RUNTIME_DIR, or in the temporary folder, with the user id in the
    // name, where there is none.
    static QString defaultSocketPath();

    // Hands the request to a running instance; false when none answers.
    bool forward(const QString& request) const;
    // Becomes the running instance; false when another one already is.
    bool listen();

Q_SIGNALS:
    void requestReceived(const QString& request);

private:
    QString m_path;
    QLocalServer* m_server = nullptr;
};

} // namespace lullet
