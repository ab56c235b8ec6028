#pragma once

#include <QWidget>

namespace lullet {

// About Lullet: its version, the user's guide and the project's pages.
class MoreInfoTab final : public QWidget {
    Q_OBJECT
public:
    explicit MoreInfoTab(QWidget* parent = nullptr);

private:
    QWidget* makeLinks();
};

} // namespace lullet
