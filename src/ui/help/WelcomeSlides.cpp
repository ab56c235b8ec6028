#include "ui/help/WelcomeSlides.h"

#include "ui/help/Links.h"
#include "ui/help/SlideArt.h"
#include "ui/help/SlideCanvas.h"
#include "ui/help/UserGuide.h"

#include <QGridLayout>
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
    // Previous keeps its place while hidden, so nothing on its left jumps; Next gives its place up
    // on the last slide, where the button that leaves takes it.
    QSizePolicy policy = m_previous->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    m_previous->setSizePolicy(policy);
    // The guide is a page to read, not a step of the slides: it reads as a link.
    auto* guide =
        new QLabel(Links::anchor(QUrl::fromLocalFile(QString::fromUtf8(UserGuide::fileName)),
                                 tr("User's Guide")),
                   bar);
    guide->setObjectName(QStringLiteral("usersGuide"));
    guide->setTextFormat(Qt::RichText);
    guide->setTextInteractionFlags(Qt::TextBrowserInteraction);
    connect(guide, &QLabel::linkActivated, this, [this] { UserGuide::open(window()); });
    // Three columns, the outer two alike, so the dots stay in the middle whatever the buttons.
    auto* row = new QGridLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    auto* left = new QHBoxLayout;
    left->addWidget(m_previous);
    left->addWidget(guide);
    left->addStretch();
    auto* right = new QHBoxLayout;
    right->addStretch();
    right->addWidget(m_skip);
    right->addWidget(m_next);
    row->addLayout(left, 0, 0);
    row->addWidget(m_position, 0, 1, Qt::AlignCenter);
    row->addLayout(right, 0, 2);
    row->setColumnStretch(0, 1);
    row->setColumnStretch(2, 1);
    connect(m_previous, &QPushButton::clicked, this, &WelcomeSlides::previous);
    connect(m_next, &QPushButton::clicked, this, &WelcomeSlides::next);
    connect(m_skip, &QPushButton::clicked, this, &WelcomeSlides::skipped);
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
    // The step forward is the primary button: Next, and on the last slide the way out.
    m_next->setDefault(!last);
    m_skip->setDefault(last);
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
