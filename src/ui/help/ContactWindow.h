#pragma once

#include <QWidget>

namespace lullet {

// How to reach the people behind Lullet: a few lines with the address and the contact page.
class ContactWindow final : public QWidget {
    Q_OBJECT
public:
    explicit ContactWindow(QWidget* parent = nullptr);
};

} // namespace lullet
