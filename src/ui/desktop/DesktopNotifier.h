#pragma once

#include <QObject>
#include <QString>

#include <utility>
#include <vector>

namespace lullet {

// One notification at a time through the desktop's org.freedesktop.Notifications service. A
// desktop without the service shows nothing, and nothing else happens.
class DesktopNotifier final : public QObject {
    Q_OBJECT
public:
    // An action's key, told back by actionInvoked(), and its label on the notification's button.
    using Action = std::pair<QString, QString>;
    // What clicking the notification itself asks for, besides its buttons.
    static inline const QString defaultAction = QStringLiteral("default");

    explicit DesktopNotifier(QObject* parent = nullptr);
    ~DesktopNotifier() override;

    // Shows the notification, in place of the one shown before.
    void show(const QString& summary, const QString& body, const std::vector<Action>& actions);
    // Takes the notification away, if one is shown.
    void close();
    // Whether the server has answered with the notification's id: its actions are heard only
    // from then on.
    bool isShown() const { return m_id != 0; }

Q_SIGNALS:
    void actionInvoked(const QString& key);

private Q_SLOTS:
    // Slots by name: the bus connects its signals to no other kind.
    void onActionInvoked(uint id, const QString& key);
    void onClosed(uint id, uint reason);

private:
    // The server's id of the notification shown; 0 while none is, or while it is being sent.
    uint m_id = 0;
    // Bumped by every show() and close(): a late answer to an earlier one is closed at once.
    quint64 m_generation = 0;
};

} // namespace lullet
