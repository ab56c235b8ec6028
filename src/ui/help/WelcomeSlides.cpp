#include "ui/help/WelcomeSlides.h"

#include "ui/help/SlideArt.h"
#include "ui/help/SlideCanvas.h"
#include "ui/help/UserGuide.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lullet {

namespace {

std::vector<SlideCanvas::Slide> slideTexts()
{
    return {
        {QObject::tr("Welcome to Lullet"),
         QObject::tr("Short pauses keep you well through the day: a rest, a meal, a stretch, a "
                     "glass of water. Lullet reminds you of them, and of your tasks.")},
        {QObject::tr("Choose your lullets"),
         QObject::tr("Open Lullets and switch on the suggestions you want. Each repeats by its "
                     "own rule: every hour, at noon, on weekdays. Change a rule, or add your "
                     "own.")},
        {QObject::tr("Tasks and projects"),
         QObject::tr("Add a task from anywhere with Quick Add. Group tasks into projects, and "
                     "see how much of the time you planned is used.")},
        {QObject::tr("Your working hours"),
         QObject::tr("Tell Lullet when you work. When nothing runs during those hours, it asks "
                     "what you have been doing, and records the answer.")},
        {QObject::tr("Always at hand in the tray"),
         QObject::tr("Click the tray icon to see what runs and what comes next. Reminders open "
                     "there too, and never take the keyboard from what you are typing.")},
    };
}

} // namespace

WelcomeSlides::WelcomeSlides(const QString& doneText, QWidget* parent)
    : QWidget(parent)
    , m_doneText(doneText)
    , m_canvas(new SlideCanvas(slideTexts(), this))
    , m_previous(new QPushButton(tr("Previous"), this))
    , m_next(new QPushButton(tr("Next"), this))
    , m_skip(new QPushButton(tr("Skip"), this))
    , m_position(new QLabel(this))
{
    Q_ASSERT(m_canvas->count() == SlideArt::slideCount);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 24, 24, 20);
    layout->addWidget(m_canvas, 1);
    auto* bar = new QWidget(this);
    makeButtons(bar);
    layout->addWidget(bar);
    setFocusPolicy(Qt::StrongFocus);
    showButtons();
}

void WelcomeSlides::makeButtons(QWidget* bar)
{
    m_previous->setObjectName(QStringLiteral("previous"));
    m_next->setObjectName(QStringLiteral("next"));
    m_skip->setObjectName(QStringLiteral("skip"));
    m_position->setObjectName(QStringLiteral("position"));
    // A hidden button keeps its place, so the others don't jump as the slides turn.
    for (QPushButton* button : {m_previous, m_next}) {
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
    auto* guide = new QPushButton(tr("User's Guide"), bar);
    guide->setObjectName(QStringLiteral("usersGuide"));
    guide->setFlat(true);
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_previous);
    row->addWidget(guide);
    row->addStretch();
    row->addWidget(m_position);
    row->addStretch();
    row->addWidget(m_skip);
    row->addWidget(m_next);
    connect(m_previous, &QPushButton::clicked, this, &WelcomeSlides::previous);
    connect(m_next, &QPushButton::clicked, this, &WelcomeSlides::next);
    connect(m_skip, &QPushButton::clicked, this, &WelcomeSlides::skipped);
    connect(guide, &QPushButton::clicked, this, [this] { UserGuide::open(window()); });
}

int WelcomeSlides::index() const
{
    return m_canvas->current();
}

void WelcomeSlides::next()
{
    m_canvas->showSlide(index() + 1);
    showButtons();
}

void WelcomeSlides::previous()
{
    m_canvas->showSlide(index() - 1);
    showButtons();
}

void WelcomeSlides::showButtons()
{
    const bool first = index() == 0;
    const bool last = index() == m_canvas->count() - 1;
    m_previous->setVisible(!first);
    m_next->setVisible(!last);
    m_skip->setText(last ? m_doneText : tr("Skip"));
    QString dots;
    for (int i = 0; i < m_canvas->count(); ++i)
        dots += i == index() ? QStringLiteral("●") : QStringLiteral("○");
    m_position->setText(dots);
    m_position->setAccessibleName(tr("Slide %1 of %2").arg(index() + 1).arg(m_canvas->count()));
}

void WelcomeSlides::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Right:
        next();
        return;
    case Qt::Key_Left:
        previous();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace lullet
