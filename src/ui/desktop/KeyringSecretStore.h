#pragma once

#include "core/security/SecretStore.h"

namespace lullet {

// The password in the user's keyring over the Secret Service, as a generic password of the
// service "lullet" and the account "lulletAppAccount". Never falls back to a file.
class KeyringSecretStore final : public SecretStore {
public:
    void read(QObject* context, ReadDone done) override;
    void write(const QString& secret, QObject* context, WriteDone done) override;
    void remove(QObject* context, WriteDone done) override;
};

} // namespace lullet
