#include "core/sync/SyncIdentity.h"

#include "core/model/Item.h"
#include "core/model/Project.h"
#include "core/model/RepeatCodes.h"
#include "core/model/Rule.h"
#include "core/text/LocalizedText.h"

#include <QCryptographicHash>

namespace lullet {

namespace {

QString dateText(const std::optional<Date>& date)
{
    return date ? QString::number(date->timeIntervalSince1970(), 'g', 17) : QStringLiteral("-");
}

QString folded(const std::optional<QString>& text)
{
    return LocalizedText::foldCaseAndDiacritics(text.value_or(QString()));
}

// What the record is, in one line per part.
QString seedOf(const Record& record)
{
    switch (record.entity()) {
    case Record::Entity::Project:
        return QStringLiteral("project\n") + folded(static_cast<const Project&>(record).name());
    case Record::Entity::Rule: {
        // A suggestion of the catalogue is one rule wherever it was switched on.
        const auto& rule = static_cast<const Rule&>(record);
        if (!rule.isCustom().value_or(false))
            return QStringLiteral("suggestion\n") + folded(rule.title());
        return QStringLiteral("rule\n") + folded(rule.uniqueId() ? rule.uniqueId() : rule.title());
    }
    case Record::Entity::Item:
        break;
    }
    const auto& item = static_cast<const Item&>(record);
    const std::optional<QString> ruleId = item.uniqueId();
    if (ruleId && !ruleId->isEmpty() && *ruleId != placeholderId())
        return QStringLiteral("occurrence\n") + folded(ruleId) + QLatin1Char('\n') +
               dateText(item.dtReminder());
    return QStringLiteral("item\n") + item.title().value_or(QString()) + QLatin1Char('\n') +
           dateText(item.dtReminder());
}

} // namespace

QString SyncIdentity::uidFor(const Record& record)
{
    const QByteArray digest =
        QCryptographicHash::hash(seedOf(record).toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("lullet-") + QString::fromLatin1(digest.left(16).toHex());
}

} // namespace lullet
