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
    if (m_active)
        m_db.exec("ROLLBACK");
}

bool Transaction::commit()
{
    if (!m_active)
        return false;
    m_active = false;
    if (m_db.exec("COMMIT"))
        return true;
    m_db.exec("ROLLBACK");
    return false;
}

} // namespace lullet
