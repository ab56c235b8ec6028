#include "core/security/Lock.h"
#include "core/security/PasswordRules.h"
#include "core/security/Protection.h"
#include "core/settings/SettingsKeys.h"
#include "support/Launched.h"
#include "support/TestCalendar.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>
#include <optional>

using namespace lullet;
using namespace lullet::test;

namespace {

std::optional<QString> noProblem;

QVariantMap passwordValues(const Settings& settings)
{
    return settings.dictionary(SettingsKeys::passwordValues);
}

} // namespace

class TestProtection : public QObject {
    Q_OBJECT
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Launched> m_app;

    Protection& protection() { return m_app->services().protection; }
    Lock& lock() { return m_app->services().lock; }

    // A launch on a Monday morning inside the working hours, protected and locked.
    void launchProtected(std::optional<QString> secret)
    {
        m_app->settings.setDictionary(SettingsKeys::passwordValues,
                                      {{QString(SettingsKeys::isPassword), true}});
        m_app->secrets.secret = std::move(secret);
        QVERIFY(m_app->open());
        QVERIFY(lock().isLocked());
    }

    Protection::Login logIn(const QString& typed)
    {
        std::optional<Protection::Login> result;
        protection().logIn(typed, this, [&](Protection::Login r, const QString&) { result = r; });
        if (!QTest::qWaitFor([&] { return result.has_value(); }, 1000))
            qFatal("no answer to the login");
        return *result;
    }

private Q_SLOTS:
    void init()
    {
        useTestCalendar();
        m_dir = std::make_unique<QTemporaryDir>();
        m_app = std::make_unique<Launched>(m_dir->path(), at(2026, 11, 23, 10, 0));
    }

    void cleanup()
    {
        m_app.reset();
        m_dir.reset();
    }

