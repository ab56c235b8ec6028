#pragma once

#include "core/security/SecretStore.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>
#include <vector>

namespace lullet::test {

// Stands in for the keyring. Answers come on the next turn of the event loop, as a real
// keyring's do; with `holding` set they wait until release(), for the moments in between.
class FakeSecretStore final : public SecretStore {
public:
    void read(QObject* context, ReadDone done) override
    {
        answer(context, [this, done = std::move(done)] {
            if (unavailable)
                done({Outcome::Unavailable, {}, QStringLiteral("No keyring here")});
            else if (secret)
                done({Outcome::Found, *secret, {}});
            else
                done({Outcome::NotFound, {}, {}});
        });
    }

    void write(const QString& value, QObject* context, WriteDone done) override
    {
        answer(context, [this, value, done = std::move(done)] {
            if (unavailable || refuseWrites) {
                done(QStringLiteral("The keyring is locked"));
                return;
            }
            secret = value;
            done({});
        });
    }

    void remove(QObject* context, WriteDone done) override
    {
        answer(context, [this, done = std::move(done)] {
            if (unavailable) {
                done(QStringLiteral("No keyring here"));
                return;
            }
            secret.reset();
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

    std::optional<QString> secret;
    bool unavailable = false;
    bool refuseWrites = false;
    bool holding = false;

private:
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
