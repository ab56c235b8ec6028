#pragma once

#include <QString>

namespace lullet {

class Record;

// The UID a record is known by on the server. It is worked out from what makes the record what
// it is, not drawn at random, so that two stores that made the same record give it the same UID
// and meet on the server as one: an occurrence by its rule and its date, a rule of the user's by
// its id, a suggestion's rule by its suggestion, a project by its name, any other item by its
// title and date.
class SyncIdentity {
public:
    static QString uidFor(const Record& record);
};

} // namespace lullet
