#include "core/security/PasswordRules.h"

#include <QTextBoundaryFinder>

namespace lullet::PasswordRules {

namespace {

bool isBlank(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

const QString emptyField = QStringLiteral("Please insert values in text fields");
const QString tooShort = QStringLiteral("Password should be minimum 4 character");

} // namespace

QString trimmed(const QString& text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && isBlank(text.at(begin)))
        ++begin;
    while (end > begin && isBlank(text.at(end - 1)))
        --end;
    return text.mid(begin, end - begin);
}

int length(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int count = 0;
    while (finder.toNextBoundary() > 0)
        ++count;
    return count;
}

std::optional<QString> newPasswordProblem(const QString& password, const QString& repeat)
{
    const QString first = trimmed(password);
    const QString second = trimmed(repeat);
    if (first.isEmpty() || second.isEmpty())
        return emptyField;
    if (length(first) < minimumLength)
        return tooShort;
    if (first != second)
        return QStringLiteral("Passwords does not match");
    return std::nullopt;
}

std::optional<QString> currentPasswordProblem(const QString& typed, const QString& stored)
{
    const QString current = trimmed(typed);
    if (current.isEmpty())
        return emptyField;
    if (length(current) < minimumLength)
        return tooShort;
    if (current != stored)
        return QStringLiteral("Wrong Password");
    return std::nullopt;
}

} // namespace lullet::PasswordRules
