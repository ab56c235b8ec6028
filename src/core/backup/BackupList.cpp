#include "core/backup/BackupList.h"

#include "core/settings/Settings.h"
#include "core/settings/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStringList>

namespace lullet {

namespace {

constexpr qint64 keptDays = 7;

bool isInside(const QString& path, const QString& folder)
{
    const QString dir = QFileInfo(path).absoluteDir().canonicalPath();
    return !dir.isEmpty() && dir == QDir(folder).canonicalPath();
}

} // namespace

BackupList::BackupList(Settings& settings, QString backupsFolder)
    : m_settings(settings)
    , m_folder(std::move(backupsFolder))
{
}

std::vector<BackupInfo> BackupList::entries() const
{
    return BackupInfo::unarchive(m_settings.data(SettingsKeys::backupFiles2));
}

void BackupList::add(const BackupInfo& info)
{
    std::vector<BackupInfo> list = entries();
    list.insert(list.begin(), info);
    store(list);
}

void BackupList::store(const std::vector<BackupInfo>& list)
{
    if (list.empty())
        m_settings.remove(SettingsKeys::backupFiles2);
    else
        m_settings.setValue(SettingsKeys::backupFiles2, BackupInfo::archive(list));
    m_settings.sync();
}

QString BackupList::prune(Date now)
{
    const int option = m_settings.backupOption();
    if (option == 0)
        return {};
    // Only the first option keeps anything: a second, longer one was never reachable.
    const qint64 keep = option == 1 ? keptDays : 0;
    const std::vector<BackupInfo> list = entries();
    if (list.empty())
        return {};
    const Date startOfToday = now.dateAtStartOfDay();
    std::vector<BackupInfo> kept;
    QStringList failures;
    for (const BackupInfo& info : list) {
        // An entry without its date can't be aged: it stays, unless nothing is kept at all.
        const bool stays =
            info.createdDate ? startOfToday.daysAfterDate(*info.createdDate) < keep : keep > 0;
        const QString failure = stays ? QString() : deleteFile(info.path);
        if (stays || !failure.isEmpty())
            kept.push_back(info);
        if (!failure.isEmpty())
            failures << failure;
    }
    if (kept.size() != list.size())
        store(kept);
    return failures.join(u'\n');
}

QString BackupList::deleteFile(const QString& path) const
{
    if (path.isEmpty() || !QFile::exists(path) || !isInside(path, m_folder))
        return {};
    QFile file(path);
    return file.remove() ? QString() : QStringLiteral("%1: %2").arg(path, file.errorString());
}

QString BackupList::remove(const QString& path)
{
    std::vector<BackupInfo> list = entries();
    std::erase_if(list, [&](const BackupInfo& info) { return info.path == path; });
    store(list);
    return deleteFile(path);
}

QString BackupList::removeAll()
{
    QStringList failures;
    for (const BackupInfo& info : entries()) {
        const QString failure = deleteFile(info.path);
        if (!failure.isEmpty())
            failures << failure;
    }
    store({});
    return failures.join(u'\n');
}

QString BackupList::sizeToDisplay(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists() || !info.isReadable())
        return QStringLiteral("Zero Byte");
    const qint64 bytes = info.size();
    if (bytes == 0)
        return QStringLiteral("Zero KB");
    if (bytes < 1000)
        return bytes == 1 ? QStringLiteral("1 byte") : QStringLiteral("%1 bytes").arg(bytes);
    const QLocale locale;
    // Kilobytes whole, megabytes with one decimal, larger units with two.
    if (bytes < 1000 * 1000)
        return locale.toString(double(bytes) / 1e3, 'f', 0) + QStringLiteral(" KB");
    if (bytes < qint64(1000) * 1000 * 1000)
        return locale.toString(double(bytes) / 1e6, 'f', 1) + QStringLiteral(" MB");
    return locale.toString(double(bytes) / 1e9, 'f', 2) + QStringLiteral(" GB");
}

QString BackupList::timestampText(Date now)
{
    QString text = now.toString(DateStyle::Medium, DateStyle::Medium);
    text.replace(u':', u'-').replace(u',', u' ').replace(u'/', u'-');
    // ICU puts a narrow no-break space before AM and PM; file names keep to plain spaces.
    text.replace(QChar(0x202F), u' ').replace(QChar(0x00A0), u' ');
    return text;
}

} // namespace lullet
