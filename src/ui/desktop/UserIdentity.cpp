#include "ui/desktop/UserIdentity.h"

#include <QDir>
#include <QFileInfo>

#include <pwd.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace lullet {

namespace {

struct Account {
    QString login;
    QString fullName;
    QString home;
};

Account account()
{
    Account found;
    long size = ::sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? std::size_t(size) : 16384);
    passwd entry{};
    passwd* result = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &result) != 0 || !result)
        return found;
    found.login = QString::fromLocal8Bit(entry.pw_name);
    // The GECOS field: the full name, then room, telephones and other, separated by commas.
    found.fullName = QString::fromLocal8Bit(entry.pw_gecos).section(u',', 0, 0).trimmed();
    found.home = QString::fromLocal8Bit(entry.pw_dir);
    return found;
}

} // namespace

UserIdentity UserIdentity::current()
{
    const Account user = account();
    UserIdentity identity;
    identity.fullName = user.fullName.isEmpty() ? user.login : user.fullName;
    const QString home = user.home.isEmpty() ? QDir::homePath() : user.home;
    // The picture the desktop's account settings keep, else the one a user puts in ~/.face.
    QStringList places;
    if (!user.login.isEmpty())
        places << QStringLiteral("/var/lib/AccountsService/icons/") + user.login;
    places << QDir(home).filePath(QStringLiteral(".face"));
    for (const QString& place : std::as_const(places)) {
        if (QFileInfo(place).isReadable() && identity.picture.load(place))
            break;
    }
    return identity;
}

} // namespace lullet
