#pragma once

#include "support/DatePrinting.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"

#include <QObject>

namespace lullet::test {

// The base of every test class that reckons dates: each test function, and the data functions
// that run before any of them, see the test calendar, whatever a test before changed.
class CalendarTest : public QObject {
    Q_OBJECT
protected Q_SLOTS:
    void initTestCase() { useTestCalendar(); }
    void init() { useTestCalendar(); }
};

} // namespace lullet::test
