#include "ui/help/HelpWindow.h"

#include "ui/help/WelcomeSlides.h"

#include <QShortcut>
#include <QVBoxLayout>

namespace lullet {

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setWindowTitle(tr("Lullet Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    // Only a title and a close button, as the welcome has.
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowCloseButtonHint);
    auto* slides = new WelcomeSlides(tr("Close"), this);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slides);
    resize(800, 600);
    connect(slides, &WelcomeSlides::skipped, this, [this] {
        close();
        Q_EMIT done();
    });
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
            &QWidget::close);
    slides->setFocus();
}

} // namespace lullet
