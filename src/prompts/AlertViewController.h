#pragma once

#include "core/dates/Date.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QLabel;
class QLineEdit;

namespace lullet {

class AppDelegate;
class IdlePrompt;

// The idle-time prompt: what were you doing (or, asked at once, what are you doing now)? The
// answer becomes an item that began when the gap began.
class AlertViewController final : public QWidget {
    Q_OBJECT
public:
    AlertViewController(AppDelegate& app, Date since, bool autoPromptMode,
                        QWidget* parent = nullptr);
    ~AlertViewController() override;

    IdlePrompt& prompt() { return *m_prompt; }
    QLineEdit* txtTaskName;

    // The answer; `alreadyDone` for the button that records the work as done at once.
    void onDone(bool alreadyDone);

private:
    void setProjectsChoice();
    void setDisplaysForIdleTime();
    void onSelectDefaultTask(const QString& title);

    AppDelegate& m_app;
    std::unique_ptr<IdlePrompt> m_prompt;
    QLabel* lblTimeRange;
    QComboBox* popupBtnProjects;
};

} // namespace lullet
