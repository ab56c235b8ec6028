#include "ui/prompts/PromptView.h"

#include "ui/prompts/MoreTimeMenu.h"
#include "ui/prompts/PromptLayout.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace lullet {

QHBoxLayout* PromptView::finishedOrMoreTime(
    QWidget* parent, const QString& finishName, const std::function<PromptOutcome()>& finish,
    const std::function<PromptOutcome(int minutes)>& moreTime, bool finishIsDefault)
{
    auto* row = new QHBoxLayout;
    QPushButton* finished = PromptLayout::button(tr("Finished"), parent, finishIsDefault);
    finished->setObjectName(finishName);
    QPushButton* more = PromptLayout::button(tr("Need more time"), parent);
    more->setObjectName(QStringLiteral("moreTime"));
    more->setMenu(new MoreTimeMenu(
        [this, moreTime](int minutes) { respond([&] { return moreTime(minutes); }); }, this));
    row->addWidget(finished);
    row->addStretch();
    row->addWidget(more);
    connect(finished, &QPushButton::clicked, this, [this, finish] { respond(finish); });
    return row;
}

} // namespace lullet
