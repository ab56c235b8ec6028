#include "ui/widgets/HexColor.h"

#include <algorithm>

namespace lullet {

std::optional<QColor> HexColor::fromHex(const QString& text)
{
    QString digits = text;
    digits.remove(u'#');
    bool ok = false;
    const qulonglong value = digits.toULongLong(&ok, 16);
    if (!ok)
        return std::nullopt;
    return QColor::fromRgbF(float((value >> 16) & 0xFF) / 255.0f,
                            float((value >> 8) & 0xFF) / 255.0f, float(value & 0xFF) / 255.0f,
                            1.0f);
}

QString HexColor::hexString(const QColor& color)
{
    return color.name(QColor::HexRgb).mid(1).toUpper();
}

namespace {

QColor shifted(const QColor& color, float by)
{
    const auto clamp = [by](float c) { return std::clamp(c + by, 0.0f, 1.0f); };
    return QColor::fromRgbF(clamp(color.redF()), clamp(color.greenF()), clamp(color.blueF()),
                            color.alphaF());
}

} // namespace

QColor HexColor::lighterColorForColor(const QColor& color)
{
    return shifted(color, 0.2f);
}

QColor HexColor::darkColorForColor(const QColor& color)
{
    return shifted(color, -0.2f);
}

} // namespace lullet
