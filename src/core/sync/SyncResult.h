#pragma once

#include "core/sync/CalDavClient.h"

#include <QString>

namespace lullet {

// How one synchronisation went.
struct SyncResult {
    // What stopped it; None when it went through.
    CalDavClient::Problem problem = CalDavClient::Problem::None;
    // The network's or the server's own words for the problem.
    QString detail;
    // This store's changes could not be saved.
    bool saveFailed = false;
    // The keyring did not give the server's password.
    bool keyringUnavailable = false;
    // Records changed here by what the server had.
    int received = 0;
    // Records sent to the server.
    int sent = 0;
    // Resources on the server that hold no to-do this program can read.
    int unreadable = 0;
    // Records the server would not take; they wait here for another try.
    int refused = 0;
    // More changed while this one ran: another pass is due at once.
    bool again = false;

    bool ok() const
    {
        return problem == CalDavClient::Problem::None && !saveFailed && !keyringUnavailable;
    }
};

} // namespace lullet