    void newPasswords_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("repeat");
        QTest::addColumn<std::optional<QString>>("problem");
        const auto empty = std::optional(QStringLiteral("Please insert values in text fields"));
        const auto tooShort =
            std::optional(QStringLiteral("Password should be minimum 4 character"));
        const auto differ = std::optional(QStringLiteral("Passwords does not match"));
        QTest::newRow("both empty") << ""
                                    << "" << empty;
        QTest::newRow("repeat only blanks") << "abcd"
                                            << " \t " << empty;
        QTest::newRow("three and blanks") << "  abc \t"
                                          << "abc" << tooShort;
        // Four characters as seen, seven code units: e with a combining accent, and a family.
        QTest::newRow("accents count once") << QStringLiteral("e\u0301e\u0301e\u0301")
                                            << QStringLiteral("e\u0301e\u0301e\u0301") << tooShort;
        QTest::newRow("graphemes")
            << QStringLiteral("e\u0301ab\U0001F468\u200D\U0001F469\u200D\U0001F467")
            << QStringLiteral("e\u0301ab\U0001F468\u200D\U0001F469\u200D\U0001F467") << noProblem;
        QTest::newRow("differ") << "abcd"
                                << "abce" << differ;
        // Blanks at the ends go before the two are compared; a line end is no blank.
        QTest::newRow("blanks at the ends") << " abcd\t"
                                            << "abcd" << noProblem;
        QTest::newRow("line end stays") << "abcd\n"
                                        << "abcd" << differ;
        QTest::newRow("inner blank stays") << "ab cd"
                                           << "abcd" << differ;
    }

    void newPasswords()
    {
        QFETCH(QString, password);
        QFETCH(QString, repeat);
        QFETCH(std::optional<QString>, problem);
        QCOMPARE(PasswordRules::newPasswordProblem(password, repeat), problem);
    }

    void theCurrentPasswordBeforeAChange()
    {
        const QString stored = QStringLiteral("kestrel");
        QCOMPARE(PasswordRules::currentPasswordProblem(QStringLiteral(" "), stored),
                 std::optional(QStringLiteral("Please insert values in text fields")));
        QCOMPARE(PasswordRules::currentPasswordProblem(QStringLiteral("kes"), stored),
                 std::optional(QStringLiteral("Password should be minimum 4 character")));
        QCOMPARE(PasswordRules::currentPasswordProblem(QStringLiteral("kestrel!"), stored),
                 std::optional(QStringLiteral("Wrong Password")));
        QCOMPARE(PasswordRules::currentPasswordProblem(QStringLiteral("\tkestrel "), stored),
                 noProblem);
    }

    // Only the exact text opens the program, once; the lock never comes back in the run.
    void theLoginTakesTheStoredPasswordExactly()
    {
        launchProtected(QStringLiteral("kestrel"));
        QSignalSpy unlocked(&lock(), &Lock::unlocked);
        QCOMPARE(logIn(QString()), Protection::Login::Blank);
        QCOMPARE(logIn(QStringLiteral(" \t")), Protection::Login::Blank);
        QCOMPARE(logIn(QStringLiteral("falcon")), Protection::Login::Wrong);
        QCOMPARE(logIn(QStringLiteral("kestrel ")), Protection::Login::Wrong);
        QVERIFY(lock().isLocked());
        QCOMPARE(logIn(QStringLiteral("kestrel")), Protection::Login::In);
        QVERIFY(!lock().isLocked());
        QCOMPARE(unlocked.count(), 1);
        QCOMPARE(logIn(QStringLiteral("kestrel")), Protection::Login::In);
        QCOMPARE(unlocked.count(), 1);
        QVERIFY(protection().isOn());
    }

    // Protection without a stored password has nothing to hold to: any entry opens the program
    // and protection goes off. A keyring that can't answer is not such a case.
    void aMissingPasswordOpensButAnUnreachableKeyringDoesNot()
    {
        launchProtected(std::nullopt);
        m_app->secrets.unavailable = true;
        QCOMPARE(logIn(QStringLiteral("anything")), Protection::Login::Unavailable);
        QVERIFY(lock().isLocked());
        QVERIFY(protection().isOn());

        m_app->secrets.unavailable = false;
        QCOMPARE(logIn(QStringLiteral("anything")), Protection::Login::In);
        QVERIFY(!lock().isLocked());
        const QVariantMap values = passwordValues(m_app->settings);
        QCOMPARE(values.value(SettingsKeys::isPassword).toBool(), false);
        QCOMPARE(values.value(SettingsKeys::password).toString(), QString());
        QVERIFY(values.contains(SettingsKeys::email));
    }

    // The idle question waits behind the lock and comes at once after the login; a reminder
    // falls due as at any other time.
    void theLockHoldsBackOnlyTheIdleQuestion()
    {
        launchProtected(QStringLiteral("kestrel"));
        m_app->addItem(QStringLiteral("Water"), at(2026, 11, 23, 10, 20))->setShouldRemind(true);
        m_app->runUntil(at(2026, 11, 23, 10, 45));
        QCOMPARE(m_app->prompts.kinds(), QStringList{QStringLiteral("reminder")});
        QCOMPARE(logIn(QStringLiteral("kestrel")), Protection::Login::In);
        QTRY_COMPARE(m_app->prompts.kinds(),
                     (QStringList{QStringLiteral("reminder"), QStringLiteral("idle")}));
        QVERIFY(m_app->prompts.prompts.back().askNow);
    }

    void storingTurnsProtectionOnOnlyWhenTheKeyringHoldsIt()
    {
        QVERIFY(m_app->open());
        std::optional<QString> error;
        const auto store = [&](const QString& password) {
            error.reset();
            protection().storePassword(password, this, [&](const QString& e) { error = e; });
            QTRY_VERIFY(error.has_value());
        };
        protection().switchOn();
        m_app->secrets.refuseWrites = true;
        store(QStringLiteral("Kestrel9"));
        QVERIFY(!error->isEmpty());
        QVERIFY(!protection().isOn());

        m_app->secrets.refuseWrites = false;
        store(QStringLiteral("Kestrel9"));
        QCOMPARE(*error, QString());
        QVERIFY(protection().isOn());
        QCOMPARE(m_app->secrets.secret, std::optional(QStringLiteral("Kestrel9")));
        m_app->settings.sync();
        QFile file(m_app->settings.filePath());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QVERIFY(!file.readAll().contains("Kestrel9"));

        std::optional<QString> removal;
        protection().switchOff(this, [&](const QString& e) { removal = e; });
        QVERIFY(!protection().isOn());
        QTRY_COMPARE(removal, std::optional(QString()));
        QVERIFY(!m_app->secrets.secret);
    }

    // A keyring that never answers is given up on after a while: the program stays locked, a
    // switch turned off says that the password stayed, and an answer that comes too late counts
    // for nothing.
    void aKeyringThatNeverAnswersIsGivenUpOn()
    {
        using namespace std::chrono_literals;
        launchProtected(QStringLiteral("kestrel"));
        protection().setKeyringPatience(100ms);
        m_app->secrets.holding = true;
        std::optional<QString> why;
        protection().logIn(QStringLiteral("kestrel"), this,
                           [&](Protection::Login result, const QString& error) {
                               QCOMPARE(result, Protection::Login::Unavailable);
                               why = error;
                           });
        QTRY_VERIFY(why);
        QVERIFY(why->contains(QLatin1String("did not answer")));
        m_app->secrets.release();
        QTest::qWait(20);
        QVERIFY(lock().isLocked());

        m_app->secrets.holding = true;
        std::optional<QString> removal;
        protection().switchOff(this, [&](const QString& e) { removal = e; });
        QTRY_VERIFY(removal);
        QVERIFY(!removal->isEmpty());
        QVERIFY(!protection().isOn());
        m_app->secrets.holding = false;
        m_app->secrets.unavailable = true;
        removal.reset();
        protection().switchOff(this, [&](const QString& e) { removal = e; });
        QTRY_VERIFY(removal);
        QVERIFY(!removal->isEmpty());
    }

    // Reading what is stored repairs protection that has no password, and only that.
    void readingRepairsProtectionWithoutAPassword()
    {
        launchProtected(std::nullopt);
        std::optional<SecretStore::Reading> reading;
        const auto read = [&] {
            reading.reset();
            protection().readPassword(this, [&](const SecretStore::Reading& r) { reading = r; });
            QTRY_VERIFY(reading.has_value());
        };
        m_app->secrets.unavailable = true;
        read();
        QCOMPARE(reading->outcome, SecretStore::Outcome::Unavailable);
        QVERIFY(protection().isOn());
        m_app->secrets.unavailable = false;
        read();
        QCOMPARE(reading->outcome, SecretStore::Outcome::NotFound);
        QVERIFY(!protection().isOn());
    }
};

LULLET_TEST_MAIN(TestProtection)
#include "tst_protection.moc"
