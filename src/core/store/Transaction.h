#pragma once

namespace lullet {

class Db;

// An open write transaction that rolls back, when it ends, unless it was committed.
class Transaction {
public:
    explicit Transaction(Db& db);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    bool isActive() const { return m_active; }
    bool commit();

private:
    Db& m_db;
    bool m_active = false;
};

} // namespace lullet
