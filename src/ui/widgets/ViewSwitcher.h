#pragma once

#include <QStackedWidget>

#include <functional>
#include <map>

namespace lullet {

// The right side of the main window: one view at a time, asked for by name ("LulletList",
// "ProjectList", ...). A view is made afresh each time it is shown, so it reads the navigation
// state as it stands, and the one it replaces is dropped.
class ViewSwitcher final : public QStackedWidget {
    Q_OBJECT
public:
    using Factory = std::function<QWidget*()>;

    explicit ViewSwitcher(QWidget* parent = nullptr);

    void registerView(const QString& name, Factory factory);
    // Shows the named view; an unknown name changes nothing.
    void showView(const QString& name);
    QString currentName() const { return m_current; }

private:
    std::map<QString, Factory> m_factories;
    QString m_current;
};

} // namespace lullet
