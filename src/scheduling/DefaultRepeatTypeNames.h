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
class DefaultRepeatTypeNames {
public:
    static const QStringList& arrayTypes();
    // The suggestions of one group title; empty for an unknown title.
    static const std::vector<CatalogueEntry>& dictTypeToInfoMap(const QString& groupTitle);

    static const std::vector<CatalogueEntry>& LulletsForRest();
    static const std::vector<CatalogueEntry>& LulletsForNutrition();
    static const std::vector<CatalogueEntry>& LulletsForFitness();
    static const std::vector<CatalogueEntry>& LulletsForLightFoodDrinks();
};

} // namespace lullet
