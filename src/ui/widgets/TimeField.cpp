#include "ui/widgets/TimeField.h"

#include "core/dates/StyledDateFormat.h"

#include <QEvent>
#include <QLineEdit>
#include <QTimer>

namespace lullet {

namespace {

// Text kept as it is, quoted so that no letter of it reads as a field.
QString literal(const QString& text)
{
    if (text.isEmpty())
        return {};
    QString quoted = text;
    quoted.replace(u'\'', QStringLiteral("''"));
    return u'\'' + quoted + u'\'';
}

// The field of a run of one ICU letter, or nothing for a field a time field cannot show.
QString fieldFor(QChar letter, qsizetype run)
{
    switch (letter.unicode()) {
    case u'h':
    case u'K':
        return run > 1 ? QStringLiteral("hh") : QStringLiteral("h");
    case u'H':
    case u'k':
        return run > 1 ? QStringLiteral("HH") : QStringLiteral("H");
    case u'm':
        return QStringLiteral("mm");
    case u's':
        return QStringLiteral("ss");
    case u'a':
    case u'b':
    case u'B':
        // Morning or afternoon, in the case the locale writes it.
        return QStringLiteral("Ap");
    default:
        return {};
    }
}

// Reads the quoted literal that starts at `from` into `text`, two quotes standing for one, and
// answers where the pattern goes on.
qsizetype readQuoted(const QString& pattern, qsizetype from, QString& text)
{
    qsizetype i = from + 1;
    while (i < pattern.size()) {
        if (pattern[i] != u'\'') {
            text += pattern[i++];
            continue;
        }
        if (i + 1 < pattern.size() && pattern[i + 1] == u'\'') {
            text += u'\'';
            i += 2;
            continue;
        }
        return i + 1;
    }
    return i;
}

// The display format of a time field for a pattern in ICU's letters: "h:mm a" gives "h:mm Ap".
// Fields a time field cannot show, such as a zone, are left out.
QString displayFormatFor(const QString& pattern)
{
    QString format;
    QString text;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar c = pattern[i];
        if (c == u'\'') {
            i = readQuoted(pattern, i, text);
            continue;
        }
        if (!c.isLetter()) {
            text += c;
            ++i;
            continue;
        }
        qsizetype run = 1;
        while (i + run < pattern.size() && pattern[i + run] == c)
            ++run;
        const QString field = fieldFor(c, run);
        if (!field.isEmpty()) {
            format += literal(text) + field;
            text.clear();
        }
        i += run;
    }
    // What stood before a field left out at the end goes with it.
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return format + literal(text);
}

} // namespace

TimeField::TimeField(QWidget* parent)
    : QTimeEdit(parent)
{
    setDisplayFormat(
        displayFormatFor(StyledDateFormat::pattern(DateStyle::None, DateStyle::Short)));
    lineEdit()->installEventFilter(this);
}

bool TimeField::eventFilter(QObject* watched, QEvent* event)
{
    // The click has placed the cursor once the line edit has had the release.
    if (event->type() == QEvent::MouseButtonRelease)
        QTimer::singleShot(0, this, [this] { setSelectedSection(currentSection()); });
    return QTimeEdit::eventFilter(watched, event);
}

} // namespace lullet
