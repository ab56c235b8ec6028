#include "ui/widgets/Balloon.h"

#include "ui/widgets/PanelPlacement.h"

#include <QTimer>

namespace lullet {

Balloon::Balloon(const QString& message, QWidget* anchor)
    : QLabel(message, anchor, Qt::ToolTip | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setStyleSheet(QStringLiteral("QLabel { background: #333333; color: white; padding: 5px; "
                                 "border-radius: 4px; font-size: 14px; }"));
    // A long message makes the balloon wider, not taller.
    setWordWrap(false);
    adjustSize();
    setMinimumSize(180, 25);
}

Balloon* Balloon::of(const QWidget* anchor)
{
    for (QObject* child : anchor->children()) {
        auto* balloon = qobject_cast<Balloon*>(child);
        if (balloon && balloon->isVisible())
            return balloon;
    }
    return nullptr;
}

void Balloon::dismiss(QWidget* anchor)
{
    while (Balloon* old = of(anchor))
        old->close();
}

Balloon* Balloon::show(const QString& message, QWidget* anchor, int lifetimeMs)
{
    dismiss(anchor);
    auto* balloon = new Balloon(message, anchor);
    const QRect at = PanelPlacement::globalRect(anchor);
    balloon->move(PanelPlacement::below(at, at.left(), balloon->size(),
                                        PanelPlacement::areaAt(at.center()), 2));
    balloon->QLabel::show();
    QTimer::singleShot(lifetimeMs, balloon, &QWidget::close);
    return balloon;
}

} // namespace lullet
