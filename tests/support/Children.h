#pragma once

#include <QObject>

namespace lullet::test {

// The widget or action a test drives, found by its object name, or the only one of its type.
// One that is missing ends the test with its name rather than with a crash further on.
template <typename T = QWidget> T* child(const QObject* parent, const char* name = nullptr)
{
    T* found = parent->findChild<T*>(name ? QString::fromLatin1(name) : QString());
    if (!found)
        qFatal("No %s named \"%s\"", T::staticMetaObject.className(), name ? name : "");
    return found;
}

} // namespace lullet::test
