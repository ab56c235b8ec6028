#pragma once

#include <QTimer>
#include <QWidget>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lullet {

class Clock;
class Sync;

// Synchronisation with a CalDAV server: its address, the user name and password (kept in the
// keyring), how the last sync went in the user's words, "Sync Now", and a way to stop.
class SyncTab final : public QWidget {
    Q_OBJECT
public:
    SyncTab(Sync& sync, const Clock& clock, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void addServerSection(QFormLayout* layout);
    void addStatusSection(QFormLayout* layout);
    void onConnect();
    void onStop();
    // The fields and the buttons say what is so.
    void showState();
    QString statusText() const;
    QString syncedText() const;
    QString problemText() const;

    Sync& m_sync;
    const Clock& m_clock;
    QLineEdit* m_url;
    QLineEdit* m_user;
    QLineEdit* m_password;
    QPushButton* m_connect;
    QLabel* m_status;
    QPushButton* m_syncNow;
    QPushButton* m_stop;
    // "Synced 2 minutes ago" grows older while the tab shows.
    QTimer m_ageing;
};

} // namespace lullet
