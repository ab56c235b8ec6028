#pragma once

#include <QFrame>

class QDateTimeEdit;
class QLabel;

namespace lullet {

class AppDelegate;
class ReminderInfo;

// The postpone panel: the named choices with their captions, or a free date and time. It closes
// on a click elsewhere, and after a named choice.
class PostponeViewControllerNew final : public QFrame {
    Q_OBJECT
public:
    PostponeViewControllerNew(AppDelegate& app, ReminderInfo* objTask, QWidget* parent = nullptr);

    void popUpAt(const QPoint& globalPos);
    // The choice of the given tag, as its button does.
    void onChooseOption(int tag);
    void onPostPoneToCustom();

private:
    AppDelegate& m_app;
    ReminderInfo* objTask;
    QWidget* viewMainOptions;
    QWidget* viewDateChoice;
    QDateTimeEdit* dtPicker;
};

} // namespace lullet
