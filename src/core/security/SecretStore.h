#pragma once

#include <QString>

#include <functional>

class QObject;

namespace lullet {

// Where passwords live: the user's keyring, or a fake in tests. Each password is kept under an
// account of its own: the launch password under one, each sync server's under another. Every
// answer comes later on the main thread, never inside the call, and only while `context` still
// exists, so a window that closes before the keyring answers hears nothing.
class SecretStore {
public:
    enum class Outcome {
        Found,
        NotFound,
        // The keyring could not be asked or did not answer the question. Never the same as "no
        // password": it says nothing about whether one is stored.
        Unavailable,
    };
    struct Reading {
        Outcome outcome = Outcome::Unavailable;
        QString secret;
        // Why the keyring could not answer, in its own words.
        QString error;
    };
    using ReadDone = std::function<void(const Reading&)>;
    // An empty error means done.
    using WriteDone = std::function<void(const QString& error)>;

    virtual ~SecretStore() = default;

    virtual void read(const QString& account, QObject* context, ReadDone done) = 0;
    virtual void write(const QString& account, const QString& secret, QObject* context,
                       WriteDone done) = 0;
    // Removing a password that isn't there is done, not an error.
    virtual void remove(const QString& account, QObject* context, WriteDone done) = 0;
};

} // namespace lullet
