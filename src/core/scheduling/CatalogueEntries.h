#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace lullet {

// One suggestion of the catalogue, as written; a suggestion may leave any key out.
struct CatalogueEntry {
    QString name;
    QString notes;
    std::optional<QString> type;
    std::optional<QString> duration;
    std::optional<QString> repeatType;
    std::optional<QString> repeatValue;
};

// The fixed catalogue of suggested lullets, compiled into the program: four groups in display
// order. Every text is literal, typing slips included.
class CatalogueEntries {
public:
    static const QStringList& groups();
    // A text of the catalogue (a group, a suggestion's name or notes) in the user's language;
    // any other text as it is. The catalogue's texts stay English in the records, which a
    // suggestion's rule is matched by.
    static QString shown(const QString& text);
    // The suggestions of one group title; empty for an unknown title.
    static const std::vector<CatalogueEntry>& entriesOf(const QString& groupTitle);

    static const std::vector<CatalogueEntry>& rest();
    static const std::vector<CatalogueEntry>& nutrition();
    static const std::vector<CatalogueEntry>& fitness();
    static const std::vector<CatalogueEntry>& lightFood();
};

} // namespace lullet
