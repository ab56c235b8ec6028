#pragma once

#include "core/app/PromptHost.h"

#include <QObject>

class QSystemTrayIcon;

namespace lullet {

class MainWindow;

// The windows behind the core's prompt interface: the main window and the status item.
class ShellHost final : public QObject, public PromptHost {
    Q_OBJECT
public:
    explicit ShellHost(MainWindow& window, QObject* parent = nullptr);
    ~ShellHost() override;

    void openStatusMenu() override;
    void prepareMainWindow(bool welcomeDone, bool locked) override;
    void bringMainWindowForward(const std::function<void()>& whenShown) override;
    bool askQuitAnyway(const QString& message, const QString& information) override;
    void presentError(const QString& message) override;

Q_SIGNALS:
    void quitRequested();

private:
    MainWindow& m_window;
    QSystemTrayIcon* m_tray = nullptr;
};

} // namespace lullet
