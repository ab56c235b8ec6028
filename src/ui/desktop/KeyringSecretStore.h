#pragma once

#include "core/security/SecretStore.h"

namespace lullet {

// Passwords in the user's keyring over the Secret Service, as generic passwords of the service
// "lullet", each under its account. Never falls back to a file.
class KeyringSecretStore final : public SecretStore {
public:
    void read(const QString& account, QObject* context, ReadDone done) override;
    void write(const QString& account, const QString& secret, QObject* context,
               WriteDone done) override;
    void remove(const QString& account, QObject* context, WriteDone done) override;
};

} // namespace lullet
