#include "core/model/Item.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/sync/RecordFields.h"
#include "core/sync/SyncMerge.h"
#include "core/sync/VTodo.h"
#include "support/TestMain.h"

#include <QJsonDocument>

using namespace lullet;

namespace {

// JSON written with single quotes, which read better in C++ strings.
QJsonObject json(const char* text)
{
    return QJsonDocument::fromJson(QByteArray(text).replace('\'', '"')).object();
}

QByteArray written(const QJsonObject& fields, const QByteArray& previous = {},
                   const QString& project = {})
{
    return VTodo::write({QStringLiteral("uid-1"), fields, Date(1'800'000'000), project}, previous);
}

QJsonObject readBack(const QByteArray& text)
{
    const std::optional<VTodo::Read> read = VTodo::read(text);
    return read ? read->fields : QJsonObject{{QStringLiteral("unreadable"), true}};
}

} // namespace

class TestSyncMapping : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Every attribute of each kind of record comes back exactly, fractions of seconds included.
    void everyAttributeSurvivesTheRoundTrip_data()
    {
        QTest::addColumn<QJsonObject>("fields");
        QJsonObject item =
            json("{'kind':'item','uniqueId':'Tea; break, 2_1.7e9',"
                 "'durationHr':1,'durationMin':30,'shouldRemind':true,'remindBefore':3,"
                 "'dtReminder':1800000123.25,'dtReminderPostponed':1800003600.5,'repeatInterval':2,"
                 "'repeatIntervalType':3,'repeatOption':-5,'dtRepeatUpto':1900000000,"
                 "'hasStarted':false,'hasFinished':true,'timeLimit':5400,'elapsedTime':61,"
                 "'timeLimitExtendedBy':600,'runningTimeCovered':0,'toProject':'lullet-p1'}");
        // Texts with what iCalendar must escape.
        item.insert(QStringLiteral("title"), QStringLiteral("Tea, \"green\"; now"));
        item.insert(QStringLiteral("notes"),
                    QStringLiteral("Line one\nLine two, with \\ a backslash"));
        QTest::newRow("item") << item;
        QTest::newRow("running item without a date")
            << json("{'kind':'item','title':'Think','hasStarted':true,'hasFinished':false,"
                    "'durationHr':0,'durationMin':0}");
        QTest::newRow("rule") << json(
            "{'kind':'rule','uniqueId':'Water_1.7e9',"
            "'title':'Water','notes':'Drink','durationHr':0,'durationMin':10,"
            "'shouldRemind':true,'remindBefore':0,'dtReminder':1800000000.75,'repeatInterval':2,"
            "'repeatIntervalType':1,'repeatOption':1,'dtRepeatUpto':1810000000,"
            "'isCustom':false,'isToDoOrJob':true,'isActive':true}");
        QTest::newRow("project") << json("{'kind':'project','name':'Home, garden',"
                                         "'createdDate':1800000000.5,'uniqueId':'<to make>'}");
    }
    void everyAttributeSurvivesTheRoundTrip()
    {
        QFETCH(QJsonObject, fields);
        const QByteArray text = written(fields);
        QCOMPARE(readBack(text), fields);
        // Written again over itself, nothing is lost nor said twice.
        const QByteArray again = written(fields, text);
        QCOMPARE(readBack(again), fields);
        QCOMPARE(again.count("SUMMARY"), 1);
        QCOMPARE(again.count("X-LULLET-KIND"), 1);
        QCOMPARE(again.size(), text.size());
    }

    // Other programs read the standard properties, and what they change there wins.
    void standardPropertiesSpeakToOtherPrograms()
    {
        const QJsonObject timed = json(
            "{'kind':'item','title':'Lunch','durationHr':1,"
            "'durationMin':0,'dtReminder':1800000000,'hasFinished':true,'toProject':'lullet-p1'}");
        const QByteArray text = written(timed, {}, QStringLiteral("Work"));
        for (const char* line :
             {"SUMMARY:Lunch", "DTSTART:20270115T080000Z", "DURATION:PT1H", "STATUS:COMPLETED",
              "COMPLETED:20270115T080000Z", "RELATED-TO;RELTYPE=PARENT:lullet-p1",
              "CATEGORIES;X-LULLET-PROJECT=TRUE:Work"})
            QVERIFY2(text.contains(line), line);
        QVERIFY(!text.contains("\nDUE"));

        QByteArray edited = text;
        edited.replace("SUMMARY:Lunch", "SUMMARY:Late lunch");
        edited.replace("DTSTART:20270115T080000Z", "DTSTART:20270115T090000Z");
        edited.replace("STATUS:COMPLETED", "STATUS:NEEDS-ACTION");
        edited.replace("END:VTODO", "PRIORITY:1\r\nEND:VTODO");
        QJsonObject expected = timed;
        expected.insert(QStringLiteral("title"), QStringLiteral("Late lunch"));
        expected.insert(QStringLiteral("dtReminder"), 1800003600.0);
        expected.insert(QStringLiteral("hasFinished"), false);
        QCOMPARE(readBack(edited), expected);
        // What it added stays when this program writes the resource again.
        QVERIFY(written(expected, edited).contains("PRIORITY:1"));

        const QJsonObject rule = json("{'kind':'rule','title':'Stretch','dtReminder':1800000000,"
                                      "'repeatInterval':2,'repeatIntervalType':2,'repeatOption':1,'"
                                      "dtRepeatUpto':1810000000}");
        QVERIFY(written(rule).contains("RRULE:FREQ=DAILY;UNTIL=20270511T014640Z;INTERVAL=2"));
    }

    // A to-do of another program becomes a task with what can be read of it.
    void aForeignTodoIsATask()
    {
        const QByteArray text = "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:x\r\nSUMMARY:Milk\r\n"
                                "DTSTART;VALUE=DATE:20270301\r\nDUE;TZID=Europe/Paris:"
                                "20270301T180000\r\nDURATION:PT45M\r\nSTATUS:IN-PROCESS\r\n"
                                "END:VTODO\r\nEND:VCALENDAR\r\n";
        const QJsonObject fields = readBack(text);
        QCOMPARE(fields.value(QLatin1String("uniqueId")).toString(), placeholderId());
        // Six in the evening in Paris: 17:00 UTC; the due date wins over the start.
        QCOMPARE(fields.value(QLatin1String("dtReminder")).toDouble(), 1803920400.0);
        QCOMPARE(fields.value(QLatin1String("durationMin")).toInt(), 45);
        QVERIFY(fields.value(QLatin1String("shouldRemind")).toBool());
        QVERIFY(fields.value(QLatin1String("hasStarted")).toBool());
    }

    // Server data is input: what isn't a to-do is refused, a value that can't be read is none.
    void garbageIsRefusedOrLeftOut()
    {
        for (const QByteArray& text :
             {QByteArray("<html>portal</html>"), QByteArray(),
              QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:e\r\nEND:VEVENT\r\nEND:VCALENDAR"),
              QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nSUMMARY:No UID\r\nEND:VTODO\r\n"
                         "END:VCALENDAR")})
            QVERIFY(!VTodo::read(text));
        const QJsonObject fields = readBack(
            "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:y\r\nSUMMARY:Odd\r\nX-LULLET-KIND:item\r\n"
            "X-LULLET-DURATIONHR:lots\r\nX-LULLET-HASFINISHED:maybe\r\nDUE:yesterday\r\n"
            "X-LULLET-DTREMINDER:1e400\r\nEND:VTODO\r\nEND:VCALENDAR\r\n");
        QCOMPARE(fields, json("{'kind':'item','title':'Odd'}"));
        Item item;
        RecordFields::apply(json("{'kind':'item','title':7,'durationHr':1.5,"
                                 "'dtReminder':'soon','hasFinished':'yes'}"),
                            item, [](const QString&) { return nullptr; });
        QVERIFY(!item.title() && !item.durationHr() && !item.dtReminder() && !item.hasFinished());
    }

    void mergeTakesEachFieldFromItsLaterEdit_data()
    {
        QTest::addColumn<QJsonObject>("base");
        QTest::addColumn<QJsonObject>("local");
        QTest::addColumn<QJsonObject>("remote");
        QTest::addColumn<QJsonObject>("merged");
        QTest::newRow("each side one field") << json("{'kind':'item','title':'A','notes':'n'}")
                                             << json("{'kind':'item','title':'B','notes':'n'}")
                                             << json("{'kind':'item','title':'A','notes':'m'}")
                                             << json("{'kind':'item','title':'B','notes':'m'}");
        QTest::newRow("both one field: the later (remote)")
            << json("{'kind':'item','title':'A'}") << json("{'kind':'item','title':'L'}")
            << json("{'kind':'item','title':'R'}") << json("{'kind':'item','title':'R'}");
        QTest::newRow("a field removed on one side")
            << json("{'kind':'item','title':'A','notes':'n'}")
            << json("{'kind':'item','title':'A'}")
            << json("{'kind':'item','title':'A','notes':'n'}")
            << json("{'kind':'item','title':'A'}");
        QTest::newRow("finished and time run only grow")
            << json("{'kind':'item','hasFinished':false,'elapsedTime':10}")
            << json("{'kind':'item','hasFinished':true,'hasStarted':false,'elapsedTime':50}")
            << json("{'kind':'item','hasFinished':false,'hasStarted':true,'elapsedTime':90}")
            << json("{'kind':'item','hasFinished':true,'hasStarted':false,'elapsedTime':90}");
        QTest::newRow("no base: made on both sides")
            << QJsonObject() << json("{'kind':'item','title':'T','notes':'old'}")
            << json("{'kind':'item','title':'T','notes':'new'}")
            << json("{'kind':'item','title':'T','notes':'new'}");
    }
    void mergeTakesEachFieldFromItsLaterEdit()
    {
        QFETCH(QJsonObject, base);
        QFETCH(QJsonObject, local);
        QFETCH(QJsonObject, remote);
        QFETCH(QJsonObject, merged);
        QCOMPARE(SyncMerge::merge(base, {local, Date(100)}, {remote, Date(200)}), merged);
        // The local edit later: a field changed on both sides is the local one.
        if (QByteArray(QTest::currentDataTag()).startsWith("both"))
            QCOMPARE(SyncMerge::merge(base, {local, Date(300)}, {remote, Date(200)}), local);
    }

    // Running an item is no edit of it; postponing it is.
    void runningIsNoEdit()
    {
        const QJsonObject base = json("{'kind':'item','title':'A','hasStarted':false}");
        QVERIFY(SyncMerge::onlyRan(base, json("{'kind':'item','title':'A','hasStarted':true,"
                                              "'dtReminderPostponed':5,'elapsedTime':3}")));
        QVERIFY(!SyncMerge::onlyRan(base, json("{'kind':'item','title':'B','hasStarted':true}")));
        QVERIFY(!SyncMerge::onlyRan(base, json("{'kind':'item','title':'A','hasStarted':false,"
                                               "'dtReminderPostponed':5}")));
    }
};

LULLET_TEST_MAIN(TestSyncMapping)
#include "tst_syncmapping.moc"
