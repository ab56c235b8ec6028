#include "ui/main/ViewSwitcher.h"

#include "ui/desktop/MemoryTrim.h"

namespace lullet {

ViewSwitcher::ViewSwitcher(QWidget* parent)
    : QStackedWidget(parent)
{
}

void ViewSwitcher::registerView(View view, Factory factory)
{
    m_factories[view] = std::move(factory);
}

void ViewSwitcher::showView(View view)
{
    const auto it = m_factories.find(view);
    if (it == m_factories.end())
        return;
    QWidget* made = it->second();
    if (QWidget* old = currentWidget()) {
        removeWidget(old);
        old->deleteLater();
        // What the view held, a list of the whole history perhaps, goes back to the system.
        MemoryTrim::soon();
    }
    addWidget(made);
    setCurrentWidget(made);
    m_current = view;
}

} // namespace lullet
