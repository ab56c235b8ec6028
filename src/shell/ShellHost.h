#pragma once

#include "core/app/PromptHost.h"

#include <QObject>
#include <QPointer>

namespace lullet {

class AppDelegate;
class MainWindow;
class QuickAddViewController;
class StatusItem;

// The windows behind the core's prompt interface: the main window, the status item and its
// popover, the prompts.
class ShellHost final : public QObject, public PromptHost {
    Q_OBJECT
public:
    explicit ShellHost(MainWindow& window, QObject* parent = nullptr);
    ~ShellHost() override;

    // The prompts act on the application's records; the controller is made after its host.
    void attach(AppDelegate& app);
    // Drops the open prompt while the controller it acts on still exists; called at the end.
    void detach();
    StatusItem& statusItem() { return *m_status; }

    void openStatusMenu() override;
    void prepareMainWindow(bool welcomeDone, bool locked) override;
    void bringMainWindowForward(const std::function<void()>& whenShown) override;
    bool askQuitAnyway(const QString& message, const QString& information) override;
    void presentError(const QString& message) override;
    void makeReminderPopOver(ReminderInfo* item, ReminderInfo* previous) override;
    void makeIdleAlertPopOver(Date since, bool autoPromptMode) override;
    void makeTimeOverPopOver(ReminderInfo* item) override;
    void makeTODOPopOver(ReminderInfo* item) override;
    void closePopover() override;
    void closePopoverImmediate() override;

    // Quick add from anywhere: the main view's own bar when the window is up and has one, else
    // the quick-add window.
    void onQuickAdd();
    void callQuickAdd();
    void dismissquickAdd();

Q_SIGNALS:
    void quitRequested();

private:
    MainWindow& m_window;
    StatusItem* m_status;
    AppDelegate* m_app = nullptr;
    QPointer<QuickAddViewController> windowQuickAdd;
};

} // namespace lullet
