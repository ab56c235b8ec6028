#pragma once

#include <QTimeEdit>

namespace lullet {

// A time of day to type or to step, written as the program writes every time: the short time of
// the user's locale. A click on the hours or the minutes selects them, so that what is typed next
// replaces them rather than being refused as one digit too many.
class TimeField final : public QTimeEdit {
    Q_OBJECT
public:
    explicit TimeField(QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace lullet
