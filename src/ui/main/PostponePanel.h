#pragma once

#include "core/dates/Date.h"

#include <QFrame>

class QDateTimeEdit;
class QLabel;

namespace lullet {

class Clock;
class Item;
class Postponing;
struct Services;

// The postpone panel: the named choices with their captions, or a free date and time. It closes
// on a click elsewhere, and after a named choice.
class PostponePanel final : public QFrame {
    Q_OBJECT
public:
    PostponePanel(const Services& services, Item* item, QWidget* parent = nullptr);

    void popUpAt(const QPoint& globalPos);
    // The choice of the given tag, as its button does.
    void choose(int choice);
    void postponeToChosenDate();

private:
    void buildChoices(Date base);
    void buildDateChoice(Date now, Date base);

    const Clock& m_clock;
    Postponing& m_postponing;
    Item* m_item;
    QWidget* m_choices;
    QWidget* m_dateChoice;
    QDateTimeEdit* m_dateTime;
};

} // namespace lullet
