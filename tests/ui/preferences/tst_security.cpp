#include "support/DesktopTest.h"
#include "support/Shots.h"
#include "ui/authoring/QuickAddView.h"
#include "ui/main/ItemListView.h"
#include "ui/preferences/PreferencesWindow.h"
#include "ui/preferences/SecurityTab.h"
#include "ui/shell/LoginPage.h"
#include "ui/shell/RunningListView.h"
#include "ui/shell/WindowContent.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

using namespace lullet;
using namespace lullet::test;

namespace {

// What the user sees of a widget: shown within its window.
bool seen(QWidget* widget)
{
    return widget->isVisibleTo(widget->window());
}

} // namespace

// The password settings and the login page, over a fake keyring.
class TestSecurity : public DesktopTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }
    Open openedAs() const override { return Open::No; }

    Protection& protection() { return services().protection; }
    bool protectionOn() { return protection().isOn(); }

    void launch(bool protectedWith, std::optional<QString> secret)
    {
        app().settings.setDictionary(SettingsKeys::passwordValues,
                                     {{QString(SettingsKeys::isPassword), protectedWith}});
        app().secrets.secret = std::move(secret);
        QVERIFY(app().open());
    }

    static void type(QWidget* tab, const char* field, const QString& text)
    {
        child<QLineEdit>(tab, field)->setText(text);
    }

