#pragma once

#include "core/presentation/Segment.h"

#include <QStackedWidget>

#include <functional>
#include <map>
#include <optional>

namespace lullet {

// The right side of the main window: one view at a time. A view is made afresh each time it is
// shown, so it reads the navigation state as it stands, and the one it replaces is dropped.
class ViewSwitcher final : public QStackedWidget {
    Q_OBJECT
public:
    using Factory = std::function<QWidget*()>;

    explicit ViewSwitcher(QWidget* parent = nullptr);

    void registerView(View view, Factory factory);
    // Shows the view; one never registered changes nothing.
    void showView(View view);
    std::optional<View> current() const { return m_current; }

private:
    std::map<View, Factory> m_factories;
    std::optional<View> m_current;
};

} // namespace lullet
