#include "core/store/Transaction.h"

#include "core/store/Db.h"

namespace lullet {

Transaction::Transaction(Db& db)
    : m_db(db)
{
    m_active = m_db.exec("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (m_active && m_db.inTransaction())
        m_db.exec("ROLLBACK");
}

bool Transaction::commit()
{
    if (!m_active)
        return false;
    if (!m_db.exec("COMMIT")) {
        // What is left is rolled back at the end, once the caller has read why the commit
        // failed; a rollback now would put its own error in place of that.
        return false;
    }
    m_active = false;
    return true;
}

} // namespace lullet
