#pragma once

#include "support/CalendarTest.h"

#include <QTemporaryDir>

#include <memory>

namespace lullet::test {

// A test class whose every test function has an empty folder of its own.
class FolderTest : public CalendarTest {
    Q_OBJECT
protected:
    QString folder() const { return m_dir->path(); }
    QString path(const QString& name) const { return m_dir->filePath(name); }

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
