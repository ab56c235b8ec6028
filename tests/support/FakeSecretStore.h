#pragma once

#include "core/security/Protection.h"
#include "core/security/SecretStore.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace lullet::test {

// Stands in for the keyring. Answers come on the next turn of the event loop, as a real
// keyring's do; with `holding` set they wait until release(), for the moments in between.
class FakeSecretStore final : public SecretStore {
public:
    void read(const QString& account, QObject* context, ReadDone done) override
    {
        answer(context, [this, account, done = std::move(done)] {
            const std::optional<QString>& stored = slot(account);
            if (unavailable)
                done({Outcome::Unavailable, {}, QStringLiteral("No keyring here")});
            else if (stored)
                done({Outcome::Found, *stored, {}});
            else
                done({Outcome::NotFound, {}, {}});
        });
    }

    void write(const QString& account, const QString& value, QObject* context,
               WriteDone done) override
    {
        answer(context, [this, account, value, done = std::move(done)] {
            if (unavailable || refuseWrites) {
                done(QStringLiteral("The keyring is locked"));
                return;
            }
            slot(account) = value;
            done({});
        });
    }

    void remove(const QString& account, QObject* context, WriteDone done) override
    {
        answer(context, [this, account, done = std::move(done)] {
            if (unavailable) {
                done(QStringLiteral("No keyring here"));
                return;
            }
            slot(account).reset();
            done({});
        });
    }

    // Delivers the answers held back so far.
    void release()
    {
        holding = false;
        auto pending = std::move(m_pending);
        for (auto& deliver : pending)
            deliver();
    }

    // The launch password's account, and every other account.
    std::optional<QString> secret;
    std::map<QString, std::optional<QString>> others;
    bool unavailable = false;
    bool refuseWrites = false;
    bool holding = false;

private:
    std::optional<QString>& slot(const QString& account)
    {
        return account == Protection::account() ? secret : others[account];
    }

    void answer(QObject* context, std::function<void()> reply)
    {
        QPointer<QObject> guard(context);
        auto deliver = [guard, reply = std::move(reply)] {
            if (guard)
                reply();
        };
        if (holding)
            m_pending.push_back(std::move(deliver));
        else
            QTimer::singleShot(0, context, std::move(deliver));
    }

    std::vector<std::function<void()>> m_pending;
};

} // namespace lullet::test
