#include "core/security/PasswordRules.h"

#include <QCoreApplication>
#include <QTextBoundaryFinder>

namespace lullet::PasswordRules {

namespace {

bool isBlank(QChar c)
{
    return c == u'\t' || c.category() == QChar::Separator_Space;
}

QString emptyField()
{
    return QCoreApplication::translate("PasswordRules", "Please insert values in text fields");
}

QString tooShort()
{
    return QCoreApplication::translate("PasswordRules", "Password should be minimum 4 character");
}

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
        return emptyField();
    if (length(first) < minimumLength)
        return tooShort();
    if (first != second)
        return QCoreApplication::translate("PasswordRules", "Passwords does not match");
    return std::nullopt;
}

std::optional<QString> currentPasswordProblem(const QString& typed, const QString& stored)
{
    const QString current = trimmed(typed);
    if (current.isEmpty())
        return emptyField();
    if (length(current) < minimumLength)
        return tooShort();
    if (current != stored)
        return QCoreApplication::translate("PasswordRules", "Wrong Password");
    return std::nullopt;
}

} // namespace lullet::PasswordRules
