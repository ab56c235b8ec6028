#include "ui/widgets/ViewSwitcher.h"

namespace lullet {

ViewSwitcher::ViewSwitcher(QWidget* parent)
    : QStackedWidget(parent)
{
}

void ViewSwitcher::registerView(const QString& name, Factory factory)
{
    m_factories[name] = std::move(factory);
}

void ViewSwitcher::showView(const QString& name)
{
    const auto it = m_factories.find(name);
    if (it == m_factories.end())
        return;
    QWidget* view = it->second();
    if (QWidget* old = currentWidget()) {
        removeWidget(old);
        old->deleteLater();
    }
    addWidget(view);
    setCurrentWidget(view);
    m_current = name;
}

} // namespace lullet
