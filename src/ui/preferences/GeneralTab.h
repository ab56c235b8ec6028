#pragma once

#include <QWidget>

class QComboBox;

namespace lullet {

class RunningItem;
class Settings;

// The general settings: how long the program waits with nothing running before it asks what
// the user is doing.
class GeneralTab final : public QWidget {
    Q_OBJECT
public:
    GeneralTab(Settings& settings, RunningItem& running, QWidget* parent = nullptr);

private:
    void onPeriodChosen(int index);

    Settings& m_settings;
    RunningItem& m_running;
    QComboBox* m_period;
};

} // namespace lullet
