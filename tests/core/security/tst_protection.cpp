#include "core/security/PasswordRules.h"
#include "support/LaunchedTest.h"

#include <QFile>

using namespace lullet;
using namespace lullet::test;

namespace {

std::optional<QString> noProblem;

QVariantMap passwordValues(const Settings& settings)
{
    return settings.dictionary(SettingsKeys::passwordValues);
}

} // namespace

class TestProtection : public LaunchedTest {
    Q_OBJECT
    Date launchedAt() const override { return at(2026, 11, 23, 10, 0); }
    Open openedAs() const override { return Open::No; }

    Protection& protection() { return services().protection; }
    Lock& lock() { return services().lock; }

    // A launch on a Monday morning inside the working hours, protected and locked.
    void launchProtected(std::optional<QString> secret)
    {
        app().settings.setDictionary(SettingsKeys::passwordValues,
                                     {{QString(SettingsKeys::isPassword), true}});
        app().secrets.secret = std::move(secret);
        QVERIFY(app().open());
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
    void newPasswords_data()
    {
        QTest::addColumn<QString>("password");
        QTest::addColumn<QString>("repeat");
        QTest::addColumn<std::optional<QString>>("problem");
        const auto empty = std::optional(QStringLiteral("Please insert values in text fields"));
        const auto tooShort =
            std::optional(QStringLiteral("Password should be minimum 4 character"));
        const auto differ = std::optional(QStringLiteral("Passwords does not match"));
        QTest::newRow("both empty") << QString() << QString() << empty;
        QTest::newRow("repeat only blanks")
            << QStringLiteral("abcd") << QStringLiteral(" \t ") << empty;
        QTest::newRow("three and blanks")
            << QStringLiteral("  abc \t") << QStringLiteral("abc") << tooShort;
        // Four characters as seen, seven code units: e with a combining accent, and a family.
        QTest::newRow("accents count once") << QStringLiteral("e\u0301e\u0301e\u0301")
                                            << QStringLiteral("e\u0301e\u0301e\u0301") << tooShort;
        QTest::newRow("graphemes")
            << QStringLiteral("e\u0301ab\U0001F468\u200D\U0001F469\u200D\U0001F467")
            << QStringLiteral("e\u0301ab\U0001F468\u200D\U0001F469\u200D\U0001F467") << noProblem;
        QTest::newRow("differ") << QStringLiteral("abcd") << QStringLiteral("abce") << differ;
        // Blanks at the ends go before the two are compared; a line end is no blank.
        QTest::newRow("blanks at the ends")
            << QStringLiteral(" abcd\t") << QStringLiteral("abcd") << noProblem;
        QTest::newRow("line end stays")
            << QStringLiteral("abcd\n") << QStringLiteral("abcd") << differ;
        QTest::newRow("inner blank stays")
            << QStringLiteral("ab cd") << QStringLiteral("abcd") << differ;
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
        const auto problem = [](const QString& typed) {
            return PasswordRules::currentPasswordProblem(typed, QStringLiteral("kestrel"));
        };
        QCOMPARE(*problem(QStringLiteral(" ")),
                 QStringLiteral("Please insert values in text fields"));
        QCOMPARE(*problem(QStringLiteral("kes")),
                 QStringLiteral("Password should be minimum 4 character"));
        QCOMPARE(*problem(QStringLiteral("kestrel!")), QStringLiteral("Wrong Password"));
        QCOMPARE(problem(QStringLiteral("\tkestrel ")), noProblem);
    }

    // Only the exact text opens the program, once; the lock never comes back in the run. The
    // idle question waits behind the lock and comes at once after the login; a reminder falls
    // due as at any other time.
    void theLoginTakesTheStoredPasswordExactly()
    {
        launchProtected(QStringLiteral("kestrel"));
        app().addItem(QStringLiteral("Water"), at(2026, 11, 23, 10, 20))->setShouldRemind(true);
        app().runUntil(at(2026, 11, 23, 10, 45));
        QCOMPARE(app().prompts.kinds(), QStringList{QStringLiteral("reminder")});
        QSignalSpy unlocked(&lock(), &Lock::unlocked);
        QCOMPARE(logIn(QString()), Protection::Login::Blank);
        QCOMPARE(logIn(QStringLiteral(" \t")), Protection::Login::Blank);
        QCOMPARE(logIn(QStringLiteral("falcon")), Protection::Login::Wrong);
        QCOMPARE(logIn(QStringLiteral("kestrel ")), Protection::Login::Wrong);
        QVERIFY(lock().isLocked());
        QCOMPARE(logIn(QStringLiteral("kestrel")), Protection::Login::In);
        QVERIFY(!lock().isLocked());
        QCOMPARE(unlocked.count(), 1);
        QTRY_COMPARE(app().prompts.kinds(),
                     (QStringList{QStringLiteral("reminder"), QStringLiteral("idle")}));
        QVERIFY(app().prompts.prompts.back().askNow);
        QCOMPARE(logIn(QStringLiteral("kestrel")), Protection::Login::In);
        QCOMPARE(unlocked.count(), 1);
        QVERIFY(protection().isOn());
    }

    // Protection without a stored password has nothing to hold to: any entry opens the program
    // and protection goes off. A keyring that can't answer is not such a case.
    void aMissingPasswordOpensButAnUnreachableKeyringDoesNot()
    {
        launchProtected(std::nullopt);
        app().secrets.unavailable = true;
        QCOMPARE(logIn(QStringLiteral("anything")), Protection::Login::Unavailable);
        QVERIFY(lock().isLocked());
        QVERIFY(protection().isOn());

        app().secrets.unavailable = false;
        QCOMPARE(logIn(QStringLiteral("anything")), Protection::Login::In);
        QVERIFY(!lock().isLocked());
        const QVariantMap values = passwordValues(app().settings);
        QCOMPARE(values.value(SettingsKeys::isPassword).toBool(), false);
        QCOMPARE(values.value(SettingsKeys::password).toString(), QString());
        QVERIFY(values.contains(SettingsKeys::email));
    }

    void storingTurnsProtectionOnOnlyWhenTheKeyringHoldsIt()
    {
        QVERIFY(app().open());
        std::optional<QString> error;
        const auto store = [&](const QString& password) {
            error.reset();
            protection().storePassword(password, this, [&](const QString& e) { error = e; });
            QTRY_VERIFY(error.has_value());
        };
        protection().switchOn();
        app().secrets.refuseWrites = true;
        store(QStringLiteral("Kestrel9"));
        QVERIFY(!error->isEmpty());
        QVERIFY(!protection().isOn());

        app().secrets.refuseWrites = false;
        store(QStringLiteral("Kestrel9"));
        QCOMPARE(*error, QString());
        QVERIFY(protection().isOn());
        QCOMPARE(app().secrets.secret, std::optional(QStringLiteral("Kestrel9")));
        app().settings.sync();
        QVERIFY(!readFile(app().settings.filePath()).contains("Kestrel9"));

        std::optional<QString> removal;
        protection().switchOff(this, [&](const QString& e) { removal = e; });
        QVERIFY(!protection().isOn());
        QTRY_COMPARE(removal, std::optional(QString()));
        QVERIFY(!app().secrets.secret);
    }

    // A keyring that never answers is given up on after a while: the program stays locked, a
    // switch turned off says that the password stayed, and an answer that comes too late counts
    // for nothing.
    void aKeyringThatNeverAnswersIsGivenUpOn()
    {
        using namespace std::chrono_literals;
        launchProtected(QStringLiteral("kestrel"));
        protection().setKeyringPatience(100ms);
        app().secrets.holding = true;
        std::optional<QString> why;
        protection().logIn(QStringLiteral("kestrel"), this,
                           [&](Protection::Login result, const QString& error) {
                               QCOMPARE(result, Protection::Login::Unavailable);
                               why = error;
                           });
        QTRY_VERIFY(why);
        QVERIFY(why->contains(QLatin1String("did not answer")));
        app().secrets.release();
        QTest::qWait(20);
        QVERIFY(lock().isLocked());

        app().secrets.holding = true;
        std::optional<QString> removal;
        protection().switchOff(this, [&](const QString& e) { removal = e; });
        QTRY_VERIFY(removal);
        QVERIFY(!removal->isEmpty());
        QVERIFY(!protection().isOn());
        app().secrets.holding = false;
        app().secrets.unavailable = true;
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
        app().secrets.unavailable = true;
        read();
        QCOMPARE(reading->outcome, SecretStore::Outcome::Unavailable);
        QVERIFY(protection().isOn());
        app().secrets.unavailable = false;
        read();
        QCOMPARE(reading->outcome, SecretStore::Outcome::NotFound);
        QVERIFY(!protection().isOn());
    }
};

LULLET_TEST_MAIN(TestProtection)
#include "tst_protection.moc"
