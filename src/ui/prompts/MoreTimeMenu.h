#pragma once

#include <QMenu>

#include <functional>

namespace lullet {

// The choices of more time for a running item, in minutes.
class MoreTimeMenu final : public QMenu {
    Q_OBJECT
public:
    MoreTimeMenu(const std::function<void(int minutes)>& chosen, QWidget* parent);
};

} // namespace lullet
