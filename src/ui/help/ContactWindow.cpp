#include "ui/help/ContactWindow.h"

#include "ui/help/Links.h"

#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>

namespace lullet {

ContactWindow::ContactWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
{
    setWindowTitle(tr("Contact Us"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(28, 24, 28, 24);
    auto* title = new QLabel(tr("Contact Us"), this);
    QFont big = title->font();
    big.setPointSizeF(big.pointSizeF() * 1.4);
    big.setBold(true);
    title->setFont(big);
    layout->addWidget(title);
    const QUrl email = Links::email();
    layout->addWidget(Links::label(
        tr("A question, an idea, or something that does not work as it should? Write to us at "
           "%1, or use the form on %2.")
            .arg(Links::anchor(email, email.path()),
                 Links::anchor(Links::contact(), tr("our contact page"))),
        this));
    layout->addWidget(Links::label(
        tr("Many answers are already in the %1.").arg(Links::anchor(Links::faq(), tr("FAQ"))),
        this));
    layout->addStretch();
    setFixedWidth(460);
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this,
            &QWidget::close);
}

} // namespace lullet
