#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QFormLayout;

namespace lullet {

class DesktopPresence;
class Settings;

// The general settings: how long the program waits with nothing running before it asks what
// the user is doing, and how it shows itself on the desktop.
class GeneralTab final : public QWidget {
    Q_OBJECT
public:
    GeneralTab(Settings& settings, DesktopPresence& presence, QWidget* parent = nullptr);

private:
    void addPeriodSection(QFormLayout* layout);
    void addRemindersSection(QFormLayout* layout);
    void addPresenceSection(QFormLayout* layout);
    void onPeriodChosen(int index);
    void onStartAtLoginToggled(bool on);
    void onTaskbarToggled(bool on);
    void onTrayIconToggled(bool on);
    // The boxes say what is so, after a choice was refused or set back.
    void showPresence();

    Settings& m_settings;
    DesktopPresence& m_presence;
    QComboBox* m_period;
    QCheckBox* m_startAtLogin;
    QCheckBox* m_taskbar;
    QCheckBox* m_trayIcon;
};

} // namespace lullet