private Q_SLOTS:
    // Off, setting, set, and off again, with the messages in their order.
    void settingAPassword()
    {
        launch(false, std::nullopt);
        SecurityTab tab(protection());
        tab.resize(560, 340);
        tab.show();
        auto* box = child<QCheckBox>(&tab, "protection");
        auto* done = child<QPushButton>(&tab, "done");
        auto* message = child<QLabel>(&tab, "passwordMessage");
        QTRY_VERIFY(box->isEnabled());
        QVERIFY(!box->isChecked());
        QVERIFY(!seen(done));

        box->click();
        // On before any password: half set, as the launch will find it.
        QVERIFY(protectionOn());
        QVERIFY(seen(done));
        QCOMPARE(done->text(), QStringLiteral("Done"));
        const auto press = [&](const QString& password, const QString& repeat) {
            type(&tab, "newPassword", password);
            type(&tab, "repeatPassword", repeat);
            done->click();
        };
        // The rules' every refusal is tested with them; here one, said in red.
        press(QStringLiteral("Kestrel9"), QStringLiteral("Kestrel8"));
        QCOMPARE(message->text(), QStringLiteral("Passwords does not match"));
        QVERIFY(message->styleSheet().contains(QLatin1String("E34947")));
        press(QStringLiteral(" Kestrel9\t"), QStringLiteral("Kestrel9"));
        QTRY_COMPARE(message->text(), QStringLiteral("Password protection is set!"));
        QVERIFY(message->styleSheet().contains(QLatin1String("06A0EB")));
        saveShot(&tab, QStringLiteral("security-set"));
        QCOMPARE(app().secrets.secret, std::optional(QStringLiteral("Kestrel9")));
        QCOMPARE(done->text(), QStringLiteral("Change"));
        QVERIFY(!child<QLineEdit>(&tab, "newPassword")->isEnabled());
        QVERIFY(protectionOn());

        // "Change" opens the fields again, and only Done stores.
        done->click();
        QCOMPARE(done->text(), QStringLiteral("Done"));
        QVERIFY(child<QLineEdit>(&tab, "newPassword")->isEnabled());
        press(QStringLiteral("Falcon77"), QStringLiteral("Falcon77"));
        QTRY_COMPARE(app().secrets.secret, std::optional(QStringLiteral("Falcon77")));

        box->click();
        QVERIFY(!protectionOn());
        QTRY_VERIFY(!app().secrets.secret);
        QVERIFY(!seen(done));
    }

    // A stored password must be given before anything changes; the keyring's answer is awaited
    // without blocking, and a keyring that can't be reached changes nothing.
    void changingAStoredPassword()
    {
        launch(true, QStringLiteral("Kestrel9"));
        app().secrets.holding = true;
        SecurityTab tab(protection());
        tab.show();
        auto* box = child<QCheckBox>(&tab, "protection");
        auto* status = child<QLabel>(&tab, "keyringStatus");
        QVERIFY(seen(status));
        QVERIFY(!box->isEnabled());
        QVERIFY(!seen(child<QLineEdit>(&tab, "currentPassword")));
        app().secrets.release();
        QTRY_VERIFY(seen(child<QLineEdit>(&tab, "currentPassword")));
        QVERIFY(box->isChecked());
        QVERIFY(!box->isEnabled());
        QVERIFY(!seen(child<QLineEdit>(&tab, "newPassword")));

        auto* proceed = child<QPushButton>(&tab, "continue");
        auto* gateMessage = child<QLabel>(&tab, "currentPasswordMessage");
        type(&tab, "currentPassword", QStringLiteral("Kestrel8"));
        proceed->click();
        QCOMPARE(gateMessage->text(), QStringLiteral("Wrong Password"));
        type(&tab, "currentPassword", QStringLiteral("Kestrel9 "));
        proceed->click();
        QVERIFY(seen(child<QLineEdit>(&tab, "newPassword")));
        QCOMPARE(child<QLineEdit>(&tab, "newPassword")->text(), QStringLiteral("Kestrel9"));
        QCOMPARE(child<QPushButton>(&tab, "done")->text(), QStringLiteral("Change"));
        QVERIFY(box->isEnabled());

        app().secrets.unavailable = true;
        SecurityTab unreachable(protection());
        QTRY_VERIFY(child<QPushButton>(&unreachable, "retry")->isVisibleTo(&unreachable));
        QVERIFY(child<QLabel>(&unreachable, "keyringStatus")->text().contains(u"keyring"));
        QVERIFY(!child<QCheckBox>(&unreachable, "protection")->isEnabled());
        QVERIFY(protectionOn());
    }

    // Protection that has no password turns itself off when the settings open; a keyring that
    // can't store the password leaves it off and says so.
    void protectionWithoutAPassword()
    {
        launch(true, std::nullopt);
        SecurityTab tab(protection());
        auto* box = child<QCheckBox>(&tab, "protection");
        QTRY_VERIFY(box->isEnabled());
        QVERIFY(!box->isChecked());
        QVERIFY(!protectionOn());

        box->click();
        app().secrets.refuseWrites = true;
        type(&tab, "newPassword", QStringLiteral("Kestrel9"));
        type(&tab, "repeatPassword", QStringLiteral("Kestrel9"));
        child<QPushButton>(&tab, "done")->click();
        auto* message = child<QLabel>(&tab, "passwordMessage");
        QTRY_VERIFY(message->text().contains(QLatin1String("could not store")));
        QVERIFY(!protectionOn());
        QCOMPARE(child<QPushButton>(&tab, "done")->text(), QStringLiteral("Done"));
    }

    // Behind the lock nothing of the user's data shows: the window has the login page, the
    // tray's panel says it is locked, quick add is refused and the data's menu entries are off.
    // Preferences reach the security tab alone until the user is in.
    void theLockHidesTheData()
    {
        // The windows are made before the store is read and the lock switched on, as at launch.
        MainWindow window;
        Shell shell(services(), window, app().presence, app().notifier);
        launch(true, QStringLiteral("Kestrel9"));
        app().addItem(QStringLiteral("Secret plan"), at(2026, 11, 23, 11));
        shell.showTray();
        shell.setLoaded();
        shell.bringMainWindowForward();
        QVERIFY(shell.content()->loginPage());
        QVERIFY(!shell.content()->mainView());
        QCOMPARE(window.findChildren<ItemListView*>().size(), 0);
        saveShot(&window, QStringLiteral("login-page"));

        RunningListView trayList(services());
        QVERIFY(!trayList.findChild<ItemListView*>());
        QVERIFY(child<QLabel>(&trayList, "runningNow")->text().contains(QLatin1String("locked")));

        Dialogs::answerNext(QStringLiteral("Ok"));
        shell.quickAdd();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Lullet is locked."));
        for (QWidget* top : QApplication::topLevelWidgets())
            QVERIFY(!qobject_cast<QuickAddView*>(top) || !top->isVisible());
        const QList<QAction*> entries = window.menuBar()->actions().first()->menu()->actions();
        for (QAction* entry : entries) {
            if (entry->text().contains(QLatin1String("Back Up")) ||
                entry->text().contains(QLatin1String("Restore")) ||
                entry->text().contains(QLatin1String("Quick")))
                QVERIFY2(!entry->isEnabled(), qPrintable(entry->text()));
        }
        // Nor does a way round the menu copy or replace the data.
        Dialogs::answerNext(QStringLiteral("Ok"));
        Q_EMIT window.backUpRequested();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Lullet is locked."));
        Dialogs::answerNext(QStringLiteral("Ok"));
        Q_EMIT window.restoreRequested();
        QCOMPARE(Dialogs::asked().last().text, QStringLiteral("Lullet is locked."));

        Q_EMIT child<QPushButton>(shell.content()->loginPage(), "preferences")->clicked();
        PreferencesWindow* preferences = shell.preferences();
        QVERIFY(preferences);
        QCOMPARE(preferences->currentTab(), PreferencesWindow::Tab::Security);
        QVERIFY(!preferences->tabAction(PreferencesWindow::Tab::General)->isVisible());
        QCOMPARE(preferences->height(), 400);
        QTRY_VERIFY(seen(child<QLineEdit>(preferences, "currentPassword")));
        saveShot(preferences, QStringLiteral("preferences-locked"));

        LoginPage* page = shell.content()->loginPage();
        auto* field = page->passwordField();
        field->setText(QStringLiteral("Kestrel9"));
        Q_EMIT field->returnPressed();
        QTRY_VERIFY(!shell.content()->loginPage());
        QVERIFY(shell.content()->mainView());
        QVERIFY(preferences->tabAction(PreferencesWindow::Tab::General)->isVisible());
        preferences->tabAction(PreferencesWindow::Tab::General)->trigger();
        QCOMPARE(preferences->currentTab(), PreferencesWindow::Tab::General);
        QCoreApplication::processEvents();
        saveShot(preferences, QStringLiteral("preferences-general"));
        for (QAction* entry : entries)
            QVERIFY2(entry->isEnabled() || !entry->isVisible(), qPrintable(entry->text()));
    }

    void theLoginPageSaysWhatWentWrong()
    {
        launch(true, QStringLiteral("Kestrel9"));
        LoginPage page(protection());
        page.resize(600, 600);
        page.show();
        auto* field = page.passwordField();
        auto* error = child<QLabel>(&page, "loginError");
        const auto submit = [&](const QString& text) {
            field->setText(text);
            child<QPushButton>(&page, "logIn")->click();
        };
        submit(QStringLiteral("  "));
        QCOMPARE(error->text(), QStringLiteral("PLEASE ENTER PASSWORD..."));
        submit(QStringLiteral("Kestrel9 "));
        QTRY_COMPARE(error->text(), QStringLiteral("INCORRECT PASSWORD..."));
        // The entry stays as typed, for the user to correct.
        QCOMPARE(field->text(), QStringLiteral("Kestrel9 "));
        saveShot(&page, QStringLiteral("login-wrong"));

        app().secrets.unavailable = true;
        submit(QStringLiteral("Kestrel9"));
        auto* unreachable = child<QWidget>(&page, "keyringUnreachable");
        QTRY_VERIFY(seen(unreachable));
        QVERIFY(services().lock.isLocked());
        saveShot(&page, QStringLiteral("login-unreachable"));
        app().secrets.unavailable = false;

        // A keyring that never answers: the page gives up after a while, and stays locked.
        app().secrets.holding = true;
        protection().setKeyringPatience(std::chrono::milliseconds(100));
        child<QPushButton>(unreachable, "retry")->click();
        QVERIFY(!field->isEnabled());
        QTRY_VERIFY(field->isEnabled());
        QVERIFY(seen(unreachable));
        QVERIFY(child<QLabel>(unreachable)->text().contains(u"did not answer"));
        app().secrets.release();
        QVERIFY(services().lock.isLocked());
        child<QPushButton>(unreachable, "retry")->click();
        QTRY_VERIFY(!services().lock.isLocked());
    }

    // Protection switched off while the keyring can't remove the password: off, and said.
    void switchingOffWhenTheKeyringKeepsThePassword()
    {
        launch(true, QStringLiteral("Kestrel9"));
        SecurityTab tab(protection());
        tab.show();
        type(&tab, "currentPassword", QStringLiteral("Kestrel9"));
        QTRY_VERIFY(seen(child<QLineEdit>(&tab, "currentPassword")));
        child<QPushButton>(&tab, "continue")->click();
        app().secrets.unavailable = true;
        Dialogs::answerNext(QStringLiteral("Ok"));
        child<QCheckBox>(&tab, "protection")->click();
        QVERIFY(!protectionOn());
        QTRY_COMPARE(Dialogs::asked().size(), 1);
        QVERIFY(Dialogs::asked().first().text.contains(u"could not remove the password"));
    }
};

LULLET_TEST_MAIN_WITH(QApplication, TestSecurity)
#include "tst_security.moc"
