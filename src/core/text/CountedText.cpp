#include "core/text/CountedText.h"

#include <QCoreApplication>

namespace lullet {

QString CountedText::text(const char* context, const char* plural, qint64 n, const char* singular)
{
    const QString count = QString::number(n);
    QString translated = QCoreApplication::translate(context, plural, nullptr, int(n));
    // Untranslated, Qt gives the source back with its count: the program speaks English.
    if (singular && translated == QString::fromUtf8(plural).replace(QLatin1String("%n"), count))
        return QString::fromUtf8(singular).replace(QLatin1String("%n"), count);
    return translated;
}

} // namespace lullet
