#include "core/model/Item.h"
#include "core/monitor/TimeOverPrompt.h"
#include "core/presentation/Segment.h"
#include "core/text/CountedText.h"
#include "support/TestMain.h"
#include "ui/desktop/Translations.h"

#include <QCoreApplication>
#include <QTest>

using namespace lullet;

// The program in the user's language, here against a few German messages of the test's own; and
// English, the language of the sources, whatever else is there.
class TestTranslations : public QObject {
    Q_OBJECT

    static QString inDays(qint64 n)
    {
        return CountedText::text("RowTexts", "In %n days", n, n > 1 ? nullptr : "In %n day");
    }

    static QString qtCancel() { return QCoreApplication::translate("QProgressDialog", "Cancel"); }

private Q_SLOTS:
    void germanWhileInstalled()
    {
        {
            Translations translations(QLocale(QStringLiteral("de_DE")),
                                      QStringLiteral(TRANSLATIONS_FOLDER));
            // Before it is installed (the command line's help) it answers all the same.
            QCOMPARE(translations.text("Segment", "Today"), QStringLiteral("Heute"));
            QCOMPARE(translations.text("Segment", "Upcoming"), QStringLiteral("Upcoming"));
            QCOMPARE(Segments::text(Segment::Today), QStringLiteral("Today"));
            translations.install();
            QCOMPARE(Segments::text(Segment::Today), QStringLiteral("Heute"));
            // German's own forms for the count, not English's singular.
            QCOMPARE(inDays(1), QStringLiteral("In 1 Tag"));
            QCOMPARE(inDays(3), QStringLiteral("In 3 Tagen"));
            // A message the translation lacks stays English.
            QCOMPARE(Segments::text(Segment::Upcoming), QStringLiteral("Upcoming"));
            // A suggestion's title reads German wherever it shows, though the record keeps the
            // English it is matched by; a title of the user's own stays as written.
            Item tea;
            tea.setTitle(QStringLiteral("Tea break"));
            QCOMPARE(TimeOverPrompt::question(&tea),
                     QStringLiteral("Have you finished : Teepause ?"));
            tea.setTitle(QStringLiteral("Tea with Kim"));
            QCOMPARE(TimeOverPrompt::question(&tea),
                     QStringLiteral("Have you finished : Tea with Kim ?"));
            // Qt's own dialogs speak German too.
            QCOMPARE(qtCancel(), QStringLiteral("Abbrechen"));
        }
        QCOMPARE(Segments::text(Segment::Today), QStringLiteral("Today"));
        QCOMPARE(qtCancel(), QStringLiteral("Cancel"));
    }

    void englishAsWritten()
    {
        for (const char* name : {"en_US", "en_GB", "C", "ja_JP"}) {
            Translations translations(QLocale(QString::fromLatin1(name)),
                                      QStringLiteral(TRANSLATIONS_FOLDER));
            translations.install();
            QCOMPARE(Segments::text(Segment::Today), QStringLiteral("Today"));
            // English says one in the singular, which no translation gives it.
            QCOMPARE(inDays(1), QStringLiteral("In 1 day"));
            QCOMPARE(inDays(2), QStringLiteral("In 2 days"));
        }
    }
};

LULLET_TEST_MAIN(TestTranslations)
#include "tst_translations.moc"
