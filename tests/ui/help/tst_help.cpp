#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/help/HelpWindow.h"
#include "ui/help/Links.h"
#include "ui/help/WelcomeSlides.h"

#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QUrlQuery>

using namespace lullet;
using namespace lullet::test;

// The welcome slides, the help window that shows them again, and the project's links.
class TestHelp : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }

    QByteArray settingsFile() const
    {
        app().settings.sync();
        return readFile(app().settings.filePath());
    }

private Q_SLOTS:
    // Previous and Next come and go at the ends; Skip stays, named for leaving on the last.
    void theSlidesTurn()
    {
        WelcomeSlides slides(QStringLiteral("Get Started"));
        slides.resize(800, 600);
        slides.show();
        QSignalSpy skipped(&slides, &WelcomeSlides::skipped);
        QPushButton* previous = child<QPushButton>(&slides, "previous");
        QPushButton* next = child<QPushButton>(&slides, "next");
        QPushButton* skip = child<QPushButton>(&slides, "skip");
        QVERIFY(!previous->isVisible());
        slides.previous();
        QCOMPARE(slides.index(), 0);
        saveShot(&slides, QStringLiteral("welcome-1"));
        for (int slide = 1; slide < 5; ++slide) {
            next->click();
            QCOMPARE(slides.index(), slide);
            QVERIFY(previous->isVisible());
            // The slide moves in by an animation: the picture waits for its end.
            if (shotsWanted())
                QTest::qWait(600);
            saveShot(&slides, QStringLiteral("welcome-%1").arg(slide + 1));
        }
        QVERIFY(!next->isVisible());
        QCOMPARE(skip->text(), QStringLiteral("Get Started"));
        slides.next();
        QCOMPARE(slides.index(), 4);
        QTest::keyClick(&slides, Qt::Key_Left);
        QCOMPARE(slides.index(), 3);
        QCOMPARE(skip->text(), QStringLiteral("Skip"));
        QTest::keyClick(&slides, Qt::Key_Right);
        QCOMPARE(slides.index(), 4);
        QCOMPARE(skipped.count(), 0);
        skip->click();
        QCOMPARE(skipped.count(), 1);
    }

    // The button that leaves stands on the last slide where Next stood, as the primary one; the
    // dots stay in the middle; the guide reads as a link.
    void theLastSlideLeavesFromWhereNextStood()
    {
        WelcomeSlides slides(QStringLiteral("Get Started"));
        slides.resize(600, 600);
        slides.show();
        QPushButton* next = child<QPushButton>(&slides, "next");
        QPushButton* skip = child<QPushButton>(&slides, "skip");
        auto* dots = slides.findChild<QLabel*>(QStringLiteral("position"));
        const auto settle = [] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
        };
        const auto centred = [&] {
            return std::abs(dots->geometry().center().x() - dots->parentWidget()->width() / 2) <= 1;
        };
        settle();
        QVERIFY(next->isDefault() && !skip->isDefault());
        QVERIFY(centred());
        for (int slide = 1; slide < 4; ++slide)
            slides.next();
        settle();
        const int nextRight = next->geometry().right();
        slides.next();
        settle();
        QCOMPARE(skip->geometry().right(), nextRight);
        QVERIFY(skip->isDefault());
        QVERIFY(centred());
        auto* guide = slides.findChild<QLabel*>(QStringLiteral("usersGuide"));
        QVERIFY(guide && guide->text().startsWith(QStringLiteral("<a href=")));
        QVERIFY(guide->textInteractionFlags() & Qt::LinksAccessibleByKeyboard);
    }

    // One help window however often asked for; leaving it, by Skip or by closing, changes no
    // setting, and Skip brings the main window forward.
    void theHelpWindowChangesNoSetting()
    {
        MainWindow window;
        Shell shell(services(), window, app().presence, app().notifier);
        shell.setLoaded();
        const QByteArray before = settingsFile();
        shell.showHelp();
        HelpWindow* help = shell.help();
        QVERIFY(help && help->isVisible());
        shell.showHelp();
        QCOMPARE(shell.help(), help);
        child<QPushButton>(help, "next")->click();
        child<QPushButton>(help, "skip")->click();
        QTRY_VERIFY(!shell.help());
        QVERIFY(window.isVisible());
        shell.showHelp();
        QVERIFY(shell.help() != nullptr);
        shell.help()->close();
        QTRY_VERIFY(!shell.help());
        QCOMPARE(settingsFile(), before);
    }

    // The terms share the privacy page; the message's subject names the program; link text is
    // escaped.
    void theLinks()
    {
        QCOMPARE(Links::terms().adjusted(QUrl::RemoveFragment), Links::privacy());
        const QUrl email = Links::email();
        QCOMPARE(QUrlQuery(email).queryItemValue(QStringLiteral("subject")),
                 QStringLiteral("Lullet"));
        QCOMPARE(Links::anchor(QUrl(QStringLiteral("https://a.example/?x=1&y=2")),
                               QStringLiteral("Q&A")),
                 QStringLiteral("<a href=\"https://a.example/?x=1&amp;y=2\">Q&amp;A</a>"));
        for (const QUrl& url : {Links::website(), Links::faq(), Links::privacy(), Links::contact()})
            QVERIFY2(url.isValid() && url.scheme() == QStringLiteral("https"),
                     qPrintable(url.toString()));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestHelp)
#include "tst_help.moc"
