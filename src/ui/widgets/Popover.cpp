#include "ui/widgets/Popover.h"

#include "ui/widgets/PanelPlacement.h"

#include <QKeyEvent>
#include <QPropertyAnimation>
#include <QVBoxLayout>

#include <algorithm>

namespace lullet {

namespace {
constexpr int fadeMs = 150;
constexpr int gap = 4;
} // namespace

Popover::Popover(QWidget* content, QWidget* host)
    : QFrame(host,
             host ? Qt::Widget : Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_content(content)
{
    setObjectName(QStringLiteral("popover"));
    // A prompt never takes the keyboard from the program the user is typing in.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setStyleSheet(QStringLiteral("#popover { background: palette(window); border: 1px solid "
                                 "palette(mid); border-radius: 6px; }"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->addWidget(content);
}

Popover::~Popover() = default;

void Popover::showBelow(const QRect& anchor)
{
    adjustSize();
    move(PanelPlacement::below(anchor, anchor.center().x() - width() / 2, size(),
                               PanelPlacement::areaAt(anchor.center()), gap, gap));
    setWindowOpacity(1.0);
    show();
    raise();
}

void Popover::showInHost()
{
    adjustSize();
    const QWidget* host = parentWidget();
    move(std::max(0, host->width() - width() - 20), 20);
    show();
    raise();
}

void Popover::activate()
{
    raise();
    activateWindow();
    // The first field in the tab order, the answer's in a question.
    if (!focusWidget())
        focusNextChild();
}

void Popover::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT escapePressed();
        return;
    }
    QFrame::keyPressEvent(event);
}

void Popover::performClose(const std::function<void()>& done)
{
    if (m_closing) {
        if (done)
            connect(m_fade, &QPropertyAnimation::finished, this, done);
        return;
    }
    if (!isVisible()) {
        if (done)
            done();
        return;
    }
    m_closing = true;
    // A closing panel takes no more input: a second click can't answer twice.
    setEnabled(false);
    if (parentWidget()) {
        hide();
        m_closing = false;
        if (done)
            done();
        return;
    }
    m_fade = new QPropertyAnimation(this, "windowOpacity", this);
    m_fade->setDuration(fadeMs);
    m_fade->setStartValue(windowOpacity());
    m_fade->setEndValue(0.0);
    connect(m_fade, &QPropertyAnimation::finished, this, [this] {
        hide();
        m_closing = false;
    });
    if (done)
        connect(m_fade, &QPropertyAnimation::finished, this, done);
    m_fade->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace lullet
