#pragma once

#include <QPixmap>
#include <QString>

namespace lullet {

// Who is logged in to the desktop, as the login page greets them.
struct UserIdentity {
    // The full name of the account, else the login name.
    QString fullName;
    // The account's picture, when the desktop has one; else null.
    QPixmap picture;

    static UserIdentity current();
};

} // namespace lullet
