#pragma once

#include "support/CalendarTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <memory>

namespace lullet::test {

// A test class whose every test function has an empty folder of its own.
class FolderTest : public CalendarTest {
    Q_OBJECT
protected:
    QString folder() const { return m_dir->path(); }
    QString path(const QString& name) const { return QDir(m_dir->path()).filePath(name); }

    // Writes a file of that name in the folder (or at that path), and gives its path.
    QString writeFile(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s could not be written", qUtf8Printable(file.fileName()));
        return file.fileName();
    }

    static QByteArray readFile(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

protected Q_SLOTS:
    void init()
    {
        CalendarTest::init();
        m_dir = std::make_unique<QTemporaryDir>();
        QVERIFY(m_dir->isValid());
    }
    void cleanup() { m_dir.reset(); }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

} // namespace lullet::test
