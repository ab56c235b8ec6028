#pragma once

#include "authoring/QuickAdd.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;

namespace lullet {

class AppDelegate;

// The quick-add window: a task name, a project, a date, and add.
class QuickAddViewController final : public QWidget {
    Q_OBJECT
public:
    explicit QuickAddViewController(AppDelegate& app, QWidget* parent = nullptr);

    QuickAdd& model() { return m_model; }
    QLineEdit* txtTaskQuickAdd;
    QComboBox* popupBtnProjects;

    void onDoAdd();

Q_SIGNALS:
    // The task was added: the window may go.
    void added();

private:
    void setProjectsChoice();
    void showDate();
    void onSelectReminderDate();

    AppDelegate& m_app;
    QuickAdd m_model;
    QComboBox* popupBtnDuration;
    QLabel* lblQuickAddDate;
    QLabel* lblQuickAddTime;
    QWidget* m_dateButton = nullptr;
};

} // namespace lullet
