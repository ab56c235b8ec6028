#pragma once

#include <QColor>
#include <QString>

#include <optional>

namespace lullet {

// Colours given as hexadecimal text, as the program's styles name them ("FC7274", "#a0cfab").
class HexColor {
public:
    // Every "#" is removed and the rest read as one hexadecimal number; its three low bytes are
    // red, green and blue, fully opaque. Text that is no number gives no colour.
    static std::optional<QColor> fromHex(const QString& text);
    // "RRGGBB", upper case.
    static QString hexString(const QColor& color);
    // Each component 0.2 lighter (at most 1.0) or darker (at least 0.0).
    static QColor lighterColorForColor(const QColor& color);
    static QColor darkColorForColor(const QColor& color);
};

} // namespace lullet
