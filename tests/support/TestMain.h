#pragma once

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

// Every test runs with a temporary HOME and Qt's test paths, so that no test can ever read or
// write the user's own settings or store.
#define LULLET_TEST_MAIN_WITH(AppClass, TestClass)                                                 \
    int main(int argc, char* argv[])                                                               \
    {                                                                                              \
        QTemporaryDir home;                                                                        \
        if (!home.isValid())                                                                       \
            return 2;                                                                              \
        ::setenv("HOME", home.path().toLocal8Bit().constData(), 1);                                \
        for (const char* var :                                                                     \
             {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_STATE_HOME"})             \
            ::unsetenv(var);                                                                       \
        QStandardPaths::setTestModeEnabled(true);                                                  \
        AppClass app(argc, argv);                                                                  \
        AppClass::setApplicationName(QStringLiteral("Lullet"));                                    \
        TestClass tc;                                                                              \
        QTEST_SET_MAIN_SOURCE_PATH                                                                 \
        return QTest::qExec(&tc, argc, argv);                                                      \
    }

#define LULLET_TEST_MAIN(TestClass) LULLET_TEST_MAIN_WITH(QCoreApplication, TestClass)
