#include "ui/prompts/MoreTimeMenu.h"

namespace lullet {

MoreTimeMenu::MoreTimeMenu(const std::function<void(int)>& chosen, QWidget* parent)
    : QMenu(parent)
{
    for (const int minutes : {5, 10, 15, 30, 45, 60, 90, 120}) {
        const QString label =
            minutes < 60
                ? tr("%n minute(s)", nullptr, minutes)
                : tr("%n hour(s)", nullptr, minutes / 60) +
                      (minutes % 60 ? tr(" %n minute(s)", nullptr, minutes % 60) : QString());
        QAction* action = addAction(label);
        action->setData(minutes);
        connect(action, &QAction::triggered, this, [chosen, minutes] { chosen(minutes); });
    }
}

} // namespace lullet
