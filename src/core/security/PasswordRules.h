#pragma once

#include <QString>

#include <optional>

// What makes a password acceptable, with the messages that say why one is not.
namespace lullet::PasswordRules {

inline constexpr int minimumLength = 4;

// Blanks and tabs at both ends go; line ends and everything inside stay.
QString trimmed(const QString& text);
// Characters as the user sees them: "é" typed as e and an accent counts once.
int length(const QString& text);

// The new password and its repeat, each trimmed; the message when they can't be used.
std::optional<QString> newPasswordProblem(const QString& password, const QString& repeat);
// The current password before a change, against the stored one.
std::optional<QString> currentPasswordProblem(const QString& typed, const QString& stored);

} // namespace lullet::PasswordRules
